// The four questions to the fitted Gumbel distribution, and what it cannot answer. Series 1, 2, 3,
// 4: µ = 1.9189838, alfa = 1.0065842, µl = 1.8060449, alfal = 1.2022459.

#include "tests/fitting/DisGumbelTest.h"

namespace caudalera::testing {
namespace {

class DisGumbelEvaluate : public DisGumbelTest {
protected:
    DisGumbelEvaluate() { fit({"3", "1", "4", "2"}); }
    void expectFatal(const std::string& field, const std::string& value, const std::string& button,
                     int number) {
        enter(field, value);
        click(button);
        EXPECT_TRUE(fatal(number));
        EXPECT_TRUE(messages().empty());
    }
};

// -ln(-ln 0.99) = 4.6001492, -ln(-ln 0.5) = 0.3665129, -ln(-ln(1/3)) = -0.0940478.
TEST_F(DisGumbelEvaluate, DesignFlow) {
    EXPECT_EQ(flowOf("100"), "6.55"); // 6.54942
    EXPECT_EQ(flowOf("2"), "2.29");   // 2.28791
    EXPECT_EQ(flowOf("1.5"), "1.82"); // 1.82432
    click("optMomentoLi");
    EXPECT_EQ(flowOf("100"), "7.34"); // 7.33656
    EXPECT_EQ(flowOf("2"), "2.25");   // 2.24668
    EXPECT_EQ(flowOf("1.5"), "1.69"); // 1.69298
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisGumbelEvaluate, ReturnPeriod) {
    EXPECT_EQ(periodOf("3"), "3.5");  // 3.45532
    EXPECT_EQ(periodOf("6"), "58.1"); // 58.14749
    EXPECT_EQ(periodOf("-1"), "1.0");
    click("optMomentoLi");
    EXPECT_EQ(periodOf("3"), "3.2");  // 3.23040
    EXPECT_EQ(periodOf("6"), "33.2"); // 33.23718
}

TEST_F(DisGumbelEvaluate, Probabilities) {
    EXPECT_EQ(above("3"), "28.94");
    EXPECT_EQ(below("3"), "71.06");
    EXPECT_EQ(below("0"), ".12"); // no zero in front of the point
    EXPECT_EQ(above("0"), "99.88");
    EXPECT_EQ(below("3.3"), "77.60"); // 77.599932
    click("optMomentoLi");
    EXPECT_EQ(above("3"), "30.96");
    EXPECT_EQ(below("3"), "69.04");
    EXPECT_EQ(below("0"), "1.12");
}

TEST_F(DisGumbelEvaluate, NumericPrefixIsWhatIsRead) {
    EXPECT_EQ(flowOf("100 años"), "6.55");
    EXPECT_EQ(below("abc"), ".12");
    EXPECT_EQ(below(" "), ".12");
}

TEST_F(DisGumbelEvaluate, PeriodZeroIsFatal) {
    expectFatal("txtxt", "0", "bQ", 11);
}

TEST_F(DisGumbelEvaluate, PeriodOneIsFatal) {
    expectFatal("txtxt", "1", "bQ", 5);
}

TEST_F(DisGumbelEvaluate, PeriodBelowOneIsFatal) {
    expectFatal("txtxt", "0.5", "bQ", 5);
}

// p = 2: its logarithm has a negative for its opposite.
TEST_F(DisGumbelEvaluate, PeriodBelowZeroIsFatal) {
    expectFatal("txtxt", "-1", "bQ", 5);
}

// 1 - 1E-17 is 1.
TEST_F(DisGumbelEvaluate, PeriodPastTheDigitsOfADoubleIsFatal) {
    expectFatal("txtxt", "1E17", "bQ", 5);
}

// y = 47.8, where G is 1 to the last bit.
TEST_F(DisGumbelEvaluate, FlowOfProbabilityOneIsFatalForThePeriodOnly) {
    EXPECT_EQ(above("50"), ".0");
    EXPECT_EQ(below("50"), "100.0");
    expectFatal("txtxq", "50", "bT", 11);
}

// At -700 y is -697.3, which exp(-y) stands; at -800 it is -796.7.
TEST_F(DisGumbelEvaluate, VeryLowFlowHasTheProbabilityZero) {
    EXPECT_EQ(periodOf("-700"), "1.0");
    EXPECT_EQ(above("-700"), "100.0");
    EXPECT_EQ(below("-700"), ".0");
}

TEST_F(DisGumbelEvaluate, PeriodOfAFarLowerFlowIsFatal) {
    expectFatal("txtxq", "-800", "bT", 6);
}

TEST_F(DisGumbelEvaluate, ExceedanceOfAFarLowerFlowIsFatal) {
    expectFatal("txtxq", "-800", "bPmayor", 6);
}

TEST_F(DisGumbelEvaluate, NonExceedanceOfAFarLowerFlowIsFatal) {
    expectFatal("txtxq", "-800", "bPmenor", 6);
}

} // namespace
} // namespace caudalera::testing
