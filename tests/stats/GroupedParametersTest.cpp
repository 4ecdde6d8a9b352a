// Frequencies and sums of grouped series as numbers, where the masks would hide their accuracy.

#include "stats/frecuencias.h"
#include "stats/sumasAgrupadas.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

namespace caudalera::testing {
namespace {

/// Classes of these marks and frequencies, in a series of n values.
Agrupacion classes(long n, double width, const std::vector<double>& marks,
                   const std::vector<long>& counts) {
    Agrupacion grouping{n, width, {}};
    for (std::size_t i = 0; i < marks.size(); ++i)
        grouping.clases.push_back(
            {marks[i] - width / 2, marks[i], marks[i] + width / 2, counts[i]});
    return grouping;
}

TEST(Frecuencias, ShareDensityAndRunningSum) {
    const auto all = frecuencias(classes(8, 4, {2, 6, 10}, {1, 5, 2}));
    ASSERT_EQ(all.size(), 3U);
    const std::vector<std::vector<double>> expected = {
        {12.5, 3.125, 12.5}, {62.5, 15.625, 75}, {25, 6.25, 100}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(all[i].relativa.value(), expected[i][0]) << i;
        EXPECT_EQ(all[i].densidad.value(), expected[i][1]) << i;
        EXPECT_EQ(all[i].acumulada.value(), expected[i][2]) << i;
    }
}

TEST(Frecuencias, AreSharesOfAllValuesNotOfTheCountedOnes) {
    const auto all = frecuencias(classes(16, 4, {2, 6}, {1, 3}));
    EXPECT_EQ(all[0].relativa.value(), 6.25);
    EXPECT_EQ(all[1].acumulada.value(), 25);
}

TEST(Frecuencias, DensityGoesByTheSizeOfTheWidth) {
    EXPECT_EQ(frecuencias(classes(4, -2, {3}, {1}))[0].densidad.value(), 12.5);
}

TEST(Frecuencias, NoWidthAndNoValuesDivideByZero) {
    EXPECT_EQ(failureNumber([] { frecuencias(classes(4, 0, {3}, {4})); }), 11);
    EXPECT_EQ(failureNumber([] { frecuencias(classes(4, 0, {3}, {0})); }), 11);
    EXPECT_EQ(failureNumber([] { frecuencias(classes(0, 1, {3}, {0})); }), 11);
}

// Heights of 100 students in inches, M. R. Spiegel, Statistics: mean 67.45 and the moments about it
// with divisor n, m2 = 8.5275, m3 = -2.6932, m4 = 199.3759.
TEST(SumasAgrupadas, HeightsOfSpiegel) {
    const SumasCentrales sums =
        sumasAgrupadas(classes(100, 3, {61, 64, 67, 70, 73}, {5, 18, 42, 27, 8}));
    EXPECT_EQ(sums.n.value(), 100);
    EXPECT_DOUBLE_EQ(sums.media.value(), 67.45);
    EXPECT_NEAR(sums.cuadrados.value(), 852.75, 1e-9);
    EXPECT_NEAR(sums.M3.value(), -2.6932, 0.5e-4 + 1e-9);
    EXPECT_NEAR(sums.M4.value(), 199.3759, 0.5e-4 + 1e-9);
}

// A series as it stands is one whose classes hold a value each.
TEST(SumasAgrupadas, ClassesOfOneValueAreTheUngroupedSeries) {
    const std::vector<Real> series = {1, 2, 3, 10};
    const SumasCentrales ungrouped = sumasCentrales(series);
    const SumasCentrales grouped = sumasAgrupadas(classes(4, 1, {1, 2, 3, 10}, {1, 1, 1, 1}));
    EXPECT_EQ(grouped.media.value(), ungrouped.media.value());
    EXPECT_EQ(grouped.cuadrados.value(), ungrouped.cuadrados.value());
    EXPECT_EQ(grouped.M3.value(), ungrouped.M3.value());
    EXPECT_EQ(grouped.M4.value(), ungrouped.M4.value());
}

// Mean 2 * 3 / 4 = 1.5, and then 2 * 1.5^2, 2 * 1.5^3 / 4, 2 * 1.5^4 / 4.
TEST(SumasAgrupadas, DivideByAllValuesNotByTheCountedOnes) {
    const SumasCentrales sums = sumasAgrupadas(classes(4, 1, {3}, {2}));
    EXPECT_EQ(sums.media.value(), 1.5);
    EXPECT_EQ(sums.cuadrados.value(), 4.5);
    EXPECT_EQ(sums.M3.value(), 1.6875);
    EXPECT_EQ(sums.M4.value(), 2.53125);
}

TEST(SumasAgrupadas, FailuresByTheirNumbers) {
    EXPECT_EQ(failureNumber([] { sumasAgrupadas(classes(0, 1, {3}, {0})); }), 11);
    EXPECT_EQ(failureNumber([] { sumasAgrupadas(classes(2, 1, {1e200, -1e200}, {1, 1})); }), 6);
}

} // namespace
} // namespace caudalera::testing
