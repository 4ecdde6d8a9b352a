// What the window of the Gumbel distribution of the logarithms does by itself: its calculation, its
// refusal of values that have no logarithm, its answers. All values in 120-digit arithmetic.

#include "tests/fitting/DisGumbelTest.h"

namespace caudalera::testing {
namespace {

class DisLogGumbel : public DisLogGumbelTest {
protected:
    void fitFour() { fit({"3", "1", "4", "2"}); }
    void expectFatal(const std::string& field, const std::string& value, const std::string& button,
                     int number) {
        enter(field, value);
        click(button);
        EXPECT_TRUE(fatal(number));
        EXPECT_TRUE(messages().empty());
    }
    const std::vector<Message> notPositive = {
        {"Para esta distribución, los valores de la serie no pueden ser iguales a 0, ¡Corregir "
         "valores¡",
         "Mensaje de error", Icon::information}};
};

TEST_F(DisLogGumbel, RowsByRankWithOrdinaryDelta) {
    fit({"10", "20", "30", "100", "25"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"2.9277", "0.6532", "2.8875", "0.7229"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.0740|0.1058|0.0927", "2|20.0|0.3333|0.4061|0.4228|0.0728",
                     "3|25.0|0.50|0.5271|0.5314|0.0271", "4|30.0|0.6667|0.6161|0.6118|0.0506",
                     "5|100.0|0.8333|0.9262|0.9113|0.0928"}));
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.0928, es menor que el delta tabular 0.6082. Los datos se "
              "ajustan a la distribución logGumbel, con un nivel de significación del 5%");
}

TEST_F(DisLogGumbel, RowsByRankWithLinearDelta) {
    click("optMomentoLi");
    fitFour();
    EXPECT_EQ(resultRows(),
              (Texts{"1|1.0|0.20|0.0470|0.0918|0.1082", "2|2.0|0.40|0.4981|0.5090|0.1090",
                     "3|3.0|0.60|0.7457|0.7243|0.1243", "4|4.0|0.80|0.8531|0.8262|0.0262"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos lineales:");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1243, es menor que el delta tabular 0.680. Los datos se "
              "ajustan a la distribución logGumbel, con un nivel de significación del 5%");
}

// By tenths they would be 1, 2, 3, 4 with the parameters of those.
TEST_F(DisLogGumbel, LogarithmsAreNatural) {
    fit({"10", "100", "1000", "10000"});
    EXPECT_EQ(parameters(), (Texts{"4.4186", "2.3177", "4.1586", "2.7683"}));
    EXPECT_EQ(rowText("grddis", 4), "4|10000.0|0.80|0.8812|0.8511|0.0812");
}

// D is 0.3768102 and 0.4622447; over Sqr(10) the coefficients give 0.3384, 0.3858, 0.4301, 0.5155.
TEST_F(DisLogGumbel, VerdictOnBothSides) {
    fit({"1", "2", "2", "2", "2", "2", "2", "2", "2", "100000"});
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.3768, es menor que el delta tabular 0.4301. Los datos se "
              "ajustan a la distribución logGumbel, con un nivel de significación del 5%");
    click("optMomentoLi");
    click("bCalcular");
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.4622, es mayor que el delta tabular 0.4301. Los datos no se "
              "ajustan a la distribución logGumbel, con un nivel de significación del 5%");
}

TEST_F(DisLogGumbel, Calculates499Values) {
    load(countingSeries(499));
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"4.7815", "0.7609", "4.8085", "0.714"}));
    EXPECT_EQ(rowText("grddis", 1), "1|1.0|0.0020|0.00|0.00|0.0020");
    EXPECT_EQ(rowText("grddis", 499), "499|499.0|0.9980|0.8586|0.8694|0.1394");
}

TEST_F(DisLogGumbel, FiveHundredValuesFailInTheLastRowWhichLeavesTheOthers) {
    load(countingSeries(500));
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(rowText("grddis", 499), "499|499.0|0.9960|0.8582|0.8691|0.1378");
    EXPECT_EQ(parameters(), (Texts{"4.7834", "0.7609", "4.8105", "0.714"}));
    EXPECT_EQ(text("lblmensaje"), "");
}

TEST_F(DisLogGumbel, ValuesOfZeroAndBelowAreRefusedAndLeaveTheEarlierResults) {
    fitFour();
    const std::string verdict = text("lblmensaje");
    const Texts rows = resultRows();
    for (const std::string value : {"0", "-2"}) {
        fit({value});
        EXPECT_EQ(messages(), notPositive) << value;
        keepRows(4);
    }
    EXPECT_EQ(parameters(), ofLogarithms.parameters);
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(resultRows(), rows);
    EXPECT_EQ(flowOf("100"), "14.59");
}

// It comes before every failure of a short series, and opens no gate.
TEST_F(DisLogGumbel, OneValueOfZeroIsRefusedBeforeAnyArithmetic) {
    fit({"0"});
    EXPECT_EQ(messages(), notPositive);
    fit({"3"});
    EXPECT_EQ(messages(), notPositive);
    EXPECT_EQ(messagesOf("bQ"), error("Efectuar cálculos antes de evaluar caudal de diseño"));
    EXPECT_EQ(text("lblAjuste"), "Ajuste:");
}

TEST_F(DisLogGumbel, SmallestPositiveValueIsTaken) {
    fit({"0.00000001", "1", "2", "3"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(resultRows().size(), 4U);
}

TEST_F(DisLogGumbel, FewerThanFourValues) {
    click("bCalcular");
    EXPECT_EQ(messages(), badData) << "no value";
    for (const std::string value : {"3", "1", "2"}) {
        fit({value});
        EXPECT_EQ(messages(), badData) << value;
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_TRUE(resultRows().empty());
    }
    fit({"4"});
    EXPECT_EQ(parameters(), ofLogarithms.parameters);
}

// The logarithms cancel exactly, so their mean is 0; no parameter has been set by then.
TEST_F(DisLogGumbel, GeometricMeanOfExactlyOne) {
    fitFour();
    keepRows(0);
    fit({"2", "1", "0.5", "1"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(flowOf("100"), "14.59");
    EXPECT_EQ(parameters(), ofLogarithms.parameters);
}

TEST_F(DisLogGumbel, FailureInTheLinearSumsLeavesAllParameters) {
    fitFour();
    keepRows(0);
    fit({"50", "60", "75"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(flowOf("100"), "14.59");
    click("optMomentoLi");
    EXPECT_EQ(flowOf("100"), "20.13");
}

// The logarithms have no skew that would fail before the parameters: the scale is set to 0 and the
// reduced variates fail, so the flow of any period is 5 and the way back divides by zero.
TEST_F(DisLogGumbel, EqualValuesFailBehindTheParameters) {
    fitFour();
    keepRows(0);
    fit({"5", "5", "5", "5"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), ofLogarithms.parameters);
    EXPECT_EQ(flowOf("100"), "5.0");
    click("optMomentoLi");
    EXPECT_EQ(flowOf("2"), "5.0");
    expectFatal("txtxq", "6", "bPmenor", 11);
}

// exp(0.5239560 + 0.4687285 * 4.6001492) and so on.
TEST_F(DisLogGumbel, DesignFlow) {
    fitFour();
    EXPECT_EQ(flowOf("100"), "14.59"); // 14.58767
    EXPECT_EQ(flowOf("2"), "2.01");    // 2.00522
    EXPECT_EQ(flowOf("1.5"), "1.62");  // 1.61587
    click("optMomentoLi");
    EXPECT_EQ(flowOf("100"), "20.13"); // 20.12747
    EXPECT_EQ(flowOf("2"), "1.97");    // 1.97169
    EXPECT_EQ(flowOf("1.5"), "1.53");  // 1.53137
}

TEST_F(DisLogGumbel, ReturnPeriodAndProbabilities) {
    fitFour();
    EXPECT_EQ(periodOf("3"), "3.9"); // 3.93196
    EXPECT_EQ(periodOf("4"), "6.8"); // 6.80813
    EXPECT_EQ(above("3"), "25.43");
    EXPECT_EQ(below("3"), "74.57");
    EXPECT_EQ(below("1"), "4.70");
    EXPECT_EQ(below("0.5"), ".0"); // 0.000149
    click("optMomentoLi");
    EXPECT_EQ(periodOf("3"), "3.6"); // 3.62678
    EXPECT_EQ(periodOf("4"), "5.8"); // 5.75232
    EXPECT_EQ(above("3"), "27.57");
    EXPECT_EQ(below("3"), "72.43");
    EXPECT_EQ(below("0.5"), ".02");
}

TEST_F(DisLogGumbel, PeriodZeroIsFatal) {
    fitFour();
    expectFatal("txtxt", "0", "bQ", 11);
}

TEST_F(DisLogGumbel, PeriodOneIsFatal) {
    fitFour();
    expectFatal("txtxt", "1", "bQ", 5);
}

TEST_F(DisLogGumbel, PeriodOfAFlowOfZeroIsFatal) {
    fitFour();
    expectFatal("txtxq", "0", "bT", 5);
}

TEST_F(DisLogGumbel, ExceedanceOfAFlowOfZeroIsFatal) {
    fitFour();
    expectFatal("txtxq", " ", "bPmayor", 5);
}

TEST_F(DisLogGumbel, NonExceedanceOfAFlowBelowZeroIsFatal) {
    fitFour();
    expectFatal("txtxq", "-1", "bPmenor", 5);
}

// y = -(ln(1E-300) + 0.524) / 0.469 = 1474.8
TEST_F(DisLogGumbel, FlowAHairAboveZeroIsFatal) {
    fitFour();
    expectFatal("txtxq", "1E-300", "bPmenor", 6);
}

// ln(1E30) = 69.08, y = 146.3.
TEST_F(DisLogGumbel, FlowOfProbabilityOneIsFatalForThePeriodOnly) {
    fitFour();
    EXPECT_EQ(above("1E30"), ".0");
    EXPECT_EQ(below("1E30"), "100.0");
    expectFatal("txtxq", "1E30", "bT", 11);
}

// The logarithms have the mean 133.5 and S = 165.0, so that of 1E15 years is 4503.
TEST_F(DisLogGumbel, FlowPastTheDoubleRangeIsFatal) {
    const std::string huge = "1" + std::string(120, '0');
    fit({"0.00000001", "1", huge, huge});
    EXPECT_TRUE(messages().empty());
    expectFatal("txtxt", "1E15", "bQ", 6);
}

} // namespace
} // namespace caudalera::testing
