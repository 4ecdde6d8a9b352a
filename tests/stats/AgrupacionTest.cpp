// A series divided into classes.

#include "stats/agrupacion.h"
#include "tests/support/FailureNumber.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace caudalera::testing {
namespace {

using Series = std::vector<Real>;

struct Column {
    std::vector<double> lower;
    std::vector<double> mark;
    std::vector<double> upper;
    std::vector<long> count;
};

Column columnsOf(const Agrupacion& grouping) {
    Column columns;
    for (const Clase& each : grouping.clases) {
        columns.lower.push_back(each.limiteInferior.value());
        columns.mark.push_back(each.marca.value());
        columns.upper.push_back(each.limiteSuperior.value());
        columns.count.push_back(each.frecuencia);
    }
    return columns;
}

using Doubles = std::vector<double>;
using Counts = std::vector<long>;

// k comes up at n = exp((k - 1.5) / 1.33): 1.456, 3.089, 6.550, 13.896, 29.47, 62.52, 132.6, 281.2,
// 596.4 for k of 2 to 10, and 1098849.67 for k = 20.
TEST(Agrupacion, NumberOfClassesIsRoundedHalvesUpward) {
    EXPECT_EQ(numeroClases(1), 1);
    EXPECT_EQ(numeroClases(2), 2);
    EXPECT_EQ(numeroClases(3), 2);
    EXPECT_EQ(numeroClases(4), 3);
    EXPECT_EQ(numeroClases(6), 3);
    EXPECT_EQ(numeroClases(7), 4);
    EXPECT_EQ(numeroClases(10), 4);
    EXPECT_EQ(numeroClases(13), 4);
    EXPECT_EQ(numeroClases(14), 5);
    EXPECT_EQ(numeroClases(29), 5);
    EXPECT_EQ(numeroClases(30), 6);
    EXPECT_EQ(numeroClases(62), 6);
    EXPECT_EQ(numeroClases(63), 7);
    EXPECT_EQ(numeroClases(132), 7);
    EXPECT_EQ(numeroClases(133), 8);
    EXPECT_EQ(numeroClases(281), 8);
    EXPECT_EQ(numeroClases(282), 9);
    EXPECT_EQ(numeroClases(500), 9);
    EXPECT_EQ(numeroClases(596), 9);
    EXPECT_EQ(numeroClases(597), 10);
    EXPECT_EQ(numeroClases(1098849), 19);
    EXPECT_EQ(numeroClases(1098850), 20);
}

TEST(Agrupacion, NoValuesHaveNoNumberOfClasses) {
    EXPECT_EQ(failureNumber([] { numeroClases(0); }), 5);
    EXPECT_EQ(failureNumber([] { numeroClases(-1); }), 5);
}

// C = 9 / 3, A = 1 - 1.5.
TEST(Agrupacion, TenEvenlySpacedValues) {
    const Agrupacion grouping = agrupar(Series{1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
    EXPECT_EQ(grouping.n, 10);
    EXPECT_EQ(grouping.amplitud.value(), 3);
    const Column columns = columnsOf(grouping);
    EXPECT_EQ(columns.lower, (Doubles{-0.5, 2.5, 5.5, 8.5}));
    EXPECT_EQ(columns.mark, (Doubles{1, 4, 7, 10}));
    EXPECT_EQ(columns.upper, (Doubles{2.5, 5.5, 8.5, 11.5}));
    EXPECT_EQ(columns.count, (Counts{2, 3, 3, 2}));
}

// C = 6 / 3, so the limits are -1, 1, 3, 5, 7, and all values but 0 and 6 stand on one.
TEST(Agrupacion, AValueOnAnUpperLimitCountsBelowIt) {
    const Column columns = columnsOf(agrupar(Series{0, 1, 1, 3, 3, 3, 5, 5, 6, 6}));
    EXPECT_EQ(columns.upper, (Doubles{1, 3, 5, 7}));
    EXPECT_EQ(columns.count, (Counts{3, 3, 2, 2}));
}

TEST(Agrupacion, EmptyClassesStandBetweenOthers) {
    EXPECT_EQ(columnsOf(agrupar(Series{0, 0, 0, 0, 0, 0, 6})).count, (Counts{6, 0, 0, 1}));
}

TEST(Agrupacion, TwoValuesAreTwoClasses) {
    const Column columns = columnsOf(agrupar(Series{0, 2}));
    EXPECT_EQ(columns.lower, (Doubles{-1, 1}));
    EXPECT_EQ(columns.count, (Counts{1, 1}));
}

TEST(Agrupacion, EqualValuesFallInTheFirstOfClassesWithoutWidth) {
    const Agrupacion grouping = agrupar(Series{7, 7, 7, 7});
    EXPECT_EQ(grouping.amplitud.value(), 0);
    EXPECT_EQ(columnsOf(grouping).mark, (Doubles{7, 7, 7}));
    EXPECT_EQ(columnsOf(grouping).count, (Counts{4, 0, 0}));
}

// C = 9 / 3 and 1 - 1.5 < 0, so that C = (-8 + 1 + 1.5) / 4 and A = -8 - 1.
TEST(Agrupacion, ALargestValueBelowHalfAWidthMovesTheClasses) {
    const Agrupacion grouping = agrupar(Series{-8, -6, -5, -4, -3, -2, 1});
    EXPECT_EQ(grouping.n, 7);
    EXPECT_EQ(grouping.amplitud.value(), -1.375);
    const Column columns = columnsOf(grouping);
    EXPECT_EQ(columns.lower, (Doubles{-9, -10.375, -11.75, -13.125}));
    EXPECT_EQ(columns.mark, (Doubles{-9.6875, -11.0625, -12.4375, -13.8125}));
    EXPECT_EQ(columns.upper, (Doubles{-10.375, -11.75, -13.125, -14.5}));
    EXPECT_EQ(columns.count, (Counts{0, 0, 0, 0}));
}

// C = 5 and 2 - 2.5 < 0, so that C = (-3 + 2 + 2.5) / 2 and A = -3 - 2.
TEST(Agrupacion, MovedClassesMayAscend) {
    const Column columns = columnsOf(agrupar(Series{-3, 2}));
    EXPECT_EQ(columns.lower, (Doubles{-5, -4.25}));
    EXPECT_EQ(columns.upper, (Doubles{-4.25, -3.5}));
    EXPECT_EQ(columns.count, (Counts{0, 0}));
}

// C = (-3 + 1 + 2) / 2.
TEST(Agrupacion, MovedClassesMayHaveNoWidth) {
    const Agrupacion grouping = agrupar(Series{-3, 1});
    EXPECT_EQ(grouping.amplitud.value(), 0);
    EXPECT_EQ(columnsOf(grouping).lower, (Doubles{-4, -4}));
}

TEST(Agrupacion, ALargestValueOfHalfAWidthMovesNothing) {
    const Column columns = columnsOf(agrupar(Series{-5, -4, -3, -2, -1, 0, 1}));
    EXPECT_EQ(columns.lower, (Doubles{-6, -4, -2, 0}));
    EXPECT_EQ(columns.count, (Counts{2, 2, 2, 1}));
}

// C = 2 and 0 - 1 < 0, so that C = (-6 + 0 + 1) / 4 and A = -6.
TEST(Agrupacion, ALargestValueOfZeroMovesTheClasses) {
    const Column columns = columnsOf(agrupar(Series{-6, -5, -4, -3, -2, -1, 0}));
    EXPECT_EQ(columns.lower, (Doubles{-6, -7.25, -8.5, -9.75}));
    EXPECT_EQ(columns.upper, (Doubles{-7.25, -8.5, -9.75, -11}));
}

TEST(Agrupacion, ANegativeLargestValueMovesNothing) {
    const Column columns = columnsOf(agrupar(Series{-7, -6, -5, -4, -3, -2, -1}));
    EXPECT_EQ(columns.lower, (Doubles{-8, -6, -4, -2}));
    EXPECT_EQ(columns.count, (Counts{2, 2, 2, 1}));
}

TEST(Agrupacion, FailuresByTheirNumbers) {
    EXPECT_EQ(failureNumber([] { agrupar(Series{}); }), 5);
    EXPECT_EQ(failureNumber([] { agrupar(Series{3}); }), 11);
    EXPECT_EQ(failureNumber([] { agrupar(Series{-1e308, 1e308}); }), 6);
    EXPECT_EQ(failureNumber([] { agrupar(Series{1, 2}); }), 0);
}

// The limits of two neighbours are computed apart and may differ in the last digit; none of these
// values stands there.
TEST(Agrupacion, EveryValueCountsWhereItsLimitsStand) {
    std::mt19937 random(20240607);
    std::uniform_real_distribution<double> value(1, 1000);
    for (int trial = 0; trial < 200; ++trial) {
        Series series;
        const std::size_t size = 2 + random() % 499;
        for (std::size_t i = 0; i < size; ++i)
            series.emplace_back(value(random));
        std::sort(series.begin(), series.end());
        const Agrupacion grouping = agrupar(series);
        long total = 0;
        for (const Clase& each : grouping.clases) {
            const auto within = std::count_if(series.begin(), series.end(), [&](Real x) {
                return x > each.limiteInferior && x <= each.limiteSuperior;
            });
            EXPECT_EQ(each.frecuencia, within) << trial;
            EXPECT_NEAR((each.limiteSuperior - each.limiteInferior).value(),
                        grouping.amplitud.value(), 1e-9);
            EXPECT_NEAR(each.marca.value() * 2, (each.limiteSuperior + each.limiteInferior).value(),
                        1e-9);
            total += each.frecuencia;
        }
        EXPECT_EQ(total, static_cast<long>(size));
        EXPECT_NEAR(grouping.clases.front().marca.value(), series.front().value(), 1e-9);
        EXPECT_NEAR(grouping.clases.back().marca.value(), series.back().value(), 1e-9);
    }
}

} // namespace
} // namespace caudalera::testing
