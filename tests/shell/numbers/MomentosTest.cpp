// Selection sort and linear moments against other ways to get them.

#include "shell/numbers/Series.h"
#include "tests/shell/numbers/FailureNumber.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <vector>

namespace caudalera::testing {
namespace {

Serie seriesOf(const std::vector<double>& values) {
    Serie x;
    for (std::size_t i = 0; i < values.size(); ++i)
        x[static_cast<long>(i) + 1] = values[i];
    return x;
}

std::vector<double> firstOf(const Serie& x, long n) {
    std::vector<double> values;
    for (long i = 1; i <= n; ++i)
        values.push_back(x[i].value());
    return values;
}

std::vector<double> sorted(std::vector<double> values) {
    Serie x = seriesOf(values);
    ordenarAscendente(x, static_cast<long>(values.size()));
    return firstOf(x, static_cast<long>(values.size()));
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

TEST(SeriesSort, LeavesWhatStandsBehindTheSeries) {
    Serie x = seriesOf({3, 2, 1, 0});
    ordenarAscendente(x, 3);
    EXPECT_EQ(firstOf(x, 4), (std::vector<double>{1, 2, 3, 0}));
}

TEST(SeriesMean, OfTheFirstValuesAndFailure11OfNone) {
    EXPECT_EQ(media(seriesOf({1, 2, 6, 100}), 3).value(), 3);
    EXPECT_EQ(failureNumber([] { media(Serie(), 0); }), 11);
    EXPECT_EQ(failureNumber([] { media(Serie(), 501); }), 9);
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
        const auto n = static_cast<long>(values.size());
        const MomentosLineales m = momentosLineales(seriesOf(values), n);
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
    const MomentosLineales m = momentosLineales(seriesOf(values), 500);
    EXPECT_NEAR(m.l1.value(), 0.5, 1e-12);
    EXPECT_NEAR(m.l2.value(), 1.0 / 6, 1e-12);
    EXPECT_NEAR(m.l3.value(), 0, 1e-12);
    EXPECT_NEAR(m.l4.value(), 0, 1e-12);
}

TEST(LinearMoments, FewerThanFourValuesDivideByZero) {
    for (long n = 0; n <= 3; ++n)
        EXPECT_EQ(failureNumber([&] { momentosLineales(seriesOf({1, 2, 3}), n); }), 11) << n;
    EXPECT_EQ(failureNumber([] { momentosLineales(seriesOf({1, 2, 3, 4}), 4); }), 0);
}

} // namespace
} // namespace caudalera::testing
