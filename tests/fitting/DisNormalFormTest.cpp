// What the window of the normal distribution shows when it opens.

#include "shell/window/Window.h"
#include "tests/fitting/DisNormalTest.h"

namespace caudalera::testing {
namespace {

class DisNormalForm : public DisNormalTest {};

TEST_F(DisNormalForm, TextsOfTheWindow) {
    EXPECT_EQ(window("frmDisNormal").caption,
              "Ajuste de una serie de datos a la distribución normal");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("fraTipoAjuste"), "Tipo de ajuste:");
    EXPECT_EQ(text("fraNivel"), "Nivel significación:");
    EXPECT_EQ(text("fraCaudal"), "Caudal de diseño:");
    EXPECT_EQ(text("fraParametros"), "Parámetros distribución normal:");
    EXPECT_EQ(text("Frame7"), "Archivos y resultados:");
    EXPECT_EQ(text("lblAjuste"), "Ajuste:");
    EXPECT_EQ(text("lblmensaje"), "");
    EXPECT_TRUE(control<Label>("lblmensaje").wraps) << "the verdict is longer than a line";
}

TEST_F(DisNormalForm, FieldsWithTheirLabelsAndUnits) {
    EXPECT_EQ(labelOf("txtux"), "De localización (Xm):");
    EXPECT_EQ(labelOf("txtSX"), "De escala (S):");
    EXPECT_EQ(labelOf("txtmedial"), "Media  lineal (Xl):");
    EXPECT_EQ(labelOf("txtsl"), "Des. Estandar (S l):");
    EXPECT_EQ(labelOf("txtxq"), "Caudal (Q):");
    EXPECT_EQ(unitOf("txtxq"), "m3/s");
    EXPECT_EQ(labelOf("txtxt"), "Período de retorno (T):");
    EXPECT_EQ(unitOf("txtxt"), "");
    EXPECT_EQ(labelOf("txtxp"), "Probabilidad (P):");
    EXPECT_EQ(unitOf("txtxp"), "%");
    EXPECT_EQ(parameters(), noParameters);
}

TEST_F(DisNormalForm, OptionsAndTheirDefaults) {
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

TEST_F(DisNormalForm, TheTwoGroupsOfOptionsAreIndependent) {
    click("optMomentoLi");
    click("opt020");
    EXPECT_TRUE(control<Option>("optMomentoLi").checked());
    EXPECT_FALSE(control<Option>("optOrdinario").checked());
    EXPECT_TRUE(control<Option>("opt020").checked());
    EXPECT_FALSE(control<Option>("opt005").checked());
}

TEST_F(DisNormalForm, CommandsWithTheirToolTips) {
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

TEST_F(DisNormalForm, CommandsInTheOrderOfEveryWindow) {
    Texts names;
    for (const auto& group : window("frmDisNormal").commands)
        for (const Button* button : group.buttons)
            names.push_back(button->name());
    EXPECT_EQ(names, (Texts{"bCalcular", "bGraficar", "bLimpiar", "bImprimir", "bReporte", "bCrear",
                            "bAccesar", "bCalculadora", "bMenu"}));
}

TEST_F(DisNormalForm, EmptyGridsWithTheirHeaders) {
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 0), "N°|X");
    auto& grid = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grid.Rows(), 500);
    EXPECT_EQ(grid.Cols(), 6);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 0);
    EXPECT_EQ(grid.visibleRows, 8);
    EXPECT_EQ(grid.columnWidths, (std::vector<int>{700, 1000, 1000, 1200, 1300, 1000}));
    EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|F(Z) Ordinario|F(Z) Mom Lineal|Delta");
    EXPECT_EQ(rowText("grddis", 1), "|||||");
    EXPECT_EQ(rowText("grddis", 499), "|||||");
}

TEST_F(DisNormalForm, ChartIsHidden) {
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_TRUE(control<Graph>("Graph1").series().empty());
}

} // namespace
} // namespace caudalera::testing
