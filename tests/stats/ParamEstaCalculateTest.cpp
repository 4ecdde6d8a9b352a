// bCalcular of the window of ungrouped data: the three columns, the coefficients, their masks.

#include "tests/stats/ParamEstaTest.h"

namespace caudalera::testing {
namespace {

class ParamEstaCalculate : public ParamEstaTest {};

// 1, 2, 3, 4: deviations -1.5, -0.5, 0.5, 1.5, so S2 = 5, S3 = 0, S4 = 10.25.
// Sample: 5 / 3, its root 1.29099, 1.29099 / 2.5 = 0.51640, 0, and with M4 = 2.5625 the kurtosis
// 64 * 2.5625 / (3 * 2 * 1 * 25 / 9) = 9.84. Population: 1.25, 1.11803, 0.44721, 0,
// 2.5625 / 1.5625 = 1.64. The mean difference of two values is 5 / 3, so L2 = 5 / 6; L3 and L4 are
// 0 for evenly spaced values.
TEST_F(ParamEstaCalculate, FourEvenlySpacedValues) {
    calculate({"1", "2", "3", "4"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(),
              (Texts{"2.500|2.500|2.5000", "1.6667|1.25|0.6944", "1.2910|1.1180|0.8333",
                     "0.5164|0.4472|0.3333", "0.00|0.00|0.0000", "9.8400|1.6400|0.0000"}));
    EXPECT_EQ(coefficients(), (Texts{"2.5000", "0.8333", "0.0000", "0.0000"}));
}

TEST_F(ParamEstaCalculate, NamesOfTheParametersArePaddedTo28Characters) {
    calculate({"1", "2", "3", "4"});
    const Texts names = {"Media:                      ", "Varianza:                   ",
                         "Desviación Estándar:        ", "Coeficiente Variación:      ",
                         "Coeficiente de Sesgo:       ", "Coeficiente de Curtosis:    "};
    for (long row = 1; row <= 6; ++row)
        EXPECT_EQ(cellText("grdParam", row, 0), names[static_cast<std::size_t>(row - 1)]);
    EXPECT_EQ(control<MSFlexGrid>("grdParam").columnAlignments.at(0),
              MSFlexGrid::ColumnAlignment::left);
}

// 1, 2, 3, 10: deviations -3, -2, -1, 6, so S2 = 50, S3 = 180, S4 = 1394, M3 = 45, M4 = 348.5.
// Skew 16 * 45 / (3 * 2 * (50 / 3)^1.5) = 1.76363 and 45 / 12.5^1.5 = 1.01823; kurtosis
// 64 * 348.5 / (6 * 2500 / 9) = 13.3824 and 348.5 / 156.25 = 2.2304. The six differences sum up to
// 28, so L2 = 28 / 6 / 2 = 7 / 3; the four triples have mean of (largest - 2 middle + smallest)
// (0 + 7 + 6 + 5) / 4 = 4.5, a third of it is L3 = 1.5; L4 = (10 - 9 + 6 - 1) / 4 = 1.5.
TEST_F(ParamEstaCalculate, SkewedValues) {
    calculate({"1", "2", "3", "10"});
    EXPECT_EQ(parameters(),
              (Texts{"4.00|4.00|4.0000", "16.6667|12.5|5.4444", "4.0825|3.5355|2.3333",
                     "1.0206|0.8839|0.5833", "1.7636|1.0182|0.6429", "13.3824|2.2304|0.6429"}));
    EXPECT_EQ(coefficients(), (Texts{"4.0000", "2.3333", "1.5000", "1.5000"}));
}

// Expected texts from exact fractions, the linear moments by probability-weighted moments.
TEST_F(ParamEstaCalculate, UnsortedValuesWithTiesAndANegative) {
    calculate({"-2.5", "7", "0.25", "7", "12.5"});
    EXPECT_EQ(parameters(),
              (Texts{"4.8500|4.8500|4.8500", "35.7375|28.59|13.5056", "5.9781|5.3470|3.6750",
                     "1.2326|1.1025|0.7577", "-0.0523|-0.0351|-0.0340", "5.5737|1.6721|0.0816"}));
    EXPECT_EQ(coefficients(), (Texts{"4.8500", "3.6750", "-0.1250", "0.3000"}));
}

TEST_F(ParamEstaCalculate, DoesNotTouchTheSortedList) {
    calculate({"4", "3", "2", "1"});
    EXPECT_FALSE(control<Control>("grdorden").visible);
    EXPECT_EQ(control<MSFlexGrid>("grdorden").Rows(), 1);
}

TEST_F(ParamEstaCalculate, InsertedRowCountsAsTheValueZero) {
    values({"1", "2", "3", "10"});
    cell("grdt", 2, 1);
    click("mnuEditInsertar");
    ASSERT_EQ(cellText("grdt", 2, 1), "");
    click("bCalcular");
    // 0, 1, 2, 3, 10: mean 16 / 5; S2 = 114 - 256 / 5 = 62.8, so 62.8 / 4 and 62.8 / 5.
    EXPECT_EQ(cellText("grdParam", 1, 1), "3.200");
    EXPECT_EQ(cellText("grdParam", 2, 1), "15.7");
    EXPECT_EQ(cellText("grdParam", 2, 2), "12.56");
}

TEST_F(ParamEstaCalculate, TextLeftInACellReadsAsItsNumericPrefix) {
    values({"1", "2", "3", "10"});
    cell("grdt", 4, 1);
    type("grdt", "4abc");
    key("txtt", Key::Kind::up);
    ASSERT_EQ(cellText("grdt", 4, 1), "4abc");
    click("bCalcular");
    EXPECT_EQ(cellText("grdParam", 1, 1), "2.500");
    EXPECT_EQ(cellText("grdParam", 2, 1), "1.6667");
}

TEST_F(ParamEstaCalculate, NewResultsReplaceTheOldOnes) {
    calculate({"1", "2", "3", "10"});
    keepRows(3);
    calculate({"4"});
    EXPECT_EQ(cellText("grdParam", 1, 1), "2.500");
    EXPECT_EQ(coefficients(), (Texts{"2.5000", "0.8333", "0.0000", "0.0000"}));
}

TEST_F(ParamEstaCalculate, TheLocalesSeparatorIsWrittenInResultsAndInNothingElse) {
    platform.separator = ",";
    calculate({"1", "2", "3", "10"});
    EXPECT_EQ(parameters(),
              (Texts{"4,00|4,00|4,0000", "16,6667|12,5|5,4444", "4,0825|3,5355|2,3333",
                     "1,0206|0,8839|0,5833", "1,7636|1,0182|0,6429", "13,3824|2,2304|0,6429"}));
    EXPECT_EQ(coefficients(), (Texts{"4,0000", "2,3333", "1,5000", "1,5000"}));
    EXPECT_EQ(rowText("grdt", 1), " 1|1,0");
}

// ENTER writes 2.75 with the locale's comma, and the reading stops at it: 2 is what counts.
TEST_F(ParamEstaCalculate, DecimalsAreCutWhereTheLocaleHasAComma) {
    platform.separator = ",";
    calculate({"1", "2.75", "3", "4"});
    ASSERT_EQ(cellText("grdt", 2, 1), "2,0");
    EXPECT_EQ(cellText("grdParam", 1, 1), "2,500");
}

} // namespace
} // namespace caudalera::testing
