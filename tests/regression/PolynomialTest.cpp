// The windows of polynomial regression: what holds of both degrees, and of each.

#include "tests/regression/RegressionTest.h"

#include <gtest/gtest.h>

namespace caudalera {
namespace {

using Rows = std::vector<std::vector<std::string>>;

const Message noChart = {"Ejecutar cálculos antes de graficar", "", Icon::none};
const Message notCalculated = {
    "Antes de hallar el valor de Y, efectuar los calculos de la correlación", "", Icon::none};
const Message noX = {"Ingresar un valor adecuado para X", "", Icon::none};
const Message singular = {"El sistema que se origina tiene infinitas soluciones", "", Icon::error};

/// What a window shows of the pairs that the tests share.
struct Degree {
    std::string window;
    std::string caption;
    Message tooFew;
    std::size_t fewest;
    int capacity;
    std::string equation;
    std::vector<double> fitted;
    std::string at3;
    std::size_t rule;
};

// Pairs at X = -2 to 2: sum(x^2) = 10, sum(x^4) = 34, sum(x^6) = 130, sum(y) = 2, sum(xy) = -8,
// sum(x^2 y) = 2, sum(x^3 y) = -32, sum(y^2) = 10, n*ym^2 = 0.8. Even part, in both degrees: a0 =
// 24/35, a2 = -1/7. Second degree: a1 = -8/10, R2 = (48/35 + 6.4 - 2/7 - 0.8) / 9.2 = 0.7267081, R
// = 0.8524717, Se = sqrt((10 - 262/35) / 2) = 1.1212238. Third: a1 = (130 x -8 + 34 x 32) / 144 =
// 1/3, a3 = (10 x -32 + 34 x 8) / 144 = -1/3, R2 = (318/35 - 0.8) / 9.2 = 0.9006211, R = 0.9490106,
// Se = sqrt((10 - 318/35) / 1) = 0.9561829.
const Rows pairs = {{"-2", "2"}, {"-1", "1"}, {"0", "0"}, {"1", "1"}, {"2", "-2"}};

const std::vector<Degree>& degrees() {
    static const std::vector<Degree> both = {
        {"frmRegPoli2Gra",
         "Cálculos con ecuaciones de regresión polinomial de 2° grado",
         {"Para calcular el valor de Se, se requiere por lo menos cuatro puntos", "", Icon::error},
         4,
         300,
         "Polinomio 2° grado|Y = 0.6857 -0.800 * X -0.1429 * X ^2|0.8525|0.7267|1.1212",
         {60.0 / 35, 47.0 / 35, 24.0 / 35, -9.0 / 35, -52.0 / 35},
         "-3.0000", // 24/35 - 84/35 - 45/35
         140},
        {"frmRegPoli3Gra",
         "Cálculos con ecuaciones de regresión polinomial de 3er grado",
         {"Para calcular el valor de Se, se requiere por lo menos cinco pares de datos", "",
          Icon::error},
         5,
         500,
         "Polinomio 3er grado|Y = 0.6857 +0.3333 * X -0.1429 * X ^2 -0.3333 * X "
         "^3|0.9490|0.9006|0.9562",
         {74.0 / 35, 19.0 / 35, 24.0 / 35, 19.0 / 35, -66.0 / 35},
         "-8.6000", // 24/35 + 1 - 9/7 - 9
         150}};
    return both;
}

class PolynomialTest : public RegressionTest, public ::testing::WithParamInterface<std::size_t> {
protected:
    PolynomialTest() : RegressionTest(degrees()[GetParam()].window) {}

    const Degree& degree = degrees()[GetParam()];
    using Texts = std::vector<std::string>;
    const Texts noEquation = {"||||"};

    void expectDrawn(const std::vector<double>& x, const std::vector<double>& data,
                     const std::vector<double>& fitted) {
        const auto& graph = control<Graph>("Graph1");
        EXPECT_TRUE(graph.visible);
        ASSERT_EQ(graph.series().size(), 2U);
        EXPECT_EQ(graph.points(), static_cast<long>(x.size()));
        EXPECT_EQ(graph.series()[0].legend, "Dat");
        EXPECT_EQ(graph.series()[1].legend, "Teo");
        EXPECT_EQ(graph.x(), x);
        EXPECT_EQ(graph.series()[0].y, data);
        ASSERT_EQ(graph.series()[1].y.size(), fitted.size());
        for (std::size_t i = 0; i < fitted.size(); ++i)
            EXPECT_NEAR(graph.series()[1].y[i], fitted[i], 1e-13);
    }
};

INSTANTIATE_TEST_SUITE_P(Degrees, PolynomialTest, ::testing::Values(0, 1),
                         [](const auto& test) { return degrees()[test.param].window; });

TEST_P(PolynomialTest, HasItsTexts) {
    EXPECT_EQ(window(degree.window).caption, degree.caption);
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los pares de datos:");
    EXPECT_EQ(text("fraAplicar"), "Aplicar ecuación polinomial:");
    EXPECT_EQ(control<TextBox>("txtvxx1").label()->caption, "Valor de X:");
    EXPECT_EQ(control<TextBox>("txtvyy").label()->caption, "Valor de Y:");
    EXPECT_EQ(text("lblCalculoY"), "Ingresar:");
    EXPECT_EQ(text("bCalY"), "Calcular valor de Y");
    EXPECT_EQ(text("bLimpiar"), "&Limpiar");
    EXPECT_EQ(rowText("grdt", 0), "Par|X|Y");
    EXPECT_EQ(control<MSFlexGrid>("grdecua").Rows(), 2);
    EXPECT_EQ(rowText("grdecua", 0), "Correlación|Ecuación|R|R^2|Se");
    EXPECT_EQ(equations(), noEquation);
    EXPECT_FALSE(control<Graph>("Graph1").visible);
}

TEST_P(PolynomialTest, FitsThePolynomial) {
    calculate(pairs);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(), Texts{degree.equation});
}

// The divisor of Se is 1. Four pairs: sums of X, X^2, X^3 and X^4 -2, 6, -8 and 18, of Y, XY, X^2 Y
// and Y^2 4, -4, 10 and 6; a0 = 0.3, a1 = 0.1, a2 = 0.5 (1.2 - 0.2 + 3 = 4), R2 = (1.2 - 0.4
// + 5 - 4) / 2 = 0.9, Se = sqrt(6 - 5.8).
TEST_P(PolynomialTest, TheFewestPairsAreEnough) {
    calculate({pairs.begin(), pairs.begin() + static_cast<long>(degree.fewest)});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(), Texts{degree.fewest == 4 ? "Polinomio 2° grado|Y = 0.300 +0.100 * X "
                                                      "+0.500 * X ^2|0.9487|0.900|0.4472"
                                                    : degree.equation});
}

TEST_P(PolynomialTest, RefusesFewerButSetsTheFlag) {
    calculate({pairs.begin(), pairs.begin() + static_cast<long>(degree.fewest) - 1});
    expectMessage(degree.tooFew);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(equations(), noEquation);
    enter("txtvxx1", "3");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), "0.0000");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(control<Graph>("Graph1").visible);
    EXPECT_EQ(control<Graph>("Graph1").points(), static_cast<long>(degree.fewest) - 1);
}

TEST_P(PolynomialTest, ARefusalKeepsTheLastFit) {
    calculate(pairs);
    replaceRows({{"1", "1"}});
    click("bCalcular");
    expectMessage(degree.tooFew);
    EXPECT_EQ(equations(), Texts{degree.equation});
    enter("txtvxx1", "3");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), degree.at3);
}

// X is 0, 1 or -1 in every pair: X^2 is its own square, X^3 is X. In the second degree three such X
// fit a parabola, two (0 and 1) leave X^2 = X.
TEST_P(PolynomialTest, TooFewDistinctXAreSingular) {
    calculate({{"0", "1"}, {"1", "2"}, {"1", "3"}, {"0", "5"}, {"1", "4"}});
    expectMessage(singular);
    EXPECT_EQ(equations(), noEquation);
    enter("txtvxx1", "3");
    click("bCalY");
    expectMessage(notCalculated);
}

TEST_P(PolynomialTest, ASingularSystemKeepsTheLastFit) {
    calculate(pairs);
    replaceRows({{"2", "1"}, {"2", "2"}, {"2", "3"}, {"2", "5"}, {"2", "4"}});
    click("bCalcular");
    expectMessage(singular);
    EXPECT_EQ(equations(), Texts{degree.equation});
    enter("txtvxx1", "3");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), degree.at3);
}

// Syy = n ym^2 exactly: a division by zero in R2.
TEST_P(PolynomialTest, PairsOfOneYEndTheProgram) {
    calculate({{"-2", "2"}, {"-1", "2"}, {"0", "2"}, {"1", "2"}, {"2", "2"}});
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_P(PolynomialTest, APowerPastTheRangeEndsTheProgram) {
    calculate({{"1e200", "2"}, {"-1", "1"}, {"0", "0"}, {"1", "1"}, {"2", "-2"}});
    // As the grid shows it, 1e200 has lost nothing.
    EXPECT_TRUE(fatal(6));
}

TEST_P(PolynomialTest, TakesAsManyPairsAsItsArraysHold) {
    Rows many;
    for (int i = 1; i <= degree.capacity; ++i)
        many.push_back({std::to_string(i % 10), std::to_string(i % 3)});
    calculate(many);
    EXPECT_TRUE(messages().empty());
    EXPECT_NE(equations(), noEquation);
    calculate({{"1", "1"}});
    EXPECT_TRUE(fatal(9));
    EXPECT_TRUE(messages().empty());
}

TEST_P(PolynomialTest, SavingMoreThanTheArraysHoldEndsTheProgram) {
    rows(diagonal(degree.capacity + 1));
    platform.answers = {file("a.XY")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

TEST_P(PolynomialTest, EvaluatesThePolynomial) {
    calculate(pairs);
    enter("txtvxx1", "3");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), degree.at3);
    EXPECT_EQ(text("lblCalculoY"), "Ingresar:");
    type("txtvxx1", "0");
    EXPECT_EQ(text("txtvyy"), "");
    enter("txtvxx1", "abc");
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), "0.6857");
}

TEST_P(PolynomialTest, AsksForACalculationThenForX) {
    enter("txtvxx1", "3");
    enter("txtvyy", "7");
    click("bCalY");
    expectMessage(notCalculated);
    EXPECT_EQ(text("txtvyy"), "7");
    calculate(pairs);
    enter("txtvxx1", "");
    enter("txtvyy", "7");
    click("bCalY");
    expectMessage(noX);
    EXPECT_EQ(focus(), "txtvxx1");
    EXPECT_EQ(text("txtvyy"), "");
}

TEST_P(PolynomialTest, AFailureOfTheEvaluationEndsTheProgram) {
    calculate(pairs);
    enter("txtvxx1", "1e200");
    click("bCalY");
    EXPECT_TRUE(fatal(6));
}

TEST_P(PolynomialTest, RefusesToDrawWithoutACalculation) {
    rows(pairs);
    click("bGraficar");
    expectMessage(noChart);
    EXPECT_FALSE(control<Graph>("Graph1").visible);
}

TEST_P(PolynomialTest, DrawsDataAndFittedValues) {
    calculate(pairs);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    const auto& graph = control<Graph>("Graph1");
    EXPECT_EQ(graph.graphKind(), Graph::Kind::line);
    EXPECT_EQ(graph.style(), 1);
    EXPECT_EQ(graph.backgroundColor(), 7);
    EXPECT_TRUE(graph.border());
    EXPECT_TRUE(graph.autoAdvance());
    expectDrawn({-2, -1, 0, 1, 2}, {2, 1, 0, 1, -2}, degree.fitted);
}

TEST_P(PolynomialTest, DrawsWhatTheLastReadingOfTheGridLeft) {
    calculate(pairs);
    rows({{"7", "8"}});
    cell("grdt", 1, 1);
    type("grdt", "99");
    key("grdt", Key::Kind::enter);
    click("bGraficar");
    expectDrawn({-2, -1, 0, 1, 2}, {2, 1, 0, 1, -2}, degree.fitted);
}

// Values of an exact polynomial, 1 + x + x^2 and 1 + 2x + 3x^2 + x^3, whose sums leave a hair below
// 0 where the standard error takes its root.
TEST_P(PolynomialTest, AnErrorBelowZeroByRoundingEndsTheProgram) {
    calculate(
        GetParam() == 0
            ? Rows{{"0.1", "1.11"}, {"0.2", "1.24"}, {"0.3", "1.39"}, {"0.4", "1.56"}}
            : Rows{{"1", "7"}, {"2", "25"}, {"3", "61"}, {"4", "121"}, {"5", "211"}, {"6", "337"}});
    EXPECT_TRUE(fatal(5));
    EXPECT_TRUE(messages().empty());
}

TEST_P(PolynomialTest, AReadingThatDidNotFitIsDrawnWithTheFormerCurve) {
    calculate(pairs);
    replaceRows({{"2", "1"}, {"2", "2"}, {"2", "3"}, {"2", "5"}, {"2", "4"}});
    click("bCalcular");
    expectMessage(singular);
    click("bGraficar");
    expectDrawn({2, 2, 2, 2, 2}, {1, 2, 3, 5, 4}, degree.fitted);
    replaceRows({{"9", "8"}, {"7", "6"}});
    click("bCalcular");
    expectMessage(degree.tooFew);
    click("bGraficar");
    expectDrawn({9, 7}, {8, 6}, {degree.fitted[0], degree.fitted[1]});
}

// Se comes from the sums, which lose the digits that Y has in front. With 10000000 on every Y, in
// doubles: sum(y^2) - a0 sum(y) - a1 sum(xy) - a2 sum(x^2 y) (and a3 sum(x^3 y)) leaves 2.484 in
// place of 88/35 in the second degree, and 0.884 in place of 32/35 in the third.
TEST_P(PolynomialTest, TheStandardErrorIsThatOfTheSums) {
    Rows high = pairs;
    for (auto& pair : high)
        pair[1] = std::to_string(std::stoi(pair[1]) + 10000000);
    calculate(high);
    EXPECT_EQ(cellText("grdecua", 1, 4), GetParam() == 0 ? "1.1144" : "0.9402");
}

// A save reads the grid too; what was fitted stays, and is 0 behind its end.
TEST_P(PolynomialTest, ASaveIsAReading) {
    calculate(pairs);
    rows({{"7", "8"}});
    platform.answers = {file("a.XY")};
    click("bCrear");
    click("bGraficar");
    auto fitted = degree.fitted;
    fitted.push_back(0);
    expectDrawn({-2, -1, 0, 1, 2, 7}, {2, 1, 0, 1, -2, 8}, fitted);
}

TEST_P(PolynomialTest, ALoadThatFailsLeavesTheResultsAndTheirDrawing) {
    calculate(pairs);
    platform.answers = {file("no-existe.XY")};
    click("bAccesar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(equations(), Texts{degree.equation});
    click("bGraficar");
    expectDrawn({-2, -1, 0, 1, 2}, {2, 1, 0, 1, -2}, degree.fitted);
}

TEST_P(PolynomialTest, ALoadResetsTheResults) {
    rows({{"1", "3"}, {"2", "4"}});
    platform.answers = {file("a.XY"), file("a.XY")};
    click("bCrear");
    replaceRows(pairs);
    click("bCalcular");
    enter("txtvxx1", "3");
    click("bCalY");
    click("bGraficar");
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 2), " 2|2.0|4.0");
    EXPECT_EQ(equations(), noEquation);
    EXPECT_EQ(text("txtvxx1"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    click("bGraficar");
    expectMessage(noChart);
}

TEST_P(PolynomialTest, LimpiarResetsGridsFieldsFlagAndChart) {
    calculate(pairs);
    enter("txtvxx1", "3");
    click("bCalY");
    click("bGraficar");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(equations(), noEquation);
    EXPECT_EQ(text("txtvxx1"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    click("bCalY");
    expectMessage(notCalculated);
    click("bGraficar");
    expectMessage(noChart);
}

TEST_P(PolynomialTest, ReportsPairsPolynomialAndTheValueFound) {
    calculate(pairs);
    enter("txtvxx1", "3");
    click("bCalY");
    click("bReporte");
    const std::string dataRule = std::string(60, '-') + "\n";
    const std::string equationRule = std::string(degree.rule, '-') + "\n";
    std::string equationRow;
    for (long col = 0; col < 5; ++col)
        equationRow += cellText("grdecua", 1, col) + "  \t";
    EXPECT_EQ(report(), "Resultados\n\n" + degree.caption + "\n\n\nPares de valores X e Y:\n\n" +
                            dataRule + " Par\t\t X\t\t Y\t\t\n" + dataRule +
                            " 1\t\t-2.0\t\t2.0\t\t\n"
                            " 2\t\t-1.0\t\t1.0\t\t\n"
                            " 3\t\t0.0\t\t0.0\t\t\n"
                            " 4\t\t1.0\t\t1.0\t\t\n"
                            " 5\t\t2.0\t\t-2.0\t\t\n" +
                            dataRule + "\nEcuación de ajuste de correlación polinomial:\n\n" +
                            equationRule + " Correlación        " + "     " +
                            "\t\t Ecuación           " + "              " +
                            "\t\t R   \t R^2 \t Se  \t\t\n" + equationRule + equationRow + "\n" +
                            equationRule +
                            "\nCálculo de Y para un valor de X:\n\n"
                            "Ingresar::\n"
                            "Para X = 3\n"
                            "El valor de Y es: Y = " +
                            degree.at3 + "\n");
}

TEST_P(PolynomialTest, ReportsTheEmptyWindowToo) {
    click("bLimpiar");
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    EXPECT_NE(report().find("-\n  \t  \t  \t  \t  \t\n-"), std::string::npos);
    EXPECT_TRUE(report().ends_with("Ecuación::\nPara X = \nEl valor de Y es: Y = \n"));
}

} // namespace
} // namespace caudalera
