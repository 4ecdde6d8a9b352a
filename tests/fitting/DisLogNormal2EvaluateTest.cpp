// The four questions to the fitted distribution. Series 1, 2, 3, 4: parameters 0.79451346 and
// 0.60116761, by linear moments 0.79451346 and 0.67417471. Quantiles and probabilities are the
// approximations' own values in 40-digit arithmetic.

#include "tests/fitting/DisLogNormal2Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal2Evaluate : public DisLogNormal2Test {
protected:
    void fitFour() { fit({"3", "1", "4", "2"}); }
};

TEST_F(DisLogNormal2Evaluate, BeforeAnyCalculation) {
    EXPECT_EQ(messagesOf("bQ"), error("Efectuar cálculos antes de evaluar caudal de diseño"));
    EXPECT_EQ(messagesOf("bT"), error("Efectuar cálculos antes de evaluar el período de retorno"));
    EXPECT_EQ(messagesOf("bPmayor"),
              error("Efectuar cálculos antes de evaluar la probabilidad de excedencia"));
    EXPECT_EQ(messagesOf("bPmenor"),
              error("Efectuar cálculos antes de evaluar la probabilidad de no excedencia"));
}

TEST_F(DisLogNormal2Evaluate, WithEmptyFields) {
    fitFour();
    EXPECT_EQ(messagesOf("bQ"), error("Ingresar un valor de T, antes de evaluar"));
    for (const std::string button : {"bT", "bPmayor", "bPmenor"})
        EXPECT_EQ(messagesOf(button), error("Ingresar un valor para Q, antes de evaluar"))
            << button;
}

TEST_F(DisLogNormal2Evaluate, DesignFlow) {
    fitFour();
    EXPECT_EQ(flowOf("100"), "8.96"); // Exp(0.79451346 + 0.60116761 * 2.3267853) = 8.9648
    EXPECT_EQ(flowOf("1.5"), "1.71"); // p = 1/3, z = -0.43029176: 1.70888
    EXPECT_EQ(flowOf("2"), "2.21");   // the fourth root of 24
    EXPECT_EQ(flowOf("1000"), "14.19");
    click("optMomentoLi");
    EXPECT_EQ(flowOf("100"), "10.62"); // 10.62461
    EXPECT_EQ(flowOf("1.5"), "1.66");  // 1.65603
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogNormal2Evaluate, PeriodBelowOneAnswersWithoutAWord) {
    fitFour();
    EXPECT_EQ(flowOf("0.5"), "10.04"); // p = -1, z = 2.515517: 10.04184
    EXPECT_EQ(flowOf("-1"), "0.49");   // p = 2, z = -2.515517: 0.487857
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogNormal2Evaluate, ReturnPeriod) {
    fitFour();
    EXPECT_EQ(periodOf("3"), "3.3");    // Z = 0.5058470, F = 0.6935180: 3.26283
    EXPECT_EQ(periodOf("10"), "165.0"); // Z = 2.5085710: 164.988
    click("optMomentoLi");
    EXPECT_EQ(periodOf("3"), "3.1");   // 3.06777
    EXPECT_EQ(periodOf("10"), "79.1"); // 79.0770
}

TEST_F(DisLogNormal2Evaluate, Probabilities) {
    fitFour();
    EXPECT_EQ(above("3"), "30.65");
    EXPECT_EQ(below("3"), "69.35");
    EXPECT_EQ(below("0.5"), ".67"); // Z = -2.4746187: 0.666893
    EXPECT_EQ(above("0.5"), "99.33");
    click("optMomentoLi");
    EXPECT_EQ(above("3"), "32.60");
    EXPECT_EQ(below("3"), "67.40");
    EXPECT_EQ(below("0.5"), "1.37");
}

TEST_F(DisLogNormal2Evaluate, OptionCountsWhenTheCommandRuns) {
    fitFour();
    click("optMomentoLi");
    EXPECT_EQ(flowOf("0.5"), "12.07"); // 12.06624
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    click("optOrdinario");
    EXPECT_EQ(flowOf("0.5"), "10.04");
}

class DisLogNormal2FlowWithoutALogarithm
    : public DisLogNormal2Evaluate,
      public ::testing::WithParamInterface<std::pair<std::string, std::string>> {};

TEST_P(DisLogNormal2FlowWithoutALogarithm, IsFatal) {
    const auto& [button, flow] = GetParam();
    fitFour();
    enter("txtxq", flow);
    click(button);
    EXPECT_TRUE(fatal(5));
    EXPECT_TRUE(messages().empty());
}

INSTANTIATE_TEST_SUITE_P(EachCommand, DisLogNormal2FlowWithoutALogarithm,
                         ::testing::Values(std::pair("bT", "0"), std::pair("bT", "-3"),
                                           std::pair("bPmayor", "0"), std::pair("bPmayor", "-3"),
                                           std::pair("bPmenor", "0"), std::pair("bPmenor", "-3"),
                                           std::pair("bPmenor", " "), std::pair("bT", "abc")));

TEST_F(DisLogNormal2Evaluate, PeriodZeroIsFatal) {
    fitFour();
    enter("txtxt", "0");
    click("bQ");
    EXPECT_TRUE(fatal(11));
}

TEST_F(DisLogNormal2Evaluate, PeriodOneIsFatal) {
    fitFour();
    enter("txtxt", "1");
    click("bQ");
    EXPECT_TRUE(fatal(11));
}

TEST_F(DisLogNormal2Evaluate, PeriodFarBelowOneIsFatal) {
    fitFour();
    enter("txtxt", "0.25");
    click("bQ");
    EXPECT_TRUE(fatal(5));
}

// 1, 1E100, 1E200, 1E300: mean 345.4, deviation 297.3; 345.4 + 2.33 * 297.3 is past Log of the
// largest double, 709.8.
TEST_F(DisLogNormal2Evaluate, FlowPastTheDoublesIsFatal) {
    fit({"1", "1E100", "1E200", "1E300"});
    EXPECT_EQ(text("txtSX"), "297.2625");
    enter("txtxt", "100");
    click("bQ");
    EXPECT_TRUE(fatal(6));
}

// Z = 10.17, where the cumulative value is 1 to the last bit.
TEST_F(DisLogNormal2Evaluate, FlowOfProbabilityOneIsFatalForThePeriodOnly) {
    fitFour();
    EXPECT_EQ(above("1000"), ".0");
    EXPECT_EQ(below("1000"), "100.0");
    click("bT");
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

} // namespace
} // namespace caudalera::testing
