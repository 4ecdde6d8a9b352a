// The gamma distribution of two parameters without a window.

#include "fitting/gamma2.h"
#include "tests/fitting/SkewedSeries.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

namespace caudalera::testing {
namespace {

MomentosLineales linearMoments(Real l1, Real l2) {
    return {l1, l2, 0, 0};
}

// At the ratio 0.5 u is 0.5: 0.5 (0.7213 - 0.29735) / (1 + 0.5 (-2.1817 + 0.60565)) = 1, the
// exponential law. Just below u is 1.5: (1 - 0.462) / (1.5 (1 - 0.08718 + 0.0397125)) = 0.37654008.
TEST(Gamma2, LinearShapeOnEitherSideOfAHalf) {
    Gamma2 d;
    ajustarLineales(d, linearMoments(2, 1));
    EXPECT_NEAR(d.forma.value(), 1, 1e-12);
    EXPECT_NEAR(d.escala.value(), 2, 1e-12);
    ajustarLineales(d, linearMoments(2, 1 - 1e-12));
    EXPECT_NEAR(d.forma.value(), 0.37654008, 1e-8);
    EXPECT_NEAR(d.escala.value(), 2 / 0.37654008, 1e-5);
}

TEST(Gamma2, LinearMomentsOfNoGammaLawFailBehindTheShape) {
    for (const auto& [l1, l2] :
         std::vector<std::pair<double, double>>{{1, 1}, {1, 2}, {1, 0}, {1, -0.5}, {-1, 0.5}}) {
        Gamma2 d{7, 8};
        EXPECT_EQ(failureNumber([&, m = linearMoments(l1, l2)] { ajustarLineales(d, m); }), 11);
        EXPECT_EQ(d.forma, 0);
        EXPECT_EQ(d.escala, 8);
    }
}

// The equation of the largest likelihood is Log(a) - psi(a) = w; psi from Abramowitz and Stegun,
// tables 6.1 and 6.3: psi(2) = 0.4227843351, psi(1/2) = -1.9635100260, psi(1) = -0.5772156649.
// Two values e^h and e^-h, or as many of each, have w = Log(cosh(h)). Against the exact roots
// (mpmath) the first approximation is off by 1.75E-4 at most and the second by 9.3E-5, both at
// their ends; at the common end the first is low and the second high.
TEST(Gamma2, ShapeOfTheLargestLikelihood) {
    const auto shapeOf = [](double w) {
        const double h = std::acosh(std::exp(w));
        Gamma2 d;
        ajustarOrdinarios(d,
                          std::vector<Real>{std::exp(-h), std::exp(-h), std::exp(h), std::exp(h)});
        return d.forma.value();
    };
    EXPECT_NEAR(shapeOf(std::log(2.0) - 0.4227843351) / 2, 1, 1e-4);
    EXPECT_NEAR(shapeOf(0.5771), 1.00018, 1.8e-4); // da / dw = -1 / 0.644934 at 1
    EXPECT_LT(shapeOf(0.5771999), 1);
    EXPECT_GT(shapeOf(0.5772001), 1);
    EXPECT_NEAR(shapeOf(0.5772156649), 1, 9.3e-5);
    EXPECT_NEAR(shapeOf(std::log(0.5) + 1.9635100260) / 0.5, 1, 6e-5);
}

TEST(Gamma2, ScalingTheSeriesScalesTheScale) {
    for (const unsigned seed : {1U, 2U, 3U}) {
        const auto series = skewedSeries(seed, 60);
        Gamma2 one;
        Gamma2 scaled;
        ajustarOrdinarios(one, series);
        ajustarOrdinarios(scaled, mapped(series, [](Real x) { return 3.5 * x; }));
        EXPECT_NEAR((scaled.forma / one.forma).value(), 1, 1e-12);
        EXPECT_NEAR((scaled.escala / one.escala).value(), 3.5, 1e-11);
        ajustarLineales(one, series);
        ajustarLineales(scaled, mapped(series, [](Real x) { return 3.5 * x; }));
        EXPECT_NEAR((scaled.forma / one.forma).value(), 1, 1e-12);
        EXPECT_NEAR((scaled.escala / one.escala).value(), 3.5, 1e-11);
    }
}

TEST(Gamma2, MeanOfTheLawIsTheMeanOfTheSeries) {
    for (const unsigned seed : {4U, 5U, 6U}) {
        const auto series = skewedSeries(seed, 40);
        const double mean = media(series).value();
        Gamma2 d;
        ajustarOrdinarios(d, series);
        EXPECT_NEAR((d.forma * d.escala).value(), mean, 1e-12 * mean);
        ajustarLineales(d, series);
        EXPECT_NEAR((d.forma * d.escala).value(), mean, 1e-12 * mean);
    }
}

// The order of the series counts for the rounding of the logarithms' sum alone.
TEST(Gamma2, OrderOfTheSeriesIsNoMatter) {
    auto series = skewedSeries(7, 50);
    Gamma2 d;
    ajustarOrdinarios(d, series);
    auto shuffled = series;
    std::reverse(shuffled.begin(), shuffled.end());
    Gamma2 other;
    ajustarOrdinarios(other, series, shuffled);
    EXPECT_NEAR((other.forma / d.forma).value(), 1, 1e-12);
    // But it is this sum that the values come from.
    shuffled.front() *= 1.5;
    ajustarOrdinarios(other, series, shuffled);
    EXPECT_GT((other.forma / d.forma).value(), 1.001);
}

TEST(Gamma2, InverseComesBackToTheValue) {
    const Gamma2 d{2.5, 40};
    Integer16 passes;
    for (const double q : {30.0, 60.0, 100.0, 140.0, 200.0, 300.0}) {
        const Real p = acumulada(d, variableReducida(d, q));
        // 0.00005 of probability over the density.
        const double density =
            (acumulada(d, variableReducida(d, q * 1.001)) - p).value() / (0.001 * q);
        EXPECT_NEAR(inversa(d, p, passes).value(), q, 6e-5 / density) << q;
        EXPECT_GT(passes, 0);
    }
}

TEST(Gamma2, FailuresByTheirNumbers) {
    Gamma2 d{7, 8};
    const auto ordinary = [&d](std::vector<Real> series) {
        return failureNumber([&] { ajustarOrdinarios(d, series); });
    };
    EXPECT_EQ(ordinary({}), 11);
    EXPECT_EQ(ordinary({1}), 11);
    EXPECT_EQ(ordinary({1, 2}), 11);
    EXPECT_EQ(ordinary({1, 2, 4}), 0);
    d = {7, 8};
    EXPECT_EQ(ordinary({0, 1, 2}), 5);
    EXPECT_EQ(ordinary({-2, 1, 9}), 5);
    EXPECT_EQ(ordinary({-9, 1, 2}), 5);
    EXPECT_EQ(ordinary({-3, 1, 2}), 11) << "mean 0";
    EXPECT_EQ(ordinary({3, 3, 3}), 11);
    EXPECT_EQ(failureNumber([&] { ajustarLineales(d, std::vector<Real>{1, 2, 4}); }), 11);
    EXPECT_EQ(d.forma, 7);
    EXPECT_EQ(d.escala, 8);
    EXPECT_EQ(failureNumber([] { variableReducida(Gamma2{1, 0}, 1); }), 11);
}

} // namespace
} // namespace caudalera::testing
