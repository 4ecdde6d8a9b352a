// The window of log-Pearson type III: what it has of its own, on the logarithms, and what it shares
// with the gamma distribution of three parameters.

#include "tests/fitting/DisGamma3Test.h"

namespace caudalera::testing {
namespace {

using Texts = std::vector<std::string>;

/// Of the logarithms: Cs = 0.638133, t = 0.204260. Xo = -0.85350, gamma = 9.82285, beta = 0.23448;
/// Xol = 0.03918, gammal = 2.62175, betal = 0.53804.
const Texts valid = {"11", "2", "5", "3"};
/// Cs = -1.52808 and t = -0.51650 of the logarithms; Xo = 2.37202, Xol = 1.58953 > Log(4).
const Texts negative = {"4", "7", "8", "9"};

TEST_F(DisLogPearson3, ParametersRowsAndVerdict) {
    fit(valid);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"-0.8535", "9.8229", "0.2345", "0.0392", "2.6218", "0.538"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|2.0|0.20|0.1444|0.1879|0.0556", "2|3.0|0.40|0.3459|0.4088|0.0541",
                     "3|5.0|0.60|0.6249|0.6489|0.0249", "4|11.0|0.80|0.8943|0.8662|0.0943"}));
    // 0.094297035.
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.0943, es menor que el delta tabular 0.68. Los datos se "
              "ajustan a la distribución Log-Pearson tipo 3, con un nivel de significación del 5%");
    click("optMomentoLi");
    click("bCalcular");
    // 0.0661586669.
    EXPECT_TRUE(text("lblmensaje").starts_with("Como el delta teórico 0.06616, es menor "));
}

TEST_F(DisLogPearson3, SkewedFlows) {
    fit(skewed);
    EXPECT_EQ(parameters(), (Texts{"1.2726", "5.8834", "0.3454", "1.7386", "2.8495", "0.5496"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.0907|0.1033|0.0760", "2|20.0|0.3333|0.4014|0.4381|0.0681",
                     "3|25.0|0.50|0.5138|0.5420|0.0138", "4|30.0|0.6667|0.5990|0.6178|0.0676",
                     "5|100.0|0.8333|0.9250|0.9070|0.0916"}));
}

TEST_F(DisLogPearson3, NegativeSkewOfTheLogarithmsIsInvalid) {
    fit(negative);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"2.372", "1.713", "-0.2742", "1.5895", "0.3907", "0.8004"}));
    EXPECT_EQ(resultRows(), (Texts{"1|4.0|0.20|0.00|0.00|0.20", "2|7.0|0.40|0.00|0.00|0.40",
                                   "3|8.0|0.60|0.00|0.00|0.60", "4|9.0|0.80|0.00|0.00|0.80"}));
    EXPECT_EQ(text("lblmensaje"),
              "Los parámetros: Xo, gamma y ß calculada por momentos ordinarios, son incorrectos, "
              "por lo que los datos no se ajustan a la distribución Log-Pearson tipo 3");
    click("optMomentoLi");
    click("bCalcular");
    EXPECT_EQ(text("lblmensaje"),
              "Los parámetros: Xo, gamma y ß calculada por momentos lineales, son incorrectos, por "
              "lo que los datos no se ajustan a la distribución Log-Pearson tipo 3");
}

// The words are those of the other distribution.
TEST_F(DisLogPearson3, InvalidKindAnswersNothing) {
    fit(negative);
    enter("txtxt", "0");
    click("bQ");
    expectMessage(invalidKind("ordinarios"));
    // The logarithm of 0 would be fatal.
    enter("txtxq", "0");
    for (const std::string button : {"bT", "bPmayor", "bPmenor"}) {
        click(button);
        expectMessage(invalidKind("ordinarios"));
    }
    click("optMomentoLi");
    click("bT");
    expectMessage(invalidKind("lineales"));
    EXPECT_EQ(texts({"txtxt", "txtxq", "txtxp"}), (Texts{"0", "0", ""}));
}

TEST_F(DisLogPearson3, Questions) {
    fit(valid);
    EXPECT_EQ(flowOf("2"), "3.94");   // 3.94364291
    EXPECT_EQ(flowOf("5"), "7.65");   // 7.64955851
    EXPECT_EQ(flowOf("10"), "11.33"); // 11.3267615
    EXPECT_EQ(flowOf("1.5"), "2.93"); // 2.93336643
    EXPECT_EQ(periodOf("4"), "2.0");  // 2.0318749
    EXPECT_EQ(above("4"), "49.22");   // 49.215628
    EXPECT_EQ(below("4"), "50.78");   // 50.784372
    EXPECT_EQ(below("1"), ".53");     // 0.52646638
    click("optMomentoLi");
    EXPECT_EQ(flowOf("5"), "8.03");    // 8.03491989
    EXPECT_EQ(periodOf("20"), "16.8"); // 16.828432
    EXPECT_EQ(above("20"), "5.94");    // 5.9423244
    EXPECT_EQ(below("2"), "18.79");    // 18.786817
    EXPECT_TRUE(messages().empty());
}

// Log(0.3) = -1.204 lies below Xo, Log(1) = 0 below Xol.
TEST_F(DisLogPearson3, ProbabilityOfAFlowBelowTheEndIsRefused) {
    fit(valid);
    enter("txtxq", "0.3");
    click("bPmayor");
    expectMessage(belowTheEnd("ordinarios"));
    click("bPmenor");
    expectMessage(belowTheEnd("ordinarios"));
    click("optMomentoLi");
    enter("txtxq", "1");
    click("bPmayor");
    expectMessage(belowTheEnd("lineales"));
    click("bPmenor");
    expectMessage(belowTheEnd("lineales"));
    EXPECT_EQ(text("txtxp"), "");
}

TEST_F(DisLogPearson3, PeriodOfAFlowBelowTheEndIsFatal) {
    fit(valid);
    enter("txtxq", "0.3");
    click("bT");
    EXPECT_TRUE(fatal(5));
}

TEST_F(DisLogPearson3, FlowWithoutALogarithmIsFatal) {
    fit(valid);
    enter("txtxq", "0");
    click("bPmayor");
    EXPECT_TRUE(fatal(5));
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogPearson3, SeriesThatAreRefused) {
    for (const Texts& series : std::vector<Texts>{{},
                                                  {"3"},
                                                  {"3", "1"},
                                                  {"3", "1", "9"},
                                                  {"3", "0", "9", "4"},
                                                  {"3", "-1", "9", "4"},
                                                  {"5", "5", "5", "5"},
                                                  // Their logarithms are symmetric.
                                                  {"1", "2", "4", "8"}}) {
        refit(series);
        EXPECT_EQ(messages(), badLogPearson);
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_TRUE(resultRows().empty());
        click("bGraficar");
        expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
    }
    EXPECT_FALSE(program.ended());
}

// Log(0.5) twice and Log(4) sum up to 0 exactly; the series has a skew.
TEST_F(DisLogPearson3, GeometricMeanOfOneLeavesAllParameters) {
    fit(valid);
    refit({"0.5", "1", "4", "0.5"});
    EXPECT_EQ(messages(), badLogPearson);
    EXPECT_EQ(flowOf("2"), "3.94");
    click("optMomentoLi");
    EXPECT_EQ(flowOf("5"), "8.03");
}

TEST_F(DisLogPearson3, DatumOfZeroLeavesTheEarlierResults) {
    fit(valid);
    const Texts before = parameters();
    const Texts rows = resultRows();
    const std::string verdict = text("lblmensaje");
    values({"0"});
    click("bCalcular");
    EXPECT_EQ(messages(), badLogPearson);
    EXPECT_EQ(parameters(), before);
    EXPECT_EQ(resultRows(), rows);
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(flowOf("2"), "3.94");
}

// 501 values are more than can be read: nothing has begun, and the kind stays invalid.
TEST_F(DisLogPearson3, FailureInTheReadingLeavesTheFlags) {
    fit({"4", "7", "8", "9"});
    messages();
    values(Texts(497, "5"));
    click("bCalcular");
    EXPECT_EQ(messages(), badLogPearson);
    enter("txtxt", "2");
    click("bQ");
    expectMessage(invalidKind("ordinarios"));
}

// Three values stop in the linear sums, behind the new ordinary parameters.
TEST_F(DisLogPearson3, FailureInTheLinearSumsLeavesTheNewOrdinaryParameters) {
    fit(valid);
    refit({"1", "8", "9"});
    EXPECT_EQ(messages(), badLogPearson);
    enter("txtxt", "5");
    click("bQ");
    expectMessage(invalidKind("ordinarios"));
    click("optMomentoLi");
    EXPECT_EQ(flowOf("5"), "8.03");
}

} // namespace
} // namespace caudalera::testing
