// The routines of the duration curve: sorting, merging equal flows, the flow of a probability.

#include "curves/curvaDuracion.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

namespace caudalera::testing {
namespace {

std::vector<double> doubles(const std::vector<Real>& reals) {
    std::vector<double> values;
    for (const Real real : reals)
        values.push_back(real.value());
    return values;
}

struct Columns {
    std::vector<double> flows;
    std::vector<double> multiples;
    std::vector<double> probabilities;
};

Columns columnsOf(const std::vector<PuntoDuracion>& curve) {
    Columns columns;
    for (const PuntoDuracion& point : curve) {
        columns.flows.push_back(point.caudal.value());
        columns.multiples.push_back(point.adimensional.value());
        columns.probabilities.push_back(point.probabilidad.value());
    }
    return columns;
}

using Values = std::vector<double>;

TEST(OrdenarDescendente, AnyOrderBecomesDescending) {
    for (std::vector<Real> values : std::vector<std::vector<Real>>{
             {3, 1, 4, 2}, {1, 2, 3, 4}, {4, 3, 2, 1}, {4, 1, 3, 2}, {1, 4, 2, 3}}) {
        ordenarDescendente(values);
        EXPECT_EQ(doubles(values), (Values{4, 3, 2, 1}));
    }
    std::vector<Real> ties = {2, -1, 5, 2, 5, 0};
    ordenarDescendente(ties);
    EXPECT_EQ(doubles(ties), (Values{5, 5, 2, 2, 0, -1}));
}

TEST(OrdenarDescendente, NoneAndOne) {
    std::vector<Real> values;
    ordenarDescendente(values);
    EXPECT_TRUE(values.empty());
    values = {7};
    ordenarDescendente(values);
    EXPECT_EQ(doubles(values), Values{7});
}

TEST(CurvaDuracion, FlowsWithoutTies) {
    const Columns curve = columnsOf(curvaDuracion(std::vector<Real>{8, 6, 4, 2}, 5));
    EXPECT_EQ(curve.flows, (Values{8, 6, 4, 2}));
    EXPECT_EQ(curve.multiples, (Values{1.6, 1.2, 0.8, 0.4}));
    EXPECT_EQ(curve.probabilities, (Values{25, 50, 75, 100}));
}

TEST(CurvaDuracion, EqualFlowsStandOnceAtTheirLastPosition) {
    const Columns curve = columnsOf(curvaDuracion(std::vector<Real>{9, 9, 9, 5, 5, 3, 1, 1}, 2));
    EXPECT_EQ(curve.flows, (Values{9, 5, 3, 1}));
    EXPECT_EQ(curve.multiples, (Values{4.5, 2.5, 1.5, 0.5}));
    EXPECT_EQ(curve.probabilities, (Values{37.5, 62.5, 75, 100}));
}

TEST(CurvaDuracion, EqualFlowsAloneAreOnePoint) {
    const Columns curve = columnsOf(curvaDuracion(std::vector<Real>{3, 3, 3}, 3));
    EXPECT_EQ(curve.flows, Values{3});
    EXPECT_EQ(curve.multiples, Values{1});
    EXPECT_EQ(curve.probabilities, Values{100});
}

TEST(CurvaDuracion, NoFlowsNoPoints) {
    EXPECT_TRUE(curvaDuracion({}, 1).empty());
}

TEST(CurvaDuracion, AMeanOfZeroDividesByZero) {
    EXPECT_EQ(failureNumber([] { curvaDuracion(std::vector<Real>{1, -1}, 0); }), 11);
}

/// 5, 5, 3, 1: 5 with 50 %, 3 with 75 %, 1 with 100 %.
std::vector<PuntoDuracion> fourFlows() {
    return curvaDuracion(std::vector<Real>{5, 5, 3, 1}, 3.5);
}

TEST(CaudalDeDuracion, InterpolatesBetweenThePoints) {
    // 5 + (3 - 5) (60 - 50) / 25 and 3 + (1 - 3) (80 - 75) / 25.
    EXPECT_DOUBLE_EQ(caudalDeDuracion(fourFlows(), 60)->value(), 4.2);
    EXPECT_DOUBLE_EQ(caudalDeDuracion(fourFlows(), 80)->value(), 2.6);
    EXPECT_DOUBLE_EQ(caudalDeDuracion(fourFlows(), 99)->value(), 1.08);
}

TEST(CaudalDeDuracion, TheProbabilityOfAPointGivesItsFlow) {
    EXPECT_EQ(caudalDeDuracion(fourFlows(), 50), Real(5));
    EXPECT_EQ(caudalDeDuracion(fourFlows(), 75), Real(3));
    EXPECT_EQ(caudalDeDuracion(fourFlows(), 100), Real(1));
}

TEST(CaudalDeDuracion, AHundredGivesTheLastFlowOfAnyCurve) {
    EXPECT_EQ(caudalDeDuracion(curvaDuracion(std::vector<Real>{7, 7}, 7), 100), Real(7));
}

TEST(CaudalDeDuracion, OutsideOfTheCurveIsFailure9) {
    EXPECT_EQ(failureNumber([] { caudalDeDuracion(fourFlows(), 49.999999); }), 9);
    EXPECT_EQ(failureNumber([] { caudalDeDuracion(fourFlows(), 100.000001); }), 9);
}

TEST(CaudalDeDuracion, ACurveWithoutPointsHasNoAnswer) {
    EXPECT_EQ(caudalDeDuracion({}, 60), std::nullopt);
}

// At P = 90 the first point answers by 80 times -1.5E308, which overflows, although the last two
// points would answer without.
TEST(CaudalDeDuracion, EveryPointOnTheWayAnswers) {
    const std::vector<PuntoDuracion> curve = {
        {1.5e308, 1, 10}, {0, 1, 15}, {-1, 1, 80}, {-2, 1, 100}};
    EXPECT_EQ(failureNumber([&] { caudalDeDuracion(curve, 90); }), 6);
}

} // namespace
} // namespace caudalera::testing
