// The three fits of simple regression, through the window.

#include "tests/regression/EjRegSimpleTest.h"

namespace caudalera {
namespace {

const Message tooFew = {"Para el ajuste a la ecuación se requiere por lo menos dos puntos", "Error",
                        Icon::error};
const Message notPositive = {
    "Ingresó valores para X ó Y iguales a 0 ó negativos. Estos valores no permiten la correlación "
    "exponencial ni potencial. ¡Hacer la corrección correspondiente!",
    "", Icon::none};

const Message notCalculated = {"Antes de hallar valor de Y, efectuar los cálculos de correlación",
                               "", Icon::none};

TEST_F(EjRegSimpleTest, FitsTheThreeEquations) {
    calculate(doubling);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(), doublingEquations);
}

// Y = 12 / X. Linear: means 2.5 and 6.25, Cuu = 5, Cuv = 48 - 62.5 = -14.5, b = -2.9, a = 6.25 +
// 7.25 = 13.5, Cvv = 205 - 156.25 = 48.75, R = -14.5 / sqrt(243.75) = -0.9287433, R2 = 0.8625641.
// Exponential, the differences from the means as in the fixture's case: a = 16.9705627, b =
// 0.6335383, R = -0.9801839, R2 = 0.9607605.
TEST_F(EjRegSimpleTest, WritesANegativeSlopeBehindTwoBlanksAndANegativeExponentInItsParentheses) {
    calculate({{"1", "12"}, {"2", "6"}, {"3", "4"}, {"4", "3"}});
    EXPECT_EQ(equations(), (std::vector<std::string>{
                               "Lineal|Y = 13.5  -2.9 * X|-0.92874|0.86256",
                               "Exponencial|Y = 16.9705627 * ( 0.6335383 )  ^ X|-0.98018|0.96076",
                               "Potencial|Y = 12.0 *  X ^ (-1.0)|-1.0|1.0"}));
}

// b = -1 / 10^8 has no digit in seven decimals; a = 2 + 1 = 3.
TEST_F(EjRegSimpleTest, ANegativeSlopeThatRoundsToZeroTakesThePlus) {
    calculate({{"100000000", "2"}, {"200000000", "1"}});
    EXPECT_EQ(cellText("grdecua", 1, 1), "Y = 3.0 + 0.0 * X");
}

// b = -0.5, a = 4. The sign is read from the text, and the reading stops at a comma.
TEST_F(EjRegSimpleTest, ASlopeBehindACommaReadsAsZero) {
    platform.separator = ",";
    calculate({{"2", "3"}, {"4", "2"}});
    EXPECT_EQ(rowText("grdecua", 1), "Lineal|Y = 4,0 + -0,5 * X|-1,0|1,0");
}

TEST_F(EjRegSimpleTest, TwoPairsCorrelateWhollyInAllEquations) {
    calculate({{"2", "5"}, {"3", "7"}});
    for (long row = 1; row <= 3; ++row) {
        EXPECT_EQ(cellText("grdecua", row, 2), "1.0");
        EXPECT_EQ(cellText("grdecua", row, 3), "1.0");
    }
    EXPECT_EQ(cellText("grdecua", 1, 1), "Y = 1.0 + 2.0 * X");
}

TEST_F(EjRegSimpleTest, RefusesFewerThanTwoPairsButSetsTheFlag) {
    calculate({{"2", "5"}});
    expectMessage(tooFew);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(equations(), noEquations);
    // With no fit so far the coefficients are 0.
    enter("txtvxx", "7");
    click("optLineal");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtvyy"), "0.0000");
    click("optExponencial");
    EXPECT_EQ(text("txtvyy"), "0.0000");
    click("optPotencial");
    EXPECT_EQ(text("txtvyy"), "0.0000");
}

TEST_F(EjRegSimpleTest, RefusesAnEmptyGrid) {
    click("bCalcular");
    expectMessage(tooFew);
    EXPECT_EQ(focus(), "grdt");
}

TEST_F(EjRegSimpleTest, ARefusalKeepsTheLastFit) {
    calculate(doubling);
    replaceRows({{"1", "1"}});
    click("bCalcular");
    expectMessage(tooFew);
    EXPECT_EQ(equations(), doublingEquations);
    enter("txtvxx", "10");
    click("optExponencial");
    EXPECT_EQ(text("txtvyy"), "1024.0000");
}

TEST_F(EjRegSimpleTest, ANewFitReplacesTheLastOne) {
    calculate(doubling);
    replaceRows({{"2", "5"}, {"3", "7"}});
    EXPECT_EQ(equations(), doublingEquations);
    click("bCalcular");
    EXPECT_EQ(cellText("grdecua", 1, 1), "Y = 1.0 + 2.0 * X");
}

// What each of these breaks: ln Y, ln X, ln of a negative, division by Cuu = 0, division by
// sqrt(Cvv) = 0, a text read as 0.
TEST_F(EjRegSimpleTest, OneMessageServesEveryFailureOfTheFit) {
    const std::vector<Rows> broken = {{{"1", "0"}, {"2", "3"}},  {{"0", "1"}, {"2", "3"}},
                                      {{"1", "2"}, {"2", "-3"}}, {{"4", "1"}, {"4", "2"}},
                                      {{"1", "3"}, {"2", "3"}},  {{"1", "2"}, {"2", "abc"}}};
    for (const Rows& pairs : broken) {
        replaceRows(pairs);
        click("bCalcular");
        EXPECT_EQ(messages(), std::vector{notPositive}) << pairs[0][0] << "," << pairs[0][1];
        EXPECT_EQ(equations(), noEquations);
        EXPECT_FALSE(platform.ending);
    }
}

TEST_F(EjRegSimpleTest, ACellPastTheDoubleRangeIsOneOfThem) {
    rows({{"1", "2"}, {"2", "3"}});
    cell("grdt", 1, 2);
    type("grdt", "1e999");
    key("grdt", Key::Kind::down);
    click("bCalcular");
    expectMessage(notPositive);
}

TEST_F(EjRegSimpleTest, AFailureOnAFirstRunLeavesTheFlagClear) {
    calculate({{"1", "0"}, {"2", "3"}});
    messages();
    enter("txtvxx", "1");
    click("optLineal");
    expectMessage(notCalculated);
}

TEST_F(EjRegSimpleTest, AFailureKeepsTheEquationsAndCoefficientsOfTheLastFit) {
    calculate(doubling);
    replaceRows({{"1", "5"}, {"2", "0"}});
    click("bCalcular");
    expectMessage(notPositive);
    EXPECT_EQ(equations(), doublingEquations);
    // The linear equation too, whose fit alone would have succeeded: -4 + 4.6 x 10.
    enter("txtvxx", "10");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "42.0000");
}

TEST_F(EjRegSimpleTest, TakesTwoHundredAndFiftyPairsAndFailsOnOneMore) {
    calculate(diagonal(250));
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grdecua", 1), "Lineal|Y = 0.0 + 1.0 * X|1.0|1.0");
    EXPECT_EQ(rowText("grdecua", 3), "Potencial|Y = 1.0 *  X ^ (1.0)|1.0|1.0");
    calculate({{"251", "251"}});
    expectMessage(notPositive);
    EXPECT_FALSE(platform.ending);
}

} // namespace
} // namespace caudalera
