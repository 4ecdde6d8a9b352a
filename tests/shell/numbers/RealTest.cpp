// The checked numbers: doubles that fail instead of leaving the finite range, 16-bit counters and
// arrays with bounds.

#include "shell/numbers/Real.h"
#include "shell/numbers/Integer16.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>

namespace caudalera::testing {
namespace {

const Real largest = DBL_MAX;
const Real zero = 0;

TEST(Real, ArithmeticIsThatOfDoubles) {
    EXPECT_EQ((Real(2) + Real(3)).value(), 5);
    EXPECT_EQ((Real(2) - 3).value(), -1);
    EXPECT_EQ((2 * Real(3)).value(), 6);
    EXPECT_EQ((Real(1) / 8).value(), 0.125);
    EXPECT_EQ((-Real(4)).value(), -4);
    EXPECT_EQ(Real().value(), 0);
    Real sum = 1;
    sum += 4;
    sum -= 2;
    sum *= 5;
    sum /= 2;
    EXPECT_EQ(sum.value(), 7.5);
}

TEST(Real, Comparisons) {
    EXPECT_TRUE(Real(1) < 2);
    EXPECT_TRUE(Real(2) <= 2);
    EXPECT_TRUE(Real(3) > 2);
    EXPECT_TRUE(2 >= Real(2));
    EXPECT_TRUE(Real(2) == 2);
    EXPECT_TRUE(Real(2) != 3);
    EXPECT_FALSE(Real(2) < 2);
    EXPECT_TRUE(Real(-0.0) == 0);
}

TEST(Real, DivisionByZeroIsFailure11) {
    EXPECT_EQ(failureNumber([] { Real(1) / zero; }), 11);
    EXPECT_EQ(failureNumber([] { Real(-1) / zero; }), 11);
    EXPECT_EQ(failureNumber([] { zero / zero; }), 11);
    EXPECT_EQ(failureNumber([] { Real(1) / Real(-0.0); }), 11);
    EXPECT_EQ(failureNumber([] {
                  Real x = 1;
                  x /= 0;
              }),
              11);
}

TEST(Real, PastTheDoubleRangeIsFailure6) {
    EXPECT_EQ(failureNumber([] { largest + largest; }), 6);
    EXPECT_EQ(failureNumber([] { -largest - largest; }), 6);
    EXPECT_EQ(failureNumber([] { largest * 2; }), 6);
    EXPECT_EQ(failureNumber([] { largest * -2; }), 6);
    EXPECT_EQ(failureNumber([] { largest / 0.5; }), 6);
    EXPECT_EQ((largest + 1).value(), DBL_MAX);
}

TEST(Real, FailedAssignmentKeepsTheValue) {
    Real x = DBL_MAX;
    EXPECT_EQ(failureNumber([&] { x *= 2; }), 6);
    EXPECT_EQ(x.value(), DBL_MAX);
}

TEST(Real, BelowTheDoubleRangeIsZero) {
    EXPECT_EQ((Real(1E-300) * 1E-300).value(), 0);
    EXPECT_EQ((Real(DBL_TRUE_MIN) / 4).value(), 0);
}

TEST(Real, CheckedTellsInfinityFromNotANumber) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(failureNumber([&] { Real::checked(infinity); }), 6);
    EXPECT_EQ(failureNumber([&] { Real::checked(-infinity); }), 6);
    EXPECT_EQ(failureNumber([] { Real::checked(std::numeric_limits<double>::quiet_NaN()); }), 5);
    EXPECT_EQ(Real::checked(-1.5).value(), -1.5);
}

TEST(RealFunctions, RootOfANegativeIsFailure5) {
    EXPECT_EQ(Sqr(9).value(), 3);
    EXPECT_EQ(Sqr(0).value(), 0);
    EXPECT_EQ(failureNumber([] { Sqr(-DBL_TRUE_MIN); }), 5);
}

TEST(RealFunctions, LogarithmOfZeroOrLessIsFailure5) {
    EXPECT_EQ(Log(1).value(), 0);
    EXPECT_NEAR(Log(10).value(), 2.302585092994046, 1E-15);
    EXPECT_EQ(failureNumber([] { Log(0); }), 5);
    EXPECT_EQ(failureNumber([] { Log(-1); }), 5);
}

// ln of the largest double is 709.7827...
TEST(RealFunctions, ExponentialOverflowsAndVanishes) {
    EXPECT_EQ(Exp(0).value(), 1);
    EXPECT_NEAR(Exp(1).value(), 2.718281828459045, 1E-15);
    EXPECT_GT(Exp(709.78).value(), 1E308);
    EXPECT_EQ(failureNumber([] { Exp(709.79); }), 6);
    EXPECT_EQ(Exp(-800).value(), 0);
    EXPECT_EQ(Exp(-1E300).value(), 0);
}

TEST(RealFunctions, AnglesInRadians) {
    EXPECT_EQ(pi().value(), 3.141592653589793);
    EXPECT_NEAR(Sin(pi() / 6).value(), 0.5, 1E-15);
    EXPECT_NEAR(Cos(pi() / 3).value(), 0.5, 1E-15);
    EXPECT_NEAR(Tan(pi() / 4).value(), 1, 1E-15);
    EXPECT_NEAR(Atn(-1).value(), -0.7853981633974483, 1E-15);
}

TEST(RealFunctions, AbsoluteAndInteger) {
    EXPECT_EQ(Abs(-2.5).value(), 2.5);
    EXPECT_EQ(Abs(2.5).value(), 2.5);
    EXPECT_EQ(Int(2.9).value(), 2);
    EXPECT_EQ(Int(-2.1).value(), -3);
    EXPECT_EQ(Int(-2).value(), -2);
}

TEST(RealFunctions, Power) {
    EXPECT_EQ(Pow(2, 10).value(), 1024);
    EXPECT_EQ(Pow(2, -2).value(), 0.25);
    EXPECT_EQ(Pow(-2, 3).value(), -8);
    EXPECT_EQ(Pow(-2, 2).value(), 4);
    EXPECT_EQ(Pow(9, 0.5).value(), 3);
    EXPECT_EQ(Pow(0, 0).value(), 1);
    EXPECT_EQ(Pow(-5, 0).value(), 1);
    EXPECT_EQ(Pow(0, 2).value(), 0);
    EXPECT_EQ(Pow(0, 0.5).value(), 0);
    EXPECT_EQ(Pow(10, -400).value(), 0);
}

TEST(RealFunctions, PowerFailures) {
    EXPECT_EQ(failureNumber([] { Pow(0, -1); }), 5);
    EXPECT_EQ(failureNumber([] { Pow(0, -0.5); }), 5);
    EXPECT_EQ(failureNumber([] { Pow(-8, Real(1) / 3); }), 5);
    EXPECT_EQ(failureNumber([] { Pow(-1, 0.5); }), 5);
    EXPECT_EQ(failureNumber([] { Pow(10, 309); }), 6);
    EXPECT_EQ(failureNumber([] { Pow(-10, 309); }), 6);
    EXPECT_EQ(failureNumber([] { Pow(1E-200, -2); }), 6);
}

// Between 16777216 and the next single there are two units, so an odd half goes to the even one.
TEST(Single, RoundsToSinglePrecision) {
    EXPECT_EQ(toSingle(0.5), 0.5F);
    EXPECT_EQ(toSingle(16777217.0), 16777216.0F);
    EXPECT_EQ(toSingle(16777219.0), 16777220.0F);
    EXPECT_EQ(static_cast<double>(toSingle(0.1)), 0.100000001490116119384765625);
    EXPECT_EQ(toSingle(1E-60), 0.0F);
}

// The largest single is 2^128 - 2^104; the range ends half a unit above it, at 2^128 - 2^103.
TEST(Single, PastTheSingleRangeIsFailure6) {
    const double border = std::ldexp(1.0, 128) - std::ldexp(1.0, 103);
    EXPECT_EQ(toSingle(FLT_MAX), FLT_MAX);
    EXPECT_EQ(toSingle(std::nextafter(border, 0)), FLT_MAX);
    EXPECT_EQ(failureNumber([&] { toSingle(border); }), 6);
    EXPECT_EQ(failureNumber([] { toSingle(-1E39); }), 6);
}

TEST(Integer16, HoldsSixteenBits) {
    EXPECT_EQ(Integer16(), 0);
    EXPECT_EQ(Integer16(32767), 32767);
    EXPECT_EQ(Integer16(-32768), -32768);
    Integer16 n = 5;
    EXPECT_EQ(++n, 6);
    EXPECT_EQ(--n, 5);
    EXPECT_EQ(n + 2, 7);
}

TEST(Integer16, PastTheRangeIsFailure6) {
    EXPECT_EQ(failureNumber([] { Integer16 n(32768); }), 6);
    EXPECT_EQ(failureNumber([] { Integer16 n(-32769); }), 6);
    EXPECT_EQ(failureNumber([] { Integer16 n(std::numeric_limits<long>::max()); }), 6);
    Integer16 high = 32767;
    EXPECT_EQ(failureNumber([&] { ++high; }), 6);
    EXPECT_EQ(high, 32767);
    Integer16 low = -32768;
    EXPECT_EQ(failureNumber([&] { --low; }), 6);
    EXPECT_EQ(low, -32768);
}

} // namespace
} // namespace caudalera::testing
