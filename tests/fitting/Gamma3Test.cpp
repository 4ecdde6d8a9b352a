// The gamma distribution of three parameters, of a series and of its logarithms, without a window.

#include "fitting/logPearson3.h"
#include "tests/fitting/SkewedSeries.h"
#include "tests/support/FailureNumber.h"
#include "tests/support/PublishedSeries.h"

#include <gtest/gtest.h>

namespace caudalera::testing {
namespace {

std::vector<Real> sortedValues(const std::vector<std::string>& texts) {
    std::vector<Real> series;
    for (const std::string& each : texts)
        series.emplace_back(std::stod(each));
    std::sort(series.begin(), series.end());
    return series;
}

std::vector<Real> harricana() {
    return sortedValues(valuesOf(samplePath("harricana_amos.csv")));
}

void expectParameters(const Gamma3& d, double position, double shape, double scale,
                      double tolerance) {
    EXPECT_NEAR(d.posicion.value(), position, tolerance * std::fabs(position));
    EXPECT_NEAR(d.forma.value() / shape, 1, tolerance);
    EXPECT_NEAR(d.escala.value() / scale, 1, tolerance);
}

// Bobée and Ashkar, example 6.3: 79.84941, 5.40148, 1 / 0.04846.
TEST(Gamma3, HarricanaByOrdinaryMoments) {
    Gamma3 d;
    ajustarOrdinarios(d, harricana());
    EXPECT_NEAR(d.posicion.value(), 79.84941, 1e-5);
    EXPECT_NEAR(d.forma.value(), 5.40148, 1e-5);
    EXPECT_NEAR(d.escala.value(), 1 / 0.04846, 0.003);
    EXPECT_FALSE(d.invalida);
}

// R package lmom, with the same approximations.
TEST(Gamma3, CrosscheckSampleByLinearMoments) {
    Gamma3 d;
    ajustarLineales(d, sortedValues(publishedSeries("sample31")));
    EXPECT_NEAR(d.posicion.value(), 863.4104, 1e-4);
    EXPECT_NEAR(d.forma.value(), 10.02196, 1e-5);
    EXPECT_NEAR(d.escala.value(), 78.36751, 1e-5);
    EXPECT_FALSE(d.invalida);
}

// Bobée and Ashkar, example 6.1: the quantile 0.99 of 39.38903, 10.44062 and 1 / 0.06872 is 321.48.
// The search ends some 0.1 below, at P = 0.98996: 321.371679 after 72 passes, as the same search
// written anew in Python does.
TEST(Gamma3, PublishedQuantile) {
    const Gamma3 d{39.38903, 10.44062, 1 / 0.06872};
    EXPECT_NEAR(acumulada(d, variableReducida(d, 321.48)).value(), 0.99, 1e-6);
    Integer16 passes;
    EXPECT_NEAR(inversa(d, 0.99, passes).value(), 321.371679, 1e-6);
    EXPECT_EQ(passes, 72);
}

// Example 7.4, in decimal logarithms 7.53821, 2425.57481 and -1 / 460.31089; the skew -0.04061
// makes them no parameters of the law.
TEST(LogPearson3, HarricanaByOrdinaryMomentsOfTheLogarithms) {
    LogPearson3 d;
    ajustarOrdinarios(d, harricana());
    const double ln10 = std::log(10.0);
    expectParameters(d, 7.53821 * ln10, 2425.57481, -ln10 / 460.31089, 1e-6);
    EXPECT_TRUE(d.invalida);
}

TEST(LogPearson3, IsTheLawOfTheLogarithms) {
    const auto series = skewedSeries(11, 60);
    LogPearson3 d;
    Gamma3 ofLogs;
    const auto logarithms = mapped(series, [](Real x) { return Log(x); });
    ajustarOrdinarios(d, series);
    ajustarOrdinarios(ofLogs, logarithms);
    EXPECT_EQ(d.posicion, ofLogs.posicion);
    EXPECT_EQ(d.escala, ofLogs.escala);
    ajustarLineales(d, series);
    ajustarLineales(ofLogs, logarithms);
    EXPECT_EQ(d.forma, ofLogs.forma);
    EXPECT_EQ(variableReducida(d, 100), variableReducida(ofLogs, Log(100)));
    EXPECT_EQ(acumulada(d, 2), acumulada(ofLogs, 2));
    Integer16 passes;
    EXPECT_EQ(inversa(d, 0.6, passes), Exp(inversa(ofLogs, 0.6, passes)));
}

// A factor on the series is a shift of the logarithms, a power a factor.
TEST(LogPearson3, FactorsShiftAndPowersScale) {
    for (const unsigned seed : {12U, 13U, 14U}) {
        // Logarithms with a skew.
        const auto series = mapped(skewedSeries(seed, 60), [](Real x) { return Exp(x / 50); });
        for (const auto fit :
             {static_cast<void (*)(LogPearson3&, std::span<const Real>)>(ajustarOrdinarios),
              static_cast<void (*)(LogPearson3&, std::span<const Real>)>(ajustarLineales)}) {
            LogPearson3 one;
            LogPearson3 times7;
            LogPearson3 squared;
            fit(one, series);
            fit(times7, mapped(series, [](Real x) { return 7 * x; }));
            expectParameters(times7, one.posicion.value() + std::log(7.0), one.forma.value(),
                             one.escala.value(), 1e-9);
            fit(squared, mapped(series, [](Real x) { return x * x; }));
            expectParameters(squared, 2 * one.posicion.value(), one.forma.value(),
                             2 * one.escala.value(), 1e-9);
        }
    }
}

TEST(Gamma3, ShiftsMoveThePositionAndFactorsScale) {
    for (const unsigned seed : {21U, 22U, 23U}) {
        const auto series = skewedSeries(seed, 60);
        for (const auto fit :
             {static_cast<void (*)(Gamma3&, std::span<const Real>)>(ajustarOrdinarios),
              static_cast<void (*)(Gamma3&, std::span<const Real>)>(ajustarLineales)}) {
            Gamma3 one;
            Gamma3 shifted;
            Gamma3 scaled;
            fit(one, series);
            fit(shifted, mapped(series, [](Real x) { return x + 100; }));
            fit(scaled, mapped(series, [](Real x) { return 4 * x; }));
            expectParameters(shifted, one.posicion.value() + 100, one.forma.value(),
                             one.escala.value(), 1e-9);
            expectParameters(scaled, 4 * one.posicion.value(), one.forma.value(),
                             4 * one.escala.value(), 1e-9);
        }
    }
}

// Mean, deviation and skew of the law: position + shape scale, scale Sqr(shape), 2 / Sqr(shape).
TEST(Gamma3, MomentsOfTheLawAreThoseOfTheSeries) {
    const auto series = skewedSeries(31, 80);
    Gamma3 d;
    ajustarOrdinarios(d, series);
    const double mean = media(series).value();
    EXPECT_NEAR((d.posicion + d.forma * d.escala).value(), mean, 1e-10 * mean);
    EXPECT_NEAR((d.escala * Sqr(d.forma)).value() / desviacionMuestral(series, mean).value(), 1,
                1e-12);
    ajustarLineales(d, series);
    EXPECT_NEAR((d.posicion + d.forma * d.escala).value(), mean, 1e-10 * mean);
    // l2 = scale Gamma(shape + 1/2) / (Sqr(pi) Gamma(shape)).
    const double shape = d.forma.value();
    EXPECT_NEAR(d.escala.value() * std::exp(std::lgamma(shape + 0.5) - std::lgamma(shape)) /
                    std::sqrt(std::acos(-1.0)),
                momentosLineales(series).l2.value(), 1e-7);
}

// 0, 3, 6, x has l2 = (1 + x) / 4 and l3 = (x - 9) / 4. With x = 14 t is a third to the last bit
// and u = 2/3: 2/3 (0.36067 - 0.397113333 + 0.112715556) / (1 - 1.859073333 + 1.138204444 -
// 0.228281481) = 0.050848148 / 0.050849630 = 0.9999709. The other approximation, of smaller ones,
// has 0.9999810 there.
TEST(Gamma3, LinearShapeOnEitherSideOfAThird) {
    Gamma3 d;
    ajustarLineales(d, std::vector<Real>{0, 3, 6, 14});
    EXPECT_NEAR(d.forma.value(), 0.9999709, 2e-7);
    ajustarLineales(d, std::vector<Real>{0, 3, 6, 14 - 1e-9});
    EXPECT_NEAR(d.forma.value(), 0.9999810, 2e-7);
}

TEST(Gamma3, LinearSkewOfOneIsInvalid) {
    Gamma3 d{1, 2, 3};
    ajustarLineales(d, std::vector<Real>{5, 5, 5, 9});
    EXPECT_TRUE(d.invalida);
    EXPECT_EQ(d.posicion, 0);
    EXPECT_EQ(d.forma, 0);
    EXPECT_EQ(d.escala, 0);
    EXPECT_EQ(failureNumber([&] { variableReducida(d, 5); }), 11);
    ajustarLineales(d, std::vector<Real>{2, 3, 5, 11});
    EXPECT_FALSE(d.invalida);
}

TEST(Gamma3, NegativeSkewIsInvalidWithItsParametersSet) {
    Gamma3 d;
    ajustarOrdinarios(d, std::vector<Real>{4, 7, 8, 9});
    EXPECT_TRUE(d.invalida);
    expectParameters(d, 10.6296296296, 2.82304526749, -1.28571428571, 1e-11);
    ajustarOrdinarios(d, std::vector<Real>{-9, -8, -7, -4});
    EXPECT_FALSE(d.invalida);
    expectParameters(d, -10.6296296296, 2.82304526749, 1.28571428571, 1e-11);
}

TEST(Gamma3, InverseComesBackToTheValue) {
    const Gamma3 d{100, 2.5, 40};
    const LogPearson3 logarithmic{{4, 6, 0.1}};
    Integer16 passes;
    for (const double p : {0.05, 0.3, 0.6, 0.79, 0.85, 0.97}) {
        EXPECT_NEAR(acumulada(d, variableReducida(d, inversa(d, p, passes))).value(), p, 6e-5);
        EXPECT_NEAR(
            acumulada(logarithmic, variableReducida(logarithmic, inversa(logarithmic, p, passes)))
                .value(),
            p, 4e-4);
    }
}

TEST(Gamma3, FailuresByTheirNumbers) {
    Gamma3 d{1, 2, 3};
    const auto ordinary = [&d](std::vector<Real> series) {
        return failureNumber([&] { ajustarOrdinarios(d, series); });
    };
    const auto linear = [&d](std::vector<Real> series) {
        return failureNumber([&] { ajustarLineales(d, series); });
    };
    EXPECT_EQ(ordinary({}), 11);
    EXPECT_EQ(ordinary({1}), 11);
    EXPECT_EQ(ordinary({1, 2}), 11);
    EXPECT_EQ(ordinary({3, 3, 3}), 11);
    EXPECT_EQ(ordinary({1, 2, 3}), 11) << "no skew";
    EXPECT_EQ(ordinary({-4, 0, 1, 3}), 11) << "mean 0";
    EXPECT_EQ(linear({1, 2, 4}), 11);
    EXPECT_EQ(linear({3, 3, 3, 3}), 11);
    EXPECT_EQ(d.posicion, 1);
    EXPECT_EQ(d.forma, 2);
    EXPECT_EQ(d.escala, 3);
    EXPECT_FALSE(d.invalida);
    EXPECT_EQ(linear({1, 2, 3, 4}), 11) << "no linear skew";
    EXPECT_EQ(d.escala, 3);
    // A linear skew of 0.001: the shape stands, the scale fails.
    EXPECT_EQ(linear({1000, 2000, 3000, 4010}), 6);
    EXPECT_GT(d.forma, 1000);
    EXPECT_EQ(d.escala, 3);
}

TEST(LogPearson3, FailuresByTheirNumbers) {
    LogPearson3 d{{1, 2, 3}};
    for (const auto& series : {std::vector<Real>{0, 1, 2, 5}, std::vector<Real>{-1, 1, 2, 5}}) {
        EXPECT_EQ(failureNumber([&] { ajustarOrdinarios(d, series); }), 5);
        EXPECT_EQ(failureNumber([&] { ajustarLineales(d, series); }), 5);
    }
    EXPECT_EQ(d.posicion, 1);
    EXPECT_EQ(d.escala, 3);
    EXPECT_EQ(failureNumber([&] { variableReducida(d, 0); }), 5);
    Integer16 passes;
    EXPECT_EQ(failureNumber([&] { inversa(LogPearson3{{1, 2, 700}}, 0.7, passes); }), 6);
}

} // namespace
} // namespace caudalera::testing
