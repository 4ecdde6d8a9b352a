// Time of concentration.

#include "peakflow/tiempoConcentracion.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

namespace caudalera {
namespace {

int failureOf(float L, float H) {
    return testing::failureNumber([&] { tiempoConcentracion(L, H); });
}

// exp(0.385 ln(L^3 / H)) in 40 decimal digits. L = 1000, H = 50: L^3 / H = 2e7,
// ln = 16.8112428315, by 0.385 = 6.4723284901, exp = 646.988480686, by 0.0195 = 12.6162753732.
TEST(ConcentrationTime, FollowsLengthAndDrop) {
    EXPECT_NEAR(tiempoConcentracion(1000, 50).value(), 12.616275373211387, 1e-12);
    EXPECT_NEAR(tiempoConcentracion(2500, 120).value(), 25.951982617939916, 1e-12);
    EXPECT_NEAR(tiempoConcentracion(100, 10).value(), 1.640720526208130, 1e-13);
}

// L = 1 and H = 1 leave the factor alone.
TEST(ConcentrationTime, OfUnitLengthAndDropIsItsFactor) {
    EXPECT_DOUBLE_EQ(tiempoConcentracion(1, 1).value(), 0.0195);
    EXPECT_EQ(tiempoConcentracion(0, 10), 0);
}

TEST(ConcentrationTime, FailsWithoutADropOrWithANegativeOne) {
    EXPECT_EQ(failureOf(1000, 0), 11);
    EXPECT_EQ(failureOf(1000, -5), 5);
    EXPECT_EQ(failureOf(-1000, 5), 5);
}

} // namespace
} // namespace caudalera
