// The four questions to the fitted distribution: xo = 6.25, 2.91644052, 1.03262464. Quantiles and
// probabilities are the approximations' own values in 40-digit arithmetic.

#include "tests/fitting/DisLogNormal3Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal3Evaluate : public DisLogNormal3Test {
protected:
    static std::vector<Message> notAbove(const std::string& text) {
        return {{"Para este valor, no es posible calcular " + text, "Error", Icon::information}};
    }
};

TEST_F(DisLogNormal3Evaluate, BeforeAnyCalculation) {
    EXPECT_EQ(messagesOf("bQ"), error("Efectuar cálculos antes de evaluar caudal de diseño"));
    EXPECT_EQ(messagesOf("bT"), error("Efectuar cálculos antes de evaluar el período de retorno"));
    EXPECT_EQ(messagesOf("bPmayor"),
              error("Efectuar cálculos antes de evaluar la probabilidad de excedencia"));
    EXPECT_EQ(messagesOf("bPmenor"),
              error("Efectuar cálculos antes de evaluar la probabilidad de no excedencia"));
}

TEST_F(DisLogNormal3Evaluate, WithEmptyFields) {
    fit(skewed);
    EXPECT_EQ(messagesOf("bQ"), error("Ingresar un valor de T, antes de evaluar"));
    for (const std::string button : {"bT", "bPmayor", "bPmenor"})
        EXPECT_EQ(messagesOf(button), error("Ingresar un valor para Q, antes de evaluar"))
            << button;
}

TEST_F(DisLogNormal3Evaluate, DesignFlow) {
    fit(skewed);
    EXPECT_EQ(flowOf("100"), "210.46"); // 6.25 + Exp(2.91644052 + 1.03262464 * 2.3267853)
    EXPECT_EQ(flowOf("1.5"), "18.10");  // 18.09743
    EXPECT_EQ(flowOf("2"), "24.73");    // 24.72541
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogNormal3Evaluate, PeriodBelowOneAnswersWithoutAWord) {
    fit(skewed);
    EXPECT_EQ(flowOf("0.5"), "254.40"); // p = -1: 254.398
    EXPECT_EQ(flowOf("-1"), "7.63");    // p = 2: 7.62555
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogNormal3Evaluate, ReturnPeriodAndProbabilities) {
    fit(skewed);
    EXPECT_EQ(periodOf("60"), "6.6");    // Z = 1.0341639: 6.64320
    EXPECT_EQ(periodOf("300"), "270.8"); // Z = 2.6788907: 270.755
    EXPECT_EQ(above("60"), "15.05");
    EXPECT_EQ(below("60"), "84.95");
    EXPECT_EQ(above("300"), ".37");
    EXPECT_EQ(below("8"), "1.12");
    EXPECT_EQ(below("16"), "26.80"); // 26.796501
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogNormal3Evaluate, FlowNotAboveTheBoundIsRefused) {
    fit(skewed);
    for (const std::string flow : {"6.25", "6.24", "0", "-5", "abc"}) {
        SCOPED_TRACE(flow);
        enter("txtxt", "7");
        enter("txtxp", "8");
        enter("txtxq", flow);
        EXPECT_EQ(messagesOf("bT"),
                  notAbove("el período de retorno, además este valor es muy pequeño"));
        EXPECT_EQ(messagesOf("bPmayor"), notAbove("la probabilidad de excedencia"));
        EXPECT_EQ(messagesOf("bPmenor"), notAbove("la probabilidad de no excedencia"));
        EXPECT_EQ(text("txtxt"), "7");
        EXPECT_EQ(text("txtxp"), "8");
        EXPECT_FALSE(program.ended());
    }
}

// Z = -7.28: a probability that its mask writes as nothing.
TEST_F(DisLogNormal3Evaluate, FlowAHairAboveTheBoundIsAnswered) {
    fit(skewed);
    EXPECT_EQ(below("6.26"), ".0");
    EXPECT_EQ(above("6.26"), "100.0");
    EXPECT_EQ(periodOf("6.26"), "1.0");
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogNormal3Evaluate, EditedDataChangeNoAnswer) {
    fit(skewed);
    values({"1000"});
    EXPECT_EQ(flowOf("100"), "210.46");
}

TEST_F(DisLogNormal3Evaluate, PeriodZeroIsFatal) {
    fit(skewed);
    enter("txtxt", "0");
    click("bQ");
    EXPECT_TRUE(fatal(11));
}

TEST_F(DisLogNormal3Evaluate, PeriodOneIsFatal) {
    fit(skewed);
    enter("txtxt", "1");
    click("bQ");
    EXPECT_TRUE(fatal(11));
}

// 1, 2, 4 have xo = 0: Z of 5000 is 13.8, where the cumulative value is 1 to the last bit.
TEST_F(DisLogNormal3Evaluate, FlowOfProbabilityOneIsFatalForThePeriodOnly) {
    fit({"1", "2", "4"});
    EXPECT_EQ(above("5000"), ".0");
    EXPECT_EQ(below("5000"), "100.0");
    click("bT");
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

} // namespace
} // namespace caudalera::testing
