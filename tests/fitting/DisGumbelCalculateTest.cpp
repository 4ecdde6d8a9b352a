// bCalcular of the Gumbel distribution: parameters, result rows, verdict, capacity. All values in
// 120-digit arithmetic (mpmath), from the definitions of the moments.

#include "tests/fitting/DisGumbelTest.h"

namespace caudalera::testing {
namespace {

class DisGumbelCalculate : public DisGumbelTest {};

// Mean 37, S = 35.98611, l2 = 19.
const std::vector<std::string> skewed = {"10", "20", "30", "100", "25"};

TEST_F(DisGumbelCalculate, RowsByRankWithOrdinaryDelta) {
    fit(skewed);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"20.8043", "28.0583", "21.1778", "27.4112"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.230|0.2224|0.0633", "2|20.0|0.3333|0.3573|0.3521|0.0240",
                     "3|25.0|0.50|0.4227|0.4190|0.0773", "4|30.0|0.6667|0.4865|0.4844|0.1802",
                     "5|100.0|0.8333|0.9423|0.9452|0.1089"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1802, es menor que el delta tabular 0.6082. Los datos se "
              "ajustan a la distribución Gumbel, con un nivel de significación del 5%");
}

TEST_F(DisGumbelCalculate, RowsByRankWithLinearDelta) {
    click("optMomentoLi");
    fit(skewed);
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.230|0.2224|0.0557", "2|20.0|0.3333|0.3573|0.3521|0.0187",
                     "3|25.0|0.50|0.4227|0.4190|0.0810", "4|30.0|0.6667|0.4865|0.4844|0.1823",
                     "5|100.0|0.8333|0.9423|0.9452|0.1118"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos lineales:");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1823, es menor que el delta tabular 0.6082. Los datos se "
              "ajustan a la distribución Gumbel, con un nivel de significación del 5%");
}

TEST_F(DisGumbelCalculate, ValuesZeroAndBelowAreLegal) {
    fit({"-1", "0", "1", "2"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"-0.081", "1.0066", "-0.194", "1.2022"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|-1.0|0.20|0.0828|0.1415|0.1172", "2|0.0|0.40|0.3975|0.4270|0.0025",
                     "3|1.0|0.60|0.7106|0.6904|0.1106", "4|2.0|0.80|0.8812|0.8511|0.0812"}));
}

// D is 0.3845053 and 0.4861180; over Sqr(10) the coefficients give 0.3384, 0.3858, 0.4301, 0.5155.
TEST_F(DisGumbelCalculate, VerdictAtEveryLevel) {
    values({"1", "1.5", "2", "2.5", "3", "3.5", "4", "4.5", "5", "1000"});
    const auto verdict = [&](const std::string& kind, const std::string& level) {
        click(kind);
        click(level);
        click("bCalcular");
        return text("lblmensaje");
    };
    const std::string fits =
        ". Los datos se ajustan a la distribución Gumbel, con un nivel de significación del ";
    const std::string fitsNot =
        ". Los datos no se ajustan a la distribución Gumbel, con un nivel de significación del ";
    EXPECT_EQ(verdict("optOrdinario", "opt020"),
              "Como el delta teórico 0.3845, es mayor que el delta tabular 0.3384" + fitsNot +
                  "20%");
    EXPECT_EQ(verdict("optOrdinario", "opt010"),
              "Como el delta teórico 0.3845, es menor que el delta tabular 0.3858" + fits + "10%");
    EXPECT_EQ(verdict("optMomentoLi", "opt005"),
              "Como el delta teórico 0.4861, es mayor que el delta tabular 0.4301" + fitsNot +
                  "5%");
    EXPECT_EQ(verdict("optMomentoLi", "opt001"),
              "Como el delta teórico 0.4861, es menor que el delta tabular 0.5155" + fits + "1%");
}

TEST_F(DisGumbelCalculate, TheLocalesSeparatorIsWritten) {
    platform.separator = ",";
    fit({"1", "2", "3", "4"});
    EXPECT_EQ(parameters(), (Texts{"1,919", "1,0066", "1,806", "1,2022"}));
    EXPECT_EQ(resultRows()[0], "1|1,0|0,20|0,0828|0,1415|0,1172");
}

// Mean 250, S = Sqr(499 * 500 / 12), l2 = 500 / 6.
TEST_F(DisGumbelCalculate, Calculates499Values) {
    load(countingSeries(499));
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"185.1054", "112.4269", "180.6045", "120.2246"}));
    EXPECT_EQ(rowText("grddis", 499), "499|499.0|0.9980|0.9405|0.9317|0.0575");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.0999, es mayor que el delta tabular 0.0609. Los datos no se "
              "ajustan a la distribución Gumbel, con un nivel de significación del 5%");
}

TEST_F(DisGumbelCalculate, FiveHundredValuesFailInTheLastRowWhichLeavesTheOthers) {
    load(countingSeries(500));
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(rowText("grddis", 499), "499|499.0|0.9960|0.940|0.9311|0.0560");
    EXPECT_EQ(parameters(), (Texts{"185.4755", "112.652", "180.9657", "120.465"}));
    EXPECT_EQ(text("lblmensaje"), "");
    EXPECT_EQ(messagesOf("bGraficar"), error("Efectuar cálculos antes de graficar"));
}

} // namespace
} // namespace caudalera::testing
