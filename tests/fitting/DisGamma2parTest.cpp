// The window of the gamma distribution of two parameters: calculation, its failures with what they
// leave, and the four questions.

#include "fitting/frmDisGamma2par.h"
#include "tests/fitting/DisGammaTest.h"

namespace caudalera::testing {
namespace {

class DisGamma2par : public DisGammaTest {
protected:
    DisGamma2par() : DisGammaTest("frmDisGamma2par") {}

    void fitSkewed() { fit(skewed); }
};

// w = 0.30621, below 0.5772; l2 / l1 = 19 / 37, above 0.5.
TEST_F(DisGamma2par, ParametersOfBothKinds) {
    fitSkewed();
    EXPECT_TRUE(messages().empty());
    // 1.78139423798, 20.770247939, 0.932740906925, 39.6680361345.
    EXPECT_EQ(parameters(), (Texts{"1.7814", "20.7702", "0.9327", "39.668"}));
}

// w = 1.47686, above 0.5772; l2 / l1 = 0.9.
TEST_F(DisGamma2par, ParametersOfAWideSpread) {
    fit({"1", "50", "1", "2", "1"});
    // 0.438973826926, 25.0584415865, 0.0833598885562, 131.957949927.
    EXPECT_EQ(parameters(), (Texts{"0.439", "25.0584", "0.0834", "131.9579"}));
}

// l2 / l1 = 1/3, below 0.5: u = 6 / 9, gammal = (1 - 0.205333) / (0.666667 0.969098) = 1.23001.
TEST_F(DisGamma2par, ParametersOfANarrowSpread) {
    fit({"1", "2", "3", "4"});
    EXPECT_EQ(parameters(), (Texts{"4.2648", "0.5862", "1.23", "2.0325"}));
}

TEST_F(DisGamma2par, RowsAndVerdict) {
    fitSkewed();
    EXPECT_EQ(resultRows(),
              (Texts{"1|10.0|0.1667|0.1219|0.2523|0.0447", "2|20.0|0.3333|0.3147|0.4298|0.0186",
                     "3|25.0|0.50|0.4082|0.5011|0.0918", "4|30.0|0.6667|0.4942|0.5630|0.1724",
                     "5|100.0|0.8333|0.9654|0.9291|0.1321"}));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    // 0.172424928, and 1.36 / Sqr(5) = 0.608210.
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1724, es menor que el delta tabular 0.6082. Los datos se "
              "ajustan a la distribución Gamma de 2 parámetros, con un nivel de significación del "
              "5%");
    click("optMomentoLi");
    click("opt001");
    click("bCalcular");
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos lineales:");
    EXPECT_EQ(cellText("grddis", 2, 5), "0.0965");
    // 0.103657659, and 1.63 / Sqr(5) = 0.728958.
    EXPECT_EQ(text("lblmensaje"),
              "Como el delta teórico 0.1037, es menor que el delta tabular 0.7290. Los datos se "
              "ajustan a la distribución Gamma de 2 parámetros, con un nivel de significación del "
              "1%");
}

TEST_F(DisGamma2par, Flows) {
    fitSkewed();
    EXPECT_EQ(flowOf("2"), "30.36");   // 30.3554382
    EXPECT_EQ(flowOf("5"), "56.14");   // 56.1434110
    EXPECT_EQ(flowOf("10"), "73.95");  // 73.9511403
    EXPECT_EQ(flowOf("1.2"), "12.40"); // 12.3972273
    click("optMomentoLi");
    EXPECT_EQ(flowOf("2"), "24.92");   // 24.9228036
    EXPECT_EQ(flowOf("20"), "113.58"); // 113.575380
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
}

TEST_F(DisGamma2par, PeriodsAndProbabilities) {
    fitSkewed();
    EXPECT_EQ(periodOf("37"), "2.5");   // 2.4971754
    EXPECT_EQ(periodOf("100"), "28.9"); // 28.935152
    EXPECT_EQ(above("37"), "40.05");    // 40.045245
    EXPECT_EQ(below("37"), "59.95");    // 59.954755
    EXPECT_EQ(below("0.5"), ".08");     // 0.078078978
    EXPECT_EQ(below("47"), "71.90");    // 71.900187
    click("optMomentoLi");
    EXPECT_EQ(periodOf("37"), "2.8"); // 2.7520223
    EXPECT_EQ(above("37"), "36.34");  // 36.336915
    EXPECT_EQ(below("37"), "63.66");  // 63.663085
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisGamma2par, EmptyFieldsAreRefused) {
    fitSkewed();
    click("bQ");
    expectMessage({"Ingresar un valor de T, antes de evaluar", "Mensaje de Error", Icon::error});
    for (const std::string button : {"bT", "bPmayor", "bPmenor"}) {
        click(button);
        expectMessage(
            {"Ingresar un valor para Q, antes de evaluar", "Mensaje de Error", Icon::error});
    }
}

TEST_F(DisGamma2par, FlowZeroIsFatal) {
    fitSkewed();
    enter("txtxq", " ");
    click("bPmayor");
    EXPECT_TRUE(fatal(11));
}

TEST_F(DisGamma2par, FlowBelowZeroIsFatal) {
    fitSkewed();
    enter("txtxq", "-3");
    click("bPmenor");
    EXPECT_TRUE(fatal(5));
}

TEST_F(DisGamma2par, PeriodOfAFlowZeroIsFatal) {
    fitSkewed();
    enter("txtxq", "0");
    click("bT");
    EXPECT_TRUE(fatal(11));
}

TEST_F(DisGamma2par, PeriodOneIsFatal) {
    fitSkewed();
    enter("txtxt", "1");
    click("bQ");
    EXPECT_TRUE(fatal(11));
}

TEST_F(DisGamma2par, PeriodBelowOneIsFatal) {
    fitSkewed();
    enter("txtxt", "0.5");
    click("bQ");
    EXPECT_TRUE(fatal(5));
}

TEST_F(DisGamma2par, SeriesThatAreRefused) {
    for (const Texts& series : std::vector<Texts>{{},
                                                  {"3"},
                                                  {"3", "1"},
                                                  {"3", "1", "2"},
                                                  {"3", "1", "0", "2"},
                                                  {"3", "1", "-2", "8"},
                                                  {"-3", "-1", "0", "4"},
                                                  {"5", "5", "5", "5"},
                                                  {"1E200", "1", "2", "3"},
                                                  {"100", "101", "102", "103"}}) {
        refit(series);
        EXPECT_EQ(messages(), badData);
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_TRUE(resultRows().empty());
        EXPECT_EQ(text("lblmensaje"), "");
        click("bGraficar");
        expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
    }
    EXPECT_FALSE(program.ended());
}

// 400 values of 1 and one of 1000: w = 1.235, gamma = 0.53, y = 1000 / 6.6 = 151.
TEST_F(DisGamma2par, ValueOutsideTheReachOfTheSeries) {
    std::vector<float> series(400, 1.0F);
    series.push_back(1000.0F);
    load(series);
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), noParameters);
}

// Three values stop in the linear sums, before any parameter.
TEST_F(DisGamma2par, FailureInASumLeavesAllParameters) {
    fitSkewed();
    const std::string verdict = text("lblmensaje");
    refit({"1", "2", "9"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(flowOf("2"), "30.36");
    click("optMomentoLi");
    EXPECT_EQ(flowOf("2"), "24.92");
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(parameters(), (Texts{"1.7814", "20.7702", "0.9327", "39.668"}));
    refit({"1", "2", "0", "9"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(flowOf("2"), "24.92");
}

// l1 and l2 are 2.5E14 to the last bit: gammal becomes 0 and betal stays. The ordinary parameters
// are those of the new series, gamma = 0.0240306 and beta = 1.040339E16: F(1000) = 0.4931843.
TEST_F(DisGamma2par, FailureInTheLinearScaleLeavesTheThreeParametersBeforeIt) {
    fitSkewed();
    refit({"0.00000001", "1E15", "0.00000001", "0.00000001"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), (Texts{"1.7814", "20.7702", "0.9327", "39.668"})) << "not written";
    EXPECT_EQ(below("1000"), "49.32");
    click("optMomentoLi");
    enter("txtxt", "2");
    click("bQ");
    EXPECT_TRUE(fatal(11)) << "the gamma function of 0";
}

// w = 6E-5 and a shape of some 8000, which has no gamma function.
TEST_F(DisGamma2par, FailureInTheCumulativeValuesLeavesTheNewParameters) {
    fitSkewed();
    refit({"100", "101", "102", "103"});
    EXPECT_EQ(messages(), badData);
    enter("txtxt", "2");
    click("bQ");
    EXPECT_TRUE(fatal(6));
}

TEST_F(DisGamma2par, FiveHundredValuesFailInTheLastRow) {
    std::vector<float> series;
    for (int i = 1; i <= 500; ++i)
        series.push_back(static_cast<float>(i));
    load(series);
    click("bCalcular");
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(rowText("grddis", 499).substr(0, 17), "499|499.0|0.9960|");
    EXPECT_EQ(text("lblmensaje"), "");
    EXPECT_NE(text("txtbetal"), "");
    series.pop_back();
    load(series);
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 499).substr(0, 17), "499|499.0|0.9980|");
}

/// The window with its parameters open: no series leads to what these tests look at.
class OpenGamma2par : public frmDisGamma2par {
public:
    using frmDisGamma2par::antesDelAjuste;
    using frmDisGamma2par::conLineales;
    using frmDisGamma2par::conOrdinarios;
    using frmDisGamma2par::frmDisGamma2par;
};

TEST_F(DisGamma2par, WordsOnBadParameters) {
    const std::string negative =
        "Los datos de la serie no son recomendables utilizarlos con distribución gamma de 3 "
        "parámetros, puesto que esta distribución, no puede tener parametros gamma o beta "
        "negativos";
    const std::string wrong = "Los parámetros de la distribución gamma, calculados por el método "
                              "de los momentos lineales, son incorrectos";
    OpenGamma2par form(program);
    const auto words = [&form](Gamma2 ordinaria, Gamma2 lineal) {
        form.conOrdinarios = ordinaria;
        form.conLineales = lineal;
        form.lblmensaje.caption.clear();
        form.antesDelAjuste();
        return form.lblmensaje.caption;
    };
    EXPECT_EQ(words({1, 1}, {1, 1}), "");
    EXPECT_EQ(words({0, 1}, {1, 1}), negative);
    EXPECT_EQ(words({1, 0}, {1, 1}), negative);
    EXPECT_EQ(words({-1, 2}, {1, 1}), negative);
    EXPECT_EQ(words({1, -2}, {1, 1}), negative);
    EXPECT_EQ(words({1, 1}, {0, 1}), wrong);
    EXPECT_EQ(words({1, 1}, {1, 0}), wrong);
    EXPECT_EQ(words({1, 1}, {-1, 1}), "");
    EXPECT_EQ(words({0, 0}, {0, 0}), wrong);
}

} // namespace
} // namespace caudalera::testing
