// What the window of simple regression shows apart from a calculation, and what its resets do.

#include "tests/regression/EjRegSimpleTest.h"

namespace caudalera {
namespace {

TEST_F(EjRegSimpleTest, HasItsTexts) {
    EXPECT_EQ(window("frmEjRegSimple").caption, "Cálculos con ecuaciones de Regresión Simple");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los pares de datos:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("fraAplicar"), "Aplicar ecuación:");
    EXPECT_EQ(control<TextBox>("txtvxx").label()->caption, "Valor de X:");
    EXPECT_EQ(control<TextBox>("txtvyy").label()->caption, "Valor de Y:");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_EQ(text("optLineal"), "con ecuación Lineal");
    EXPECT_EQ(text("optExponencial"), "con ecuación Exponencial");
    EXPECT_EQ(text("optPotencial"), "con ecuación Potencial");
    EXPECT_EQ(text("bLimpiarDatos"), "Limpiar datos");
    EXPECT_EQ(text("bGraficar"), "&Graficar");
    EXPECT_EQ(control<Button>("bGraficar").toolTip, "Mostrar gráfico");
}

TEST_F(EjRegSimpleTest, StartsWithEmptyGridsAndNoOption) {
    auto& grdt = control<MSFlexGrid>("grdt");
    EXPECT_EQ(grdt.Rows(), 2);
    EXPECT_EQ(grdt.FixedRows(), 1);
    EXPECT_EQ(grdt.FixedCols(), 1);
    EXPECT_EQ(grdt.visibleRows, 14);
    EXPECT_EQ(rowText("grdt", 0), "Par|X|Y");
    EXPECT_EQ(rowText("grdt", 1), "[?]||");

    auto& grdecua = control<MSFlexGrid>("grdecua");
    EXPECT_EQ(grdecua.Rows(), 4);
    EXPECT_EQ(grdecua.FixedRows(), 1);
    EXPECT_EQ(grdecua.FixedCols(), 0);
    EXPECT_EQ(rowText("grdecua", 0), "Correlación|Ecuación|R|R2");
    EXPECT_EQ(equations(), noEquations);

    for (const char* name : {"optLineal", "optExponencial", "optPotencial"})
        EXPECT_FALSE(control<Option>(name).checked()) << name;
    EXPECT_EQ(text("txtvxx"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
}

TEST_F(EjRegSimpleTest, LimpiarResetsGridsFieldsFlagAndChart) {
    calculate(doubling);
    enter("txtvxx", "3");
    click("optPotencial");
    click("bGraficar");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(equations(), noEquations);
    EXPECT_EQ(text("txtvxx"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_TRUE(control<Graph>("Graph1").series().empty());
    enter("txtvxx", "3");
    messages();
    click("optLineal");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(text("txtvyy"), "");
}

TEST_F(EjRegSimpleTest, LimpiarDatosLeavesTheEquationsAndTheirName) {
    calculate(doubling);
    enter("txtvxx", "3");
    click("optLineal");
    click("bLimpiarDatos");
    EXPECT_EQ(text("txtvxx"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_FALSE(control<Option>("optLineal").checked());
    EXPECT_EQ(focus(), "txtvxx");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación Lineal");
    EXPECT_EQ(equations(), doublingEquations);
}

TEST_F(EjRegSimpleTest, LimpiarDatosClearsAnOptionThatWasRefused) {
    click("optExponencial");
    EXPECT_TRUE(control<Option>("optExponencial").checked());
    click("bLimpiarDatos");
    EXPECT_FALSE(control<Option>("optExponencial").checked());
}

TEST_F(EjRegSimpleTest, ImprimirPrintsTheWindowAndMenuUnloadsIt) {
    click("bImprimir");
    ASSERT_EQ(platform.printed.size(), 1U);
    EXPECT_EQ(platform.printed[0].name, "frmEjRegSimple");
    click("bMenu");
    EXPECT_EQ(program.find("frmEjRegSimple"), nullptr);
}

} // namespace
} // namespace caudalera
