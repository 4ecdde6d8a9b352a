// The common parameters as numbers, where the masks of the window would hide their accuracy.

#include "shell/numbers/parametrosComunes.h"
#include "tests/support/FailureNumber.h"
#include "tests/support/PublishedSeries.h"

#include <cmath>
#include <gtest/gtest.h>

namespace caudalera::testing {
namespace {

std::vector<Real> sample(const std::vector<std::string>& texts) {
    std::vector<Real> x;
    for (const std::string& each : texts)
        x.emplace_back(std::stod(each));
    return x;
}

/// Correct digits: minus the decimal logarithm of the relative error, 15 if there is none.
double digits(Real value, double certified) {
    const double error = std::fabs(value.value() / certified - 1);
    return error == 0 ? 15 : std::min(15.0, -std::log10(error));
}

struct Certified {
    const char* name;
    double mean;
    double deviation;
    /// What the sums about the mean reach in doubles for the deviation, less a digit.
    double deviationDigits;
};

class Nist : public ::testing::TestWithParam<Certified> {};

// A two-pass sum of squares keeps 13 digits and more of the sets whose values share their leading
// digits; the textbook formula with the sum of the squares would keep 8.
TEST_P(Nist, MeanAndDeviation) {
    const Certified& set = GetParam();
    const std::vector<Real> s = sample(publishedSeries(set.name));
    const SumasCentrales sums = sumasCentrales(s);
    const Real deviation = Sqr(sums.cuadrados / (sums.n - 1));
    EXPECT_GE(digits(sums.media, set.mean), 14);
    EXPECT_GE(digits(deviation, set.deviation), set.deviationDigits);
}

INSTANTIATE_TEST_SUITE_P(
    Univariate, Nist,
    ::testing::Values(Certified{"nist_Lew", -177.435, 277.332168044316, 14},
                      Certified{"nist_Lottery", 518.958715596330, 291.699727470969, 14},
                      Certified{"nist_Mavro", 2.001856, 0.000429123454003053, 12},
                      Certified{"nist_Michelso", 299.8524, 0.0790105478190518, 12},
                      Certified{"nist_NumAcc1", 10000002, 1, 15}),
    [](const auto& each) { return std::string(each.param.name); });

// 1, 2, 3, 10 by hand: S2 = 50, M3 = 45, M4 = 348.5 about the mean 4.
TEST(Comunes, CentralSums) {
    const std::vector<Real> s = sample({"10", "1", "3", "2"});
    const SumasCentrales sums = sumasCentrales(s);
    EXPECT_EQ(sums.media.value(), 4);
    EXPECT_EQ(sums.cuadrados.value(), 50);
    EXPECT_EQ(sums.M3.value(), 45);
    EXPECT_EQ(sums.M4.value(), 348.5);
}

TEST(Comunes, SampleAndPopulationDifferInTheirDivisors) {
    const std::vector<Real> s = sample({"1", "2", "3", "10"});
    const SumasCentrales sums = sumasCentrales(s);
    const ParametrosComunes a = parametrosMuestrales(sums);
    const ParametrosComunes b = parametrosPoblacionales(sums);
    EXPECT_DOUBLE_EQ(a.varianza.value(), 50.0 / 3);
    EXPECT_DOUBLE_EQ(b.varianza.value(), 12.5);
    // Squares of the skews, free of roots: (720 / 6)^2 / (50 / 3)^3 and 45^2 / 12.5^3.
    EXPECT_NEAR(std::pow(a.sesgo.value(), 2), 14400.0 * 27 / 125000, 1e-12);
    EXPECT_NEAR(std::pow(b.sesgo.value(), 2), 2025 / 1953.125, 1e-12);
    EXPECT_NEAR(a.curtosis.value(), 13.3824, 1e-12);
    EXPECT_NEAR(b.curtosis.value(), 2.2304, 1e-12);
}

TEST(Comunes, PopulationNeedsOnlyTwoDifferentValues) {
    const std::vector<Real> s = sample({"1", "3"});
    const ParametrosComunes p = parametrosPoblacionales(sumasCentrales(s));
    EXPECT_EQ(p.varianza.value(), 1);
    EXPECT_EQ(p.sesgo.value(), 0);
    EXPECT_EQ(p.curtosis.value(), 1);
}

TEST(Comunes, FailuresByTheirNumbers) {
    const auto ofSample = [](const std::vector<std::string>& texts) {
        return failureNumber([&] {
            const std::vector<Real> s = sample(texts);
            parametrosMuestrales(sumasCentrales(s));
        });
    };
    EXPECT_EQ(ofSample({}), 11);
    EXPECT_EQ(ofSample({"1"}), 11);
    EXPECT_EQ(ofSample({"1", "2"}), 11);
    EXPECT_EQ(ofSample({"1", "2", "4"}), 11);
    EXPECT_EQ(ofSample({"5", "5", "5", "5"}), 11);
    EXPECT_EQ(ofSample({"-1", "1", "-2", "2"}), 11);
    EXPECT_EQ(ofSample({"1e155", "-1e155", "2", "4"}), 6);
    EXPECT_EQ(ofSample({"1", "2", "4", "9"}), 0);
}

} // namespace
} // namespace caudalera::testing
