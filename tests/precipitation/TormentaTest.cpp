// Derivation of a storm from its intervals.

#include "precipitation/tormenta.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>
#include <vector>

namespace caudalera {
namespace {

using testing::failureNumber;

Tormenta stormOf(const std::vector<std::pair<Real, Real>>& pairs) {
    Tormenta storm(static_cast<long>(pairs.size()));
    for (const auto& [time, rain] : pairs)
        storm.agregar(time, rain);
    return storm;
}

// 5 mm in 10 min are 30 mm/hr, 24 in 20 are 72, 10 in 8 are 75, 3 in 30 are 6.
TEST(Storm, AccumulatesTimeAndRainfallAndGivesTheIntensityOfEachInterval) {
    const Tormenta storm = stormOf({{10, 5}, {20, 24}, {8, 10}, {30, 3}});
    const std::vector<std::array<double, 5>> expected = {
        {10, 5, 10, 5, 30}, {20, 24, 30, 29, 72}, {8, 10, 38, 39, 75}, {30, 3, 68, 42, 6}};
    const auto intervals = storm.intervalos();
    ASSERT_EQ(intervals.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(intervals[i].tiempo.value(), expected[i][0]) << i;
        EXPECT_EQ(intervals[i].lluvia.value(), expected[i][1]) << i;
        EXPECT_EQ(intervals[i].tiempoAcumulado.value(), expected[i][2]) << i;
        EXPECT_EQ(intervals[i].lluviaAcumulada.value(), expected[i][3]) << i;
        EXPECT_EQ(intervals[i].intensidad.value(), expected[i][4]) << i;
    }
    EXPECT_EQ(storm.intensidadMaxima(), 75);
    EXPECT_EQ(storm.duracionMaxima(), 8);
}

TEST(Storm, OfTwoEqualIntensitiesTheEarlierStands) {
    const Tormenta storm = stormOf({{10, 5}, {20, 20}, {10, 10}});
    EXPECT_EQ(storm.intensidadMaxima(), 60);
    EXPECT_EQ(storm.duracionMaxima(), 20);
}

// A single has 7 digits: it does not tell 100.000001 from 100, but 100.0001.
TEST(Storm, IntensitiesAreComparedInSinglePrecision) {
    EXPECT_EQ(stormOf({{60, 100}, {30, 50.0000005}}).duracionMaxima(), 60);
    EXPECT_EQ(stormOf({{60, 100}, {30, 50.00005}}).duracionMaxima(), 30);
}

TEST(Storm, WithoutAnIntensityAboveZeroThereIsNoLargestOne) {
    for (const auto& storm : {stormOf({}), stormOf({{10, 0}, {20, 0}}), stormOf({{10, -1}})}) {
        EXPECT_EQ(storm.intensidadMaxima(), 0);
        EXPECT_EQ(storm.duracionMaxima(), 0);
    }
}

TEST(Storm, AnIntervalWithoutDurationFails) {
    EXPECT_EQ(failureNumber([] { stormOf({{10, 5}, {0, 5}}); }), 11);
    EXPECT_EQ(failureNumber([] { stormOf({{0, 0}}); }), 11);
}

TEST(Storm, HoldsAsManyIntervalsAsItsCapacity) {
    Tormenta storm(2);
    storm.agregar(1, 1);
    storm.agregar(1, 1);
    EXPECT_EQ(storm.intervalos().size(), 2U);
    EXPECT_EQ(failureNumber([&] { storm.agregar(1, 1); }), 9);
}

// 60 * 1e38 = 6e39 is past the singles, 60 * 1e307 past the doubles.
TEST(Storm, AnIntensityPastTheSinglesFails) {
    EXPECT_EQ(failureNumber([] { stormOf({{1, 5e36}}); }), 0);
    EXPECT_EQ(failureNumber([] { stormOf({{1, 1e38}}); }), 6);
    EXPECT_EQ(failureNumber([] { stormOf({{1, 1e307}}); }), 6);
}

} // namespace
} // namespace caudalera
