// What the window of the storm shows at the start, and what resets it.

#include "tests/precipitation/AnalisisTorTest.h"

namespace caudalera {
namespace {

TEST_F(AnalisisTorTest, HasItsTexts) {
    EXPECT_EQ(form.caption, "Análisis de una tormenta y cálculo de la intensidad maxima");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los pares de datos tiempo y lluvia parcial:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("fraIntensidad"), "Intensidad máxima:");
    EXPECT_EQ(form.txtvI.label()->caption, "I máxima:");
    EXPECT_EQ(form.txtvI.unit()->caption, "mm/hr");
    EXPECT_EQ(form.txtvD.label()->caption, "Duración:");
    EXPECT_EQ(form.txtvD.unit()->caption, "min");
    EXPECT_EQ(text("fraTipoGra"), "Tipo de gráfico:");
    EXPECT_EQ(text("optHistograma"), "Histograma");
    EXPECT_EQ(text("optCurvamasa"), "Curva masa");
    EXPECT_EQ(text("lblIntensidad"), "Intensidad (mm/hr)");
    EXPECT_EQ(text("lblPrecipitacion"), "Precipitación (mm)");
    EXPECT_EQ(text("lblTiempo"), "Tiempo acumulado (min)");
    EXPECT_EQ(text("bGraficar"), "&Graficar");
    EXPECT_EQ(form.bGraficar.toolTip, "Mostrar gráfico");
    EXPECT_EQ(text("bLimpiar"), "&Limpiar");
}

TEST_F(AnalisisTorTest, StartsWithEmptyGridsAndAHiddenChart) {
    EXPECT_EQ(rowText("grdt", 0), "Par|Tiempo parcial (min)|Lluvia parcial (mm)");
    EXPECT_EQ(rowText("grdt", 1), "[?]||");
    EXPECT_EQ(form.grdt.visibleRows, 14);
    EXPECT_EQ(form.grdecua.Rows(), 200);
    EXPECT_EQ(form.grdecua.Cols(), 6);
    EXPECT_EQ(form.grdecua.FixedRows(), 2);
    EXPECT_EQ(form.grdecua.FixedCols(), 1);
    EXPECT_EQ(form.grdecua.visibleRows, 7);
    EXPECT_EQ(rowText("grdecua", 0), "N°|T parcial|T acum.|P parcial|P acum.|I");
    EXPECT_EQ(rowText("grdecua", 1), "|(min)|(min)|(mm)|(mm)|(mm/hr)");
    EXPECT_EQ(rowText("grdecua", 2), "|||||");
    EXPECT_EQ(focus(), "grdt");
    for (const char* name :
         {"Graph1", "fraTipoGra", "lblIntensidad", "lblPrecipitacion", "lblTiempo"})
        EXPECT_FALSE(shown(name)) << name;
    EXPECT_FALSE(form.optHistograma.checked());
    EXPECT_FALSE(form.optCurvamasa.checked());
    EXPECT_FALSE(form.calculado());
    EXPECT_TRUE(form.txtvI.result);
    EXPECT_TRUE(form.txtvD.result);
}

TEST_F(AnalisisTorTest, TheAxesHaveTheirCaptions) {
    EXPECT_EQ(form.Graph1.xLabels, std::vector<Label*>{&form.lblTiempo});
    EXPECT_EQ(form.Graph1.yLabels,
              (std::vector<Label*>{&form.lblIntensidad, &form.lblPrecipitacion}));
}

TEST_F(AnalisisTorTest, LimpiarResetsDataResultsAndChart) {
    rows(tormentaDeCuatro);
    click("bCalcular");
    click("bGraficar");
    click("optCurvamasa");
    click("bLimpiar");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(form.grdecua.Rows(), 200);
    EXPECT_EQ(rowText("grdecua", 1), "|(min)|(min)|(mm)|(mm)|(mm/hr)");
    EXPECT_EQ(rowText("grdecua", 2), "|||||");
    EXPECT_EQ(largest(), "|");
    EXPECT_FALSE(form.calculado());
    for (const char* name :
         {"Graph1", "fraTipoGra", "lblIntensidad", "lblPrecipitacion", "lblTiempo"})
        EXPECT_FALSE(shown(name)) << name;
    EXPECT_TRUE(form.Graph1.series().empty());
    EXPECT_TRUE(form.optCurvamasa.checked());
    EXPECT_TRUE(messages().empty());
}

// Lowest byte first: 10 is 0x41200000, 2.5 0x40200000, 0.1 rounds to 0x3DCCCCCD, 3 is 0x40400000.
TEST_F(AnalisisTorTest, ASeriesFileHoldsThePairs) {
    rows({{"10", "2.5"}, {"0.1", "3"}});
    platform.answers = {file("a.TH")};
    click("bCrear");
    EXPECT_EQ(bytesOf(file("a.TH")), (Bytes{0x00, 0x00, 0x20, 0x41, 0x00, 0x00, 0x20, 0x40, //
                                            0xCD, 0xCC, 0xCC, 0x3D, 0x00, 0x00, 0x40, 0x40}));
    click("bLimpiar");
    load(file("a.TH"));
    EXPECT_EQ(form.grdt.Rows(), 4);
    EXPECT_EQ(rowText("grdt", 1), " 1|10.0|2.5");
    EXPECT_EQ(rowText("grdt", 2), " 2|0.1|3.0");
    EXPECT_EQ(rowText("grdt", 3), "[->]||");
}

TEST_F(AnalisisTorTest, ALoadResetsTheResultsAndTheChartBeforeItsDialog) {
    rows(tormentaDeCuatro);
    click("bCalcular");
    click("bGraficar");
    // Cancelled.
    click("bAccesar");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(rowText("grdecua", 2), "|||||");
    EXPECT_EQ(largest(), "|");
    EXPECT_FALSE(form.calculado());
    for (const char* name :
         {"Graph1", "fraTipoGra", "lblIntensidad", "lblPrecipitacion", "lblTiempo"})
        EXPECT_FALSE(shown(name)) << name;
    EXPECT_TRUE(messages().empty());
}

TEST_F(AnalisisTorTest, FiveHundredAndFiftyPairsCanBeSavedAndOneMoreEndsTheProgram) {
    loadMinutes(550);
    platform.answers = {file("b.TH"), file("c.TH")};
    click("bCrear");
    EXPECT_EQ(bytesOf(file("b.TH")).size(), 4400U);
    EXPECT_FALSE(platform.ending.has_value());
    cell("grdt", form.grdt.Rows() - 1, 1);
    rows({{"1", "1"}});
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

} // namespace
} // namespace caudalera
