// The straight line of least squares.

#include "regression/ajusteLineal.h"
#include "regression/textosRegresion.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <string>
#include <vector>

namespace caudalera {
namespace {

int failureOf(const std::vector<Real>& u, const std::vector<Real>& v) {
    return testing::failureNumber([&] { ajusteLineal(u, v); });
}

// NIST/ITL Statistical Reference Datasets, Norris, with its certified values. Normal equations in
// doubles keep some twelve digits of them; one is left as a margin.
TEST(LinearFit, ReachesTheCertifiedValuesOfNorris) {
    std::ifstream file(std::string(CAUDALERA_SOURCE_DIR) + "/tests/data/nist_Norris.csv");
    std::string header;
    ASSERT_TRUE(std::getline(file, header));
    ASSERT_EQ(header.substr(0, 4), "y,x1");
    std::vector<Real> x;
    std::vector<Real> y;
    double yi = 0;
    double xi = 0;
    char comma = 0;
    while (file >> yi >> comma >> xi) {
        x.emplace_back(xi);
        y.emplace_back(yi);
    }
    ASSERT_EQ(x.size(), 36U);

    const AjusteLineal line = ajusteLineal(x, y);
    EXPECT_NEAR(line.intercepto.value() / -0.262323073774029, 1, 1e-11);
    EXPECT_NEAR(line.pendiente.value() / 1.00211681802045, 1, 1e-11);
    EXPECT_NEAR(line.r2.value() / 0.999993745883712, 1, 1e-11);
    EXPECT_NEAR(line.r.value(), std::sqrt(0.999993745883712), 1e-11);
}

AjusteLineal fit(const std::vector<Real>& u, const std::vector<Real>& v) {
    return ajusteLineal(u, v);
}

TEST(LinearFit, FindsALineExactly) {
    const AjusteLineal line = fit({-1, 0, 1, 2}, {5, 3, 1, -1});
    EXPECT_DOUBLE_EQ(line.intercepto.value(), 3);
    EXPECT_DOUBLE_EQ(line.pendiente.value(), -2);
    EXPECT_DOUBLE_EQ(line.r.value(), -1);
    EXPECT_DOUBLE_EQ(line.r2.value(), 1);
}

// Means 0 and 1, Cuu = 2, Cvv = 9 - 3 = 6, Cuv = -2 + 2 = 0.
TEST(LinearFit, HasNoSlopeWithoutCorrelation) {
    const AjusteLineal line = fit({-1, 0, 1}, {2, -1, 2});
    EXPECT_EQ(line.intercepto, 1);
    EXPECT_EQ(line.pendiente, 0);
    EXPECT_EQ(line.r, 0);
    EXPECT_EQ(line.r2, 0);
}

TEST(LinearFit, FailsOnDataWithoutSpread) {
    EXPECT_EQ(failureOf({}, {}), 11);
    EXPECT_EQ(failureOf({2}, {3}), 11);
    EXPECT_EQ(failureOf({2, 2}, {3, 4}), 11);
    EXPECT_EQ(failureOf({2, 3}, {4, 4}), 11);
    EXPECT_EQ(failureOf({1e200, 2}, {3, 4}), 6);
}

TEST(LineText, TakesTheSignFromTheSlopesText) {
    EXPECT_EQ(textoRecta("1.0", "2.5"), "Y = 1.0 + 2.5 * X");
    EXPECT_EQ(textoRecta("1.0", "-2.5"), "Y = 1.0  -2.5 * X");
    EXPECT_EQ(textoRecta("-1.0", "0.0"), "Y = -1.0 + 0.0 * X");
}

} // namespace
} // namespace caudalera
