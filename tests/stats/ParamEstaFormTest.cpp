// What the window shows when it opens: texts, headers, what is hidden.

#include "tests/stats/ParamEstaTest.h"

namespace caudalera::testing {
namespace {

class ParamEstaForm : public ParamEstaTest {};

TEST_F(ParamEstaForm, TextsOfTheWindow) {
    EXPECT_EQ(window("frmParamEsta").caption,
              "Cálculo de parámetros estadísticos, comunes y con momentos lineales");
    EXPECT_EQ(text("bOrdenar"), "&Ordenar");
    EXPECT_EQ(control<Control>("bOrdenar").toolTip, "Mostrar serie ordenada");
    EXPECT_EQ(text("lblOrdenado"), "Datos ordenados:");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("fraCoeficientes"), "Coeficientes Lineales:");
    EXPECT_EQ(text("Frame7"), "Archivos y resultados:");
    for (const std::string number : {"1", "2", "3", "4"})
        EXPECT_EQ(control<TextBox>("txtL" + number).label()->caption, "L" + number + ":");
}

TEST_F(ParamEstaForm, CommandsInTheOrderOfEveryWindow) {
    Texts names;
    for (const auto& group : window("frmParamEsta").commands)
        for (const Button* button : group.buttons)
            names.push_back(button->name());
    EXPECT_EQ(names, (Texts{"bCalcular", "bOrdenar", "bLimpiar", "bImprimir", "bReporte", "bCrear",
                            "bAccesar", "bCalculadora", "bMenu"}));
}

TEST_F(ParamEstaForm, ThereIsNoChart) {
    EXPECT_EQ(window("frmParamEsta").find("Graph1"), nullptr);
    EXPECT_EQ(window("frmParamEsta").find("bGraficar"), nullptr);
}

TEST_F(ParamEstaForm, EmptyGridsWithTheirHeaders) {
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 0), "N°|X");
    auto& grid = control<MSFlexGrid>("grdParam");
    EXPECT_EQ(grid.Rows(), 7);
    EXPECT_EQ(grid.Cols(), 4);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 0);
    EXPECT_EQ(rowText("grdParam", 0), "Parámetros|Muestrales|Poblacionales|Momentos Lineales");
    for (long row = 1; row <= 6; ++row)
        EXPECT_EQ(rowText("grdParam", row), "|||") << row;
    EXPECT_EQ(coefficients(), noCoefficients);
}

TEST_F(ParamEstaForm, SortedListIsHiddenAndHoldsItsHeaderOnly) {
    EXPECT_FALSE(control<Control>("grdorden").visible);
    EXPECT_FALSE(control<Control>("lblOrdenado").visible);
    EXPECT_EQ(control<MSFlexGrid>("grdorden").Rows(), 1);
    EXPECT_EQ(control<MSFlexGrid>("grdorden").FixedCols(), 1);
    EXPECT_EQ(rowText("grdorden", 0), "N°|X");
}

TEST_F(ParamEstaForm, PrintsItsImageAndReturnsToTheMainMenu) {
    click("bImprimir");
    ASSERT_EQ(platform.printed.size(), 1U);
    EXPECT_EQ(platform.printed[0].what, "window");
    EXPECT_EQ(platform.printed[0].name, "frmParamEsta");
    click("bMenu");
    EXPECT_EQ(program.find("frmParamEsta"), nullptr);
    EXPECT_EQ(program.front(), program.find("frmCaudalera"));
}

} // namespace
} // namespace caudalera::testing
