// bCalcular of the log-normal distribution of two parameters. Cumulative values are those of the
// exact function in 40 digits, which the approximation meets in seven decimals.

#include "tests/fitting/DisLogNormal2Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal2Calculate : public DisLogNormal2Test {};

// The logarithms 0, 0.6931472, 1.0986123, 1.3862944: mean Log(24) / 4 = 0.7945135, sum of squares
// 1.0842075, Sy = Sqr(0.3614025) = 0.6011676. The six pairs differ by 4.5643482 in sum, l2 =
// 0.3803623, Syl = 1.7724539 l2 = 0.6741747.
TEST_F(DisLogNormal2Calculate, ParametersAndRowsByOrdinaryMoments) {
    fit({"3", "1", "4", "2"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"0.7945", "0.6012", "0.7945", "0.6742"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|1.0|0.20|0.0931|0.1193|0.1069", "2|2.0|0.40|0.4330|0.4402|0.0330",
                     "3|3.0|0.60|0.6935|0.6740|0.0935", "4|4.0|0.80|0.8375|0.810|0.0375"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1069, es menor que el delta tabular 0.680. Los datos se "
              "ajustan a la distribución logNormal 2 parámetros, con un nivel de significación del "
              "5%");
}

TEST_F(DisLogNormal2Calculate, RowsByLinearMoments) {
    click("optMomentoLi");
    fit({"10", "20", "30", "100", "25"});
    EXPECT_EQ(parameters(), (Texts{"3.3047", "0.8378", "3.3047", "0.8881"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.1158|0.1296|0.0371", "2|20.0|0.3333|0.3561|0.3640|0.0306",
                     "3|25.0|0.50|0.4592|0.4615|0.0385", "4|30.0|0.6667|0.5458|0.5433|0.1234",
                     "5|100.0|0.8333|0.9397|0.9284|0.0951"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos lineales:");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1234, es menor que el delta tabular 0.6082. Los datos se "
              "ajustan a la distribución logNormal 2 parámetros, con un nivel de significación del "
              "5%");
}

// Values below 1 have a negative mean of the logarithms: -Log(80) / 4 = -1.0955.
TEST_F(DisLogNormal2Calculate, ValuesBelowOne) {
    fit({"0.5", "0.25", "0.125", "0.8"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"-1.0955", "0.8115", "-1.0955", "0.9249"}));
    EXPECT_EQ(cellText("grddis", 4, 3), "0.8588");
    EXPECT_EQ(cellText("grddis", 4, 4), "0.8272");
}

// Nine values 1 to 5 by halves and a million: D is 0.3821775 of the ninth by ordinary moments,
// 0.4136756 by linear ones. Tabular deltas of ten values: 0.3383637, 0.3857979, 0.4300698.
TEST_F(DisLogNormal2Calculate, VerdictsOnEitherSide) {
    const std::string name = " a la distribución logNormal 2 parámetros, con un nivel de "
                             "significación del ";
    const auto verdict = [&](const std::string& level) {
        click(level);
        click("bCalcular");
        return text("lblmensaje");
    };
    values({"1", "1.5", "2", "2.5", "3", "3.5", "4", "4.5", "5", "1000000"});
    EXPECT_EQ(verdict("opt020"), "Como el delta teórico 0.3822, es mayor que el delta tabular "
                                 "0.3384. Los datos no se ajustan" +
                                     name + "20%");
    EXPECT_EQ(verdict("opt010"), "Como el delta teórico 0.3822, es menor que el delta tabular "
                                 "0.3858. Los datos se ajustan" +
                                     name + "10%");
    click("optMomentoLi");
    EXPECT_EQ(verdict("opt010"), "Como el delta teórico 0.4137, es mayor que el delta tabular "
                                 "0.3858. Los datos no se ajustan" +
                                     name + "10%");
    EXPECT_EQ(verdict("opt001"), "Como el delta teórico 0.4137, es menor que el delta tabular "
                                 "0.5155. Los datos se ajustan" +
                                     name + "1%");
}

// 1 to 499: mean of the logarithms Log(499!) / 499 = 5.220673.
TEST_F(DisLogNormal2Calculate, FourHundredAndNinetyNineValues) {
    load(countingSeries(499));
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"5.2207", "0.9759", "5.2207", "0.8772"}));
    EXPECT_EQ(rowText("grddis", 499), "499|499.0|0.9980|0.8453|0.8709|0.1527");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1527, es mayor que el delta tabular 0.0609. Los datos no se "
              "ajustan a la distribución logNormal 2 parámetros, con un nivel de significación del "
              "5%");
}

TEST_F(DisLogNormal2Calculate, FiveHundredValuesFailInTheLastRow) {
    load(countingSeries(500));
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(rowText("grddis", 499), "499|499.0|0.9960|0.8448|0.8704|0.1512");
    EXPECT_EQ(parameters(), (Texts{"5.2227", "0.9759", "5.2227", "0.8772"}));
    EXPECT_EQ(text("lblmensaje"), "");
}

} // namespace
} // namespace caudalera::testing
