// The routines of the Gumbel distribution of the logarithms.

#include "fitting/logGumbel.h"
#include "fitting/gumbel.h"
#include "tests/fitting/RandomSeries.h"
#include "tests/support/FailureNumber.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace caudalera::testing {
namespace {

constexpr double epsilon = std::numeric_limits<double>::epsilon();

// The same law as Fréchet wrote it: exp(-(q / exp(posicion))^(-1 / escala)).
TEST(LogGumbelTest, CumulativeIsThatOfFrechet) {
    const LogGumbel d{5.1, 0.4};
    for (double q = 20; q < 1e6; q *= 1.3) {
        const double G = std::exp(-std::pow(q / std::exp(5.1), -1 / 0.4));
        // The exponent is good to some ulps of itself.
        const double exponent = std::pow(q / std::exp(5.1), -1 / 0.4);
        EXPECT_NEAR(acumulada(d, variableReducida(d, q)).value() / G, 1,
                    30 * epsilon * (1 + exponent))
            << q;
    }
}

// exp(posicion) (-ln p)^(-escala)
TEST(LogGumbelTest, InverseIsThatOfFrechet) {
    const LogGumbel d{5.1, 0.4};
    for (const double p : {1e-300, 1e-9, 0.01, 0.3, 0.5, 0.8, 0.99, 0.999, 0.999999999}) {
        const double q = std::exp(5.1) * std::pow(-std::log(p), -0.4);
        EXPECT_NEAR(inversa(d, p).value() / q, 1, 30 * epsilon) << p;
    }
}

TEST(LogGumbelTest, InverseLeadsBack) {
    const LogGumbel d{5.1, 0.4};
    for (double q = 20; q < 1e5; q *= 1.07) {
        const Real y = variableReducida(d, q);
        // As for Gumbel in ln q, whose change is relative in q.
        const double allowed = 10 * epsilon * (3 + std::exp(y.value()));
        EXPECT_NEAR(inversa(d, acumulada(d, y)).value() / q, 1, allowed) << q;
    }
}

TEST(LogGumbelTest, ValuesOfZeroAndBelowHaveNoLogarithm) {
    const LogGumbel d{5.1, 0.4};
    EXPECT_EQ(failureNumber([&] { variableReducida(d, 0); }), 5);
    EXPECT_EQ(failureNumber([&] { variableReducida(d, -1); }), 5);
    EXPECT_EQ(failureNumber([&] { variableReducida(LogGumbel{5.1, 0}, 3); }), 11);
}

TEST(LogGumbelTest, EndsOfTheRange) {
    const LogGumbel d{5.1, 0.4};
    for (const double p : {0.0, 1.0, -1.0, 2.0})
        EXPECT_EQ(failureNumber([&] { inversa(d, p); }), 5) << p;
    // y = 4.6 at 0.99: exp(5 + 460) is a value, exp(5 + 920) is none.
    EXPECT_NEAR(std::log(inversa(LogGumbel{5, 100}, 0.99).value()), 465.0149226776579, 1e-12);
    EXPECT_EQ(failureNumber([] { inversa(LogGumbel{5, 200}, 0.99); }), 6);
    // The smallest double has the logarithm -744.4: y = -749.5 / 0.4 and -749.5 / 2.
    const double smallest = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(failureNumber([&] { acumulada(d, variableReducida(d, smallest)); }), 6);
    const LogGumbel wide{5.1, 2};
    EXPECT_EQ(acumulada(wide, variableReducida(wide, smallest)), 0);
}

// Logarithms 0, ln 2, ln 3 and ln 4, in 120 digits.
TEST(LogGumbelTest, ParametersOfFourValues) {
    const std::vector<Real> series = {1, 2, 3, 4};
    LogGumbel d;
    ajustarOrdinarios(d, series);
    EXPECT_NEAR(d.posicion.value(), 0.523956045522, 1e-12);
    EXPECT_NEAR(d.escala.value(), 0.468728464104, 1e-12);
    ajustarLineales(d, series);
    EXPECT_NEAR(d.posicion.value(), 0.477768165237, 1e-12);
    EXPECT_NEAR(d.escala.value(), 0.54874687506, 1e-12);
}

TEST(LogGumbelTest, ParametersAreThoseOfGumbelForTheLogarithms) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const std::vector<Real> series = randomSeries(seed, 40);
        std::vector<Real> logarithms;
        for (const Real value : series)
            logarithms.emplace_back(std::log(value.value()));
        LogGumbel d;
        Gumbel expected;
        ajustarOrdinarios(d, series);
        ajustarOrdinarios(expected, logarithms);
        EXPECT_EQ(d.posicion, expected.posicion) << seed;
        EXPECT_EQ(d.escala, expected.escala) << seed;
        ajustarLineales(d, series);
        ajustarLineales(expected, logarithms);
        EXPECT_EQ(d.posicion, expected.posicion) << seed;
        EXPECT_EQ(d.escala, expected.escala) << seed;
    }
}

// A factor k adds ln k to every logarithm, a power c multiplies it.
TEST(LogGumbelTest, FactorsMoveThePositionAndPowersScaleBoth) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const std::vector<Real> series = randomSeries(seed, 40);
        std::vector<Real> scaled;
        std::vector<Real> squared;
        for (const Real value : series) {
            scaled.push_back(value * 3.7);
            squared.push_back(value * value);
        }
        const auto compare = [&](auto adjust) {
            LogGumbel d;
            LogGumbel ofScaled;
            LogGumbel ofSquared;
            adjust(d, series);
            adjust(ofScaled, scaled);
            adjust(ofSquared, squared);
            EXPECT_NEAR((ofScaled.posicion - d.posicion).value(), std::log(3.7), 1e-12) << seed;
            EXPECT_NEAR((ofScaled.escala / d.escala).value(), 1, 1e-12) << seed;
            EXPECT_NEAR((ofSquared.posicion / d.posicion).value(), 2, 1e-12) << seed;
            EXPECT_NEAR((ofSquared.escala / d.escala).value(), 2, 1e-12) << seed;
        };
        compare([](LogGumbel& d, const std::vector<Real>& x) { ajustarOrdinarios(d, x); });
        compare([](LogGumbel& d, const std::vector<Real>& x) { ajustarLineales(d, x); });
    }
}

TEST(LogGumbelTest, FailuresLeaveTheParameters) {
    LogGumbel d{7, 3};
    const auto ordinary = [&](std::vector<Real> series) {
        return failureNumber([&] { ajustarOrdinarios(d, series); });
    };
    const auto linear = [&](std::vector<Real> series) {
        return failureNumber([&] { ajustarLineales(d, series); });
    };
    EXPECT_EQ(ordinary({}), 11);
    EXPECT_EQ(ordinary({4}), 11);
    EXPECT_EQ(ordinary({0, 1, 2, 3}), 5);
    EXPECT_EQ(ordinary({0.5, 1, 1, 2}), 11); // the logarithms cancel exactly
    EXPECT_EQ(linear({1, 2, 3}), 11);
    EXPECT_EQ(linear({-1, 1, 2, 3}), 5);
    EXPECT_EQ(d.posicion, 7);
    EXPECT_EQ(d.escala, 3);
    // No skew is asked of the logarithms: two values will do, and equal ones have the scale 0.
    EXPECT_EQ(ordinary({4, 5}), 0);
    EXPECT_EQ(ordinary({5, 5, 5, 5}), 0);
    EXPECT_EQ(d.escala, 0);
    EXPECT_EQ(d.posicion, std::log(5.0));
}

} // namespace
} // namespace caudalera::testing
