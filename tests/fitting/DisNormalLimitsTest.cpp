// The capacity: 499 values are usable, the result grid ends there; the arrays take 500.

#include "tests/fitting/DisNormalTest.h"

namespace caudalera::testing {
namespace {

class DisNormalLimits : public DisNormalTest {
protected:
    static constexpr const char* emptyRow = "|||||";
};

// 1 to 499: mean 250, S = Sqr(499 * 500 / 12) = 144.1932, l2 = 500 / 6, Sl = 147.7045. The last
// value lies 249 above the mean: F(1.726850) = 0.957903, F(1.685798) = 0.954083; delta 0.040097.
TEST_F(DisNormalLimits, Calculates499Values) {
    load(countingSeries(499));
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"250.0", "144.1932", "250.0", "147.7045"}));
    EXPECT_EQ(rowText("grddis", 499), "499|499.0|0.9980|0.9579|0.9541|0.0401");
    // D is 0.0574391 in the exact function, the tabular delta 1.36 / Sqr(499) = 0.0608820.
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.0574, es menor que el delta tabular 0.0609. Los datos se "
              "ajustan a la distribución Normal, con un nivel de significación del 5%");
    click("bGraficar");
    EXPECT_EQ(control<Graph>("Graph1").points(), 500);
}

TEST_F(DisNormalLimits, FiveHundredValuesFailInTheLastRowWhichLeavesTheOthers) {
    load(countingSeries(500));
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    // 499 of 500: F(248.5 / 144.4818) = 0.957278, F(248.5 / 147.9999) = 0.953429.
    EXPECT_EQ(rowText("grddis", 1).substr(0, 6), "1|1.0|");
    EXPECT_EQ(rowText("grddis", 499), "499|499.0|0.9960|0.9573|0.9534|0.0387");
    EXPECT_EQ(parameters(), (Texts{"250.5", "144.4818", "250.5", "147.9999"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(text("lblmensaje"), "");
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
}

TEST_F(DisNormalLimits, FailedCalculationOf500ValuesDrawsThemIfTheGateWasOpen) {
    fit({"1", "2", "3", "4"});
    for (const float value : countingSeries(496))
        values({std::to_string(static_cast<int>(value))});
    ASSERT_EQ(control<MSFlexGrid>("grdt").Rows(), 502);
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<Graph>("Graph1").points(), 501);
}

TEST_F(DisNormalLimits, FiveHundredAndOneValuesFailInTheReading) {
    load(countingSeries(501));
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(rowText("grddis", 1), emptyRow);
    EXPECT_EQ(parameters(), noParameters);
    EXPECT_EQ(text("lblAjuste"), "Ajuste:");
    EXPECT_FALSE(program.ended());
}

TEST_F(DisNormalLimits, ChartPastTheArraysIsFatal) {
    fit({"1", "2", "3", "4"});
    for (int i = 0; i < 497; ++i)
        values({"7"});
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    click("bGraficar");
    EXPECT_TRUE(fatal(9));
}

TEST_F(DisNormalLimits, SavingPastTheArraysIsFatal) {
    load(countingSeries(501));
    platform.answers = {file("otra.X")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

TEST_F(DisNormalLimits, LongestFileLoads) {
    load(std::vector<float>(32000, 1.5F));
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 32002);
    EXPECT_EQ(rowText("grdt", 32000), " 32000|1.5");
}

} // namespace
} // namespace caudalera::testing
