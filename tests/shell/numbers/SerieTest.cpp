// The series of a calculation: its bounds, and what the routines are handed of it.

#include "shell/numbers/Serie.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>
#include <limits>

namespace caudalera::testing {
namespace {

TEST(Serie, BothBoundsAreValidAndEveryValueIsZeroAtFirst) {
    for (const long capacity : {1L, 250L, 300L, 500L, 550L, 700L}) {
        Serie series(capacity);
        for (long i = 1; i <= capacity; ++i)
            EXPECT_EQ(series[i], 0) << i;
        for (long i = 1; i <= capacity; ++i)
            series[i] = static_cast<double>(i) / 2;
        const auto& read = series;
        for (long i = 1; i <= capacity; ++i)
            EXPECT_EQ(read[i].value(), static_cast<double>(i) / 2) << i;
        EXPECT_EQ(failureNumber([&] { series[0] = 1; }), 9);
        EXPECT_EQ(failureNumber([&] { series[capacity + 1] = 1; }), 9);
    }
}

TEST(Serie, IndexOutsideIsFailure9) {
    const Serie read(500);
    for (const long index :
         {0L, -1L, 501L, std::numeric_limits<long>::min(), std::numeric_limits<long>::max()})
        EXPECT_EQ(failureNumber([&] { (void)read[index]; }), 9) << index;
}

TEST(Serie, MayBeginAtAnotherIndex) {
    Serie series(0, 2);
    series[0] = 7;
    series[2] = 9;
    EXPECT_EQ(series[0], 7);
    EXPECT_EQ(series[1], 0);
    EXPECT_EQ(series[2], 9);
    EXPECT_EQ(failureNumber([&] { series[-1] = 1; }), 9);
    EXPECT_EQ(failureNumber([&] { series[3] = 1; }), 9);
}

TEST(Serie, TheFirstValuesAreThoseFromIndexOne) {
    Serie series(0, 3);
    for (long i = 0; i <= 3; ++i)
        series[i] = static_cast<double>(10 + i);
    const auto two = series.primeros(2);
    ASSERT_EQ(two.size(), 2U);
    EXPECT_EQ(two[0], 11);
    EXPECT_EQ(two[1], 12);
    EXPECT_EQ(series.primeros(3).size(), 3U);
    EXPECT_TRUE(series.primeros(0).empty());
    EXPECT_EQ(failureNumber([&] { (void)series.primeros(4); }), 9);
    series.primeros(1)[0] = 5;
    EXPECT_EQ(series[1], 5);
}

} // namespace
} // namespace caudalera::testing
