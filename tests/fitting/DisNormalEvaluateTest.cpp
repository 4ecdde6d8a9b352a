// The four questions to the fitted distribution. Series 1, 2, 3, 4: Xm = Xl = 2.5, S = 1.2909944,
// Sl = 1.4770449. Quantiles and probabilities are the approximations' own values in 50-digit
// decimal arithmetic, e.g. normalInversa(0.99) = 2.32678533.

#include "tests/fitting/DisNormalTest.h"

namespace caudalera::testing {
namespace {

class DisNormalEvaluate : public DisNormalTest {
protected:
    void fitFour() { fit({"3", "1", "4", "2"}); }
};

TEST_F(DisNormalEvaluate, BeforeAnyCalculation) {
    EXPECT_EQ(messagesOf("bQ"), error("Efectuar cálculos antes de evaluar caudal de diseño"));
    EXPECT_EQ(messagesOf("bT"), error("Efectuar cálculos antes de evaluar el período de retorno"));
    EXPECT_EQ(messagesOf("bPmayor"),
              error("Efectuar cálculos antes de evaluar la probabilidad de excedencia"));
    EXPECT_EQ(messagesOf("bPmenor"),
              error("Efectuar cálculos antes de evaluar la probabilidad de no excedencia"));
}

TEST_F(DisNormalEvaluate, WithEmptyFields) {
    fitFour();
    EXPECT_EQ(messagesOf("bQ"), error("Ingresar un valor de T, antes de evaluar"));
    for (const std::string button : {"bT", "bPmayor", "bPmenor"})
        EXPECT_EQ(messagesOf(button), error("Ingresar un valor para Q, antes de evaluar"))
            << button;
    EXPECT_EQ(text("txtxq"), "");
    EXPECT_EQ(text("txtxt"), "");
    EXPECT_EQ(text("txtxp"), "");
}

TEST_F(DisNormalEvaluate, EachCommandLooksAtItsOwnField) {
    fitFour();
    enter("txtxt", "100");
    EXPECT_EQ(messagesOf("bT"), error("Ingresar un valor para Q, antes de evaluar"));
    enter("txtxt", "");
    enter("txtxq", "3");
    EXPECT_EQ(messagesOf("bQ"), error("Ingresar un valor de T, antes de evaluar"));
}

TEST_F(DisNormalEvaluate, DesignFlow) {
    fitFour();
    EXPECT_EQ(flowOf("100"), "5.50"); // 2.5 + 1.2909944 * 2.3267853 = 5.5039
    EXPECT_EQ(flowOf("1.5"), "1.94"); // p = 1/3: 2.5 - 1.2909944 * 0.4302918
    click("optMomentoLi");
    EXPECT_EQ(flowOf("100"), "5.94"); // 2.5 + 1.4770449 * 2.3267853 = 5.9368
    EXPECT_EQ(flowOf("1.5"), "1.86");
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisNormalEvaluate, ReturnPeriod) {
    fitFour();
    EXPECT_EQ(periodOf("3"), "2.9"); // 1 / (1 - 0.6507323) = 2.8631
    EXPECT_EQ(periodOf("4"), "8.2"); // 1 / (1 - 0.8773609) = 8.1540
    click("optMomentoLi");
    EXPECT_EQ(periodOf("3"), "2.7"); // 1 / (1 - 0.6325119) = 2.7212
    EXPECT_EQ(periodOf("4"), "6.5"); // 1 / (1 - 0.8450761) = 6.4548
}

TEST_F(DisNormalEvaluate, Probabilities) {
    fitFour();
    EXPECT_EQ(above("3"), "34.93");
    EXPECT_EQ(below("3"), "65.07");
    EXPECT_EQ(below("0"), "2.64");   // Z = -1.9364917
    EXPECT_EQ(below("0.8"), "9.40"); // 9.3950433
    click("optMomentoLi");
    EXPECT_EQ(above("3"), "36.75");
    EXPECT_EQ(below("3"), "63.25");
    EXPECT_EQ(below("0"), "4.53"); // Z = -1.6925687
}

// Xm = 37, S = 35.9861: F(-50) = 0.0078116, below 1 %, where the mask writes no zero in front.
TEST_F(DisNormalEvaluate, SmallProbabilityHasNoZeroBeforeThePoint) {
    fit({"10", "20", "30", "100", "25"});
    EXPECT_EQ(below("-50"), ".78");
    EXPECT_EQ(above("-50"), "99.22");
    EXPECT_EQ(above("150"), ".08");
    EXPECT_EQ(below("150"), "99.92");
}

TEST_F(DisNormalEvaluate, OptionCountsWhenTheCommandRuns) {
    fitFour();
    click("optMomentoLi");
    EXPECT_EQ(flowOf("100"), "5.94");
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
}

TEST_F(DisNormalEvaluate, EditedDataChangeNoAnswer) {
    fitFour();
    values({"1000"});
    EXPECT_EQ(flowOf("100"), "5.50");
    click("bCrear");
    EXPECT_EQ(flowOf("100"), "5.50");
}

// p = 0.5: normalInversa gives 1.01E-7, so Q lies 1.3E-7 above the mean of 2.5.
TEST_F(DisNormalEvaluate, PeriodOfTwoIsTheMeanByAHair) {
    fitFour();
    EXPECT_EQ(flowOf("2"), "2.50");
    // The same with S = 1.29E9 makes the hair visible: 1.2909944E9 * 1.0100668E-7 = 130.40.
    keepRows(0);
    fit({"1E9", "2E9", "3E9", "4E9"});
    EXPECT_EQ(flowOf("2"), "2500000130.40");
}

TEST_F(DisNormalEvaluate, PeriodBelowOneAnswersWithoutAWord) {
    fitFour();
    EXPECT_EQ(flowOf("0.5"), "5.75"); // p = -1, z = 2.515517
    EXPECT_EQ(flowOf("-1"), "-0.75"); // p = 2, z = -2.515517
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisNormalEvaluate, NumericPrefixIsWhatIsRead) {
    fitFour();
    EXPECT_EQ(flowOf("100 años"), "5.50");
    EXPECT_EQ(below("abc"), "2.64");
    EXPECT_EQ(below(" "), "2.64");
}

TEST_F(DisNormalEvaluate, UnderACommaTheAnswerDoesNotReadBackWhole) {
    platform.separator = ",";
    fitFour();
    EXPECT_EQ(flowOf("100"), "5,50");
    // bT reads 5: Z = 2.5 / 1.2909944 = 1.9364917, F = 0.9735963, T = 37.87.
    click("bT");
    EXPECT_EQ(text("txtxt"), "37,9");
}

TEST_F(DisNormalEvaluate, PeriodZeroIsFatal) {
    fitFour();
    enter("txtxt", "0");
    click("bQ");
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisNormalEvaluate, BlankPeriodReadsZeroAndIsFatal) {
    fitFour();
    enter("txtxt", " ");
    click("bQ");
    EXPECT_TRUE(fatal(11));
}

TEST_F(DisNormalEvaluate, PeriodOneIsFatal) {
    fitFour();
    enter("txtxt", "1");
    click("bQ");
    EXPECT_TRUE(fatal(11));
}

// p = -3: the logarithm of 1/9 has no root.
TEST_F(DisNormalEvaluate, PeriodFarBelowOneIsFatal) {
    fitFour();
    enter("txtxt", "0.25");
    click("bQ");
    EXPECT_TRUE(fatal(5));
}

// Z = 13.6, where the cumulative value is 1 to the last bit.
TEST_F(DisNormalEvaluate, FlowOfProbabilityOneIsFatalForThePeriodOnly) {
    fitFour();
    EXPECT_EQ(above("20"), ".0");
    EXPECT_EQ(below("20"), "100.0");
    click("bT");
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

} // namespace
} // namespace caudalera::testing
