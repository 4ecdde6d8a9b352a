// bCalcular of the log-normal distribution of three parameters. Cumulative values are those of the
// exact function in 40 digits, which the approximation meets in seven decimals.

#include "tests/fitting/DisLogNormal3Test.h"
#include "tests/support/PublishedSeries.h"

namespace caudalera::testing {
namespace {

class DisLogNormal3Calculate : public DisLogNormal3Test {};

TEST_F(DisLogNormal3Calculate, ParametersRowsAndVerdict) {
    fit(skewed);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"6.25", "2.9164", "1.0326"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|-1.5443|0.0613|0.1054", "2|20.0|0.3333|-0.2861|0.3874|0.0541",
                     "3|25.0|0.50|0.0143|0.5057|0.0057", "4|30.0|0.6667|0.2432|0.5961|0.0706",
                     "5|100.0|0.8333|1.5729|0.9421|0.1088"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1088, es menor que el delta tabular 0.6082. Los datos se "
              "ajustan a la distribución logNormal 3 parámetros, con un nivel de significación del "
              "5%");
}

// xo = 0, the logarithms 0, a, 2 a: Z = -+Sqr(3 / 2) and 0.
TEST_F(DisLogNormal3Calculate, ThreeValuesAreEnough) {
    fit({"4", "1", "2"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"0.0", "0.6931", "0.566"}));
    EXPECT_EQ(resultRows(), (Texts{"1|1.0|0.250|-1.2247|0.1103|0.1397", "2|2.0|0.50|0.00|0.50|0.00",
                                   "3|4.0|0.750|1.2247|0.8897|0.1397"}));
}

// Median 4, xo = (18 - 16) / 3 = 0.6667: an even number of values.
TEST_F(DisLogNormal3Calculate, EvenNumberOfValues) {
    fit({"9", "5", "3", "2"});
    EXPECT_EQ(parameters(), (Texts{"0.6667", "1.1804", "0.6843"}));
    EXPECT_EQ(rowText("grddis", 1), "1|2.0|0.20|-1.3046|0.0960|0.1040");
    EXPECT_EQ(rowText("grddis", 4), "4|9.0|0.80|1.3735|0.9152|0.1152");
}

// Median 2.5, xo = (6 - 6.25) / 2 = -0.125.
TEST_F(DisLogNormal3Calculate, BoundBelowZero) {
    fit({"3", "1", "2", "6"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"-0.125", "0.9558", "0.6145"}));
}

// Nine values of 2 between 1 and 3.5: xo = -1, F = 0.5 for ranks 2 to 10 of 11, whose probabilities
// go from 2 / 12 to 10 / 12: D = 1 / 3. Tabular deltas 1.07 and 1.22 over Sqr(11).
TEST_F(DisLogNormal3Calculate, VerdictsOnEitherSide) {
    values({"1", "2", "2", "2", "2", "2", "2", "2", "2", "2", "3.5"});
    click("opt020");
    click("bCalcular");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.3333, es mayor que el delta tabular 0.3226. Los datos no se "
              "ajustan a la distribución logNormal 3 parámetros, con un nivel de significación del "
              "20%");
    click("opt010");
    click("bCalcular");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.3333, es menor que el delta tabular 0.3678. Los datos se "
              "ajustan a la distribución logNormal 3 parámetros, con un nivel de significación del "
              "10%");
}

// Parameters -2.7707736, 5.2393083, 0.2408348 and D = 0.0650549 in 40-digit arithmetic.
TEST_F(DisLogNormal3Calculate, HarricanaInManyDigits) {
    fit(valuesOf(samplePath("harricana_amos.csv")));
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"-2.7708", "5.2393", "0.2408"}));
    EXPECT_EQ(rowText("grddis", 69), "69|337.0|0.9857|2.4455|0.9928|0.0071");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.0651, es menor que el delta tabular 0.1637. Los datos se "
              "ajustan a la distribución logNormal 3 parámetros, con un nivel de significación del "
              "5%");
}

class DisLogNormal3Limits : public DisLogNormal3Test {
protected:
    static std::vector<float> squares(int n) {
        std::vector<float> series;
        for (int i = 1; i <= n; ++i)
            series.push_back(static_cast<float>(i * i));
        return series;
    }
};

// 1 to 499 squared: median 62500, xo = (249001 - 62500^2) / (249002 - 125000) = -31499.5.
TEST_F(DisLogNormal3Limits, FourHundredAndNinetyNineValues) {
    load(squares(499));
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"-31499.5", "11.4208", "0.6983"}));
    EXPECT_EQ(rowText("grddis", 499), "499|249001.0|0.9980|1.6090|0.9462|0.0518");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.0779, es mayor que el delta tabular 0.0609. Los datos no se "
              "ajustan a la distribución logNormal 3 parámetros, con un nivel de significación del "
              "5%");
}

TEST_F(DisLogNormal3Limits, FiveHundredValuesFailInTheLastRow) {
    load(squares(500));
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(rowText("grddis", 499), "499|249001.0|0.9960|1.6039|0.9456|0.0504");
    EXPECT_EQ(parameters(), (Texts{"-31625.504", "11.4248", "0.6983"}));
    EXPECT_EQ(text("lblmensaje"), "");
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
}

} // namespace
} // namespace caudalera::testing
