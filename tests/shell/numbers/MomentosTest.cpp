// Selection sort and linear moments against other ways to get them.

#include "shell/numbers/momentos.h"
#include "tests/support/FailureNumber.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace caudalera::testing {
namespace {

std::vector<Real> seriesOf(const std::vector<double>& values) {
    return {values.begin(), values.end()};
}

std::vector<double> sorted(const std::vector<double>& values) {
    std::vector<Real> x = seriesOf(values);
    ordenarAscendente(x);
    std::vector<double> result;
    for (const Real value : x)
        result.push_back(value.value());
    return result;
}

TEST(SeriesSort, AgreesWithTheLibrarysSort) {
    for (std::vector<double> values : std::vector<std::vector<double>>{
             {}, {1}, {2, 1}, {1, 2}, {3, 1, 2}, {5, 5, 5}, {2, 1, 2, 1, 2}, {-1, 0, -3, 7.5, 0}}) {
        const auto mine = sorted(values);
        std::sort(values.begin(), values.end());
        EXPECT_EQ(mine, values);
    }
}

TEST(SeriesSort, FullCapacity) {
    std::vector<double> values;
    for (int i = 0; i < 500; ++i)
        values.push_back((i * 7919) % 503);
    const auto mine = sorted(values);
    std::sort(values.begin(), values.end());
    EXPECT_EQ(mine, values);
}

TEST(SeriesMean, OfTheValuesAndFailure11OfNone) {
    EXPECT_EQ(media(seriesOf({1, 2, 6})).value(), 3);
    EXPECT_EQ(failureNumber([] { media({}); }), 11);
}

// 1, 2, 6: deviations -2, -1, 3 from the mean 3, squares 14, cubes 18.
TEST(SampleStatistics, DeviationAndSkewByHand) {
    const auto x = seriesOf({1, 2, 6});
    EXPECT_EQ(sumaDesvios(x, 3, 2).value(), 14);
    EXPECT_EQ(sumaDesvios(x, 3, 3).value(), 18);
    const Real S = desviacionMuestral(x, 3);
    EXPECT_DOUBLE_EQ(S.value(), std::sqrt(7.0));
    // n^2 m3 / ((n - 1)(n - 2) S^3) = 9 * 6 / (2 * 1 * 7 * sqrt(7)).
    EXPECT_DOUBLE_EQ(sesgoMuestral(6, 3, S).value(), 54 / (14 * std::sqrt(7.0)));
    EXPECT_EQ(failureNumber([] { desviacionMuestral(seriesOf({5}), 5); }), 11);
    EXPECT_EQ(failureNumber([] { sesgoMuestral(6, 2, 1); }), 11);
    EXPECT_EQ(failureNumber([] { sesgoMuestral(6, 3, 0); }), 11);
}

/// The definition: the mean over all subsets of r values of the alternating sum of its order
/// statistics, divided by r (Hosking 1990).
double momentBySubsets(const std::vector<double>& ascending, unsigned r) {
    static constexpr std::array<std::array<int, 4>, 4> weights{
        {{1, 0, 0, 0}, {-1, 1, 0, 0}, {1, -2, 1, 0}, {-1, 3, -3, 1}}};
    double sum = 0;
    double subsets = 0;
    for (unsigned chosen = 0; chosen < (1U << ascending.size()); ++chosen) {
        std::vector<double> subset;
        for (std::size_t i = 0; i < ascending.size(); ++i)
            if ((chosen >> i) & 1U)
                subset.push_back(ascending[i]);
        if (subset.size() != r)
            continue;
        ++subsets;
        for (std::size_t i = 0; i < subset.size(); ++i)
            sum += weights[r - 1][i] * subset[i];
    }
    return sum / subsets / r;
}

TEST(LinearMoments, AreTheMeansOverAllSubsets) {
    for (const std::vector<double>& values :
         std::vector<std::vector<double>>{{1, 2, 3, 4},
                                          {1, 2, 3, 10},
                                          {-2.5, 0.25, 7, 7, 12.5},
                                          {0.1, 0.2, 0.4, 0.8, 1.6, 3.2, 6.4, 12.8, 25.6, 51.2}}) {
        const MomentosLineales m = momentosLineales(seriesOf(values));
        EXPECT_NEAR(m.l1.value(), momentBySubsets(values, 1), 1e-13);
        EXPECT_NEAR(m.l2.value(), momentBySubsets(values, 2), 1e-13);
        EXPECT_NEAR(m.l3.value(), momentBySubsets(values, 3), 1e-13);
        EXPECT_NEAR(m.l4.value(), momentBySubsets(values, 4), 1e-13);
    }
}

// A uniform law on 0 to 1 has l2 = 1/6 and no higher linear moments; n values i / (n + 1) have
// l2 = 1/6 and l3 = l4 = 0 exactly.
TEST(LinearMoments, EvenlySpacedValues) {
    std::vector<double> values;
    for (int i = 1; i <= 500; ++i)
        values.push_back(i / 501.0);
    const MomentosLineales m = momentosLineales(seriesOf(values));
    EXPECT_NEAR(m.l1.value(), 0.5, 1e-12);
    EXPECT_NEAR(m.l2.value(), 1.0 / 6, 1e-12);
    EXPECT_NEAR(m.l3.value(), 0, 1e-12);
    EXPECT_NEAR(m.l4.value(), 0, 1e-12);
}

TEST(LinearMoments, FewerThanFourValuesDivideByZero) {
    for (const std::vector<double>& few :
         std::vector<std::vector<double>>{{}, {1}, {1, 2}, {1, 2, 3}})
        EXPECT_EQ(failureNumber([&] { momentosLineales(seriesOf(few)); }), 11) << few.size();
    EXPECT_EQ(failureNumber([] { momentosLineales(seriesOf({1, 2, 3, 4})); }), 0);
}

} // namespace
} // namespace caudalera::testing
