// The two normal routines against printed tables and the errors that their source states.

#include "shell/numbers/aproximacionNormal.h"
#include "tests/support/FailureNumber.h"

#include <cmath>
#include <gtest/gtest.h>

namespace caudalera::testing {
namespace {

double erfcValue(double z) {
    return 0.5 * std::erfc(-z / std::sqrt(2.0));
}

// Abramowitz and Stegun, table 26.1.
TEST(NormalAcumulada, PrintedTable) {
    EXPECT_NEAR(normalAcumulada(0.5).value(), 0.691462461274013, 7.5e-8);
    EXPECT_NEAR(normalAcumulada(1).value(), 0.841344746068543, 7.5e-8);
    EXPECT_NEAR(normalAcumulada(1.96).value(), 0.975002104851780, 7.5e-8);
    EXPECT_NEAR(normalAcumulada(2).value(), 0.977249868051821, 7.5e-8);
    EXPECT_NEAR(normalAcumulada(3).value(), 0.998650101968370, 7.5e-8);
    EXPECT_NEAR(normalAcumulada(-1).value(), 0.158655253931457, 7.5e-8);
    EXPECT_NEAR(normalAcumulada(-3).value(), 0.001349898031630, 7.5e-8);
}

TEST(NormalAcumulada, StatedErrorOverTheWholeRange) {
    double largest = 0;
    for (int i = -800; i <= 800; ++i) {
        const double z = i / 100.0;
        largest = std::max(largest, std::fabs(normalAcumulada(z).value() - erfcValue(z)));
    }
    EXPECT_LT(largest, 7.5e-8);
    // It is the approximation, not an exact function.
    EXPECT_GT(largest, 1e-8);
}

// b1 + ... + b5 = 1.253314136 times 0.398942280401433 is 0.49999999947519; one less that.
TEST(NormalAcumulada, AtZeroTheSideOfThePolynomialCounts) {
    const double value = normalAcumulada(0).value();
    EXPECT_NEAR(value - 0.5, 5.248087e-10, 1e-15);
    EXPECT_EQ(normalAcumulada(-0.0).value(), value);
}

// The approximation's own value, in 50-digit decimal arithmetic.
TEST(NormalAcumulada, ValuesOfTheApproximationItself) {
    EXPECT_NEAR(normalAcumulada(1).value(), 0.84134474043686841, 2e-16);
    EXPECT_NEAR(normalAcumulada(1.96).value(), 0.97500217484336440, 2e-16);
    EXPECT_NEAR(normalAcumulada(-8).value() / 6.2847137284466545e-16, 1, 1e-13);
}

TEST(NormalAcumulada, BothSidesSumUpToOne) {
    for (const double z : {0.25, 1.0, 2.5, 6.0})
        EXPECT_NEAR((normalAcumulada(z) + normalAcumulada(-z)).value(), 1, 2e-16) << z;
}

TEST(NormalAcumulada, FarOutItIsExactlyOneAndZero) {
    EXPECT_EQ(normalAcumulada(9).value(), 1);
    EXPECT_EQ(normalAcumulada(40).value(), 1);
    EXPECT_EQ(normalAcumulada(-40).value(), 0);
    EXPECT_EQ(failureNumber([] { normalAcumulada(1e200); }), 6);
}

// Quantiles of table 26.5 and 26.6.
TEST(NormalInversa, PrintedQuantiles) {
    EXPECT_NEAR(normalInversa(0.9).value(), 1.281552, 4.5e-4);
    EXPECT_NEAR(normalInversa(0.95).value(), 1.644854, 4.5e-4);
    EXPECT_NEAR(normalInversa(0.975).value(), 1.959964, 4.5e-4);
    EXPECT_NEAR(normalInversa(0.99).value(), 2.326348, 4.5e-4);
    EXPECT_NEAR(normalInversa(0.999).value(), 3.090232, 4.5e-4);
    EXPECT_NEAR(normalInversa(0.01).value(), -2.326348, 4.5e-4);
    EXPECT_NEAR(normalInversa(0.2).value(), -0.841621, 4.5e-4);
}

TEST(NormalInversa, StatedErrorOverTheWholeRange) {
    for (int i = 1; i < 1000; ++i) {
        const double p = i / 1000.0;
        // Newton's correction by the exact function tells how far the approximation is off.
        const double z = normalInversa(p).value();
        const double slope = std::exp(-z * z / 2) / std::sqrt(2 * std::acos(-1.0));
        EXPECT_LT(std::fabs(erfcValue(z) - p) / slope, 4.6e-4) << p;
    }
}

// In 50-digit decimal arithmetic.
TEST(NormalInversa, ValuesOfTheApproximationItself) {
    EXPECT_NEAR(normalInversa(0.99).value(), 2.3267853325589661, 1e-13);
    EXPECT_NEAR(normalInversa(0.98).value(), 2.0541885887218987, 1e-13);
    EXPECT_NEAR(normalInversa(0.2).value(), -0.84145671735478390, 1e-14);
    EXPECT_NEAR(normalInversa(1e-10).value(), -6.3609388694051005, 1e-13);
}

// w = Sqr(Log(4)) = 1.17741; the first branch gives -z, a small number of its own.
TEST(NormalInversa, AHalfTakesTheLowerBranch) {
    EXPECT_NEAR(normalInversa(0.5).value(), 1.0100667559e-7, 1e-15);
    EXPECT_NEAR(normalInversa(std::nextafter(0.5, 1)).value(), -1.0100667559e-7, 1e-14);
}

TEST(NormalInversa, AnswersOutsideTheProbabilities) {
    // w = 0 leaves z = -c0.
    EXPECT_NEAR(normalInversa(-1).value(), 2.515517, 1e-15);
    EXPECT_NEAR(normalInversa(2).value(), -2.515517, 1e-15);
    EXPECT_NEAR(normalInversa(-0.2).value(), normalInversa(0.2).value(), 1e-15);
}

TEST(NormalInversa, FailuresByTheirNumbers) {
    EXPECT_EQ(failureNumber([] { normalInversa(0); }), 11);
    EXPECT_EQ(failureNumber([] { normalInversa(1); }), 11);
    EXPECT_EQ(failureNumber([] { normalInversa(-3); }), 5);
    EXPECT_EQ(failureNumber([] { normalInversa(2.5); }), 5);
    EXPECT_EQ(failureNumber([] { normalInversa(-1e200); }), 6);
}

} // namespace
} // namespace caudalera::testing
