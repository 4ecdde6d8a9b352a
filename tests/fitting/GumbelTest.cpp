// The routines of the Gumbel distribution, against 60-digit arithmetic (mpmath) and against what
// must hold of any fit.

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
const Gumbel standard{0, 1};

struct Pair {
    double from;
    double to;
};

// A variate y and exp(-exp(-y)) of that double. The inner exponential is good to half an ulp or so,
// which the outer one enlarges by the factor exp(-y): 665 at -6.5, where the largest difference is,
// 135 epsilon. From -3 on none is above one epsilon.
TEST(GumbelTest, CumulativeOverTheWholeRange) {
    const std::vector<Pair> table = {
        {-6.5, 1.35724760732500213e-289}, {-6, 6.21013648656606758e-176},
        {-5, 3.5073891964646231e-65},     {-3, 1.89217869483829263e-9},
        {-2, 0.000617978989331093499},    {-1, 0.0659880358453125371},
        {-0.5, 0.192295645547964928},     {0, 0.367879441171442322},
        {0.5, 0.545239211892605055},      {1, 0.692200627555346354},
        {2, 0.873423018493116643},        {4.6, 0.989998515108892765},
        {10, 0.999954601100798731},       {20, 0.99999999793884638},
        {30, 0.999999999999906424},       {36, 0.999999999999999768},
    };
    for (const auto& [y, G] : table) {
        EXPECT_NEAR(acumulada(standard, y).value() / G, 1, epsilon * (1 + std::exp(-y))) << y;
    }
}

TEST(GumbelTest, CumulativeAtTheEndsOfTheRange) {
    EXPECT_EQ(acumulada(standard, -7), 0); // exp(-1096.6)
    EXPECT_EQ(acumulada(standard, -709), 0);
    EXPECT_EQ(failureNumber([] { acumulada(standard, -710); }), 6);
    // exp(-37) is 1.5 times the half of an epsilon, exp(-38) half of it.
    EXPECT_LT(acumulada(standard, 37), 1);
    EXPECT_EQ(acumulada(standard, 38), 1);
    EXPECT_EQ(acumulada(standard, 1e300), 1);
}

// A probability and -ln(-ln p) of that double. The largest difference is a quarter of an epsilon.
TEST(GumbelTest, InverseOverTheWholeRange) {
    const std::vector<Pair> table = {
        {std::numeric_limits<double>::denorm_min(), -6.61263235448714567},
        {1e-300, -6.53781491990415686},
        {1e-20, -3.82976471880194679},
        {0.001, -1.93264473391606549},
        {0.01, -1.5271796258079011},
        {0.25, -0.326634259978280982},
        {0.5, 0.366512920581664327},
        {0.75, 1.2458993237072382},
        {0.99, 4.60014922677657911},
        {0.999, 6.90725507052371561},
        {0.999999, 13.8155100579353101},
        {0.9999999999, 23.0258508471500893},
        {1 - epsilon / 2, 36.7368005696771013},
    };
    for (const auto& [p, y] : table)
        EXPECT_NEAR(inversa(standard, p).value(), y, epsilon * std::fmax(1, std::fabs(y))) << p;
}

TEST(GumbelTest, InverseTakesProbabilitiesBetweenZeroAndOne) {
    for (const double p : {0.0, 1.0, -1.0, 2.0})
        EXPECT_EQ(failureNumber([p] { inversa(standard, p); }), 5) << p;
}

TEST(GumbelTest, ScaleZeroHasNoReducedVariate) {
    EXPECT_EQ(failureNumber([] { variableReducida(Gumbel{3, 0}, 4); }), 11);
}

// G is good to epsilon (1 + exp(-y)) of itself, and y moves by exp(y) for one of G's. The largest
// difference is 0.74 of epsilon (3 + exp(y)).
TEST(GumbelTest, InverseLeadsBack) {
    const Gumbel d{1500, 230};
    for (double q = 150; q < 9000; q += 37) {
        const Real y = variableReducida(d, q);
        const double allowed = 230 * 2 * epsilon * (3 + std::exp(y.value()));
        EXPECT_NEAR(inversa(d, acumulada(d, y)).value(), q, allowed) << q;
    }
}

TEST(GumbelTest, CumulativeNeverFalls) {
    Real last = 0;
    for (double y = -8; y < 40; y += 0.01) {
        const Real next = acumulada(standard, y);
        EXPECT_GE(next, last) << y;
        last = next;
    }
}

// Mean 37 and S = Sqr(1295); l2 = 19. The factors Sqr(6) / pi = 0.77969680123367612 and
// 1 / ln 2 = 1.44269504088896341 in 40 digits.
TEST(GumbelTest, ParametersOfFiveValues) {
    const std::vector<Real> series = {10, 20, 25, 30, 100};
    Gumbel d;
    ajustarOrdinarios(d, series);
    EXPECT_NEAR(d.escala.value(), 28.0582536324, 1e-10);
    EXPECT_NEAR(d.posicion.value(), 20.8043364736, 1e-10);
    ajustarLineales(d, series);
    EXPECT_NEAR(d.escala.value(), 19 * 1.44269504088896341, 1e-13);
    EXPECT_NEAR(d.posicion.value(), 37 - 0.5772156649 * 19 * 1.44269504088896341, 1e-13);
}

// The published quantile of Rao and Hamed (2000), page 237: 28652 at 0.99.
TEST(GumbelTest, PublishedQuantile) {
    EXPECT_NEAR(inversa(Gumbel{8049.6, 4478.6}, 0.99).value(), 28652, 0.5);
}

// l2 is half the mean difference of the pairs (Hosking 1990), which needs no ranks.
TEST(GumbelTest, LinearParametersAreThoseOfTheMeanDifference) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const std::vector<Real> series = randomSeries(seed, 10 + 3 * static_cast<int>(seed));
        double differences = 0;
        double sum = 0;
        for (std::size_t i = 0; i < series.size(); ++i) {
            sum += series[i].value();
            for (std::size_t j = 0; j < i; ++j)
                differences += series[i].value() - series[j].value();
        }
        const auto n = static_cast<double>(series.size());
        const double scale = differences / (n * (n - 1)) / std::log(2.0);
        Gumbel d;
        ajustarLineales(d, series);
        EXPECT_NEAR(d.escala.value() / scale, 1, 1e-13) << seed;
        EXPECT_NEAR(d.posicion.value() / (sum / n - 0.5772156649 * scale), 1, 1e-13) << seed;
    }
}

TEST(GumbelTest, ScalingASeriesScalesBothParametersAndShiftingMovesThePosition) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const std::vector<Real> series = randomSeries(seed, 40);
        std::vector<Real> scaled;
        std::vector<Real> shifted;
        for (const Real value : series) {
            scaled.push_back(value * 3.7);
            shifted.push_back(value + 250);
        }
        const auto compare = [&](auto adjust) {
            Gumbel d;
            Gumbel ofScaled;
            Gumbel ofShifted;
            adjust(d, series);
            adjust(ofScaled, scaled);
            adjust(ofShifted, shifted);
            EXPECT_NEAR((ofScaled.posicion / d.posicion).value(), 3.7, 1e-11) << seed;
            EXPECT_NEAR((ofScaled.escala / d.escala).value(), 3.7, 1e-11) << seed;
            EXPECT_NEAR((ofShifted.posicion - d.posicion).value(), 250, 1e-10) << seed;
            EXPECT_NEAR((ofShifted.escala / d.escala).value(), 1, 1e-11) << seed;
        };
        compare([](Gumbel& d, const std::vector<Real>& x) { ajustarOrdinarios(d, x); });
        compare([](Gumbel& d, const std::vector<Real>& x) { ajustarLineales(d, x); });
    }
}

TEST(GumbelTest, FailuresLeaveTheParameters) {
    Gumbel d{7, 3};
    const auto ordinary = [&](std::vector<Real> series) {
        return failureNumber([&] { ajustarOrdinarios(d, series); });
    };
    const auto linear = [&](std::vector<Real> series) {
        return failureNumber([&] { ajustarLineales(d, series); });
    };
    EXPECT_EQ(ordinary({}), 11);
    EXPECT_EQ(ordinary({4}), 11);
    EXPECT_EQ(ordinary({4, 5}), 11);
    EXPECT_EQ(ordinary({-3, -1, 0, 4}), 11);
    EXPECT_EQ(ordinary({5, 5, 5, 5}), 11);
    // The sum of cubes is past the range, that of squares not; and the cube of S is 0.
    EXPECT_EQ(ordinary({1, 2, 3, 1e105}), 6);
    EXPECT_EQ(ordinary({1e-110, 2e-110, 3e-110}), 11);
    EXPECT_EQ(linear({}), 11);
    EXPECT_EQ(linear({1, 2, 3}), 11);
    EXPECT_EQ(d.posicion, 7);
    EXPECT_EQ(d.escala, 3);
    // Three values are enough for the ordinary moments: S = 1, mean 2.
    EXPECT_EQ(ordinary({1, 2, 3}), 0);
    EXPECT_NEAR(d.escala.value(), 0.7796968012336761, 1e-15);
}

} // namespace
} // namespace caudalera::testing
