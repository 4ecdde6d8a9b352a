// The routines of the normal distribution, against hand calculations and against what must hold of
// any fit. Its approximations have a test of their own.

#include "fitting/normal.h"
#include "tests/fitting/RandomSeries.h"
#include "tests/support/FailureNumber.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace caudalera::testing {
namespace {

using Series = std::vector<Real>;

// Mean 37, squares 5180 in sum: S = Sqr(1295). The ten pairs differ by 380 in sum: l2 = 19.
TEST(Normal, ParametersOfFiveValues) {
    const Series series = {10, 20, 25, 30, 100};
    Normal d;
    ajustarOrdinarios(d, series);
    EXPECT_NEAR(d.posicion.value(), 37, 1e-14);
    EXPECT_NEAR(d.escala.value(), std::sqrt(1295.0), 1e-13);
    ajustarLineales(d, series);
    EXPECT_NEAR(d.posicion.value(), 37, 1e-14);
    EXPECT_NEAR(d.escala.value(), 19 * std::sqrt(std::acos(-1.0)), 1e-13);
}

TEST(Normal, ReducedVariateCumulativeAndInverse) {
    const Normal d{37, 12};
    EXPECT_EQ(variableReducida(d, 19), -1.5);
    // 0.0668072013 of the exact function; 1.959963985 its quantile 0.975.
    EXPECT_NEAR(acumulada(d, -1.5).value(), 0.0668072013, 7.5e-8);
    EXPECT_NEAR(inversa(d, 0.975).value(), 37 + 12 * 1.959963985, 12 * 4.5e-4);
}

// The inverse is good to 4.5E-4 of a standard deviation, the cumulative function to 7.5E-8.
TEST(Normal, InverseLeadsBack) {
    const Normal d{1500, 230};
    for (double q = 700; q < 2300; q += 13) {
        const Real Z = variableReducida(d, q);
        EXPECT_NEAR(inversa(d, acumulada(d, Z)).value(), q, 230 * 6e-4) << q;
    }
}

// l2 is half the mean difference of the pairs (Hosking 1990), which needs no ranks.
TEST(Normal, LinearParametersAreThoseOfTheMeanDifference) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const Series series = randomSeries(seed, 10 + 3 * static_cast<int>(seed));
        double differences = 0;
        for (std::size_t i = 0; i < series.size(); ++i)
            for (std::size_t j = 0; j < i; ++j)
                differences += series[i].value() - series[j].value();
        const auto n = static_cast<double>(series.size());
        const double l2 = differences / (n * (n - 1));
        Normal d;
        ajustarLineales(d, series);
        EXPECT_NEAR(d.escala.value() / (l2 * std::sqrt(std::acos(-1.0))), 1, 1e-13) << seed;
    }
}

TEST(Normal, ScalingASeriesScalesBothParametersAndShiftingMovesThePosition) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const Series series = randomSeries(seed, 40);
        Series scaled;
        Series shifted;
        for (const Real value : series) {
            scaled.push_back(value * 3.7);
            shifted.push_back(value + 250);
        }
        for (const auto fit :
             {static_cast<void (*)(Normal&, std::span<const Real>)>(ajustarOrdinarios),
              static_cast<void (*)(Normal&, std::span<const Real>)>(ajustarLineales)}) {
            Normal d;
            Normal ofScaled;
            Normal ofShifted;
            fit(d, series);
            fit(ofScaled, scaled);
            fit(ofShifted, shifted);
            EXPECT_NEAR((ofScaled.posicion / d.posicion).value(), 3.7, 1e-11) << seed;
            EXPECT_NEAR((ofScaled.escala / d.escala).value(), 3.7, 1e-11) << seed;
            EXPECT_NEAR((ofShifted.posicion - d.posicion).value(), 250, 1e-10) << seed;
            EXPECT_NEAR((ofShifted.escala / d.escala).value(), 1, 1e-11) << seed;
        }
    }
}

// One value has a mean, no deviation; -3 to 3 has both, and no coefficient of variation.
TEST(Normal, FailuresLeaveTheParametersBehindThem) {
    const auto ordinary = [](Normal& d, const Series& series) {
        return failureNumber([&] { ajustarOrdinarios(d, series); });
    };
    const auto linear = [](Normal& d, const Series& series) {
        return failureNumber([&] { ajustarLineales(d, series); });
    };
    Normal d{7, 8};
    EXPECT_EQ(ordinary(d, {}), 11);
    EXPECT_EQ(d.posicion, 7);
    EXPECT_EQ(ordinary(d, {4}), 11);
    EXPECT_EQ(d.posicion, 4);
    EXPECT_EQ(d.escala, 8);
    EXPECT_EQ(ordinary(d, {-3, 3}), 11);
    EXPECT_EQ(d.posicion, 0);
    EXPECT_NEAR(d.escala.value(), std::sqrt(18.0), 1e-15);
    Normal other{7, 8};
    EXPECT_EQ(linear(other, {}), 11);
    EXPECT_EQ(linear(other, {1, 2, 3}), 11);
    EXPECT_EQ(other.posicion, 7);
    EXPECT_EQ(other.escala, 8);
    EXPECT_EQ(linear(other, {1, 2, 3, 4}), 0);
    EXPECT_EQ(failureNumber([] { variableReducida(Normal{3, 0}, 4); }), 11);
}

} // namespace
} // namespace caudalera::testing
