// What the keys compute, refuse and fail at.

#include "tests/shell/main/CalculadoraTest.h"

#include <algorithm>
#include <set>

namespace caudalera {
namespace {

TEST_F(CalculadoraTest, DivisionDropsTheSign) {
    EXPECT_EQ(after("6 / 3 ="), "2.");
    EXPECT_EQ(after("6 neg / 3 ="), "2.");
    EXPECT_EQ(after("6 / 3 neg ="), "2.");
    EXPECT_EQ(after("6 neg / 4 neg ="), "1.5");
    EXPECT_EQ(after("0 / 3 ="), "0.");
}

TEST_F(CalculadoraTest, DivisionByZeroIsRefusedAndTheDisplayKept) {
    expectRefusal("5 / 0 =", "0");
    expectRefusal("5 / 0.0 =", "0.0");
    expectRefusal("5 / =", "");
    expectRefusal("0 / 0 =", "0");
}

TEST_F(CalculadoraTest, ProductDifferenceAndSum) {
    EXPECT_EQ(after("6 * 7 ="), "42.");
    EXPECT_EQ(after("6 neg * 7 ="), "-42.");
    EXPECT_EQ(after("1.5 - 2.25 ="), "-0.75");
    EXPECT_EQ(after("1.5 + 2.25 ="), "3.75");
    EXPECT_EQ(after("0.1 + 0.2 ="), "0.3");
}

TEST_F(CalculadoraTest, SquareRoot) {
    EXPECT_EQ(after("9 sqrt"), "3.");
    EXPECT_EQ(after("2 sqrt"), "1.4142135623731");
    EXPECT_EQ(after("0 sqrt"), "0.");
    expectRefusal("4 neg sqrt", "-4");
}

TEST_F(CalculadoraTest, PercentageIsTheQuotientInHundredths) {
    EXPECT_EQ(after("30 % 300 ="), "10.");
    EXPECT_EQ(after("30 neg % 300 ="), "-10.") << "with its sign";
    EXPECT_EQ(after("3 % 8 ="), "37.5");
    expectRefusal("30 % 0 =", "0");
}

TEST_F(CalculadoraTest, Inverse) {
    EXPECT_EQ(after("8 1/x"), "0.125");
    EXPECT_EQ(after("8 neg 1/x"), "-0.125");
    expectRefusal("0 1/x", "0");
    expectRefusal("1/x", "0.");
}

TEST_F(CalculadoraTest, Powers) {
    EXPECT_EQ(after("2 ^ 10 ="), "1024.");
    EXPECT_EQ(after("2 ^ 0.3 ="), "1.23114441334492") << "1.2311444133449163";
    EXPECT_EQ(after("2 ^ 3 neg ="), "0.125");
    EXPECT_EQ(after("2 neg ^ 3 ="), "-8.");
    EXPECT_EQ(after("0 ^ 3 ="), "0.");
    EXPECT_EQ(after("0 ^ 0 ="), "1.");
    EXPECT_EQ(after("3 x3"), "27.");
    EXPECT_EQ(after("1.5 neg x3"), "-3.375");
    EXPECT_EQ(after("3 x2"), "9.");
    EXPECT_EQ(after("1.5 neg x2"), "2.25");
}

TEST_F(CalculadoraTest, ModuloOfRoundedIntegersHasTheSignOfTheDividend) {
    EXPECT_EQ(after("16 mod 5 ="), "1.");
    EXPECT_EQ(after("74 mod 10 ="), "4.");
    EXPECT_EQ(after("16 neg mod 5 ="), "-1.");
    EXPECT_EQ(after("16 mod 5 neg ="), "1.");
    EXPECT_EQ(after("16 neg mod 5 neg ="), "-1.");
    EXPECT_EQ(after("15 neg mod 5 ="), "0.");
    // Halves to the even integer: 16 mod 4, 18 mod 4, 17 mod 4; 7 mod 2, 7 mod 4.
    EXPECT_EQ(after("16.5 mod 4 ="), "0.");
    EXPECT_EQ(after("17.5 mod 4 ="), "2.");
    EXPECT_EQ(after("16.6 mod 4 ="), "1.");
    EXPECT_EQ(after("7 mod 2.5 ="), "1.");
    EXPECT_EQ(after("7 mod 3.5 ="), "3.");
    // The ends of 32 bits.
    EXPECT_EQ(after("2147483647 mod 10 ="), "7.");
    EXPECT_EQ(after("2147483647.4 mod 10 ="), "7.");
    EXPECT_EQ(after("2147483648 neg mod 10 ="), "-8.");
    EXPECT_EQ(after("2147483648.5 neg mod 10 ="), "-8.");
    EXPECT_EQ(after("2147483648 neg mod 1 neg ="), "0.");
}

TEST_F(CalculadoraTest, TheIntegerPartIsCutTowardsZero) {
    EXPECT_EQ(after("2.75 int"), "2.");
    EXPECT_EQ(after("2.75 neg int"), "-2.");
    EXPECT_EQ(after("0.9 neg int"), "0.");
    EXPECT_EQ(after("7 int"), "7.");
}

TEST_F(CalculadoraTest, Roots) {
    EXPECT_EQ(after("81 root 4 ="), "3.");
    EXPECT_EQ(after("10 root 7 ="), "1.38949549437314") << "1.3894954943731376";
    EXPECT_EQ(after("4 root 2 neg ="), "0.5");
    EXPECT_EQ(after("27 cbrt"), "3.");
    EXPECT_EQ(after("10 cbrt"), "2.15443469003188") << "2.1544346900318837";
    EXPECT_EQ(after("0 cbrt"), "0.");
    EXPECT_EQ(after("8 neg root 1 ="), "-8.") << "a whole power of a negative";
}

TEST_F(CalculadoraTest, WhatTheArithmeticCannotTakeIsFatal) {
    expectFatal("0 ^ 1 neg =", 5);
    expectFatal("8 neg ^ 0.5 =", 5);
    expectFatal("10 ^ 309 =", 6);
    expectFatal("5 mod 0 =", 11);
    expectFatal("5 mod 0.5 =", 11);
    expectFatal("2147483647.5 mod 10 =", 6);
    expectFatal("2147483648.6 neg mod 10 =", 6);
    expectFatal("10 mod 2147483648 =", 6);
    expectFatal("8 root 0 =", 11);
    expectFatal("8 neg root 3 =", 5);
    expectFatal("0 root 3 neg =", 5);
    expectFatal("8 neg cbrt", 5);
    const std::string big = "1" + std::string(200, '0');
    expectFatal(big + " * " + big + " =", 6);
    expectFatal(big + " x2", 6);
    expectFatal(big + " x3", 6);
    expectFatal(big + " / 0." + std::string(200, '0') + "1 =", 6);
    const std::string huge = "1" + std::string(308, '0');
    expectFatal(huge + " M+ M+", 6);
}

TEST_F(CalculadoraTest, AnOperatorComputesWhatWaits) {
    EXPECT_EQ(after("2 + 3 *"), "");
    EXPECT_EQ(after("2 + 3 * 4 ="), "20.") << "from left to right";
    EXPECT_EQ(after("2 + 3 - 4 * 5 / 2 ="), "2.5");
    EXPECT_EQ(after("5 + * 3 ="), "15.") << "5 + 0, then times 3";
    EXPECT_EQ(after("5 * + 3 ="), "3.") << "5 times 0, then plus 3";
    EXPECT_EQ(after("5 + ="), "5.");
    EXPECT_EQ(after("5 * ="), "0.");
}

TEST_F(CalculadoraTest, AnOperatorBehindARefusalIsNotTaken) {
    expectRefusal("5 / 0 +", "0");
    EXPECT_EQ(text("lblPendiente"), "");
    press("4 =");
    EXPECT_EQ(display(), "4") << "nothing waits";
    EXPECT_EQ(messages(), std::vector<Message>());
}

TEST_F(CalculadoraTest, EqualsTakesWhatWaitsOnce) {
    EXPECT_EQ(after("5 ="), "5") << "nothing waits";
    EXPECT_EQ(after("2 + 3 = ="), "5.");
    EXPECT_EQ(after("2 + 3 = 7 ="), "7");
    EXPECT_EQ(after("2 + 3 = 7 + 1 ="), "8.") << "the result is replaced";
    EXPECT_EQ(after("2 + 3 = * 4 ="), "20.") << "or goes on as first operand";
}

TEST_F(CalculadoraTest, AResultKeepsTheDigitsBehindTheDisplay) {
    EXPECT_EQ(after("1 / 3 * 3 ="), "1.");
    EXPECT_EQ(after("1 / 3 = * 3 ="), "1.");
    EXPECT_EQ(after("3 1/x * 3 ="), "1.");
    EXPECT_EQ(after("3 * 3 1/x ="), "1.") << "as second operand too";
}

TEST_F(CalculadoraTest, AKeyOfOneOperandTakesWhatTheDisplayShows) {
    // 1.4142135623731 to the power 2 is 2.00000000000001409.
    EXPECT_EQ(after("2 sqrt x2"), "2.00000000000001");
    EXPECT_EQ(after("9 + 16 sqrt ="), "13.") << "the second operand";
    EXPECT_EQ(after("9 + sqrt"), "0.") << "an empty display is 0";
    EXPECT_EQ(after("9 sqrt + 1 ="), "4.") << "the first operand";
    EXPECT_EQ(after("9 sqrt ="), "3.");
}

TEST_F(CalculadoraTest, ARefusalGivesUpWhatWaits) {
    for (const char* keys : {"5 + 4 neg sqrt", "5 + 0 1/x"}) {
        after(keys);
        EXPECT_EQ(messages().size(), 1U) << keys;
        EXPECT_EQ(text("lblPendiente"), "") << keys;
        press("=");
        EXPECT_EQ(messages(), std::vector<Message>()) << keys;
        press("CE");
        EXPECT_EQ(display(), "5.") << keys;
    }
}

TEST_F(CalculadoraTest, BehindARefusalWhatIsSeenCounts) {
    EXPECT_EQ(after("5 / 0 = + 3 ="), "3.");
    EXPECT_EQ(after("5 + 4 neg sqrt * 2 ="), "-8.");
    EXPECT_EQ(after("5 + 4 neg sqrt neg sqrt"), "2.");
    EXPECT_EQ(after("5 / 0 = 7 CE"), "7.") << "a new number is the first operand";
    EXPECT_EQ(after("5 / 0 = 7 - 2 ="), "5.");
}

TEST_F(CalculadoraTest, DegreesAreWholeAndPositive) {
    // The constant falls short of the half turn by 3.2E-15, which the last digits show.
    EXPECT_EQ(after("30 sin"), "0.5");
    EXPECT_EQ(after("390 sin"), "0.5");
    EXPECT_EQ(after("30 neg sin"), "0.5") << "as that of 30";
    EXPECT_EQ(after("390 neg sin"), "0.5");
    EXPECT_EQ(after("0 sin"), "0.");
    EXPECT_EQ(after("360 sin"), "0.");
    EXPECT_EQ(after("30.5 sin"), "0.5") << "half to the even 30";
    EXPECT_EQ(after("30.51 sin"), after("31 sin"));
    EXPECT_EQ(after("31.5 sin"), "0.529919264233204") << "half to the even 32";
    EXPECT_EQ(after("100 sin"), "0.984807753012208");
    // 130 degrees and 5965232 turns, past 32 bits.
    EXPECT_EQ(after("2147483650 sin"), "0.766044443118979");
    EXPECT_EQ(after("45 cos"), "0.707106781186548");
    EXPECT_EQ(after("60 cos"), "0.500000000000001");
    EXPECT_EQ(after("0 cos"), "1.");
    EXPECT_EQ(after("45 tan"), "0.999999999999998");
    EXPECT_EQ(after("45 neg tan"), "0.999999999999998");
    EXPECT_EQ(after("60 tan"), "1.73205080756887");
}

TEST_F(CalculadoraTest, RadiansAreTakenAsTheyAre) {
    EXPECT_EQ(after("rad 1 sin"), "0.841470984807897");
    EXPECT_EQ(after("rad 1 neg sin"), "-0.841470984807897");
    EXPECT_EQ(after("rad 1 cos"), "0.54030230586814") << "0.540302305868140";
    EXPECT_EQ(after("rad 1 tan"), "1.5574077246549");
    EXPECT_EQ(after("rad deg 30 sin"), "0.5");
    EXPECT_EQ(after("3 deg rad 0"), "30") << "the options touch no number";
    EXPECT_EQ(after("3 + rad 4 ="), "7.");
}

TEST_F(CalculadoraTest, InverseFunctionsInDegrees) {
    EXPECT_EQ(after("0.5 asin"), "30.");
    EXPECT_EQ(after("0.6 asin"), "36.8698976458441");
    EXPECT_EQ(after("0.6 neg asin"), "-36.8698976458441");
    EXPECT_EQ(after("0.6 acos"), "53.130102354156");
    EXPECT_EQ(after("0.5 acos"), "60.0000000000001") << "60.00000000000006";
    EXPECT_EQ(after("0.5 neg acos"), "120.");
    EXPECT_EQ(after("1 atan"), "45.");
    EXPECT_EQ(after("2 atan"), "63.4349488229221");
    EXPECT_EQ(after("2 neg atan"), "-63.4349488229221");
}

TEST_F(CalculadoraTest, InverseFunctionsInRadians) {
    EXPECT_EQ(after("rad 0.6 asin"), "0.643501108793284");
    EXPECT_EQ(after("rad 0.6 acos"), "0.927295218001612");
    EXPECT_EQ(after("rad 0.5 neg acos"), "2.0943951023932");
    EXPECT_EQ(after("rad 0 acos"), "1.5707963267949");
    EXPECT_EQ(after("rad 2 atan"), "1.10714871779409");
}

TEST_F(CalculadoraTest, TheEndsOfTheInverseFunctionsAreExact) {
    EXPECT_EQ(after("1 asin"), "90.");
    EXPECT_EQ(after("1 neg asin"), "-90.");
    EXPECT_EQ(after("1 acos"), "0.");
    EXPECT_EQ(after("1 neg acos"), "180.");
    EXPECT_EQ(after("rad 1 asin"), "1.5707963267949");
    EXPECT_EQ(after("rad 1 neg asin"), "-1.5707963267949");
    EXPECT_EQ(after("rad 1 acos"), "0.");
    EXPECT_EQ(after("rad 1 neg acos"), "3.14159265358979");
}

TEST_F(CalculadoraTest, OutsideTheirRangeTheyAreRefused) {
    expectRefusal("2 asin", "2");
    expectRefusal("1.0000001 asin", "1.0000001");
    expectRefusal("1.0000001 neg asin", "-1.0000001");
    expectRefusal("2 acos", "2");
    expectRefusal("1.0000001 neg acos", "-1.0000001");
    EXPECT_EQ(after("5 + 2 asin ="), "7.") << "what waits goes on waiting";
}

TEST_F(CalculadoraTest, AFunctionTakesTheOperandInWork) {
    EXPECT_EQ(after("2 * 90 sin ="), "2.");
    // With the digits behind the display, 0.49999999999999953.
    EXPECT_EQ(after("2 * 30 sin ="), "0.999999999999999");
    EXPECT_EQ(after("90 sin + 1 ="), "2.");
}

TEST_F(CalculadoraTest, PiHasFifteenDigits) {
    EXPECT_EQ(after("pi"), "3.14159265358979");
    EXPECT_EQ(after("2 * pi ="), "6.28318530717958") << "twice the digits shown";
    EXPECT_EQ(after("pi * 10000000000000 ="), "31415926535897.9");
}

TEST_F(CalculadoraTest, ARandomNumberLiesBetweenZeroAndOne) {
    std::set<std::string> drawn;
    double sum = 0;
    double least = 1;
    double most = 0;
    constexpr int draws = 2000;
    for (int i = 0; i < draws; ++i) {
        press("ran");
        const double value = std::stod(display());
        ASSERT_GT(value, 0);
        ASSERT_LT(value, 1);
        drawn.insert(display());
        sum += value;
        least = std::min(least, value);
        most = std::max(most, value);
    }
    EXPECT_EQ(drawn.size(), static_cast<std::size_t>(draws)) << "15 digits hardly meet again";
    // Seven standard deviations of the mean of uniform numbers, sqrt(1 / 12 / 2000) = 0.0065; a
    // twentieth at either end stays empty once in (20 / 19) ^ 2000 = 10 ^ 44 times.
    EXPECT_NEAR(sum / draws, 0.5, 0.045);
    EXPECT_LT(least, 0.05);
    EXPECT_GT(most, 0.95);
}

TEST_F(CalculadoraTest, ARandomNumberIsTheOperandInWork) {
    press("ran");
    const std::string drawn = display();
    press("+ 0 =");
    EXPECT_EQ(display(), drawn);
    press("2 * ran");
    const double factor = std::stod(display());
    press("=");
    EXPECT_NEAR(std::stod(display()), 2 * factor, 1E-14);
}

} // namespace
} // namespace caudalera
