// The routines of the log-normal distribution of two parameters, without a window.

#include "fitting/logNormal2.h"
#include "tests/support/FailureNumber.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace caudalera::testing {
namespace {

using Series = std::vector<Real>;

LogNormal2 byOrdinary(const Series& series) {
    LogNormal2 d{};
    ajustarOrdinarios(d, series);
    return d;
}

LogNormal2 byLinear(const Series& series) {
    LogNormal2 d{};
    ajustarLineales(d, series);
    return d;
}

/// n values of the distribution with the median Exp(3) and the shape 0.8, ascending.
Series sample(unsigned seed, int n) {
    std::mt19937_64 engine(seed);
    std::normal_distribution<double> normal(3, 0.8);
    Series series;
    for (int i = 0; i < n; ++i)
        series.emplace_back(std::exp(normal(engine)));
    std::sort(series.begin(), series.end());
    return series;
}

// Powers of two, so that the logarithms are 1, 2, 3, 4, 10 times a = Log(2): mean 4 a, sum of
// squares 50 a^2, S = Sqr(12.5) a. The ten pairs differ by 40 a in sum, l2 = 2 a.
TEST(LogNormal2, ParametersByHand) {
    const Series series = {2, 4, 8, 16, 1024};
    const double a = std::log(2.0);
    EXPECT_NEAR(byOrdinary(series).escala.value(), 4 * a, 1e-15);
    EXPECT_NEAR(byOrdinary(series).forma.value(), std::sqrt(12.5) * a, 1e-15);
    EXPECT_NEAR(byLinear(series).escala.value(), 4 * a, 1e-15);
    EXPECT_NEAR(byLinear(series).forma.value(), 2 * a * std::sqrt(std::acos(-1.0)), 1e-15);
}

// One value has a mean, no deviation; of 0.5 and 2 the deviation is Sqr(2) Log(2), the mean 0.
TEST(LogNormal2, FailureLeavesTheParametersBeforeIt) {
    LogNormal2 d{7, 8};
    EXPECT_EQ(failureNumber([&] { ajustarOrdinarios(d, Series{2}); }), 11);
    EXPECT_EQ(d.escala.value(), std::log(2.0));
    EXPECT_EQ(d.forma.value(), 8);
    EXPECT_EQ(failureNumber([&] { ajustarOrdinarios(d, Series{0.5, 2}); }), 11);
    EXPECT_EQ(d.escala.value(), 0);
    EXPECT_NEAR(d.forma.value(), std::sqrt(2.0) * std::log(2.0), 1e-15);
}

TEST(LogNormal2, FailureBeforeAnyParameterLeavesAll) {
    const std::vector<std::pair<Series, int>> refused = {
        {{}, 11}, {{0, 1, 2, 3, 4}, 5}, {{-1, 1, 2, 3, 4}, 5}};
    for (const auto& [series, number] : refused) {
        LogNormal2 d{7, 8};
        EXPECT_EQ(failureNumber([&] { ajustarOrdinarios(d, series); }), number);
        EXPECT_EQ(failureNumber([&] { ajustarLineales(d, series); }), number);
        EXPECT_EQ(d.escala.value(), 7);
        EXPECT_EQ(d.forma.value(), 8);
    }
    LogNormal2 d{7, 8};
    EXPECT_EQ(failureNumber([&] { ajustarLineales(d, Series{1, 2, 3}); }), 11);
    EXPECT_EQ(d.escala.value(), 7);
    EXPECT_EQ(d.forma.value(), 8);
    EXPECT_EQ(failureNumber([&] { ajustarLineales(d, Series{1, 2, 3, 4}); }), 0);
}

// The exact function by its series in 40 digits, for Log(q) of mean 3 and deviation 0.8. The
// largest difference of these is 6.6E-8, below the 7.5E-8 of the polynomial.
TEST(LogNormal2, CumulativeOverTheWholeRange) {
    struct Point {
        double q;
        double F;
    };
    const Point points[] = {
        {1e-9, 1.50223234484044e-193},
        {0.001, 1.58144292042864e-35},
        {0.5, 1.9519507283291e-6},
        {2, 0.00196600105579255},
        {5, 0.0410875597406267},
        {10, 0.191667304646256},
        {15, 0.357579124307977},
        {20, 0.497871789443687},
        {20.085536923187668, 0.5},
        {25, 0.607801977442263},
        {40, 0.805408327507687},
        {80, 0.957964034387147},
        {150, 0.994019521514001},
        {400, 0.999907744561961},
        {1000, 0.999999482052237},
        {1e5, 1},
        {1e300, 1},
    };
    const LogNormal2 d{3, 0.8};
    double largest = 0;
    for (const Point& point : points) {
        const double F = acumulada(d, variableReducida(d, point.q)).value();
        EXPECT_NEAR(F, point.F, 7.5e-8) << point.q;
        largest = std::max(largest, std::fabs(F - point.F));
    }
    EXPECT_NEAR(largest, 6.61e-8, 0.01e-8);
}

// Quantiles by Newton's method on the exact function, in 40 digits. An error of 4.5E-4 in Z is one
// of 0.8 * 4.5E-4 of the value; the largest here is 3.52E-4 of it.
TEST(LogNormal2, InverseOverTheWholeRange) {
    struct Point {
        double p;
        double q;
    };
    const Point points[] = {
        {1e-12, 0.07225259322538},     {1e-6, 0.4480997356801}, {0.001, 1.695222761762},
        {0.01, 3.123398590397},        {0.05, 5.387692030133},  {0.2, 10.24411109478},
        {0.5, 20.08553692319},         {0.8, 39.38153244925},   {0.9, 55.99381579672},
        {0.95, 74.87970567664},        {0.98, 103.8553565325},  {0.99, 129.1634038426},
        {0.998, 200.8441815544},       {0.999, 237.9798116168}, {0.999999, 900.3102688298},
        {0.999999999, 2436.323968558},
    };
    const LogNormal2 d{3, 0.8};
    double largest = 0;
    for (const Point& point : points) {
        const double difference = inversa(d, point.p).value() / point.q - 1;
        EXPECT_NEAR(difference, 0, std::expm1(0.8 * 4.5e-4)) << point.p;
        largest = std::max(largest, std::fabs(difference));
    }
    EXPECT_NEAR(largest, 3.52e-4, 0.01e-4);
}

// Rao and Hamed, example 5.2.2: parameters 10.7676 and 0.4544, quantile 0.99. Their variate is
// that of the rational approximation; the exact one gives 136584.
TEST(LogNormal2, PublishedQuantile) {
    EXPECT_NEAR(inversa(LogNormal2{10.7676, 0.4544}, 0.99).value(), 136611, 0.5);
}

// The variate comes back within the 4.5E-4 of the inverse and what 7.5E-8 of F is there.
TEST(LogNormal2, InverseOfTheCumulativeComesBack) {
    const LogNormal2 d{3, 0.8};
    for (double Z = -4; Z <= 4; Z += 0.125) {
        const double q = std::exp(3 + 0.8 * Z);
        const double again = inversa(d, acumulada(d, variableReducida(d, q))).value();
        const double density = std::exp(-Z * Z / 2) / std::sqrt(2 * std::acos(-1.0));
        EXPECT_NEAR((std::log(again) - 3) / 0.8, Z, 4.5e-4 + 7.5e-8 / density) << Z;
    }
}

TEST(LogNormal2, FailuresOfTheFunctions) {
    const LogNormal2 d{3, 0.8};
    EXPECT_EQ(failureNumber([&] { variableReducida(d, 0); }), 5);
    EXPECT_EQ(failureNumber([&] { variableReducida(d, -2); }), 5);
    EXPECT_EQ(failureNumber([] { variableReducida(LogNormal2{3, 0}, 5); }), 11);
    EXPECT_EQ(failureNumber([&] { inversa(d, 0); }), 11);
    EXPECT_EQ(failureNumber([&] { inversa(d, 1); }), 11);
    EXPECT_EQ(failureNumber([] { inversa(LogNormal2{700, 10}, 0.9); }), 6);
    EXPECT_EQ(inversa(LogNormal2{-800, 1}, 0.5).value(), 0);
}

// Times k: the logarithms move by Log(k). To the power a: they grow by a.
TEST(LogNormal2, ScalingMovesTheScaleOnlyAndAPowerMultipliesBoth) {
    for (const unsigned seed : {1U, 2U, 3U}) {
        const Series series = sample(seed, 60);
        Series scaled = series;
        Series powers = series;
        for (Real& x : scaled)
            x *= 35.3147;
        for (Real& x : powers)
            x = Pow(x, 1.5);
        for (const auto fit : {byOrdinary, byLinear}) {
            const LogNormal2 d = fit(series);
            EXPECT_NEAR(fit(scaled).escala.value(), d.escala.value() + std::log(35.3147), 1e-13);
            EXPECT_NEAR(fit(scaled).forma.value(), d.forma.value(), 1e-13);
            EXPECT_NEAR(fit(powers).escala.value(), 1.5 * d.escala.value(), 1e-13);
            EXPECT_NEAR(fit(powers).forma.value(), 1.5 * d.forma.value(), 1e-13);
            for (const double p : {0.01, 0.5, 0.99})
                EXPECT_NEAR((inversa(fit(scaled), p) / inversa(d, p)).value(), 35.3147, 1e-10);
        }
    }
}

// Standard errors: 0.8 / Sqr(n) of the mean; of the deviation 0.8 / Sqr(2 n), by linear moments
// not more than a tenth above it. Five of them are allowed.
TEST(LogNormal2, SamplesGiveTheirParametersBack) {
    for (const unsigned seed : {11U, 12U, 13U, 14U}) {
        const Series series = sample(seed, 4000);
        for (const auto fit : {byOrdinary, byLinear}) {
            EXPECT_NEAR(fit(series).escala.value(), 3, 5 * 0.8 / std::sqrt(4000.0)) << seed;
            EXPECT_NEAR(fit(series).forma.value(), 0.8, 5.5 * 0.8 / std::sqrt(8000.0)) << seed;
        }
    }
}

// The mean absolute difference of all pairs of logarithms is twice l2.
TEST(LogNormal2, LinearShapeByThePairs) {
    const Series series = sample(21, 40);
    double sum = 0;
    for (std::size_t i = 0; i < series.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j)
            sum += std::fabs(std::log(series[i].value()) - std::log(series[j].value()));
    }
    const double l2 = sum / (40 * 39 / 2) / 2;
    EXPECT_NEAR(byLinear(series).forma.value(), std::sqrt(std::acos(-1.0)) * l2, 1e-13);
}

} // namespace
} // namespace caudalera::testing
