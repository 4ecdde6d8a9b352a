// What the two windows of the Gumbel distribution show when they open.

#include "shell/window/Window.h"
#include "tests/fitting/DisGumbelTest.h"

namespace caudalera::testing {
namespace {

class DisGumbelForm : public BothGumbelTest {};
INSTANTIATE_TEST_SUITE_P(Both, DisGumbelForm, ::testing::Values(ofValues, ofLogarithms),
                         windowName);

TEST_P(DisGumbelForm, TextsOfTheWindow) {
    EXPECT_EQ(window(mine.window).caption, mine.caption);
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("fraTipoAjuste"), "Tipo de ajuste:");
    EXPECT_EQ(text("fraNivel"), "Nivel significación:");
    EXPECT_EQ(text("fraCaudal"), "Caudal de diseño:");
    EXPECT_EQ(text("fraParametros"), "Parámetros distribución " + mine.distribution + ":");
    EXPECT_EQ(text("Frame7"), "Archivos y resultados:");
    EXPECT_EQ(text("lblAjuste"), "Ajuste:");
    EXPECT_EQ(text("lblmensaje"), "");
}

TEST_P(DisGumbelForm, FieldsWithTheirLabelsAndUnits) {
    EXPECT_EQ(labelOf("txtmodau"), "De posición (µ):");
    EXPECT_EQ(labelOf("txtalfa"), "De escala (alfa):");
    EXPECT_EQ(labelOf("txtmodaul"), "De posición (µl):");
    EXPECT_EQ(labelOf("txtalfal"), "De escala (alfal):");
    EXPECT_EQ(labelOf("txtxq"), "Caudal (Q):");
    EXPECT_EQ(unitOf("txtxq"), "m3/s");
    EXPECT_EQ(labelOf("txtxt"), "Período de retorno (T):");
    EXPECT_EQ(unitOf("txtxt"), "");
    EXPECT_EQ(labelOf("txtxp"), "Probabilidad (P):");
    EXPECT_EQ(unitOf("txtxp"), "%");
    EXPECT_EQ(parameters(), noParameters);
}

TEST_P(DisGumbelForm, OptionsAndTheirDefaults) {
    const auto option = [&](const std::string& name) {
        return text(name) + (control<Option>(name).checked() ? " *" : "");
    };
    EXPECT_EQ(option("optOrdinario"), "Parámetros ordinarios *");
    EXPECT_EQ(option("optMomentoLi"), "Momentos lineales");
    EXPECT_EQ(option("opt020"), "0.20");
    EXPECT_EQ(option("opt010"), "0.10");
    EXPECT_EQ(option("opt005"), "0.05 *");
    EXPECT_EQ(option("opt001"), "0.01");
}

TEST_P(DisGumbelForm, CommandsWithTheirToolTips) {
    const std::vector<Texts> commands = {
        {"bCalcular", "Calc&ular", "Efectuar cálculos"},
        {"bGraficar", "&Graficar", "Mostrar gráfico"},
        {"bReporte", "&Reporte", "Generar reporte"},
        {"bQ", "Q=f(T)", "Caudal de diseño"},
        {"bT", "T=f(Q)", "Periodo de retorno"},
        {"bPmayor", "P(Q>q)", "Probabilidad de excedencia"},
        {"bPmenor", "P(Q<q)", "Probabilidad de no excedencia"},
    };
    for (const Texts& each : commands) {
        EXPECT_EQ(text(each[0]), each[1]);
        EXPECT_EQ(control<Control>(each[0]).toolTip, each[2]);
    }
}

TEST_P(DisGumbelForm, EmptyGridsWithTheirHeaders) {
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 0), "N°|X");
    auto& grid = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grid.Rows(), 500);
    EXPECT_EQ(grid.Cols(), 6);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 0);
    EXPECT_EQ(grid.visibleRows, 8);
    EXPECT_EQ(grid.columnWidths, (std::vector<int>{700, 1000, 1000, 1200, 1300, 1000}));
    EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|G(Y) Ordinario|G(Y) Mom Lineal|Delta");
    EXPECT_TRUE(resultRows().empty());
}

TEST_P(DisGumbelForm, ChartIsHidden) {
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_TRUE(control<Graph>("Graph1").series().empty());
}

} // namespace
} // namespace caudalera::testing
