// Gumbel's method for a design flow: the reduced mean and deviation against their definition, the
// flow against calculations apart.

#include "peakflow/caudalGumbel.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace caudalera {
namespace {

/// Mean and standard deviation (divisor N) of y = -ln(-ln p) over p = i / (N + 1), i = 1 to N:
/// what the printed tables hold (Gumbel 1958, table 6.2.3).
struct Reduced {
    double mean;
    double deviation;
};
Reduced byDefinition(int N) {
    std::vector<double> y;
    double sum = 0;
    for (int i = 1; i <= N; ++i) {
        y.push_back(-std::log(-std::log(static_cast<double>(i) / (N + 1))));
        sum += y.back();
    }
    const double mean = sum / N;
    double squares = 0;
    for (const double each : y)
        squares += (each - mean) * (each - mean);
    return {mean, std::sqrt(squares / N)};
}

// The classic table as handbooks print it: that our definition is its definition.
TEST(ReducedVariates, OfTheDefinitionAreThoseOfThePrintedTable) {
    const struct {
        int N;
        double YN, SN;
    } printed[] = {{10, 0.4952, 0.9496}, {15, 0.5128, 1.0206}, {20, 0.5236, 1.0628},
                   {30, 0.5362, 1.1124}, {40, 0.5436, 1.1413}, {50, 0.5485, 1.1607},
                   {60, 0.5521, 1.1747}, {70, 0.5548, 1.1854}, {80, 0.5569, 1.1938},
                   {90, 0.5586, 1.2007}, {100, 0.5600, 1.2065}};
    for (const auto& [N, YN, SN] : printed) {
        const Reduced exact = byDefinition(N);
        EXPECT_NEAR(exact.mean, YN, 0.00006) << N;
        EXPECT_NEAR(exact.deviation, SN, 0.00006) << N;
    }
}

// The approximation is furthest off at N = 10 (0.4925 for 0.4952), and from 20 on at 29
// (by 0.00049).
TEST(ReducedVariates, TheMeanIsNearTheTable) {
    double furthest = 0;
    for (int N = 10; N <= 100; ++N) {
        const double off = std::fabs(mediaReducida(N).value() - byDefinition(N).mean);
        EXPECT_LT(off, N < 20 ? 0.00274 : 0.000492) << N;
        furthest = std::max(furthest, off);
    }
    EXPECT_GT(furthest, 0.00273);
}

// It is furthest off at N = 29 (1.1218 for 1.1086), just below the step to the next range.
TEST(ReducedVariates, TheDeviationIsNearTheTable) {
    int worst = 0;
    double furthest = 0;
    for (int N = 10; N <= 100; ++N) {
        const double off = std::fabs(desviacionReducida(N).value() - byDefinition(N).deviation);
        EXPECT_LT(off, 0.01313) << N;
        if (off > furthest) {
            furthest = off;
            worst = N;
        }
    }
    EXPECT_EQ(worst, 29);
    EXPECT_GT(furthest, 0.01312);
}

// Euler's constant is the mean of the distribution itself, pi / sqrt(6) its deviation.
TEST(ReducedVariates, OfManyYearsApproachThoseOfTheDistribution) {
    EXPECT_NEAR(mediaReducida(30000).value(), 0.5772156649, 0.0003);
    EXPECT_NEAR(desviacionReducida(30000).value(), 3.14159265358979 / std::sqrt(6.0), 5e-6);
}

// The closed forms in 40 decimal digits.
TEST(ReducedVariates, TheMeanIsItsClosedForm) {
    EXPECT_NEAR(mediaReducida(1).value(), 0.20019612, 1e-15); // 1 - 0 - 0.79980388
    EXPECT_NEAR(mediaReducida(2).value(), 0.339836679487019437, 1e-14);
    EXPECT_NEAR(mediaReducida(5).value(), 0.444565219015547307, 1e-14);
    EXPECT_NEAR(mediaReducida(33).value(), 0.539281291528931644, 1e-14);
    EXPECT_NEAR(mediaReducida(1000).value(), 0.573961861375124816, 1e-12);
}

TEST(ReducedVariates, TheDeviationHasItsOwnPowerInEachRange) {
    const struct {
        long N;
        double SN;
    } values[] = {
        {1, 0.67103805},
        {2, 0.745903617793237593},
        {29, 1.12176337755362578},
        {30, 1.11917041076123351},
        {60, 1.17126085241690501},
        {90, 1.20284861071581412},
        {91, 1.20543695594797592},
        {120, 1.21365250246332003},
        {149, 1.22011989314451269},
        {150, 1.22545012059526239},
        {200, 1.23284699901172631},
        {399, 1.25078760228165896},
        {400, 1.25390965685898311},
        {1000, 1.26949488658525658},
        {1500, 1.27645314408586743},
        {1501, 1.28255},
        {30000, 1.28255},
    };
    for (const auto& [N, SN] : values)
        EXPECT_NEAR(desviacionReducida(N).value(), SN, 1e-14) << N;
}

TEST(ReducedVariates, OfNoYearsHaveNoMean) {
    EXPECT_EQ(testing::failureNumber([] { mediaReducida(0); }), 5);
}

const std::vector<Real> five = {100, 150, 200, 250, 300};

// Mean 200, deviation sqrt(25000 / 4) = 79.0569415042; with YN and SN above,
// 200 - 92.1581593 (0.4445652190 - ln 50) and 1.14 * 92.1581593.
TEST(GumbelFlow, IsTheMeanAndAMultipleOfTheDeviation) {
    const CaudalGumbel c = caudalGumbel(five, 50);
    EXPECT_NEAR(c.Qm.value(), 200, 1e-12);
    EXPECT_NEAR(c.SQ.value(), 79.0569415042094833, 1e-12);
    EXPECT_NEAR(c.YN.value(), 0.444565219015547307, 1e-14);
    EXPECT_NEAR(c.SN.value(), 0.857839875445931903, 1e-14);
    EXPECT_NEAR(c.diseno.Qmax.value(), 519.55451738150662, 1e-11);
    EXPECT_NEAR(c.diseno.deltaQ.value(), 105.060298424515498, 1e-11);
    EXPECT_NEAR(c.diseno.inferior().value(), 414.494218956991121, 1e-11);
    EXPECT_NEAR(c.diseno.superior().value(), 624.614815806022118, 1e-11);
}

// ln 1 = 0, and the margin does not look at T.
TEST(GumbelFlow, OfOneYearHasNoLogarithm) {
    const CaudalGumbel c = caudalGumbel(five, 1);
    EXPECT_NEAR(c.diseno.Qmax.value(), 159.029688966, 1e-8);
    EXPECT_EQ(c.diseno.deltaQ, caudalGumbel(five, 1000).diseno.deltaQ);
}

TEST(GumbelFlow, OfEqualPeaksIsThatPeak) {
    const CaudalGumbel c = caudalGumbel(std::vector<Real>{7, 7, 7}, 100);
    EXPECT_EQ(c.SQ, 0);
    EXPECT_EQ(c.diseno.Qmax, 7);
    EXPECT_EQ(c.diseno.deltaQ, 0);
}

TEST(GumbelFlow, FailsForTooFewPeaksAndForNoPeriod) {
    const auto failureOf = [](const std::vector<Real>& peaks, double T) {
        return testing::failureNumber([&] { caudalGumbel(peaks, T); });
    };
    EXPECT_EQ(failureOf({}, 10), 11);
    EXPECT_EQ(failureOf({5}, 10), 11);
    EXPECT_EQ(failureOf({5, 6}, 10), 0);
    EXPECT_EQ(failureOf(five, 0), 5);
    EXPECT_EQ(failureOf(five, -1), 5);
    EXPECT_EQ(failureOf({1e200, -1e200}, 10), 6);
}

} // namespace
} // namespace caudalera
