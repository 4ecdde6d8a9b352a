// Nash's method for a design flow, step by step. Expected values are those of the centred sums (of
// squares and products about the means) in 40 decimal digits.

#include "peakflow/caudalNash.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace caudalera {
namespace {

const std::vector<Real> five = {300, 250, 200, 150, 100};

TEST(NashVariable, IsTheDoubleLogarithm) {
    EXPECT_NEAR(variableNash(1.5).value(), -0.321371236130542573, 1e-15);
    EXPECT_NEAR(variableNash(2).value(), -0.521390227654324803, 1e-15); // log10 0.30103
    EXPECT_NEAR(variableNash(5).value(), -1.01363134813515743, 1e-15);
    EXPECT_NEAR(variableNash(10).value(), -1.33953780120662716, 1e-15);
    EXPECT_NEAR(variableNash(100).value(), -2.36003511382004252, 1e-14);
}

// log10(T / (T - 1)) = 1 for T = 10/9, whose logarithm is 0.
TEST(NashVariable, IsZeroWhereOneLogarithmIsOne) {
    EXPECT_NEAR(variableNash(10.0 / 9).value(), 0, 1e-14);
    EXPECT_GT(variableNash(1.1), 0);
}

TEST(NashVariable, FailsForPeriodsOfOneYearAndLess) {
    const auto failureOf = [](double T) {
        return testing::failureNumber([&] { variableNash(T); });
    };
    EXPECT_EQ(failureOf(1), 11);
    EXPECT_EQ(failureOf(0.5), 5);
    EXPECT_EQ(failureOf(0), 5);
    EXPECT_EQ(failureOf(-3), 5);
    EXPECT_EQ(failureOf(1e300), 5); // T / (T - 1) is 1, whose logarithm has none
    EXPECT_EQ(failureOf(1.0001), 0);
}

TEST(NashPoints, HaveThePeriodOfTheirRank) {
    const auto points = puntosNash(five);
    ASSERT_EQ(points.size(), 5U);
    const double T[] = {6, 3, 2, 1.5, 1.2};
    const double X[] = {-1.1013776681894005, -0.75426220131892728, -0.5213902276543248,
                        -0.32137123613054257, -0.10893598035898738};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(points[i].Q, five[i]);
        EXPECT_DOUBLE_EQ(points[i].T.value(), T[i]);
        EXPECT_NEAR(points[i].X.value(), X[i], 1e-14);
    }
    EXPECT_TRUE(puntosNash({}).empty());
}

TEST(NashSums, AreThoseOfThePoints) {
    const SumasNash s = sumasNash(puntosNash(five));
    EXPECT_EQ(s.N, 5);
    EXPECT_EQ(s.Q, 1000);
    EXPECT_EQ(s.Q2, 225000);
    EXPECT_NEAR(s.X.value(), -2.8073373136521826, 1e-14);
    EXPECT_NEAR(s.QX.value(), -682.35617977289706, 1e-11);
    EXPECT_NEAR(s.X2.value(), 2.1689385250470705, 1e-14);
    EXPECT_EQ(s.Qm, 200);
    EXPECT_NEAR(s.Xm.value(), -0.56146746273043651, 1e-14);
    // 5 * 225000 - 1000^2; 5 * 2.1689385250470705 - 2.8073373136521826^2; 5 * -682.35617977289706 +
    // 1000 * 2.8073373136521826.
    EXPECT_EQ(s.Sqq, 125000);
    EXPECT_NEAR(s.Sxx.value(), 2.9635498326114997, 1e-13);
    EXPECT_NEAR(s.Sxq.value(), -604.4435852123027, 1e-10);
}

TEST(NashLine, IsTheOneOfLeastSquares) {
    const RectaNash line = rectaNash(sumasNash(puntosNash(five)));
    EXPECT_NEAR(line.a.value(), 85.483482538985966, 1e-10);
    EXPECT_NEAR(line.b.value(), -203.95931209284342, 1e-10);
}

/// The whole method.
CaudalDeDiseno design(const std::vector<Real>& descending, double T) {
    const SumasNash s = sumasNash(puntosNash(descending));
    return caudalNash(s, rectaNash(s), variableNash(T));
}

TEST(NashFlow, StandsOnTheLineWithItsMargin) {
    const CaudalDeDiseno flow = design(five, 50);
    EXPECT_NEAR(flow.Qmax.value(), 504.98824318213518, 1e-9);
    EXPECT_NEAR(flow.deltaQ.value(), 82.02707592256926, 1e-9);
    EXPECT_NEAR(flow.inferior().value(), 422.96116725956592, 1e-9);
    EXPECT_NEAR(flow.superior().value(), 587.01531910470444, 1e-9);
}

TEST(NashFlow, OfOtherSeries) {
    const CaudalDeDiseno three = design({40, 20, 10}, 25);
    EXPECT_NEAR(three.Qmax.value(), 76.623102726131414, 1e-10);
    EXPECT_NEAR(three.deltaQ.value(), 21.942264636928472, 1e-10);
    const CaudalDeDiseno four = design({1000, 700, 300, 20}, 1.5);
    EXPECT_NEAR(four.Qmax.value(), 230.9782975180997, 1e-9);
    EXPECT_NEAR(four.deltaQ.value(), 434.95569192302425, 1e-9);
}

// X falls as T rises and b is negative.
TEST(NashFlow, RisesWithThePeriod) {
    double before = 0;
    for (const double T : {2.0, 5.0, 10.0, 50.0, 100.0, 1000.0}) {
        const double flow = design(five, T).Qmax.value();
        EXPECT_GT(flow, before) << T;
        before = flow;
    }
}

TEST(NashFlow, FailsWithFewerThanThreePoints) {
    const auto s = [](const std::vector<Real>& peaks) { return sumasNash(puntosNash(peaks)); };
    EXPECT_EQ(testing::failureNumber([&] { s({}); }), 11);
    EXPECT_EQ(testing::failureNumber([&] { rectaNash(s({5})); }), 11);
    EXPECT_EQ(testing::failureNumber([&] { rectaNash(s({5, 4})); }), 0);
    EXPECT_EQ(testing::failureNumber([&] { design({5, 4}, 10); }), 11);
    EXPECT_EQ(testing::failureNumber([&] { s({1e200, 1}); }), 6);
}

} // namespace
} // namespace caudalera
