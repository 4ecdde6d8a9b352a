// Area groups and the weighted C of the second tab.

#include "tests/peakflow/RacionalTest.h"

namespace caudalera {
namespace {

TEST_F(RacionalTest, AGroupOfLandFillsItsRow) {
    tab(1);
    group("12.5", "Forestal", "Arcillosa", "7.5");
    EXPECT_EQ(rowText("grdC", 1), "1| 12.5|Forestal|Arcillosa|7.5| .5");
    EXPECT_EQ(text("txtgrupo"), " 2");
    EXPECT_EQ(text("txtac"), "");
    EXPECT_EQ(text("txts"), "");
    EXPECT_EQ(text("cboCobertura"), "Forestal");
    EXPECT_EQ(text("cboTextura"), "Arcillosa");
    EXPECT_EQ(text("cboZUrbana"), "Zonas urbanas");
    EXPECT_EQ(focus(), "txtac");
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalTest, TheSlopeChoosesTheColumn) {
    const struct {
        const char *slope, *shown, *C;
    } cases[] = {{"5", "5", " .1"},       {"5.01", "5.01", " .25"}, {"10", "10", " .25"},
                 {"10.5", "10.5", " .3"}, {"-2", "-2", " .3"},      {".5", "0.5", " .1"},
                 {"", "0", " .1"}};
    long row = 0;
    for (const auto& [slope, shownSlope, C] : cases) {
        group("1", "Forestal", "Franco arenosa", slope);
        ++row;
        EXPECT_EQ(cellText("grdC", row, 4), shownSlope);
        EXPECT_EQ(cellText("grdC", row, 5), C) << slope;
    }
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalTest, AnUrbanGroupIgnoresCoverTextureAndSlope) {
    enter("txts", "8");
    urbanGroup("3", "parques, cementerios");
    EXPECT_EQ(rowText("grdC", 1), "1| 3|parques, cementerios||| .25");
    EXPECT_EQ(text("cboZUrbana"), "Zonas urbanas");
    EXPECT_EQ(text("txts"), "");
}

TEST_F(RacionalTest, ATextOutsideTheTablesHasAnEmptyCoefficient) {
    group("1", "Bosque", "Arcillosa", "1");
    EXPECT_EQ(rowText("grdC", 1), "1| 1|Bosque|Arcillosa|1| 0");
    urbanGroup("2", "plazas");
    EXPECT_EQ(rowText("grdC", 2), "2| 2|plazas||| 0");
}

TEST_F(RacionalTest, AGroupNeedsItsArea) {
    choose("cboZUrbana", "techados");
    click("bAgregar");
    expectMessage({"Ingresar dato en forma adecuada", ""});
    EXPECT_EQ(focus(), "txtac");
    EXPECT_EQ(text("txtgrupo"), " 1");
    EXPECT_EQ(rowText("grdC", 1), "|||||");
    EXPECT_EQ(text("cboZUrbana"), "techados");
}

TEST_F(RacionalTest, TheThirtyFirstGroupIsFatal) {
    for (int i = 0; i < 30; ++i)
        group("1", "Praderas", "Arcillosa", "1");
    EXPECT_EQ(text("txtgrupo"), " 31");
    EXPECT_EQ(rowText("grdC", 30), "30| 1|Praderas|Arcillosa|1| .4");
    EXPECT_FALSE(platform.ending.has_value());
    group("1", "Praderas", "Arcillosa", "1");
    EXPECT_TRUE(fatal(9));
}

// 10 * 0.30 + 30 * 0.70 = 24 over 40 is 0.6.
TEST_F(RacionalTest, TheWeightedCoefficientGoesToTheFlowTab) {
    group("10", "Terrenos cultivados", "Franco arenosa", "2");
    group("30", "Terrenos cultivados", "Arcillosa", "6");
    click("bCponderado");
    EXPECT_EQ(text("txtCponderado"), "0.6");
    EXPECT_EQ(text("txtcq"), "0.6");
    EXPECT_EQ(text("txtatotal"), "40");
    EXPECT_EQ(text("txtaq"), "40");
    EXPECT_EQ(text("txtqmax"), "");
}

// In singles 10 * 0.7 is 6.99999988..., stored as 7, and 7 + 3.49999994... is stored as 10.5, so C
// is 10.5 / 20 = 0.525, shown 0.53. In doubles the sum is 10.4999998..., which would show 0.52.
TEST_F(RacionalTest, TheSumsAreHeldInSingles) {
    urbanGroup("10", "casas de habitación");
    urbanGroup("10", "campos de juego");
    click("bCponderado");
    EXPECT_EQ(text("txtCponderado"), "0.53");
    EXPECT_EQ(text("txtatotal"), "20");
}

TEST_F(RacionalTest, TheTotalAreaIsPlainText) {
    urbanGroup(".1", "techados");
    urbanGroup(".2", "techados");
    click("bCponderado");
    EXPECT_EQ(text("txtatotal"), "0.3");
    EXPECT_EQ(text("txtaq"), "0.3");
    EXPECT_EQ(text("txtCponderado"), "0.95");
    EXPECT_EQ(cellText("grdC", 1, 1), " .1");
}

TEST_F(RacionalTest, ANewWeightingOverwritesWhatItHandedOnButNotTheFlow) {
    urbanGroup("36", "residenciales familiares simples");
    click("bCponderado");
    enter("txtiq", "100");
    click("bCalcular");
    EXPECT_EQ(text("txtqmax"), "5.0");
    urbanGroup("36", "techados");
    click("bCponderado");
    EXPECT_EQ(text("txtcq"), "0.73"); // (18 + 34.2) / 72 = 0.725
    EXPECT_EQ(text("txtaq"), "72");
    EXPECT_EQ(text("txtqmax"), "5.0");
}

TEST_F(RacionalTest, WeighingNoGroupIsFatal) {
    click("bCponderado");
    EXPECT_TRUE(fatal(11));
}

TEST_F(RacionalTest, WeighingNoAreaIsFatal) {
    urbanGroup("0", "techados");
    click("bCponderado");
    EXPECT_TRUE(fatal(11));
}

TEST_F(RacionalTest, ClearingTheGroupTabStartsTheGroupsAnew) {
    tab(1);
    urbanGroup("10", "techados");
    urbanGroup("20", "campos de juego");
    click("bCponderado");
    enter("txtac", "5");
    enter("txts", "3");
    choose("cboCobertura", "Praderas");
    choose("cboZUrbana", "techados");
    click("bLimpiar");
    EXPECT_EQ(text("txtgrupo"), " 1");
    EXPECT_EQ(form.grdC.Rows(), 50);
    EXPECT_EQ(rowText("grdC", 0), "Grupo N°|Área|Cobertura|Textura|Pendiente|C");
    EXPECT_EQ(rowText("grdC", 1), "|||||");
    for (const char* name : {"txtac", "txts", "txtCponderado", "txtatotal"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_EQ(text("cboCobertura"), "Praderas");
    EXPECT_EQ(text("cboZUrbana"), "techados");
    EXPECT_EQ(text("txtaq"), "30");
    EXPECT_EQ(focus(), "txtac");
    // A new group is the first one again.
    urbanGroup("40", "estacionamientos");
    click("bCponderado");
    EXPECT_EQ(text("txtCponderado"), "0.85");
    EXPECT_EQ(text("txtatotal"), "40");
}

} // namespace
} // namespace caudalera
