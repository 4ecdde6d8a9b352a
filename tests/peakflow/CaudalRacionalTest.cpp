// Flow of the rational method.

#include "peakflow/caudalRacional.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

namespace caudalera {
namespace {

// A millimetre an hour on a hectare is 10 m3 in 3600 s, 1 / 360 m3/s.
TEST(RationalFlow, IsTheRainThatRunsOff) {
    EXPECT_EQ(caudalRacional(1, 360, 1), 1);
    EXPECT_EQ(caudalRacional(0.5, 100, 36), 5);
    EXPECT_NEAR(caudalRacional(0.3, 107.69, 12.5).value(), 403.8375 / 360, 1e-15);
    EXPECT_EQ(caudalRacional(0.5, 0, 36), 0);
}

TEST(RationalFlow, FailsPastTheRange) {
    EXPECT_EQ(testing::failureNumber([] { caudalRacional(1e200, 1e200, 1); }), 6);
}

} // namespace
} // namespace caudalera
