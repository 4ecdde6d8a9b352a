// The normal equations of several variables.

#include "regression/ajusteMultiple.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace caudalera {
namespace {

using Values = std::vector<Real>;

const Values x1 = {1, 2, 3, 4, 5};
const Values x2 = {2, 1, 5, 3, 8};
const Values y = {5, 4, 12, 9, 20};

TEST(MultipleFit, SumsAllProducts) {
    const SumasMultiples s = sumasMultiples({x1, x2}, y);
    EXPECT_EQ(s.n(), 5);
    EXPECT_EQ(s.xx, (std::vector<Values>{{5, 15, 19}, {15, 55, 71}, {19, 71, 103}}));
    EXPECT_EQ(s.xy, (Values{50, 185, 261}));
    EXPECT_EQ(s.yy, 666);
}

// By Cramer's rule: determinant 5 (55 x 103 - 71^2) - 15 (15 x 103 - 71 x 19) + 19 (15 x 71 - 55 x
// 19) = 3120 - 2940 + 380 = 560, numerators 160, 420 and 1100: a = (2/7, 3/4, 55/28). Explained:
// 100/7 + 555/4 + 14355/28 = 18640/28; R2 = (18640/28 - 500) / (666 - 500) = 1160/1162. SSE = 666 -
// 18640/28 = 2/7, Se = sqrt(SSE / 2) = sqrt(1/7).
TEST(MultipleFit, SolvesTheNormalEquations) {
    const auto fit = ajusteMultiple({x1, x2}, y);
    ASSERT_TRUE(fit.has_value());
    ASSERT_EQ(fit->coeficientes.size(), 3U);
    EXPECT_NEAR(fit->coeficientes[0].value(), 2.0 / 7, 1e-13);
    EXPECT_NEAR(fit->coeficientes[1].value(), 0.75, 1e-13);
    EXPECT_NEAR(fit->coeficientes[2].value(), 55.0 / 28, 1e-13);
    EXPECT_NEAR(fit->r2.value(), 1160.0 / 1162, 1e-13);
    EXPECT_NEAR(fit->r.value(), std::sqrt(1160.0 / 1162), 1e-13);

    Values estimated;
    for (std::size_t i = 0; i < y.size(); ++i)
        estimated.push_back(valorLineal(fit->coeficientes, observacion({x1, x2}, i)));
    EXPECT_NEAR(errorEstandar(y, estimated, 3).value(), std::sqrt(1.0 / 7), 1e-12);
    EXPECT_NEAR(errorEstandar(*fit).value(), std::sqrt(1.0 / 7), 1e-11);
}

// n = 4 leaves nothing of n - 1 - k for three variables.
TEST(MultipleFit, TheStandardErrorNeedsMoreObservationsThanCoefficients) {
    const Values four = {1, 2, 4, 9};
    EXPECT_EQ(testing::failureNumber([&] { errorEstandar(four, {x1.begin(), 4}, 4); }), 11);
    EXPECT_EQ(testing::failureNumber([&] { errorEstandar(four, {x1.begin(), 4}, 5); }), 5);
}

// Residuals 1, -1, 2: sqrt(6 / (3 - 1)).
TEST(MultipleFit, TheStandardErrorOfGivenValues) {
    EXPECT_DOUBLE_EQ(errorEstandar(Values{3, 4, 7}, Values{2, 5, 5}, 1).value(), std::sqrt(3.0));
}

TEST(MultipleFit, AVariableThatIsZeroEverywhereIsSingular) {
    EXPECT_FALSE(ajusteMultiple({x1, Values(5)}, y).has_value());
    EXPECT_FALSE(ajusteMultiple({x1, x1}, y).has_value());
    EXPECT_FALSE(ajusteMultiple({Values(), Values()}, Values()).has_value());
}

// x2 = x1 / 10, but its doubles are not quite: the last pivot is what rounding has left, and not 0.
// How much of the slope goes to x1 and how much to x2 is then arbitrary; the line on x1 alone, Y =
// 72/83 + 385/83 x1 (means 0.325 and 2.375, Cuu = 0.2075, Cuv = 0.9625), comes out all the same.
TEST(MultipleFit, ASystemThatOnlyRoundingKeepsFromSingularityIsSolvedAsItStands) {
    const Values tenths = {0.1, 0.2, 0.3, 0.7};
    Values hundredths;
    for (const Real value : tenths)
        hundredths.push_back(value * 0.1);
    const auto fit = ajusteMultiple({tenths, hundredths}, Values{1, 2, 2.5, 4});
    ASSERT_TRUE(fit.has_value());
    const auto& a = fit->coeficientes;
    EXPECT_NEAR(a[0].value(), 72.0 / 83, 1e-9);
    EXPECT_NEAR((a[1] + a[2] * 0.1).value(), 385.0 / 83, 1e-9);
    EXPECT_GT(Abs(a[2]), 10);
}

TEST(MultipleFit, EqualValuesOfYHaveNoCorrelation) {
    EXPECT_EQ(testing::failureNumber([&] { ajusteMultiple({x1, x2}, Values(5, 3)); }), 11);
}

TEST(MultipleFit, EvaluatesItsEquations) {
    EXPECT_EQ(valorLineal(Values{1, 2, -3}, Values{4, 5}), -6);
    EXPECT_EQ(valorPotencial(Values{3, 2, -1}, Values{4, 8}), 6);
    EXPECT_EQ(valorPotencial(Values{3, 2, 1}, Values{0, 8}), 0);
    EXPECT_EQ(testing::failureNumber([] { valorPotencial(Values{3, -1}, Values{0}); }), 5);
    EXPECT_EQ(testing::failureNumber([] { valorPotencial(Values{3, 0.5}, Values{-1}); }), 5);
    EXPECT_EQ(testing::failureNumber([] { valorPotencial(Values{3, 2}, Values{1e200}); }), 6);
}

} // namespace
} // namespace caudalera
