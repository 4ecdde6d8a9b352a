// Thornthwaite's method without its window.

#include "evapotranspiration/thornthwaite.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <numeric>
#include <vector>

namespace caudalera {
namespace {

using testing::failureNumber;
using Months = std::vector<double>;

AnnoThornthwaite yearOf(const Months& T, const Months& factors) {
    AnnoThornthwaite year;
    for (long month = 1; month <= static_cast<long>(T.size()); ++month) {
        year.T[month] = static_cast<float>(T[static_cast<std::size_t>(month - 1)]);
        year.f[month] = static_cast<float>(factors[static_cast<std::size_t>(month - 1)]);
    }
    year.calcular();
    return year;
}

/// Factors of months of so many days with N hours of possible sun.
Months factorsOf(const Months& N, const Months& days) {
    Months factors;
    for (std::size_t month = 0; month < N.size(); ++month)
        factors.push_back(N[month] / 12 * days[month] / 30);
    return factors;
}

void expectMonths(const SerieSimple& computed, const Months& published, double tolerance) {
    for (long month = 1; month <= static_cast<long>(published.size()); ++month)
        EXPECT_NEAR(computed[month], published[static_cast<std::size_t>(month - 1)], tolerance)
            << month;
}

// A public teaching sheet (document 394926623), September to August, its numbers to two decimals.
TEST(ThornthwaiteMethod, ComesToAPublishedCoolYear) {
    const auto year =
        yearOf({7.5, 8.7, 9.5, 9.6, 9.4, 9.3, 9.3, 8.7, 6.8, 5.3, 4.9, 6.1},
               factorsOf({12.0, 12.4, 12.9, 13.1, 13.0, 12.7, 12.2, 11.7, 11.4, 11.2, 11.2, 11.6},
                         {30, 31, 30, 31, 31, 28, 31, 30, 31, 30, 31, 31}));
    EXPECT_NEAR(year.I.value(), 24.53, 0.005);
    EXPECT_NEAR(year.a.value(), 0.8955, 0.00005);
    expectMonths(
        year.ETo,
        {43.53, 49.72, 53.80, 54.30, 53.29, 52.78, 52.78, 49.72, 39.88, 31.90, 29.74, 36.18},
        0.00501);
    expectMonths(
        year.ETr,
        {43.53, 53.09, 57.83, 61.26, 59.65, 52.14, 55.45, 48.48, 39.15, 29.77, 28.68, 36.14},
        0.00501);
}

// Another one (document 673896766), October to September; its own rounding on the way leaves 0.011
// in a month. The hours are those of the northern sheet that it took them from.
TEST(ThornthwaiteMethod, ComesToAPublishedWarmYear) {
    const auto year =
        yearOf({19.45, 20.25, 20.72, 20.72, 20.36, 19.92, 18.23, 15.37, 13.33, 13.19, 15.04, 16.86},
               factorsOf({11.485, 10.947, 10.691, 10.825, 11.292, 11.857, 12.505, 13.032, 13.306,
                          13.191, 12.736, 12.111},
                         {31, 30, 31, 31, 28, 31, 30, 31, 30, 31, 31, 30}));
    EXPECT_NEAR(year.I.value(), 82.75, 0.005);
    EXPECT_NEAR(year.a.value(), 1.83, 0.005);
    const Months published = {75.59, 75.06, 78.99, 79.98, 72.98, 81.52,
                              70.75, 55.75, 42.45, 42.65, 52.36, 59.39};
    expectMonths(year.ETr, published, 0.0105);
    double sum = 0;
    for (long month = 1; month <= 12; ++month)
        sum += year.ETr[month];
    EXPECT_NEAR(sum, 787.48, 0.05);
}

// From the discussion of the R package SPEI by its users: three months alone at 41.47 N, I from
// these three, hours by the declination 0.4093 sin(2 pi J / 365 - 1.405) on the days 15, 46, 74.
TEST(ThornthwaiteMethod, ComesToThePublishedMonthsOfAnotherProgram) {
    const double latitude = 41.47 * std::numbers::pi / 180;
    Months N;
    for (const int day : {15, 46, 74}) {
        const double declination = 0.4093 * std::sin(2 * std::numbers::pi * day / 365 - 1.405);
        N.push_back(24 / std::numbers::pi * std::acos(-std::tan(latitude) * std::tan(declination)));
    }
    const auto year = yearOf({2.18, 12.19, 27.33}, factorsOf(N, {31, 28, 31}));
    // Its exponent begins with 6.75E-7 I^3, which is 1.4E-6 of the third month less.
    expectMonths(year.ETr, {15.40596, 59.55327, 139.12358}, 2.1e-4);
    for (long month = 4; month <= 12; ++month)
        EXPECT_EQ(year.ETo[month], 0) << "no degrees, no evapotranspiration";
}

// A day of a month: 28 of them in February, and each month's own.
TEST(ThornthwaiteMethod, DividesByTheDaysOfTheMonth) {
    const auto year = yearOf(Months(12, 20), Months(12, 1));
    const double days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (long month = 1; month <= 12; ++month)
        EXPECT_NEAR(year.ETrDiaria[month], year.ETr[month] / days[month - 1], 1e-6) << month;
}

// In 20 decimal digits: 25 / 5 = 5, 5^1.514 = e^(1.514 ln 5).
TEST(ThornthwaiteMethod, TermsAreThoseOfTheFormulas) {
    EXPECT_NEAR(indiceTermico(25).value(), std::exp(1.514 * std::log(5.0)), 1e-13);
    EXPECT_NEAR(indiceTermico(5).value(), 1, 1e-15);
    EXPECT_EQ(indiceTermico(0), 0);
    // I = 100: 0.6751 - 0.771 + 1.792 + 0.49239.
    EXPECT_NEAR(exponenteThornthwaite(100).value(), 2.18849, 1e-14);
    // I = 1000 shows the first terms: 675.1 - 77.1 + 17.92 + 0.49239.
    EXPECT_NEAR(exponenteThornthwaite(1000).value(), 616.41239, 1e-11);
    EXPECT_NEAR(exponenteThornthwaite(0).value(), 0.49239, 1e-16);
    // 10 x 20 / 50 = 4, 4^1.5 = 8, 16 x 8.
    EXPECT_NEAR(evapotranspiracionSinCorregir(20, 50, 1.5).value(), 128, 1e-12);
}

TEST(ThornthwaiteMethod, FailsWithoutWarmthAndBelowZero) {
    EXPECT_EQ(failureNumber([] { yearOf(Months(12, 0), Months(12, 1)); }), 11);
    EXPECT_EQ(failureNumber([] { indiceTermico(-0.1); }), 5);
    // Of twelve such months I = 36528 and a = 3.3E7: 10 T / I = 0.27 to that power is 0.
    EXPECT_EQ(yearOf(Months(12, 1000), Months(12, 1)).ETo[1], 0);
    // Of one such month I = 3044 and 10 T / I = 3.3, to the power 18396.
    EXPECT_EQ(failureNumber([] { yearOf({1000}, {1}); }), 6);
}

} // namespace
} // namespace caudalera
