// The first two tabs of the window of Mac Math: what they show, the groups, the flow.

#include "tests/peakflow/MacMathWindowTest.h"

namespace caudalera {
namespace {

TEST_F(MacMathWindowTest, StartsOnTheFlowTab) {
    EXPECT_EQ(form.caption, "Cálculo del caudal máximo utilizando el método de Mac Math");
    EXPECT_EQ(form.SSTab1.titles(),
              (std::vector<std::string>{"Cálculo de Q", "Cálculo de C", "Cálculo de I"}));
    EXPECT_EQ(form.SSTab1.tab(), 0);
    EXPECT_EQ(focus(), "txtcq");
    EXPECT_EQ(form.Picture1.image(), "macmath");
    EXPECT_EQ(text("lblMensajeI"), "para una duración igual al tiempo de concentración y un "
                                   "período de retorno T");
    EXPECT_EQ(form.find("bGraficar"), nullptr);
    EXPECT_EQ(form.find("cboZUrbana"), nullptr);
    EXPECT_FALSE(form.calculado());
}

TEST_F(MacMathWindowTest, FieldsHaveTheirLabelsAndUnits) {
    const struct {
        const char *name, *label, *unit;
    } fields[] = {
        {"txtsp", "Pendiente cauce (S):", "o/oo"}, {"txtcq", "Coeficiente (C):", ""},
        {"txtaq", "Área cuenca (A):", "has"},      {"txtiq", "Intensidad máxima (I):", "mm/hr"},
        {"txtqmax", "Q máximo:", "m3/s"},          {"txtgrupo", "Grupo N°:", ""},
        {"txtac", "Area parcial (A):", "has"},     {"txts", "Pendiente", "%"},
        {"txtCponderado", "C ponderado:", ""},     {"txtatotal", "Área total:", "has"},
    };
    for (const auto& [name, label, unit] : fields) {
        SCOPED_TRACE(name);
        const auto& box = control<TextBox>(name);
        EXPECT_EQ(box.label() ? box.label()->caption : "", label);
        EXPECT_EQ(box.unit() ? box.unit()->caption : "", unit);
        EXPECT_EQ(box.text(), std::string(name) == "txtgrupo" ? " 1" : "");
    }
    EXPECT_EQ(text("lblZonasNoUrbanas"), "Zonas no urbanas:");
}

TEST_F(MacMathWindowTest, ListsStartOnTheirFirstChoices) {
    EXPECT_EQ(form.cboCobertura.items(),
              (std::vector<std::string>{"0 - 20", "20 - 50", "50 - 80", "80 - 100", "100"}));
    EXPECT_EQ(text("cboCobertura"), "0 - 20");
    EXPECT_EQ(form.cboCobertura.label()->caption, "Cobertura:");
    ASSERT_NE(form.cboCobertura.unit(), nullptr);
    EXPECT_EQ(form.cboCobertura.unit()->caption, "%");
    EXPECT_EQ(form.cboTextura.items(),
              (std::vector<std::string>{"Arenosa", "Ligera", "Media", "Fina", "Rocosa"}));
    EXPECT_EQ(text("cboTextura"), "Arenosa");
    EXPECT_EQ(form.cboTextura.label()->caption, "Textura:");
    EXPECT_EQ(form.cboTextura.unit(), nullptr);
}

TEST_F(MacMathWindowTest, GridsStartEmpty) {
    EXPECT_EQ(form.grdC.Rows(), 50);
    EXPECT_EQ(form.grdC.Cols(), 6);
    EXPECT_EQ(form.grdC.FixedRows(), 1);
    EXPECT_EQ(form.grdC.FixedCols(), 0);
    EXPECT_EQ(rowText("grdC", 0), "Grupo N°|Área|Cobertura (%)|Textura|Pendiente (%)|C");
    EXPECT_EQ(rowText("grdC", 1), "|||||");
    EXPECT_EQ(rowText("grdt", 0), "Trío|T (años)|Duración (min)|I máx (mm/hr)");
    EXPECT_EQ(rowText("grdt", 1), "[?]|||");
}

TEST_F(MacMathWindowTest, EnterBeginsWithTheSlope) {
    program.focus(form.txtsp);
    for (const char* next : {"txtcq", "txtaq", "txtiq", "bCalcular"}) {
        key(focus(), Key::Kind::enter);
        EXPECT_EQ(focus(), next);
    }
}

TEST_F(MacMathWindowTest, NumberFieldsTakeDigitsAndOnePoint) {
    for (const char* name : {"txtsp", "txtcq", "txtaq", "txtiq", "txtac", "txts", "txtLi"}) {
        type(name, "-1a2.5.e7");
        EXPECT_EQ(text(name), "12.57") << name;
    }
}

TEST_F(MacMathWindowTest, AGroupFillsItsRow) {
    tab(1);
    EXPECT_EQ(focus(), "txtac");
    group("12.5", "100", "Arenosa", ".1");
    group("7", "0 - 20", "Rocosa", "9");
    EXPECT_EQ(rowText("grdC", 1), "1| 12.5|100|Arenosa|0.1| .2");
    EXPECT_EQ(rowText("grdC", 2), "2| 7|0 - 20|Rocosa|9| .75");
    EXPECT_EQ(text("txtgrupo"), " 3");
    EXPECT_EQ(text("txtac"), "");
    EXPECT_EQ(text("txts"), "");
    EXPECT_EQ(text("cboCobertura"), "0 - 20");
    EXPECT_EQ(text("cboTextura"), "Rocosa");
    EXPECT_EQ(focus(), "txtac");
    EXPECT_TRUE(messages().empty());
}

// 0.16 + 0.12 and, without the part of the slope, nothing else.
TEST_F(MacMathWindowTest, ANegativeSlopeIsNoFault) {
    group("1", "50 - 80", "Ligera", "-1");
    EXPECT_EQ(rowText("grdC", 1), "1| 1|50 - 80|Ligera|-1| .28");
    group("1", "Bosque", "Arcilla", "abc");
    EXPECT_EQ(rowText("grdC", 2), "2| 1|Bosque|Arcilla|0| .04");
    EXPECT_TRUE(messages().empty());
}

TEST_F(MacMathWindowTest, AGroupNeedsItsAreaAndItsSlope) {
    click("bAgregar");
    expectMessage({"Ingresar el dato del área en forma adecuada", "Error"});
    EXPECT_EQ(focus(), "txtac");
    enter("txtac", "5");
    click("bAgregar");
    expectMessage({"Ingresar el dato de la pendiente en forma adecuada", "Error"});
    EXPECT_EQ(focus(), "txts");
    EXPECT_EQ(text("txtac"), "5");
    EXPECT_EQ(text("txtgrupo"), " 1");
    EXPECT_EQ(rowText("grdC", 1), "|||||");
}

TEST_F(MacMathWindowTest, TheThirtyFirstGroupIsFatal) {
    for (int i = 0; i < 30; ++i)
        group("1", "100", "Fina", "1");
    EXPECT_EQ(text("txtgrupo"), " 31");
    EXPECT_EQ(rowText("grdC", 30), "30| 1|100|Fina|1| .36");
    EXPECT_FALSE(platform.ending.has_value());
    group("1", "100", "Fina", "1");
    EXPECT_TRUE(fatal(9));
}

// 10 * 0.20 + 30 * 0.75 = 24.5 over 40 is 0.6125.
TEST_F(MacMathWindowTest, TheWeightedCoefficientGoesToTheFlowTab) {
    group("10", "100", "Arenosa", "0");
    group("30", "0 - 20", "Rocosa", "6");
    click("bCponderado");
    EXPECT_EQ(text("txtCponderado"), "0.61");
    EXPECT_EQ(text("txtcq"), "0.61");
    EXPECT_EQ(text("txtatotal"), "40");
    EXPECT_EQ(text("txtaq"), "40");
    EXPECT_EQ(text("txtsp"), "");
}

TEST_F(MacMathWindowTest, WeighingNoGroupIsFatal) {
    click("bCponderado");
    EXPECT_TRUE(fatal(11));
}

// 0.0091 * 0.5 * 100 * 16 * 2 = 14.56; 0.0091 * 1 * 1 * 16 * 1 = 0.1456.
TEST_F(MacMathWindowTest, TheFlowIsShownWithOneToThreeDecimals) {
    EXPECT_EQ(flow("0.5", "100", "32", "32"), "14.560");
    EXPECT_EQ(flow("1", "1", "32", "1"), "0.146");
    EXPECT_EQ(flow("1", "1000", "1", "1"), "9.10");
    EXPECT_EQ(flow("0.5", "100", "32", "0"), "0.0");
    EXPECT_TRUE(messages().empty());
}

TEST_F(MacMathWindowTest, AsksForTheFirstMissingValueOnly) {
    const std::string title = "Error por dato inadecuado";
    const struct {
        const char *field, *text;
    } asked[] = {{"txtcq", "Ingresar un valor adecuado para C"},
                 {"txtaq", "Ingresar un valor adecuado para el área"},
                 {"txtiq", "Ingresar un valor adecuado para la Imáx"},
                 {"txtsp", "Ingresar un valor adecuado para la pendiente"}};
    for (const auto& [field, message] : asked) {
        click("bCalcular");
        expectMessage({message, title});
        EXPECT_EQ(focus(), field);
        EXPECT_EQ(text(field), "");
        EXPECT_EQ(text("txtqmax"), "");
        enter(field, "1");
    }
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtqmax"), "0.009");
}

TEST_F(MacMathWindowTest, ANegativeSlopeOfTheWatercourseIsFatal) {
    EXPECT_EQ(flow("1", "1", "1", "-1"), "");
    EXPECT_TRUE(fatal(5));
}

TEST_F(MacMathWindowTest, ANegativeAreaIsFatal) {
    EXPECT_EQ(flow("1", "1", "-1", "1"), "");
    EXPECT_TRUE(fatal(5));
}

TEST_F(MacMathWindowTest, ClearingTheFlowTabEmptiesTheSlopeToo) {
    flow("0.5", "100", "32", "32");
    enter("txtac", "1");
    enter("txtLi", "1");
    click("bLimpiar");
    for (const char* name : {"txtsp", "txtcq", "txtaq", "txtiq", "txtqmax"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_EQ(text("txtac"), "1");
    EXPECT_EQ(text("txtLi"), "1");
    EXPECT_EQ(focus(), "txtcq");
}

TEST_F(MacMathWindowTest, ClearingTheGroupTabStartsTheGroupsAnew) {
    tab(1);
    group("10", "100", "Arenosa", "0");
    click("bCponderado");
    enter("txts", "3");
    choose("cboTextura", "Fina");
    enter("txtsp", "4");
    click("bLimpiar");
    EXPECT_EQ(text("txtgrupo"), " 1");
    EXPECT_EQ(rowText("grdC", 0), "Grupo N°|Área|Cobertura (%)|Textura|Pendiente (%)|C");
    EXPECT_EQ(rowText("grdC", 1), "|||||");
    for (const char* name : {"txtac", "txts", "txtCponderado", "txtatotal"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_EQ(text("cboTextura"), "Fina");
    EXPECT_EQ(text("txtcq"), "0.2");
    EXPECT_EQ(text("txtsp"), "4");
    EXPECT_EQ(focus(), "txtac");
}

} // namespace
} // namespace caudalera
