// The steps of the goodness-of-fit test as numbers.

#include "fitting/smirnovKolmogorov.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>
#include <vector>

namespace caudalera::testing {
namespace {

Real largestOf(const std::vector<double>& differences) {
    const std::vector<Real> delta(differences.begin(), differences.end());
    return deltaTeorico(delta);
}

TEST(SmirnovKolmogorov, WeibullPosition) {
    EXPECT_DOUBLE_EQ(posicionWeibull(1, 4).value(), 0.2);
    EXPECT_DOUBLE_EQ(posicionWeibull(4, 4).value(), 0.8);
    EXPECT_DOUBLE_EQ(posicionWeibull(250, 499).value(), 0.5);
}

TEST(SmirnovKolmogorov, TheoreticalDeltaIsTheLargest) {
    EXPECT_EQ(largestOf({0.3}).value(), 0.3);
    EXPECT_EQ(largestOf({0.3, 0.2, 0.1}).value(), 0.3);
    EXPECT_EQ(largestOf({0.1, 0.4, 0.2}).value(), 0.4);
    EXPECT_EQ(largestOf({0.1, 0.2, 0.5}).value(), 0.5);
    EXPECT_EQ(largestOf({0, 0, 0}).value(), 0);
}

TEST(SmirnovKolmogorov, TabularDelta) {
    EXPECT_DOUBLE_EQ(deltaTabular(1.36, 4).value(), 0.68);
    EXPECT_DOUBLE_EQ(deltaTabular(1.07, 100).value(), 0.107);
    EXPECT_EQ(failureNumber([] { deltaTabular(1.36, 0); }), 11);
}

TEST(SmirnovKolmogorov, EqualDeltasDoNotFit) {
    EXPECT_TRUE(seAjusta(0.67, 0.68));
    EXPECT_FALSE(seAjusta(0.68, 0.68));
    EXPECT_FALSE(seAjusta(0.69, 0.68));
}

} // namespace
} // namespace caudalera::testing
