// The routines of the seasonal variation curve: splitting by month, the law of a month, the value
// of a probability.

#include "curves/variacionEstacional.h"
#include "tests/support/FailureNumber.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <utility>

namespace caudalera::testing {
namespace {

/// 1, 2, 3 and so on.
std::vector<Real> ranks(std::size_t count) {
    std::vector<Real> values;
    for (std::size_t i = 1; i <= count; ++i)
        values.emplace_back(static_cast<double>(i));
    return values;
}

TEST(SepararMeses, EachMonthGetsOneValueAYearInTheirOrder) {
    const auto months = separarMeses(ranks(36));
    ASSERT_TRUE(months.has_value());
    ASSERT_EQ(months->size(), 12U);
    EXPECT_EQ((*months)[0], (std::vector<Real>{1, 13, 25}));
    EXPECT_EQ((*months)[1], (std::vector<Real>{2, 14, 26}));
    EXPECT_EQ((*months)[11], (std::vector<Real>{12, 24, 36}));
}

TEST(SepararMeses, OneYearIsWhole) {
    const auto months = separarMeses(ranks(12));
    ASSERT_TRUE(months.has_value());
    EXPECT_EQ((*months)[6], std::vector<Real>{7});
}

TEST(SepararMeses, APartOfAYearIsRefused) {
    for (const std::size_t count : {0U, 1U, 11U, 13U, 23U, 25U})
        EXPECT_FALSE(separarMeses(ranks(count)).has_value()) << count;
}

TEST(AdmitenLogaritmo, OnlyValuesGreaterThanZero) {
    ValoresPorMes months;
    months.fill({1, 2});
    EXPECT_TRUE(admitenLogaritmo(months));
    months[11][1] = 1e-300;
    EXPECT_TRUE(admitenLogaritmo(months));
    months[11][1] = 0;
    EXPECT_FALSE(admitenLogaritmo(months));
    months[11][1] = 2;
    months[0][0] = -1;
    EXPECT_FALSE(admitenLogaritmo(months));
}

// The logarithms of 8 and 2 are 3 ln 2 and ln 2: mean 2 ln 2, deviations of ln 2 each, so the
// deviation with divisor 1 is ln 2 times the root of 2.
TEST(LeyMensual, MeanAndDeviationOfTheLogarithms) {
    const LeyMensual law = leyMensual({8, 2});
    EXPECT_NEAR(law.mediaLog.value(), std::log(4.0), 1e-15);
    EXPECT_NEAR(law.desvLog.value(), 0.98025814346854715, 1e-15);
}

// 1, e and e^5 have the logarithms 0, 1 and 5: mean 2, squares 4 + 1 + 9, divisor 2.
TEST(LeyMensual, ThreeYears) {
    const LeyMensual law = leyMensual({std::exp(5.0), 1, std::exp(1.0)});
    EXPECT_NEAR(law.mediaLog.value(), 2, 1e-15);
    EXPECT_NEAR(law.desvLog.value(), std::sqrt(7.0), 1e-14);
}

TEST(LeyMensual, FailuresByTheirNumbers) {
    EXPECT_EQ(failureNumber([] { leyMensual({}); }), 11);
    EXPECT_EQ(failureNumber([] { leyMensual({5}); }), 11);
    EXPECT_EQ(failureNumber([] { leyMensual({5, 0}); }), 5);
    EXPECT_EQ(failureNumber([] { leyMensual({5, -1}); }), 5);
}

// The variates by the rational approximation in 40-digit decimal arithmetic.
TEST(ValorDeExcedencia, LogarithmsOfTheStandardLaw) {
    const LeyMensual law{0, 1};
    for (const auto& [P, z] :
         {std::pair{0.70, -0.52400187038267984}, std::pair{0.75, -0.67418914004331646},
          std::pair{0.80, -0.84145671735478390}, std::pair{0.85, -1.0364314851895610},
          std::pair{0.90, -1.2817287565027091}, std::pair{0.95, -1.6452114401438157},
          std::pair{0.30, 0.52400187038267984}, std::pair{0.05, 1.6452114401438157}})
        EXPECT_NEAR(std::log(valorDeExcedencia(law, P).value()), z, 1e-13) << P;
}

// Normal variates from a printed table, to the error that the approximation states.
TEST(ValorDeExcedencia, VariatesOfTheTable) {
    const LeyMensual law{0, 1};
    for (const auto& [P, z] : {std::pair{0.70, -0.524401}, std::pair{0.75, -0.674490},
                               std::pair{0.90, -1.281552}, std::pair{0.95, -1.644854}})
        EXPECT_NEAR(std::log(valorDeExcedencia(law, P).value()), z, 4.5e-4) << P;
}

// 4 times 2 to the power 1.41421 z.
TEST(ValorDeExcedencia, MeanAndDeviationOfTheLawCount) {
    const LeyMensual law{std::log(4.0), 0.98025814346854715};
    EXPECT_NEAR(valorDeExcedencia(law, 0.70).value(), 2.393214067153, 1e-11);
    EXPECT_NEAR(valorDeExcedencia(law, 0.95).value(), 0.797369135815, 1e-11);
}

TEST(ValorDeExcedencia, ALargeSpreadGivesZeroWithoutFailure) {
    EXPECT_EQ(valorDeExcedencia({0, 1000}, 0.95), 0);
}

} // namespace
} // namespace caudalera::testing
