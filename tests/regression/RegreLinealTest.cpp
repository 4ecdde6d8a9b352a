// The window of linear regression: its form, fit, evaluations and chart.

#include "tests/regression/RegressionTest.h"

namespace caudalera {
namespace {

const Message tooFew = {"Para el ajuste a la ecuación se requiere por lo menos dos puntos", "Error",
                        Icon::error};
const Message noCalculationForY = {
    "Antes de hallar el valor de Y, efectuar los calculos de la correlación", "", Icon::none};
const Message noCalculationForX = {
    "Antes de hallar el valor de X, efectuar los calculos de la correlación", "", Icon::none};
const Message noX = {"Ingresar un valor adecuado para X", "", Icon::none};
const Message noY = {"Ingresar un valor adecuado para Y", "", Icon::none};
const Message noSlope = {"El coeficiente b tiene un valor de 0", "", Icon::none};
const Message noChart = {"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error};

using Texts = std::vector<std::string>;
const Texts noEquation = {"|||"};

class RegreLinealTest : public RegressionTest {
protected:
    RegreLinealTest() : RegressionTest("frmRegreLineal") {}

    // Means 0 and 2, Cuu = 8, Cvv = 26 - 12 = 14, Cuv = 8: b = 1, a = 2, R = 8 / sqrt(112) =
    // 0.7559289, R2 = 4 / 7 = 0.5714286.
    const Rows aroundZero = {{"-2", "1"}, {"0", "0"}, {"2", "5"}};
    const Texts aroundZeroEquation = {"Lineal|Y = 2.0 + 1.0 * X|0.75593|0.57143"};
};

TEST_F(RegreLinealTest, HasItsTexts) {
    EXPECT_EQ(window("frmRegreLineal").caption,
              "Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los pares de datos:");
    EXPECT_EQ(text("fraAplicar"), "Aplicar ecuación lineal:");
    EXPECT_EQ(text("lblCalculoY"), "Ingresar el valor conocido:");
    EXPECT_EQ(control<TextBox>("txtvxx").label()->caption, "Valor de X:");
    EXPECT_EQ(control<TextBox>("txtvyy").label()->caption, "Valor de Y:");
    EXPECT_EQ(text("bCalY"), "Calcular valor de Y");
    EXPECT_EQ(text("bCalX"), "Calcular valor de X");
    EXPECT_EQ(text("bLimpiarDatos"), "Limpiar datos");
    EXPECT_EQ(text("bLimpiar"), "&Limpiar");
    EXPECT_EQ(window("frmRegreLineal").find("optLineal"), nullptr);
    // Both are fields that users fill.
    EXPECT_FALSE(control<TextBox>("txtvxx").result);
    EXPECT_FALSE(control<TextBox>("txtvyy").result);
}

TEST_F(RegreLinealTest, StartsWithEmptyGrids) {
    EXPECT_EQ(rowText("grdt", 0), "Par|X|Y");
    EXPECT_EQ(rowText("grdt", 1), "[?]||");
    auto& grdecua = control<MSFlexGrid>("grdecua");
    EXPECT_EQ(grdecua.Rows(), 2);
    EXPECT_EQ(grdecua.FixedRows(), 1);
    EXPECT_EQ(grdecua.FixedCols(), 0);
    EXPECT_EQ(rowText("grdecua", 0), "Correlación|Ecuación|R|R2");
    EXPECT_EQ(equations(), noEquation);
    EXPECT_FALSE(control<Graph>("Graph1").visible);
}

TEST_F(RegreLinealTest, TakesZeroAndNegativeValues) {
    calculate(aroundZero);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(), aroundZeroEquation);
}

// Y = 3 - 2 X.
TEST_F(RegreLinealTest, WritesANegativeSlopeBehindTwoBlanks) {
    calculate({{"-1", "5"}, {"0", "3"}, {"1", "1"}, {"2", "-1"}});
    EXPECT_EQ(equations(), Texts{"Lineal|Y = 3.0  -2.0 * X|-1.0|1.0"});
}

TEST_F(RegreLinealTest, ShowsFiveDecimalsAndKeepsThemAll) {
    calculate({{"3", "1"}, {"6", "2"}});
    EXPECT_EQ(equations(), Texts{"Lineal|Y = 0.0 + 0.33333 * X|1.0|1.0"});
    enter("txtvxx", "3000000");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), "1000000.0000");
}

// b = -1 / 10^6 has no digit in five decimals; a = 2 + 1 = 3.
TEST_F(RegreLinealTest, ANegativeSlopeThatRoundsToZeroTakesThePlus) {
    calculate({{"1000000", "2"}, {"2000000", "1"}});
    EXPECT_EQ(cellText("grdecua", 1, 1), "Y = 3.0 + 0.0 * X");
}

TEST_F(RegreLinealTest, RefusesFewerThanTwoPairsButSetsTheFlag) {
    calculate({{"2", "5"}});
    expectMessage(tooFew);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(equations(), noEquation);
    enter("txtvxx", "7");
    click("bCalY");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtvyy"), "0.0000");
    // The slope is 0 as well.
    click("bCalX");
    expectMessage(noSlope);
}

TEST_F(RegreLinealTest, ARefusalKeepsTheLastFit) {
    calculate(aroundZero);
    replaceRows({{"1", "1"}});
    click("bCalcular");
    expectMessage(tooFew);
    EXPECT_EQ(equations(), aroundZeroEquation);
    enter("txtvxx", "3");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), "5.0000");
}

TEST_F(RegreLinealTest, PairsOfOneXEndTheProgram) {
    calculate({{"4", "1"}, {"4", "2"}});
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_F(RegreLinealTest, PairsOfOneYEndTheProgram) {
    calculate({{"1", "3"}, {"2", "3"}});
    EXPECT_TRUE(fatal(11));
}

// Three times the same Y, whose squares rounding takes below n times the square of their mean, onto
// it, or above.
TEST_F(RegreLinealTest, EqualYThatRoundingPartsEndTheProgramByARoot) {
    calculate({{"1", "0.1"}, {"2", "0.1"}, {"3", "0.1"}});
    EXPECT_TRUE(fatal(5));
}

TEST_F(RegreLinealTest, EqualYThatRoundingKeepsEndTheProgramByAQuotient) {
    calculate({{"1", "0.3"}, {"2", "0.3"}, {"3", "0.3"}});
    EXPECT_TRUE(fatal(11));
}

TEST_F(RegreLinealTest, EqualYThatRoundingPartsUpwardAreFitted) {
    calculate({{"1", "0.7"}, {"2", "0.7"}, {"3", "0.7"}});
    EXPECT_EQ(equations(), Texts{"Lineal|Y = 0.7 + 0.0 * X|0.0|0.0"});
}

TEST_F(RegreLinealTest, TakesFiveHundredAndFiftyPairs) {
    calculate(diagonal(550));
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(), Texts{"Lineal|Y = 0.0 + 1.0 * X|1.0|1.0"});
}

TEST_F(RegreLinealTest, OnePairMoreEndsTheProgram) {
    calculate(diagonal(551));
    EXPECT_TRUE(fatal(9));
    EXPECT_TRUE(messages().empty());
}

// The Y of 3 and the X of 3 on Y = 2 + X.
TEST_F(RegreLinealTest, FindsYForXAndXForY) {
    calculate(aroundZero);
    enter("txtvxx", "3");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), "5.0000");
    EXPECT_EQ(text("txtvxx"), "3");
    enter("txtvyy", "3.5");
    click("bCalX");
    EXPECT_EQ(text("txtvxx"), "1.5000");
    EXPECT_EQ(text("txtvyy"), "3.5");
    EXPECT_EQ(text("lblCalculoY"), "Ingresar el valor conocido:");
}

TEST_F(RegreLinealTest, AChangeOfXClearsNothing) {
    calculate(aroundZero);
    enter("txtvxx", "3");
    click("bCalY");
    type("txtvxx", "0");
    EXPECT_EQ(text("txtvyy"), "5.0000");
}

TEST_F(RegreLinealTest, AsksForACalculationFirst) {
    enter("txtvxx", "3");
    enter("txtvyy", "4");
    click("bCalY");
    expectMessage(noCalculationForY);
    click("bCalX");
    expectMessage(noCalculationForX);
    EXPECT_EQ(text("txtvxx"), "3");
    EXPECT_EQ(text("txtvyy"), "4");
}

TEST_F(RegreLinealTest, EmptiesTheUnknownBeforeItAsksForTheKnown) {
    calculate(aroundZero);
    enter("txtvyy", "4");
    click("bCalY");
    expectMessage(noX);
    EXPECT_EQ(focus(), "txtvxx");
    EXPECT_EQ(text("txtvyy"), "");
    enter("txtvxx", "3");
    click("bCalX");
    expectMessage(noY);
    EXPECT_EQ(focus(), "txtvyy");
    EXPECT_EQ(text("txtvxx"), "");
}

TEST_F(RegreLinealTest, ReadsTheNumericPrefixOfTheKnown) {
    calculate(aroundZero);
    enter("txtvxx", "abc");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), "2.0000");
    enter("txtvyy", "7,5");
    click("bCalX");
    EXPECT_EQ(text("txtvxx"), "5.0000");
}

// Symmetric about 0: b = 0, a = 1.
TEST_F(RegreLinealTest, AHorizontalLineHasNoXForY) {
    calculate({{"-1", "2"}, {"0", "-1"}, {"1", "2"}});
    EXPECT_EQ(equations(), Texts{"Lineal|Y = 1.0 + 0.0 * X|0.0|0.0"});
    enter("txtvxx", "9");
    enter("txtvyy", "2");
    click("bCalX");
    expectMessage(noSlope);
    EXPECT_EQ(text("txtvxx"), "");
    EXPECT_EQ(text("txtvyy"), "2");
    EXPECT_FALSE(platform.ending);
}

TEST_F(RegreLinealTest, AnyFailureOfXForYBlamesTheSlope) {
    calculate(aroundZero);
    enter("txtvyy", "1e999");
    click("bCalX");
    expectMessage(noSlope);
    EXPECT_FALSE(platform.ending);
}

TEST_F(RegreLinealTest, AFailureOfYForXEndsTheProgram) {
    calculate(aroundZero);
    enter("txtvxx", "1e999");
    click("bCalY");
    EXPECT_TRUE(fatal(6));
}

TEST_F(RegreLinealTest, LimpiarDatosEmptiesTheFieldsOnly) {
    calculate(aroundZero);
    enter("txtvxx", "3");
    click("bCalY");
    click("bLimpiarDatos");
    EXPECT_EQ(text("txtvxx"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_EQ(focus(), "txtvxx");
    EXPECT_EQ(equations(), aroundZeroEquation);
}

TEST_F(RegreLinealTest, LimpiarResetsGridsFieldsFlagAndChart) {
    calculate(aroundZero);
    enter("txtvxx", "3");
    click("bCalY");
    click("bGraficar");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(equations(), noEquation);
    EXPECT_EQ(text("txtvxx"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_EQ(text("lblCalculoY"), "Ingresar el valor conocido:");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    click("bCalY");
    expectMessage(noCalculationForY);
}

TEST_F(RegreLinealTest, DrawsThePairsAsTheGridHasThem) {
    rows(aroundZero);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    const auto& graph = control<Graph>("Graph1");
    EXPECT_TRUE(graph.visible);
    EXPECT_EQ(graph.style(), 1);
    EXPECT_FALSE(graph.autoAdvance());
    ASSERT_EQ(graph.series().size(), 1U);
    EXPECT_EQ(graph.series()[0].y, (std::vector<double>{1, 0, 5}));
    EXPECT_EQ(graph.x(), (std::vector<double>{-2, 0, 2}));
}

TEST_F(RegreLinealTest, RefusesToDrawFewerThanTwoPairs) {
    rows({{"1", "2"}});
    click("bGraficar");
    expectMessage(noChart);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
}

TEST_F(RegreLinealTest, DrawingMoreThanTheArraysHoldEndsTheProgram) {
    rows(diagonal(551));
    click("bGraficar");
    EXPECT_TRUE(fatal(9));
}

TEST_F(RegreLinealTest, ALoadResetsTheResultsAndAFailedOneDoesNot) {
    rows({{"1", "3"}, {"2", "4"}});
    platform.answers = {file("a.XY"), file("no-existe.XY"), file("a.XY")};
    click("bCrear");
    replaceRows(aroundZero);
    click("bCalcular");
    enter("txtvxx", "3");
    click("bCalY");
    click("bGraficar");
    click("bAccesar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(equations(), aroundZeroEquation);
    EXPECT_EQ(text("txtvyy"), "5.0000");
    EXPECT_TRUE(control<Graph>("Graph1").visible);
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 2), " 2|2.0|4.0");
    EXPECT_EQ(equations(), noEquation);
    EXPECT_EQ(text("txtvxx"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_TRUE(messages().empty());
    click("bCalX");
    expectMessage(noCalculationForX);
}

const std::string title =
    "Resultados\n\n"
    "Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0\n\n\n";
const std::string pairsRule = std::string(75, '-') + "\n";
const std::string equationRule = std::string(109, '-') + "\n";

TEST_F(RegreLinealTest, ReportsPairsEquationAndTheValueFound) {
    calculate(aroundZero);
    enter("txtvxx", "3");
    click("bCalY");
    click("bReporte");
    EXPECT_EQ(report(),
              title + "Pares de datos X,Y:\n\n" + pairsRule + " Par\t\t X\t\t Y\t\t\n" + pairsRule +
                  " 1\t\t-2.0\t\t1.0\t\t\n"
                  " 2\t\t0.0\t\t0.0\t\t\n"
                  " 3\t\t2.0\t\t5.0\t\t\n" +
                  pairsRule + "\nEcuaciones de ajuste de pares de datos:\n\n" + equationRule +
                  " Tipo    \t\t Ecuación\t\t R       \t\t R^2     \t\t\n" + equationRule +
                  "Lineal  \tY = 2.0 + 1.0 * X  \t0.75593  \t0.57143  \t\n" + equationRule +
                  "\nCálculo de Y para un valor de X:\n\n"
                  "Para X = 3, el valor de Y es: Y = 5.0000\n");
}

TEST_F(RegreLinealTest, ReportsTheEmptyWindowToo) {
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    EXPECT_NE(report().find(equationRule + "  \t  \t  \t  \t\n" + equationRule), std::string::npos);
    EXPECT_TRUE(report().ends_with("Para X = , el valor de Y es: Y = \n"));
}

} // namespace
} // namespace caudalera
