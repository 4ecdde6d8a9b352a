// What the window of the seasonal variation curve shows when it opens, and its month grid.

#include "tests/curves/VariacionEstaTest.h"

namespace caudalera::testing {
namespace {

class VariacionEstaForm : public VariacionEstaTest {};

TEST_F(VariacionEstaForm, TextsOfTheWindow) {
    EXPECT_EQ(window("frmVariacionEsta").caption, "Curva de variación estacional");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("lblProbabilidad"), "Probabilidad de ocurrencia de eventos mensuales");
    EXPECT_EQ(text("bGraficar"), "&Graficar");
    EXPECT_EQ(control<Button>("bGraficar").toolTip, "Mostrar gráfico");
    EXPECT_EQ(text("txtnanos"), "");
    EXPECT_TRUE(control<TextBox>("txtnanos").result);
}

TEST_F(VariacionEstaForm, TheChartTellsItsAxisOfMonths) {
    ASSERT_EQ(chart().xLabels.size(), 1U);
    EXPECT_EQ(chart().xLabels[0]->caption, "Eje de Meses: 0 = Ene, 1 = Feb, ... ,11= Dic");
    EXPECT_FALSE(chart().visible);
}

TEST_F(VariacionEstaForm, CommandsInTheOrderOfEveryWindow) {
    Texts names;
    for (const auto& group : window("frmVariacionEsta").commands) {
        for (const Button* button : group.buttons)
            names.push_back(button->name());
    }
    EXPECT_EQ(names, (Texts{"bCalcular", "bGraficar", "bLimpiar", "bImprimir", "bReporte", "bCrear",
                            "bAccesar", "bCalculadora", "bMenu"}));
}

TEST_F(VariacionEstaForm, EmptyGridsWithTheirHeaders) {
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 0), "Mes|X");
    EXPECT_EQ(focus(), "grdt");
    const auto& grid = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grid.Rows(), 13);
    EXPECT_EQ(grid.Cols(), 7);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 0);
    EXPECT_EQ(rowText("grddis", 0), "Meses| 70 %| 75 %|80 %|85 %|90 %|95 %");
    EXPECT_EQ(results(), noCurves);
}

TEST_F(VariacionEstaForm, RowsCarryTheMonthsOverAndOver) {
    values(firstYear);
    values({"1", "2"});
    const Texts labels = {"Ene", "Feb", "Mar", "Abr", "May", "Jun", "Jul",
                          "Ago", "Set", "Oct", "Nov", "Dic", "Ene", "Feb"};
    for (std::size_t i = 0; i < labels.size(); ++i)
        EXPECT_EQ(cellText("grdt", static_cast<long>(i) + 1, 0), labels[i]) << i;
    EXPECT_EQ(cellText("grdt", 15, 0), "[->]");
    deleteRow(1);
    EXPECT_EQ(rowText("grdt", 1), "Ene|10.0");
    EXPECT_EQ(rowText("grdt", 13), "Ene|2.0");
    EXPECT_EQ(cellText("grdt", 14, 0), "[?]");
}

TEST_F(VariacionEstaForm, PrintsItsImageAndReturnsToTheMainMenu) {
    click("bImprimir");
    ASSERT_EQ(platform.printed.size(), 1U);
    EXPECT_EQ(platform.printed[0].name, "frmVariacionEsta");
    click("bMenu");
    EXPECT_EQ(program.find("frmVariacionEsta"), nullptr);
}

} // namespace
} // namespace caudalera::testing
