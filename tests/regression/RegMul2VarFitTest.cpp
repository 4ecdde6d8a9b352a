// The fits and evaluations of multiple regression with two variables.

#include "tests/regression/RegMul2VarTest.h"

namespace caudalera {
namespace {

const Message tooFew = {"Para el ajuste a la ecuación se requiere por lo menos cuatro puntos", "",
                        Icon::error};
const Message singular = {"El sistema que se origina tiene infinitas soluciones", "", Icon::error};
const Message notPositive = {
    "Ingresó valores para X1, X2 ó Y iguales a 0 ó negativos. Estos valores no permiten la "
    "correlación potencial. ¡Hacer la corrección correspondiente!",
    "", Icon::none};
const Message notCalculated = {"Antes de hallar valor de Y, efectuar los cálculos de correlación",
                               "", Icon::none};
const Message noX = {"Ingresar un valor adecuado para X1 y X2", "", Icon::none};

TEST_F(RegMul2VarTest, FitsBothEquations) {
    calculate(trios);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(), triosEquations);
}

// On Y = 3 X1^2 / X2. The linear fit, in rational arithmetic: -225/31, 891/62, -327/62.
TEST_F(RegMul2VarTest, ANegativeCoefficientBringsItsOwnSign) {
    calculate(
        {{"1", "1", "3"}, {"2", "1", "12"}, {"1", "2", "1.5"}, {"2", "2", "6"}, {"4", "1", "48"}});
    EXPECT_EQ(equations(),
              (Texts{"Lineal Múltiple|Y = -7.2581 +14.3710 *X1 -5.2742 *X2|0.9740|0.9487|6.2081",
                     "Potencial Múltiple|Y= 3.00*X1^(2.00) *X2^(-1.00)|1.00|1.00|0.00"}));
}

// 0.6746032, 0.7222222, 1.8253968; Se = sqrt(SSE / 1) = 0.0890871. Potential 3.3059813, 0.2537285,
// 0.6140682, R2 = 0.9981136, Se = 0.3567960.
TEST_F(RegMul2VarTest, FourTriosAreEnough) {
    calculate({trios.begin(), trios.begin() + 4});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(
        equations(),
        (Texts{"Lineal Múltiple|Y = 0.6746 +0.7222 *X1 +1.8254 *X2|0.9999|0.9998|0.0891",
               "Potencial Múltiple|Y= 3.3060*X1^(0.2537) *X2^(0.6141)|0.9991|0.9981|0.3568"}));
}

TEST_F(RegMul2VarTest, RefusesThreeTriosButSetsTheFlag) {
    calculate({trios.begin(), trios.begin() + 3});
    expectMessage(tooFew);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(equations(), noEquations);
    enter("txtvxx1", "7");
    enter("txtvxx2", "8");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "0.0000");
    click("optPotencial");
    EXPECT_EQ(text("txtvyy"), "0.0000");
    EXPECT_TRUE(messages().empty());
}

TEST_F(RegMul2VarTest, ARefusalKeepsTheLastFit) {
    calculate(trios);
    replaceRows({{"1", "1", "1"}});
    click("bCalcular");
    expectMessage(tooFew);
    EXPECT_EQ(equations(), triosEquations);
}

// A zero in each place, a negative one, a text that reads as 0.
TEST_F(RegMul2VarTest, AValueWithoutLogarithmLosesTheLinearFitToo) {
    for (const char* value : {"0", "-1", "abc"}) {
        for (std::size_t column = 0; column < 3; ++column) {
            Rows broken = trios;
            broken[3][column] = value;
            replaceRows(broken);
            click("bCalcular");
            EXPECT_EQ(messages(), std::vector{notPositive}) << value << " in column " << column;
            EXPECT_EQ(equations(), noEquations);
        }
    }
    enter("txtvxx1", "1");
    enter("txtvxx2", "1");
    click("optLineal");
    expectMessage(notCalculated);
}

TEST_F(RegMul2VarTest, AFailureKeepsTheEquationsAndCoefficientsOfTheLastFit) {
    calculate(trios);
    replaceRows({{"1", "2", "1"}, {"2", "1", "2"}, {"3", "5", "7"}, {"4", "4", "0"}});
    click("bCalcular");
    expectMessage(notPositive);
    EXPECT_EQ(equations(), triosEquations);
    enter("txtvxx1", "6");
    enter("txtvxx2", "4");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "12.6429");
}

TEST_F(RegMul2VarTest, EqualValuesOfYAreTakenForTheSameFailure) {
    calculate({{"1", "2", "5"}, {"2", "1", "5"}, {"3", "5", "5"}, {"4", "3", "5"}});
    expectMessage(notPositive);
}

// X1 is X2, whole numbers: the elimination leaves an exact 0.
TEST_F(RegMul2VarTest, ASingularSystemHasItsOwnMessage) {
    calculate({{"1", "1", "3"}, {"2", "2", "5"}, {"3", "3", "8"}, {"4", "4", "9"}});
    expectMessage(singular);
    EXPECT_EQ(equations(), noEquations);
    enter("txtvxx1", "1");
    enter("txtvxx2", "1");
    click("optLineal");
    expectMessage(notCalculated);
}

// X2 = X1^2 is no line, but ln X2 = 2 ln X1.
TEST_F(RegMul2VarTest, ASystemSingularInTheLogarithmsAloneLosesTheLinearFitToo) {
    calculate(trios);
    replaceRows(
        {{"1", "1", "2"}, {"2", "4", "3"}, {"3", "9", "5"}, {"4", "16", "9"}, {"5", "25", "11"}});
    click("bCalcular");
    expectMessage({"El sistema que se origina tiene infinitas soluciones", "", Icon::error});
    EXPECT_EQ(equations(), triosEquations);
    enter("txtvxx1", "6");
    enter("txtvxx2", "4");
    click("optLineal");
    // 2/7 + 6 x 3/4 + 4 x 55/28.
    EXPECT_EQ(text("txtvyy"), "12.6429");
}

// Neither variable tells anything of Y: R2 is 0, and rounding takes it below.
TEST_F(RegMul2VarTest, AQualityBelowZeroIsTakenForTheSameFailure) {
    calculate({{"1", "1", "2.6"}, {"2", "1", "0.6"}, {"1", "2", "0.6"}, {"2", "2", "2.6"}});
    const auto told = messages();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].text.starts_with("Ingresó valores para X1, X2 ó Y")) << told[0].text;
    EXPECT_EQ(equations(), noEquations);
    EXPECT_FALSE(program.ended());
}

// Se is the same wherever Y stands: from the residuals it keeps its digits.
TEST_F(RegMul2VarTest, TheStandardErrorIsThatOfTheResiduals) {
    Rows high = trios;
    for (auto& trio : high)
        trio[2] = std::to_string(std::stoi(trio[2]) + 10000000);
    calculate(high);
    EXPECT_EQ(cellText("grdecua", 1, 1), "Y = 10000000.2857 +0.7500 *X1 +1.9643 *X2");
    EXPECT_EQ(cellText("grdecua", 1, 4), "0.3780");
}

// X1 is 0 everywhere, which has no logarithm either.
TEST_F(RegMul2VarTest, TheSingularSystemComesBeforeTheLogarithms) {
    calculate({{"0", "1", "3"}, {"0", "2", "5"}, {"0", "3", "8"}, {"0", "4", "9"}});
    expectMessage(singular);
}

TEST_F(RegMul2VarTest, TakesFiveHundredTriosAndFailsOnOneMore) {
    calculate(product(500));
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grdecua", 2),
              "Potencial Múltiple|Y= 1.00*X1^(1.00) *X2^(1.00)|1.00|1.00|0.00");
    calculate({{"501", "1", "501"}});
    expectMessage(notPositive);
    EXPECT_FALSE(platform.ending);
}

// 2/7 + 3/4 x 6 + 55/28 x 4 = 12.642857; 3.2056580 x 6^0.2702036 x 4^0.6487221 = 12.786334.
TEST_F(RegMul2VarTest, EvaluatesByTheOptionClicked) {
    calculate(trios);
    EXPECT_EQ(text("lblCalculoY"), "Cálculo para:");
    enter("txtvxx1", "6");
    enter("txtvxx2", "4");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "12.6429");
    EXPECT_EQ(text("lblCalculoY"), "Correlación lineal múltiple");
    click("optPotencial");
    EXPECT_EQ(text("txtvyy"), "12.7863");
    EXPECT_EQ(text("lblCalculoY"), "Correlación potencial múltiple");
    EXPECT_FALSE(control<Option>("optLineal").checked());
}

TEST_F(RegMul2VarTest, AChangeOfXLeavesYAndTheOption) {
    calculate(trios);
    enter("txtvxx1", "6");
    enter("txtvxx2", "4");
    click("optPotencial");
    type("txtvxx1", "0");
    type("txtvxx2", "0");
    EXPECT_EQ(text("txtvyy"), "12.7863");
    EXPECT_TRUE(control<Option>("optPotencial").checked());
}

TEST_F(RegMul2VarTest, EnterGoesThroughTheFieldsAndEvaluatesLinearly) {
    calculate(trios);
    type("txtvxx1", "6");
    key("txtvxx1", Key::Kind::enter);
    EXPECT_EQ(focus(), "txtvxx2");
    type("txtvxx2", "4");
    key("txtvxx2", Key::Kind::enter);
    EXPECT_TRUE(control<Option>("optLineal").checked());
    EXPECT_EQ(text("txtvyy"), "12.6429");
    // And again with the option set already: 2/7 + 3 + 55/7.
    enter("txtvxx1", "4");
    key("txtvxx2", Key::Kind::enter);
    EXPECT_EQ(text("txtvyy"), "11.1429");
}

TEST_F(RegMul2VarTest, AsksForACalculationBeforeItLooksAtTheFields) {
    for (const char* option : {"optLineal", "optPotencial"}) {
        click(option);
        EXPECT_EQ(messages(), std::vector{notCalculated}) << option;
        EXPECT_TRUE(control<Option>(option).checked());
    }
    EXPECT_EQ(text("lblCalculoY"), "Cálculo para:");
}

TEST_F(RegMul2VarTest, RefusesEachEmptyFieldAndFocusesTheFirst) {
    calculate(trios);
    click("optLineal");
    expectMessage(noX);
    EXPECT_EQ(focus(), "txtvxx1");
    enter("txtvxx1", "6");
    click("optPotencial");
    expectMessage(noX);
    EXPECT_EQ(focus(), "txtvxx1");
    enter("txtvxx1", "");
    enter("txtvxx2", "4");
    click("optLineal");
    expectMessage(noX);
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_EQ(text("lblCalculoY"), "Cálculo para:");
}

TEST_F(RegMul2VarTest, ReadsTheNumericPrefix) {
    calculate(trios);
    enter("txtvxx1", "6,9");
    enter("txtvxx2", "abc");
    click("optLineal");
    // 2/7 + 3/4 x 6.
    EXPECT_EQ(text("txtvyy"), "4.7857");
    click("optPotencial");
    EXPECT_EQ(text("txtvyy"), "0.0000");
}

TEST_F(RegMul2VarTest, ANegativeXEndsThePotentialEquation) {
    calculate(trios);
    enter("txtvxx1", "-6");
    enter("txtvxx2", "4");
    click("optPotencial");
    EXPECT_TRUE(fatal(5));
    EXPECT_TRUE(messages().empty());
}

} // namespace
} // namespace caudalera
