// Y for a given X by the equation that is picked.

#include "tests/regression/EjRegSimpleTest.h"

namespace caudalera {
namespace {

const Message notCalculated = {"Antes de hallar valor de Y, efectuar los cálculos de correlación",
                               "", Icon::none};
const Message noX = {"Ingresar un valor adecuado para X", "", Icon::none};

// -4 + 4.6 x 2.5 = 7.5; 2^2.5 = 5.656854; 1.7747426 x 2.5^1.4590220 = exp(0.5736554 + 1.4590220 x
// 0.9162907) = exp(1.9105437) = 6.756761.
TEST_F(EjRegSimpleTest, EvaluatesByTheOptionClicked) {
    calculate(doubling);
    enter("txtvxx", "2.5");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "7.5000");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación Lineal");
    click("optExponencial");
    EXPECT_EQ(text("txtvyy"), "5.6569");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación Exponencial");
    click("optPotencial");
    EXPECT_EQ(text("txtvyy"), "6.7568");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación Potencial");
    EXPECT_TRUE(control<Option>("optPotencial").checked());
    EXPECT_FALSE(control<Option>("optLineal").checked());
}

// A slope of 1/3 shows seven decimals; times 3 000 000 it is whole only when it is not rounded.
TEST_F(EjRegSimpleTest, EvaluatesWithUnroundedCoefficients) {
    calculate({{"3", "1"}, {"6", "2"}});
    EXPECT_EQ(cellText("grdecua", 1, 1), "Y = 0.0 + 0.3333333 * X");
    enter("txtvxx", "3000000");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "1000000.0000");
}

TEST_F(EjRegSimpleTest, AnOptionThatIsSetEvaluatesAgainWhenClicked) {
    calculate(doubling);
    enter("txtvxx", "1");
    click("optLineal");
    enter("txtvyy", "");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "0.6000");
}

TEST_F(EjRegSimpleTest, AChangeOfXClearsTheOptionsAndY) {
    calculate(doubling);
    enter("txtvxx", "1");
    click("optExponencial");
    EXPECT_EQ(text("txtvyy"), "2.0000");
    type("txtvxx", "0");
    EXPECT_EQ(text("txtvxx"), "10");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_FALSE(control<Option>("optExponencial").checked());
    EXPECT_EQ(text("lblCalculoY"), "Ecuación Exponencial");
}

TEST_F(EjRegSimpleTest, EnterInXEvaluatesLinearly) {
    calculate(doubling);
    type("txtvxx", "10");
    key("txtvxx", Key::Kind::enter);
    EXPECT_TRUE(control<Option>("optLineal").checked());
    EXPECT_EQ(text("txtvyy"), "42.0000");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación Lineal");
}

TEST_F(EjRegSimpleTest, RefusesBeforeACalculation) {
    enter("txtvxx", "2");
    for (const char* option : {"optLineal", "optExponencial", "optPotencial"}) {
        click(option);
        EXPECT_EQ(messages(), std::vector{notCalculated}) << option;
        EXPECT_TRUE(control<Option>(option).checked());
    }
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_EQ(text("txtvxx"), "2");
}

TEST_F(EjRegSimpleTest, TheFlagIsAskedBeforeTheEmptyField) {
    click("optLineal");
    expectMessage(notCalculated);
    EXPECT_NE(focus(), "txtvxx");
}

TEST_F(EjRegSimpleTest, RefusesAnEmptyXAndFocusesIt) {
    calculate(doubling);
    for (const char* option : {"optLineal", "optExponencial", "optPotencial"}) {
        click(option);
        EXPECT_EQ(messages(), std::vector{noX}) << option;
        EXPECT_EQ(focus(), "txtvxx");
    }
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_EQ(text("txtvyy"), "");
}

TEST_F(EjRegSimpleTest, ReadsTheNumericPrefixOfX) {
    calculate(doubling);
    enter("txtvxx", "abc");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "-4.0000");
    enter("txtvxx", "10,5");
    click("optLineal");
    EXPECT_EQ(text("txtvyy"), "42.0000");
    EXPECT_TRUE(messages().empty());
}

TEST_F(EjRegSimpleTest, EditingTheGridLeavesTheCoefficients) {
    calculate(doubling);
    replaceRows({{"1", "100"}});
    enter("txtvxx", "10");
    click("optLineal");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtvyy"), "42.0000");
}

TEST_F(EjRegSimpleTest, ZeroToAPositiveExponentIsZero) {
    calculate(doubling);
    enter("txtvxx", "0");
    click("optPotencial");
    EXPECT_EQ(text("txtvyy"), "0.0000");
}

TEST_F(EjRegSimpleTest, ANegativeXEndsThePotentialEquation) {
    calculate(doubling);
    enter("txtvxx", "-2");
    click("optPotencial");
    EXPECT_TRUE(fatal(5));
    EXPECT_TRUE(messages().empty());
}

TEST_F(EjRegSimpleTest, ZeroToANegativeExponentEndsThePotentialEquation) {
    calculate({{"1", "12"}, {"2", "6"}, {"3", "4"}, {"4", "3"}});
    enter("txtvxx", "0");
    click("optPotencial");
    EXPECT_TRUE(fatal(5));
}

// 2^10000.
TEST_F(EjRegSimpleTest, AnExponentialPastTheRangeEndsTheProgram) {
    calculate(doubling);
    enter("txtvxx", "10000");
    click("optExponencial");
    EXPECT_TRUE(fatal(6));
}

} // namespace
} // namespace caudalera
