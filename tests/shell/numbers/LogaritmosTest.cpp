#include "shell/numbers/logaritmos.h"

#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

namespace caudalera::testing {
namespace {

TEST(Logaritmos, OfPositiveValuesOnly) {
    const auto logs = logaritmos(std::vector<Real>{1, 2});
    ASSERT_EQ(logs.size(), 2U);
    EXPECT_EQ(logs[0], 0);
    EXPECT_DOUBLE_EQ(logs[1].value(), 0.693147180559945309);
    for (const double bad : {0.0, -1.0})
        EXPECT_EQ(failureNumber([&] { logaritmos(std::vector<Real>{1, bad}); }), 5) << bad;
}

} // namespace
} // namespace caudalera::testing
