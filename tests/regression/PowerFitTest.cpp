// The power fit Imax = K T^m D^n.

#include "regression/ajustePotencial.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>

namespace caudalera {
namespace {

std::vector<TrioIntensidad> onTheSurface(double K, double m, double n) {
    std::vector<TrioIntensidad> trios;
    for (const double T : {2, 5, 10, 25, 50})
        for (const double D : {10, 30, 60, 120})
            trios.push_back({T, D, K * std::pow(T, m) * std::pow(D, n)});
    return trios;
}

int failureOf(const std::vector<TrioIntensidad>& trios) {
    return testing::failureNumber([&] { ajustePotencial(trios); });
}

// Records built from known constants give them back; the noise is that of the normal equations.
TEST(PowerFit, FindsTheConstantsOfRecordsOnTheSurface) {
    const double constants[][3] = {{400, 0.5, -0.25}, {1234.5, 0.1873, -0.6421}, {0.8, -0.3, 1.2}};
    for (const auto& [K, m, n] : constants) {
        const auto fit = ajustePotencial(onTheSurface(K, m, n));
        ASSERT_TRUE(fit.has_value());
        EXPECT_NEAR(fit->K.value() / K, 1, 1e-11);
        EXPECT_NEAR(fit->lnK.value(), std::log(K), 1e-11);
        EXPECT_NEAR(fit->m.value(), m, 1e-11);
        EXPECT_NEAR(fit->n.value(), n, 1e-11);
        EXPECT_NEAR(fit->intensidad(100, 45).value() / (K * std::pow(100, m) * std::pow(45, n)), 1,
                    1e-11);
    }
}

std::optional<AjustePotencial> fitOf(const std::vector<TrioIntensidad>& trios) {
    return ajustePotencial(trios);
}

// With the logarithms of T and D at -1 and 1 (values 1/e and e) the system is diagonal:
// lnK = mean of y, m = sum(x1 y) / 4, n = sum(x2 y) / 4. For y = 1, 2, 4, 9 in the order
// (-,-), (-,+), (+,-), (+,+): lnK = 16 / 4 = 4, m = (-1 - 2 + 4 + 9) / 4 = 2.5,
// n = (-1 + 2 - 4 + 9) / 4 = 1.5. The residuals are 1 - 0 = 1, 2 - 3 = -1, 4 - 5 = -1, 9 - 8 = 1.
TEST(PowerFit, TakesTheLeastSquaresOfTheLogarithms) {
    const double e = std::exp(1.0);
    const auto fit = fitOf({{1 / e, 1 / e, std::exp(1.0)},
                            {1 / e, e, std::exp(2.0)},
                            {e, 1 / e, std::exp(4.0)},
                            {e, e, std::exp(9.0)}});
    ASSERT_TRUE(fit.has_value());
    EXPECT_NEAR(fit->lnK.value(), 4, 1e-14);
    EXPECT_NEAR(fit->K.value(), 54.598150033144239, 1e-12); // e^4
    EXPECT_NEAR(fit->m.value(), 2.5, 1e-14);
    EXPECT_NEAR(fit->n.value(), 1.5, 1e-14);
    const SumasLogaritmicas& s = fit->sumas;
    EXPECT_EQ(s.n.value(), 4);
    EXPECT_NEAR(s.x1.value(), 0, 1e-15);
    EXPECT_NEAR(s.x2.value(), 0, 1e-15);
    EXPECT_NEAR(s.y.value(), 16, 1e-14);
    EXPECT_NEAR(s.x1x1.value(), 4, 1e-14);
    EXPECT_NEAR(s.x2x2.value(), 4, 1e-14);
    EXPECT_NEAR(s.yy.value(), 1 + 4 + 16 + 81, 1e-13);
    EXPECT_NEAR(s.x1x2.value(), 0, 1e-15);
    EXPECT_NEAR(s.x1y.value(), 10, 1e-14);
    EXPECT_NEAR(s.x2y.value(), 6, 1e-14);
}

// The same records: R2 = (4 * 16 + 2.5 * 10 + 1.5 * 6 - 4 * 4^2) / (102 - 4 * 4^2) = 34 / 38, of
// the logarithms. The estimates of Imax are e^0, e^3, e^5 and e^8: with 40 digits the sum of the
// squares of e^1 - e^0, e^2 - e^3, e^4 - e^5 and e^9 - e^8 has the root 5123.00103061977, which 4 -
// 3 leaves as it is. Each record twice has twice the sum and 8 - 3.
TEST(PowerFit, ItsQualityIsThatOfTheLogarithmsAndOfTheIntensities) {
    const double e = std::exp(1.0);
    std::vector<TrioIntensidad> trios = {{1 / e, 1 / e, std::exp(1.0)},
                                         {1 / e, e, std::exp(2.0)},
                                         {e, 1 / e, std::exp(4.0)},
                                         {e, e, std::exp(9.0)}};
    const CalidadPotencial four = calidadPotencial(*ajustePotencial(trios), trios);
    EXPECT_NEAR(four.r2.value(), 34.0 / 38, 1e-14);
    EXPECT_NEAR(four.r.value(), 0.94590530292692717, 1e-14);
    EXPECT_NEAR(four.Se.value() / 5123.0010306197698, 1, 1e-12);
    for (int i = 0; i < 4; ++i)
        trios.push_back(trios[static_cast<std::size_t>(i)]);
    const CalidadPotencial eight = calidadPotencial(*ajustePotencial(trios), trios);
    EXPECT_NEAR(eight.r2.value(), 34.0 / 38, 1e-14);
    EXPECT_NEAR(eight.Se.value() / 3240.0703424297598, 1, 1e-12);
}

TEST(PowerFit, RecordsOnTheSurfaceLeaveNoError) {
    const auto trios = onTheSurface(400, 0.5, -0.25);
    const CalidadPotencial quality = calidadPotencial(*ajustePotencial(trios), trios);
    EXPECT_NEAR(quality.r2.value(), 1, 1e-10);
    EXPECT_NEAR(quality.r.value(), 1, 1e-10);
    EXPECT_NEAR(quality.Se.value(), 0, 1e-8);
}

// Three records leave Se no degree of freedom; equal intensities leave R2 no variance.
TEST(PowerFit, AQualityWithoutValueFails) {
    const auto qualityFailure = [](const std::vector<TrioIntensidad>& trios) {
        return testing::failureNumber([&] { calidadPotencial(*ajustePotencial(trios), trios); });
    };
    EXPECT_EQ(qualityFailure({{2, 10, 1}, {2, 60, 1}, {10, 10, 1}, {10, 60, 1}}), 11);
    EXPECT_EQ(qualityFailure({{2, 10, 100}, {2, 60, 40}, {10, 10, 150}}), 11);
}

TEST(PowerFit, TheColumnsOfAGridAreItsRecords) {
    const std::vector<Real> T{2, 5};
    const std::vector<Real> D{10, 20};
    const std::vector<Real> Imax{90, 80};
    const auto trios = enTrios(T, D, Imax);
    ASSERT_EQ(trios.size(), 2U);
    EXPECT_EQ(trios[1].T.value(), 5);
    EXPECT_EQ(trios[1].D.value(), 20);
    EXPECT_EQ(trios[1].Imax.value(), 80);
}

// ln 1 = 0 leaves the column of T (or of D) without any pivot, exactly.
TEST(PowerFit, RecordsOfOneReturnPeriodOfOneYearAreSingular) {
    EXPECT_FALSE(fitOf({{1, 10, 90}, {1, 20, 70}, {1, 30, 60}, {1, 60, 40}}).has_value());
    EXPECT_FALSE(fitOf({{2, 1, 90}, {5, 1, 95}, {10, 1, 99}, {25, 1, 120}}).has_value());
}

TEST(PowerFit, AValueOfZeroOrLessFailsInItsLogarithm) {
    const TrioIntensidad good{5, 10, 80};
    EXPECT_EQ(failureOf({good, {0, 10, 80}, {2, 20, 50}, {10, 30, 60}}), 5);
    EXPECT_EQ(failureOf({good, {5, -1, 80}, {2, 20, 50}, {10, 30, 60}}), 5);
    EXPECT_EQ(failureOf({good, {5, 10, 0}, {2, 20, 50}, {10, 30, 60}}), 5);
}

TEST(PowerFit, AnOverflowOfTheConstantIsAFailure) {
    // ln Imax = 800 - 100 ln T - 100 ln D at T, D of e^2 and e^3: 400, 300, 300, 200, all of which
    // are numbers, while K = e^800 is not.
    const double a = std::exp(2.0);
    const double b = std::exp(3.0);
    EXPECT_EQ(failureOf({{a, a, std::exp(400.0)},
                         {a, b, std::exp(300.0)},
                         {b, a, std::exp(300.0)},
                         {b, b, std::exp(200.0)}}),
              6);
}

TEST(PowerFit, EvaluatesZeroAsThePowersDo) {
    const auto fit = ajustePotencial(onTheSurface(400, 0.5, -0.25));
    ASSERT_TRUE(fit.has_value());
    EXPECT_EQ(fit->intensidad(0, 10).value(), 0);
    EXPECT_THROW(fit->intensidad(10, 0), RuntimeFailure);
    EXPECT_THROW(fit->intensidad(-10, 10), RuntimeFailure);
}

} // namespace
} // namespace caudalera
