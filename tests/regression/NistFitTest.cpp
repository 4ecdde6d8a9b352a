// The normal equations against the certified regressions of the NIST/ITL Statistical Reference
// Datasets, all the coefficients of their models, whatever a window has of them.

#include "regression/ajusteMultiple.h"
#include "tests/support/PublishedTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace caudalera {
namespace {

/// A set with its certified values. `digits`: significant digits that normal equations in doubles
/// keep of the worst coefficient (measured with another implementation, which takes the largest
/// pivot), less one as a margin.
struct Certified {
    std::string set;
    std::vector<std::string> variables;
    /// The variables are the powers of the one that there is.
    int degree;
    std::vector<double> coefficients;
    double r2;
    double digits;
};

const std::vector<Certified>& certified() {
    static const std::vector<Certified> sets = {
        {"Norris", {"x1"}, 1, {-0.262323073774029, 1.00211681802045}, 0.999993745883712, 11.1},
        {"Pontius",
         {"x1"},
         2,
         {0.673565789473684e-03, 0.732059160401003e-06, -0.316081871345029e-14},
         0.999999900178537,
         10.2},
        // Exact polynomials, so R2 is 1; the sums reach 10^13 and 10^26.
        {"Wampler1", {"x1"}, 5, {1, 1, 1, 1, 1, 1}, 1, 5.6},
        {"Wampler2", {"x1"}, 5, {1, 0.1, 0.01, 0.001, 0.0001, 0.00001}, 1, 8.6},
        {"Wampler3", {"x1"}, 5, {1, 1, 1, 1, 1, 1}, 0.999995559025820, 5.6},
        {"Wampler4", {"x1"}, 5, {1, 1, 1, 1, 1, 1}, 0.957478440825662, 5.6},
        {"Wampler5", {"x1"}, 5, {1, 1, 1, 1, 1, 1}, 0.224668921574940e-02, 5.6},
        // Columns that nearly depend on each other.
        {"Longley",
         {"x1", "x2", "x3", "x4", "x5", "x6"},
         1,
         {-3482258.63459582, 15.0618722713733, -0.358191792925910e-01, -2.02022980381683,
          -1.03322686717359, -0.511041056535807e-01, 1829.15146461355},
         0.995479004577296,
         6.4},
    };
    return sets;
}

double digitsOf(Real value, double exact) {
    const double error = std::abs(value.value() - exact);
    return error == 0 ? 16 : -std::log10(error / std::abs(exact));
}

class NistFitTest : public ::testing::TestWithParam<std::size_t> {};

INSTANTIATE_TEST_SUITE_P(Sets, NistFitTest, ::testing::Range(std::size_t(0), certified().size()),
                         [](const auto& test) { return certified()[test.param].set; });

TEST_P(NistFitTest, ReachesTheCertifiedValues) {
    const Certified& set = certified()[GetParam()];
    std::vector<Real> y;
    for (const auto& row : publishedTable("nist_" + set.set, {"y"}))
        y.emplace_back(std::stod(row[0]));
    std::vector<std::vector<Real>> x;
    for (const std::string& variable : set.variables) {
        for (int power = 1; power <= set.degree; ++power) {
            x.emplace_back();
            for (const auto& row : publishedTable("nist_" + set.set, {variable}))
                x.back().push_back(Pow(std::stod(row[0]), power));
        }
    }
    const auto fit = ajusteMultiple({x.begin(), x.end()}, y);
    ASSERT_TRUE(fit.has_value());
    ASSERT_EQ(fit->coeficientes.size(), set.coefficients.size());
    for (std::size_t j = 0; j < set.coefficients.size(); ++j)
        EXPECT_GT(digitsOf(fit->coeficientes[j], set.coefficients[j]), set.digits) << "a" << j;
    EXPECT_NEAR(fit->r2.value(), set.r2, 1e-9);
}

} // namespace
} // namespace caudalera
