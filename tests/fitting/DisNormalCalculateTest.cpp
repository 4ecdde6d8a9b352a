// bCalcular of the normal distribution: parameters, result rows, verdict, masks. Cumulative values
// are those of the exact function (by erfc), which the approximation meets in seven decimals.

#include "tests/fitting/DisNormalTest.h"

namespace caudalera::testing {
namespace {

class DisNormalCalculate : public DisNormalTest {};

// 10, 20, 25, 30, 100: mean 37, sum of squares 5180, S = Sqr(1295) = 35.98611. The ten pairs
// differ by 380 in sum, l2 = 19, Sl = 1.7724539 * 19 = 33.67662.
const std::vector<std::string> skewed = {"10", "20", "30", "100", "25"};

TEST_F(DisNormalCalculate, ParametersOfBothKinds) {
    fit(skewed);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"37.0", "35.9861", "37.0", "33.6766"}));
}

// For 100: Z = 63 / 35.98611 = 1.75068, F = 0.96000; 63 / 33.67662 = 1.87074, F = 0.96931.
TEST_F(DisNormalCalculate, RowsByRankWithOrdinaryDelta) {
    fit(skewed);
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.2265|0.2114|0.0599", "2|20.0|0.3333|0.3183|0.3068|0.0150",
                     "3|25.0|0.50|0.3694|0.3608|0.1306", "4|30.0|0.6667|0.4229|0.4177|0.2438",
                     "5|100.0|0.8333|0.960|0.9693|0.1267"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
}

TEST_F(DisNormalCalculate, RowsByRankWithLinearDelta) {
    click("optMomentoLi");
    fit(skewed);
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.2265|0.2114|0.0447", "2|20.0|0.3333|0.3183|0.3068|0.0265",
                     "3|25.0|0.50|0.3694|0.3608|0.1392", "4|30.0|0.6667|0.4229|0.4177|0.2490",
                     "5|100.0|0.8333|0.960|0.9693|0.1360"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos lineales:");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.2490, es menor que el delta tabular 0.6082. Los datos se "
              "ajustan a la distribución Normal, con un nivel de significación del 5%");
}

TEST_F(DisNormalCalculate, ValuesZeroAndBelowAreLegal) {
    fit({"-1", "0", "1", "2"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"0.5", "1.291", "0.5", "1.477"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|-1.0|0.20|0.1226|0.1549|0.0774", "2|0.0|0.40|0.3493|0.3675|0.0507",
                     "3|1.0|0.60|0.6507|0.6325|0.0507", "4|2.0|0.80|0.8774|0.8451|0.0774"}));
}

TEST_F(DisNormalCalculate, EqualValuesTakeRanksOfTheirOwn) {
    fit({"5", "2", "5", "2"});
    EXPECT_EQ(cellText("grddis", 1, 1), "2.0");
    EXPECT_EQ(cellText("grddis", 2, 1), "2.0");
    EXPECT_EQ(cellText("grddis", 3, 1), "5.0");
    EXPECT_EQ(cellText("grddis", 1, 2), "0.20");
    EXPECT_EQ(cellText("grddis", 2, 2), "0.40");
    EXPECT_EQ(cellText("grddis", 3, 2), "0.60");
    EXPECT_EQ(cellText("grddis", 2, 0), "2");
}

TEST_F(DisNormalCalculate, DataStayInTheirOrder) {
    fit({"3", "1", "2", "4"});
    EXPECT_EQ(rowText("grdt", 1), " 1|3.0");
    EXPECT_EQ(rowText("grdt", 2), " 2|1.0");
    EXPECT_EQ(cellText("grddis", 1, 1), "1.0");
    EXPECT_EQ(cellText("grddis", 4, 1), "4.0");
}

// Tabular delta of four values: the coefficients over 2. D = 0.8773609 - 0.8 = 0.0773609.
TEST_F(DisNormalCalculate, VerdictAtEveryLevel) {
    values({"1", "2", "3", "4"});
    const std::vector<Texts> levels = {{"opt020", "0.5350", "20%"},
                                       {"opt010", "0.610", "10%"},
                                       {"opt005", "0.680", "5%"},
                                       {"opt001", "0.8150", "1%"}};
    for (const Texts& level : levels) {
        click(level[0]);
        click("bCalcular");
        EXPECT_EQ(text("lblmensaje"),
                  "Como el delta teórico 0.0774, es menor que el delta tabular " + level[1] +
                      ". Los datos se ajustan a la distribución Normal, con un nivel de "
                      "significación del " +
                      level[2]);
    }
}

// Nine values 1 to 5 by halves and 1000: Xm = 102.7, S = 315.2817, so F of the ninth is 0.3783255
// and its delta 0.8181818 - 0.3783255 = 0.4398563, between 1.36 and 1.63 over Sqr(10).
TEST_F(DisNormalCalculate, VerdictAgainstTheFit) {
    fit({"1", "1.5", "2", "2.5", "3", "3.5", "4", "4.5", "5", "1000"});
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.4399, es mayor que el delta tabular 0.4301. Los datos no se "
              "ajustan a la distribución Normal, con un nivel de significación del 5%");
    click("opt001");
    click("bCalcular");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.4399, es menor que el delta tabular 0.5155. Los datos se "
              "ajustan a la distribución Normal, con un nivel de significación del 1%");
    click("optMomentoLi");
    click("bCalcular");
    // Sl = 177.8953, F of the ninth 0.2914343, delta 0.5267475.
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.5267, es mayor que el delta tabular 0.5155. Los datos no se "
              "ajustan a la distribución Normal, con un nivel de significación del 1%");
}

TEST_F(DisNormalCalculate, OptionsChangeNothingUntilTheNextCalculation) {
    fit({"1", "2", "3", "4"});
    const std::string verdict = text("lblmensaje");
    click("optMomentoLi");
    click("opt020");
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(cellText("grddis", 1, 5), "0.0774");
    click("bCalcular");
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos lineales:");
    EXPECT_EQ(cellText("grddis", 1, 5), "0.0451");
    EXPECT_NE(text("lblmensaje"), verdict);
}

TEST_F(DisNormalCalculate, ShorterSeriesLeavesNoRowsOfALongerOne) {
    fit({"1", "2", "3", "4", "5", "9"});
    ASSERT_EQ(cellText("grddis", 6, 0), "6");
    keepRows(4);
    click("bCalcular");
    EXPECT_EQ(resultRows().size(), 4U);
    EXPECT_EQ(rowText("grddis", 5), "|||||");
    EXPECT_EQ(rowText("grddis", 6), "|||||");
    EXPECT_EQ(rowText("grddis", 4), "4|4.0|0.80|0.8774|0.8451|0.0774");
    EXPECT_EQ(control<MSFlexGrid>("grddis").Rows(), 500);
}

TEST_F(DisNormalCalculate, EmptyAndOddCellsReadAsTheirNumericPrefix) {
    values({"2", "9", "3"});
    cell("grdt", 2, 1);
    click("mnuEditInsertar");
    cell("grdt", 3, 1);
    type("grdt", "1x");
    key("txtt", Key::Kind::up);
    ASSERT_EQ(cellText("grdt", 2, 1), "");
    ASSERT_EQ(cellText("grdt", 3, 1), "1x");
    click("bCalcular");
    // 2, 0, 1, 3 sorted.
    EXPECT_EQ(cellText("grddis", 1, 1), "0.0");
    EXPECT_EQ(cellText("grddis", 2, 1), "1.0");
    EXPECT_EQ(text("txtux"), "1.5");
}

TEST_F(DisNormalCalculate, TheLocalesSeparatorIsWritten) {
    platform.separator = ",";
    fit({"1", "2", "3", "4"});
    EXPECT_EQ(parameters(), (Texts{"2,5", "1,291", "2,5", "1,477"}));
    EXPECT_EQ(rowText("grddis", 1), "1|1,0|0,20|0,1226|0,1549|0,0774");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0,0774, es menor que el delta tabular 0,680. Los datos se "
              "ajustan a la distribución Normal, con un nivel de significación del 5%");
}

} // namespace
} // namespace caudalera::testing
