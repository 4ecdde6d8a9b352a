// The routines of the log-normal distribution of three parameters, without a window.

#include "fitting/logNormal3.h"
#include "tests/support/FailureNumber.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace caudalera::testing {
namespace {

using Series = std::vector<Real>;

LogNormal3 byMoments(const Series& series) {
    LogNormal3 d{};
    ajustarOrdinarios(d, series);
    return d;
}

void expectParameters(const LogNormal3& d, double position, double scale, double shape,
                      double tolerance) {
    EXPECT_NEAR(d.posicion.value(), position, tolerance);
    EXPECT_NEAR(d.escala.value(), scale, tolerance);
    EXPECT_NEAR(d.forma.value(), shape, tolerance);
}

/// n values of the distribution with the bound 50, the median 50 + Exp(4) and the shape 0.5,
/// ascending.
Series sample(unsigned seed, int n) {
    std::mt19937_64 engine(seed);
    std::normal_distribution<double> normal(4, 0.5);
    Series series;
    for (int i = 0; i < n; ++i)
        series.emplace_back(50 + std::exp(normal(engine)));
    std::sort(series.begin(), series.end());
    return series;
}

// 1, 2, 4: xo = (4 - 4) / 1 = 0; the logarithms are 0, a, 2 a with a = Log(2): mean a and, with
// divisor n, deviation Sqr(2 / 3) a.
TEST(LogNormal3, ParametersByHandHaveTheDivisorN) {
    const double a = std::log(2.0);
    expectParameters(byMoments({1, 2, 4}), 0, a, std::sqrt(2.0 / 3) * a, 1e-15);
    // The bound moves with the series.
    expectParameters(byMoments({11, 12, 14}), 10, a, std::sqrt(2.0 / 3) * a, 1e-15);
}

// 3, 7, 9, 35: median 8, xo = (105 - 64) / 22 = 41 / 22.
TEST(LogNormal3, MedianOfAnEvenNumberIsBetweenTheMiddleTwo) {
    EXPECT_NEAR(byMoments({3, 7, 9, 35}).posicion.value(), 41.0 / 22, 1e-15);
    // Of an odd number it is the middle one: 7, xo = (105 - 49) / 24.
    EXPECT_NEAR(byMoments({3, 5, 7, 9, 35}).posicion.value(), 56.0 / 24, 1e-15);
}

// 1, 9, 10: d = -7, xo = (10 - 81) / -7 = 71 / 7. xo - x = 64 / 7, 8 / 7, 1 / 7: with a = Log(2)
// and b = Log(7) the logarithms are 6 a - b, 3 a - b, -b, mean 3 a - b, deviation Sqr(6) a.
TEST(LogNormal3, UpperBoundTakesTheLogarithmsBelowIt) {
    const double a = std::log(2.0);
    const LogNormal3 d = byMoments({1, 9, 10});
    expectParameters(d, 71.0 / 7, 3 * a - std::log(7.0), std::sqrt(6.0) * a, 1e-14);
    for (const double x : {1.0, 9.0, 10.0})
        EXPECT_EQ(failureNumber([&] { variableReducida(d, x); }), 5) << x;
}

TEST(LogNormal3, SeriesWithoutABoundLeaveAllParameters) {
    const std::vector<std::pair<Series, int>> refused = {
        {{}, 9}, {{5}, 11}, {{1, 9}, 11}, {{1, 2, 3}, 11}, {{4, 4, 4}, 11}, {{1, 3, 4, 6}, 11}};
    for (const auto& [series, number] : refused) {
        LogNormal3 d{7, 8, 9};
        EXPECT_EQ(failureNumber([&] { ajustarOrdinarios(d, series); }), number) << series.size();
        expectParameters(d, 7, 8, 9, 0);
    }
}

// 1, 1, 4: xo = (4 - 1) / 3 = 1, the smallest value; 1, 4, 4: xo = (4 - 16) / -3 = 4, the largest.
TEST(LogNormal3, BoundAtAValueIsSetBeforeItsLogarithmFails) {
    LogNormal3 d{7, 8, 9};
    EXPECT_EQ(failureNumber([&] { ajustarOrdinarios(d, Series{1, 1, 4}); }), 5);
    expectParameters(d, 1, 8, 9, 0);
    EXPECT_EQ(failureNumber([&] { ajustarOrdinarios(d, Series{1, 4, 4}); }), 5);
    expectParameters(d, 4, 8, 9, 0);
}

// The exact function by its series in 40 digits, for the bound 50 and Log(q - 50) of mean 4 and
// deviation 0.5. The largest difference of these is 6.93E-8, below the 7.5E-8 of the polynomial.
TEST(LogNormal3, CumulativeOverTheWholeRange) {
    struct Point {
        double q;
        double F;
    };
    const Point points[] = {
        {51, 6.22096057427178e-16},
        {60, 0.000343356363744144},
        {75, 0.0591147471779899},
        {90, 0.266891674912996},
        {100, 0.430165044869983},
        {104.598150033144, 0.5},
        {120, 0.690402119095759},
        {150, 0.886925843928927},
        {200, 0.978374118969565},
        {300, 0.998828534092124},
        {500, 0.999987703087822},
        {1000, 0.999999994447435},
        {1e6, 1},
        {1e300, 1},
    };
    const LogNormal3 d{50, 4, 0.5};
    double largest = 0;
    for (const Point& point : points) {
        const double F = acumulada(d, variableReducida(d, point.q)).value();
        EXPECT_NEAR(F, point.F, 7.5e-8) << point.q;
        largest = std::max(largest, std::fabs(F - point.F));
    }
    EXPECT_NEAR(largest, 6.93e-8, 0.01e-8);
}

// Quantiles by Newton's method on the exact function, in 40 digits. An error of 4.5E-4 in Z is one
// of 0.5 * 4.5E-4 of the excess over the bound.
TEST(LogNormal3, InverseOverTheWholeRange) {
    struct Point {
        double p;
        double q;
    };
    const Point points[] = {
        {1e-12, 51.62053782899},       {1e-6, 55.069731439},    {0.001, 61.64508085827},
        {0.01, 67.06152729519},        {0.05, 73.98846732001},  {0.2, 85.84447293572},
        {0.5, 104.5981500331},         {0.8, 133.1636719108},   {0.9, 153.6247066709},
        {0.95, 174.2662962696},        {0.98, 202.4557599567},  {0.99, 224.7181208028},
        {0.998, 280.2304743414},       {0.999, 305.9843098836}, {0.999999, 637.9913014939},
        {0.999999999, 1145.431367397},
    };
    const LogNormal3 d{50, 4, 0.5};
    double largest = 0;
    for (const Point& point : points) {
        const double excess = (inversa(d, point.p).value() - 50) / (point.q - 50);
        EXPECT_NEAR(excess, 1, std::expm1(0.5 * 4.5e-4)) << point.p;
        largest = std::max(largest, std::fabs(excess - 1));
    }
    EXPECT_GT(largest, 2e-4);
}

TEST(LogNormal3, InverseOfTheCumulativeComesBack) {
    const LogNormal3 d{50, 4, 0.5};
    for (double Z = -4; Z <= 4; Z += 0.125) {
        const double q = 50 + std::exp(4 + 0.5 * Z);
        const double again = inversa(d, acumulada(d, variableReducida(d, q))).value();
        const double density = std::exp(-Z * Z / 2) / std::sqrt(2 * std::acos(-1.0));
        EXPECT_NEAR((std::log(again - 50) - 4) / 0.5, Z, 4.5e-4 + 7.5e-8 / density) << Z;
    }
}

TEST(LogNormal3, FailuresOfTheFunctions) {
    const LogNormal3 d{50, 4, 0.5};
    EXPECT_EQ(failureNumber([&] { variableReducida(d, 50); }), 5);
    EXPECT_EQ(failureNumber([&] { variableReducida(d, 49); }), 5);
    EXPECT_EQ(failureNumber([] { variableReducida(LogNormal3{50, 4, 0}, 60); }), 11);
    EXPECT_EQ(failureNumber([&] { inversa(d, 0); }), 11);
    EXPECT_EQ(failureNumber([&] { inversa(d, 1); }), 11);
    EXPECT_EQ(failureNumber([] { inversa(LogNormal3{50, 700, 10}, 0.9); }), 6);
}

// The bound is where the median's excess is the geometric mean of those of the extremes; with it
// known, mean and deviation are those of the logarithms.
TEST(LogNormal3, BoundMakesTheMedianTheGeometricMeanOfTheExtremes) {
    int lower = 0;
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const Series series = sample(seed, 31);
        const LogNormal3 d = byMoments(series);
        const double xo = d.posicion.value();
        const auto excess = [&](std::size_t i) { return series[i].value() - xo; };
        EXPECT_NEAR(excess(15) * excess(15) / (excess(0) * excess(30)), 1, 1e-9) << seed;
        if (xo > series.back().value())
            continue;
        ++lower;
        EXPECT_LT(xo, series.front().value());
        double sum = 0;
        double squares = 0;
        for (std::size_t i = 0; i < series.size(); ++i) {
            sum += std::log(excess(i));
            squares += std::log(excess(i)) * std::log(excess(i));
        }
        EXPECT_NEAR(d.escala.value(), sum / 31, 1e-12) << seed;
        EXPECT_NEAR(d.forma.value(), std::sqrt(squares / 31 - sum / 31 * (sum / 31)), 1e-9) << seed;
    }
    EXPECT_GT(lower, 10);
}

TEST(LogNormal3, ScalingAndShiftingASeries) {
    for (const unsigned seed : {1U, 2U, 3U}) {
        const Series series = sample(seed, 61);
        const LogNormal3 d = byMoments(series);
        Series scaled = series;
        Series shifted = series;
        for (Real& x : scaled)
            x *= 8;
        for (Real& x : shifted)
            x += 1000;
        expectParameters(byMoments(scaled), 8 * d.posicion.value(),
                         d.escala.value() + std::log(8.0), d.forma.value(), 1e-8);
        expectParameters(byMoments(shifted), 1000 + d.posicion.value(), d.escala.value(),
                         d.forma.value(), 1e-8);
    }
}

} // namespace
} // namespace caudalera::testing
