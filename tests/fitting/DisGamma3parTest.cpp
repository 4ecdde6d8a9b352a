// The window of the gamma distribution of three parameters: calculation, invalid parameters,
// failures with what they leave, and the four questions.

#include "fitting/frmDisGamma3par.h"
#include "tests/fitting/DisGamma3Test.h"

#include <cmath>
#include <cstdio>

namespace caudalera::testing {
namespace {

using Texts = std::vector<std::string>;

/// Both kinds are valid: Cs = 1.46933, t = 0.51724. Xo = -0.23701, gamma = 1.85276, beta = 2.96154;
/// Xol = 1.71995, gammal = 0.38933, betal = 9.06703.
const Texts valid = {"11", "2", "5", "3"};
/// Cs = -1.19034, so gamma = 2.82305, beta = -1.28571, Xo = 10.62963; t = -0.375, Xol = 4.56134.
const Texts negative = {"4", "7", "8", "9"};

TEST_F(DisGamma3par, ParametersRowsAndVerdict) {
    fit(valid);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"-0.237", "1.8528", "2.9615", "1.7199", "0.3893", "9.067"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|2.0|0.20|0.2113|0.2884|0.0113", "2|3.0|0.40|0.3430|0.5056|0.0570",
                     "3|5.0|0.60|0.5734|0.6887|0.0266", "4|11.0|0.80|0.9097|0.8881|0.1097"}));
    // 0.109741824, and 1.36 / 2.
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.10974, es menor que el delta tabular 0.68. Los datos se "
              "ajustan a la distribución Gamma de 3 parámetros, con un nivel de significación del "
              "5%");
    click("optMomentoLi");
    click("opt010");
    click("bCalcular");
    // 0.105586145, and 1.22 / 2.
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.10559, es menor que el delta tabular 0.61. Los datos se "
              "ajustan a la distribución Gamma de 3 parámetros, con un nivel de significación del "
              "10%");
    EXPECT_EQ(cellText("grddis", 4, 5), "0.0881");
}

TEST_F(DisGamma3par, ValuesZeroAndBelowAreLegal) {
    fit({"-2", "0", "3", "11"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"-5.8926", "2.4208", "3.6735", "-2.811", "0.5952", "9.7633"}));
    EXPECT_EQ(rowText("grddis", 1), "1|-2.0|0.20|0.1833|0.2470|0.0167");
}

// t = 0.12, below a third: u = 3 pi 0.0144.
TEST_F(DisGamma3par, SmallLinearSkew) {
    fit({"5", "9", "1", "4"});
    EXPECT_EQ(parameters(),
              (Texts{"-10.3832", "20.9782", "0.7214", "-5.5074", "7.4622", "1.3746"}));
}

TEST_F(DisGamma3par, NegativeSkewIsInvalidByOrdinaryMoments) {
    fit(negative);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"10.6296", "2.823", "-1.2857", "4.5613", "0.7875", "3.0966"}));
    // 4 lies below Xol too.
    EXPECT_EQ(resultRows(), (Texts{"1|4.0|0.20|0.00|0.00|0.20", "2|7.0|0.40|0.00|0.00|0.40",
                                   "3|8.0|0.60|0.00|0.00|0.60", "4|9.0|0.80|0.00|0.00|0.80"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(text("lblmensaje"),
              "Los parámetros: Xo, gamma y ß calculada por momentos ordinarios, son incorrectos, "
              "por lo que los datos no se ajustan a la distribución gamma de 3 parámetros");
    EXPECT_EQ(control<Label>("lblmensaje").mark, Label::Mark::no);
    click("optMomentoLi");
    click("bCalcular");
    EXPECT_EQ(text("lblmensaje"),
              "Los parámetros: Xo, gamma y ß calculada por momentos lineales, son incorrectos, por "
              "lo que los datos no se ajustan a la distribución gamma de 3 parámetros");
}

// The mirror image has the same t but for its sign, and so the same shape and scale.
TEST_F(DisGamma3par, OnlyTheSizeOfTheLinearSkewCounts) {
    fit(valid);
    const Texts before = texts({"txtgammal", "txtbetal"});
    refit({"-11", "-2", "-5", "-3"});
    EXPECT_EQ(texts({"txtgammal", "txtbetal"}), before);
    EXPECT_EQ(text("txtxol"), "-8.7801"); // -5.25 - 0.389328 9.067029
}

// 10 lies below Xol = 12.5275: the linear kind is invalid, the ordinary one is not.
TEST_F(DisGamma3par, ValueBelowThePositionIsInvalid) {
    fit(skewed);
    EXPECT_EQ(parameters(), (Texts{"0.964", "1.0028", "35.9363", "12.5275", "0.2297", "106.5379"}));
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.2212|0.00|0.0545", "2|20.0|0.3333|0.4099|0.00|0.0765",
                     "3|25.0|0.50|0.4864|0.00|0.0136", "4|30.0|0.6667|0.5529|0.00|0.1137",
                     "5|100.0|0.8333|0.9361|0.00|0.1028"}));
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.11372, es menor que el delta tabular 0.6082. Los datos se "
              "ajustan a la distribución Gamma de 3 parámetros, con un nivel de significación del "
              "5%");
    EXPECT_EQ(flowOf("2"), "25.97");
    click("optMomentoLi");
    messages();
    click("bQ");
    expectMessage(invalidKind("lineales"));
    EXPECT_EQ(text("txtxq"), "25.97");
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 3, 5), "0.50");
}

TEST_F(DisGamma3par, InvalidKindAnswersNothingAndComputesNothing) {
    fit(negative);
    // T = 0 would be fatal, as would a flow at the end.
    enter("txtxt", "0");
    click("bQ");
    expectMessage(invalidKind("ordinarios"));
    EXPECT_EQ(text("txtxq"), "");
    enter("txtxq", "20");
    for (const std::string button : {"bT", "bPmayor", "bPmenor"}) {
        click(button);
        expectMessage(invalidKind("ordinarios"));
    }
    EXPECT_EQ(texts({"txtxt", "txtxq", "txtxp"}), (Texts{"0", "20", ""}));
    // An empty field comes first.
    enter("txtxq", "");
    click("bT");
    expectMessage({"Ingresar un valor para Q, antes de evaluar", "Mensaje de Error", Icon::error});
}

TEST_F(DisGamma3par, InvalidOnceIsNotInvalidForEver) {
    fit(negative);
    refit(valid);
    EXPECT_TRUE(text("lblmensaje").starts_with("Como el delta teórico 0.10974"));
    EXPECT_EQ(flowOf("2"), "4.30");
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisGamma3par, Questions) {
    fit(valid);
    EXPECT_EQ(flowOf("2"), "4.30");   // 4.30086708
    EXPECT_EQ(flowOf("5"), "8.05");   // 8.05123376
    EXPECT_EQ(flowOf("10"), "10.63"); // 10.6275201
    EXPECT_EQ(flowOf("1.5"), "2.93"); // 2.92541095
    EXPECT_EQ(periodOf("4"), "1.9");  // 1.8723774
    EXPECT_EQ(above("4"), "53.41");   // 53.408035
    EXPECT_EQ(below("4"), "46.59");   // 46.591965
    EXPECT_EQ(above("20"), ".66");    // 0.65788976
    click("optMomentoLi");
    EXPECT_EQ(flowOf("5"), "7.40");  // 7.39725378
    EXPECT_EQ(periodOf("4"), "2.6"); // 2.5962749
    EXPECT_EQ(above("20"), "3.1");   // 3.0991743
    EXPECT_EQ(below("20"), "96.9");  // 96.900826
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisGamma3par, ProbabilityOfAFlowBelowTheEndIsRefused) {
    fit(valid);
    EXPECT_EQ(above("4"), "53.41");
    enter("txtxq", "-1");
    for (const std::string button : {"bPmayor", "bPmenor"}) {
        click(button);
        expectMessage(belowTheEnd("ordinarios"));
        click("optMomentoLi");
        click(button);
        expectMessage(belowTheEnd("lineales"));
        click("optOrdinario");
    }
    EXPECT_EQ(text("txtxp"), "53.41");
}

TEST_F(DisGamma3par, PeriodOfAFlowBelowTheEndIsFatal) {
    fit(valid);
    enter("txtxq", "-1");
    click("bT");
    EXPECT_TRUE(fatal(5));
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisGamma3par, PeriodOneIsFatal) {
    fit(valid);
    enter("txtxt", "1");
    click("bQ");
    EXPECT_TRUE(fatal(11));
}

/// The window with its parameters open, to ask for a flow that is Xo to the last bit.
class OpenGamma3par : public frmDisGamma3par {
public:
    using frmDisGamma3par::conOrdinarios;
    using frmDisGamma3par::frmDisGamma3par;
};

TEST_F(DisGamma3par, FlowAtThePositionIsFatal) {
    OpenGamma3par form(program);
    form.load();
    typeRows(program, form.grdt, {{"2"}, {"3"}, {"5"}, {"11"}});
    program.click(form.bCalcular);
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.17g", form.conOrdinarios.posicion.value());
    program.changeText(form.txtxq, digits);
    program.click(form.bPmenor);
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(fatal(11));
}

TEST_F(DisGamma3par, SeriesThatAreRefused) {
    for (const Texts& series : std::vector<Texts>{{},
                                                  {"3"},
                                                  {"3", "1"},
                                                  {"3", "1", "9"},
                                                  {"1", "2", "3", "4"},
                                                  {"-3", "-1", "0", "4"},
                                                  {"5", "5", "5", "5"},
                                                  {"1E200", "1", "2", "3"},
                                                  // Cs = 0.0124, gamma = 26000
                                                  {"1000", "2000", "3000", "4010"}}) {
        refit(series);
        EXPECT_EQ(messages(), badData);
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_TRUE(resultRows().empty());
        click("bGraficar");
        expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
    }
    EXPECT_FALSE(program.ended());
}

// Mean 0 fails before any parameter, and before the new flag, though the skew is negative; the old
// flag is gone. gamma = 2.82305 has the median 2.49770: Q = 7.41829.
TEST_F(DisGamma3par, FailureInAQuotientLeavesTheParametersAndClearsTheFlags) {
    fit(negative);
    const std::string verdict = text("lblmensaje");
    refit({"-4", "0", "1", "3"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(flowOf("2"), "7.42");
    EXPECT_TRUE(messages().empty());
}

// 501 values are more than can be read: nothing has begun, and the kind stays invalid.
TEST_F(DisGamma3par, FailureInTheReadingLeavesTheFlags) {
    fit(negative);
    values(Texts(497, "5"));
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    enter("txtxt", "2");
    click("bQ");
    expectMessage(invalidKind("ordinarios"));
}

// The reduced variates of the linear kind fail before any cumulative value is new.
TEST_F(DisGamma3par, FailureInTheReducedVariatesLeavesTheCumulativeColumns) {
    fit(valid);
    refit({"5", "9", "5", "5"});
    EXPECT_EQ(messages(), badData);
    click("bGraficar");
    const auto& chart = control<Graph>("Graph1");
    EXPECT_EQ(chart.x(), (std::vector<double>{0, 5, 5, 5, 9}));
    const std::vector<double> before = {0, 0.2113, 0.3430, 0.5734, 0.9097};
    for (std::size_t m = 0; m < before.size(); ++m)
        EXPECT_NEAR(chart.series()[1].y.at(m), before[m], 0.5e-4) << m;
}

// Cs = 2.10309, and yet Xo = 1.09360 lies above the smallest value; so does Xol.
TEST_F(DisGamma3par, ValueBelowThePositionIsInvalidInSpiteOfAPositiveSkew) {
    fit({"1", "2", "2", "2", "2", "2", "5"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), (Texts{"1.0936", "0.9044", "1.3182", "1.4321", "0.4218", "2.0235"}));
    for (const long col : {3L, 4L})
        for (long m = 1; m <= 7; ++m)
            EXPECT_EQ(cellText("grddis", m, col), "0.00") << m;
    enter("txtxt", "2");
    click("bQ");
    expectMessage(invalidKind("ordinarios"));
}

/// The window with parameters of the test's own.
class GivenGamma3par : public frmDisGamma3par {
public:
    using frmDisGamma3par::frmDisGamma3par;
    double position = 0;

protected:
    void calcularParametros() override {
        conOrdinarios.posicion = conLineales.posicion = position;
        conOrdinarios.forma = conLineales.forma = 2;
        conOrdinarios.escala = conLineales.escala = 3;
    }
};

// The reduced variate 0 is not below 0, and the series of the gamma function finds 0 / 0.
TEST_F(DisGamma3par, ValueAtThePositionEndsInTheMessage) {
    GivenGamma3par form(program);
    form.load();
    typeRows(program, form.grdt, {{"2"}, {"3"}, {"5"}, {"11"}});
    form.position = 2;
    program.click(form.bCalcular);
    EXPECT_EQ(messages(), badData);
    form.position = 1.9;
    program.click(form.bCalcular);
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(form.lblmensaje.caption.starts_with("Como el delta"));
}

// Three values stop in the linear sums: the ordinary parameters are new, with their flag, the
// linear ones old.
TEST_F(DisGamma3par, FailureInTheLinearSumsLeavesTheNewOrdinaryParameters) {
    fit(valid);
    refit({"1", "8", "9"});
    EXPECT_EQ(messages(), badData);
    enter("txtxt", "5");
    click("bQ");
    expectMessage(invalidKind("ordinarios"));
    click("optMomentoLi");
    EXPECT_EQ(flowOf("5"), "7.40");
    EXPECT_EQ(parameters(), (Texts{"-0.237", "1.8528", "2.9615", "1.7199", "0.3893", "9.067"}));
    EXPECT_TRUE(messages().empty());
}

// 5, 5, 5, 9: l2 = l3 = 1, so t = 1. The linear parameters are 0 and invalid, and the reduced
// variate divides by them. Ordinary: Cs = 2, gamma = 1, beta = S = 2, Xo = 4, an exponential law:
// F(6) = 1 - 1/e = 0.6321206.
TEST_F(DisGamma3par, LinearSkewOfOneEndsInTheMessageWithItsFlagSet) {
    fit(valid);
    refit({"5", "9", "5", "5"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(below("6"), "63.21");
    click("optMomentoLi");
    click("bPmenor");
    expectMessage(invalidKind("lineales"));
}

// A shape of 26000 in both kinds: gammal is new and the linear scale is the old one.
TEST_F(DisGamma3par, FailureInTheGammaFunctionIsFatalInTheQuestions) {
    fit(valid);
    refit({"1000", "2000", "3000", "4010"});
    EXPECT_EQ(messages(), badData);
    // Below the end, but the gamma function comes before the look at y.
    enter("txtxq", "-1E9");
    click("bPmenor");
    EXPECT_TRUE(fatal(6));
    EXPECT_TRUE(messages().empty());
}

// Roots have a negative skew.
TEST_F(DisGamma3par, FiveHundredValuesFailBeforeTheVerdictIsReplaced) {
    std::vector<float> series;
    for (int i = 1; i <= 500; ++i)
        series.push_back(std::sqrt(static_cast<float>(i)));
    load(series);
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(text("lblmensaje"), "");
    EXPECT_EQ(cellText("grddis", 499, 3), "0.00");
}

} // namespace
} // namespace caudalera::testing
