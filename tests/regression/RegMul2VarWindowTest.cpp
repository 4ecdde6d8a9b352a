// Form, resets, files and report of multiple regression with two variables.

#include "tests/regression/RegMul2VarTest.h"

#include <filesystem>

namespace caudalera {
namespace {

TEST_F(RegMul2VarTest, HasItsTexts) {
    EXPECT_EQ(window("frmRegMul2Var").caption,
              "Cálculos con ecuaciones de Regresión Múltiple, con 2 variables independientes");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los tríos de datos:");
    EXPECT_EQ(text("fraAplicar"), "Aplicar ecuación:");
    EXPECT_EQ(control<TextBox>("txtvxx1").label()->caption, "Valor de X1:");
    EXPECT_EQ(control<TextBox>("txtvxx2").label()->caption, "Valor de X2:");
    EXPECT_EQ(control<TextBox>("txtvyy").label()->caption, "Valor de Y:");
    EXPECT_EQ(text("lblCalculoY"), "Cálculo para:");
    EXPECT_EQ(text("optLineal"), "con correlación lineal múltiple");
    EXPECT_EQ(text("optPotencial"), "con correlación potencial múltiple");
    EXPECT_EQ(text("bLimpiar"), "Limpiar Pan&talla");
    EXPECT_EQ(text("bLimpiarDatos"), "Limpiar datos");
    EXPECT_EQ(window("frmRegMul2Var").find("Graph1"), nullptr);
    EXPECT_EQ(window("frmRegMul2Var").find("bGraficar"), nullptr);
}

TEST_F(RegMul2VarTest, StartsWithEmptyGridsAndNoOption) {
    EXPECT_EQ(rowText("grdt", 0), "Trío|X1|X2|Y");
    EXPECT_EQ(rowText("grdt", 1), "[?]|||");
    auto& grdecua = control<MSFlexGrid>("grdecua");
    EXPECT_EQ(grdecua.Rows(), 3);
    EXPECT_EQ(grdecua.FixedRows(), 1);
    EXPECT_EQ(grdecua.FixedCols(), 0);
    EXPECT_EQ(rowText("grdecua", 0), "Correlación|Ecuación|R|R^2|Se");
    EXPECT_EQ(equations(), noEquations);
    EXPECT_FALSE(control<Option>("optLineal").checked());
    EXPECT_FALSE(control<Option>("optPotencial").checked());
}

TEST_F(RegMul2VarTest, LimpiarResetsGridsFieldsOptionsAndFlag) {
    calculate(trios);
    enter("txtvxx1", "6");
    enter("txtvxx2", "4");
    click("optPotencial");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(equations(), noEquations);
    for (const char* field : {"txtvxx1", "txtvxx2", "txtvyy"})
        EXPECT_EQ(text(field), "") << field;
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_FALSE(control<Option>("optPotencial").checked());
    EXPECT_TRUE(messages().empty());
    click("optLineal");
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(RegMul2VarTest, LimpiarDatosLeavesTheEquationsAndTheirName) {
    calculate(trios);
    enter("txtvxx1", "6");
    enter("txtvxx2", "4");
    click("optLineal");
    click("bLimpiarDatos");
    for (const char* field : {"txtvxx1", "txtvxx2", "txtvyy"})
        EXPECT_EQ(text(field), "") << field;
    EXPECT_FALSE(control<Option>("optLineal").checked());
    EXPECT_EQ(focus(), "txtvxx1");
    EXPECT_EQ(text("lblCalculoY"), "Correlación lineal múltiple");
    EXPECT_EQ(equations(), triosEquations);
}

TEST_F(RegMul2VarTest, ALoadResetsTheResultsAndAFailedOneDoesNot) {
    rows({{"1.5", "0.1", "-3"}, {"2", "4", "123456.789"}});
    platform.answers = {file("a.XYZ"), file("no-existe.XYZ"), file("a.XYZ")};
    click("bCrear");
    EXPECT_EQ(std::filesystem::file_size(file("a.XYZ")), 24U);
    replaceRows(trios);
    click("bCalcular");
    enter("txtvxx1", "6");
    enter("txtvxx2", "4");
    click("optLineal");
    click("bAccesar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(equations(), triosEquations);
    EXPECT_EQ(text("txtvyy"), "12.6429");
    EXPECT_TRUE(control<Option>("optLineal").checked());
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 1), " 1|1.5|0.1|-3.0");
    EXPECT_EQ(rowText("grdt", 2), " 2|2.0|4.0|123456.8");
    EXPECT_EQ(equations(), noEquations);
    for (const char* field : {"txtvxx1", "txtvxx2", "txtvyy"})
        EXPECT_EQ(text(field), "") << field;
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_FALSE(control<Option>("optLineal").checked());
    EXPECT_TRUE(messages().empty());
    click("optLineal");
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(RegMul2VarTest, SavingMoreThanTheArraysHoldEndsTheProgram) {
    rows(product(501));
    platform.answers = {file("a.XYZ")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

const std::string title =
    "Resultados\n\n"
    "Cálculos con ecuaciones de Regresión Múltiple, con 2 variables independientes\n\n\n";
const std::string dataRule = std::string(85, '-') + "\n";
const std::string equationsRule = std::string(140, '-') + "\n";
const std::string dataHeader =
    "Trios de valores X1, X2 e Y:\n\n" + dataRule + " Trío\t\t X1\t\t X2\t\t Y\t\t\n" + dataRule;
const std::string equationsHeader =
    "Ecuaciones de ajuste de correlación múltiple:\n\n" + equationsRule +
    " Correlación        \t\t Ecuación           \t\t R   \t\t R^2 \t Se  \t\t\n" + equationsRule;

TEST_F(RegMul2VarTest, ReportsTriosEquationsAndTheValueFound) {
    calculate(trios);
    enter("txtvxx1", "6");
    enter("txtvxx2", "4");
    click("optPotencial");
    click("bReporte");
    EXPECT_EQ(report(),
              title + dataHeader +
                  " 1\t\t1.0\t\t2.0\t\t5.0\t\t\n"
                  " 2\t\t2.0\t\t1.0\t\t4.0\t\t\n"
                  " 3\t\t3.0\t\t5.0\t\t12.0\t\t\n"
                  " 4\t\t4.0\t\t3.0\t\t9.0\t\t\n"
                  " 5\t\t5.0\t\t8.0\t\t20.0\t\t\n" +
                  dataRule + "\n" + equationsHeader +
                  "Lineal Múltiple  \tY = 0.2857 +0.7500 *X1 +1.9643 *X2  \t0.9991  \t0.9983  "
                  "\t0.3780  \t\n"
                  "Potencial Múltiple\tY= 3.2057*X1^(0.2702) *X2^(0.6487)\t0.9980     \t0.9960\t"
                  "0.7693\t\n" +
                  equationsRule +
                  "\nCálculo de Y para un valor de X1 y X2:\n\n"
                  "Correlación potencial múltiple:\n"
                  "Para X1 = 6 y\n"
                  "Para X2 = 4\n"
                  "El valor de Y es: Y = 12.7863\n");
}

TEST_F(RegMul2VarTest, ReportsTheEmptyWindowToo) {
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(report(), title + dataHeader + dataRule + "\n" + equationsHeader +
                            "  \t  \t  \t  \t  \t\n"
                            "\t\t     \t\t\t\n" +
                            equationsRule +
                            "\nCálculo de Y para un valor de X1 y X2:\n\n"
                            "Cálculo para::\n"
                            "Para X1 =  y\n"
                            "Para X2 = \n"
                            "El valor de Y es: Y = \n");
}

} // namespace
} // namespace caudalera
