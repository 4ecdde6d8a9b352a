// The template of the fits through distributions made up for the test: what a window may supply,
// in which order it is asked, and the window with one kind of moments.

#include "fitting/FitWorksheet.h"
#include "shell/numbers/Serie.h"
#include "tests/support/WindowTest.h"

namespace caudalera::testing {
namespace {

FitTexts textsOf(bool momentosLineales) {
    FitTexts texts;
    texts.momentosLineales = momentosLineales;
    texts.distribucion = "de prueba";
    texts.marcoParametros = "Parámetros de prueba:";
    texts.tituloParametros = "Los parámetros:";
    texts.guionesParametros = 60;
    texts.columnas = {{"Z", "F(Z)"},
                      {"           Z  ", "             F(Z)  ", "            Delta "}};
    texts.mascaraPeriodo = "###0.0";
    texts.mascaraProbabilidad = "###.0#";
    texts.mascaraTeorico = "#####0.0####";
    texts.mascaraTabular = "###0.0###";
    texts.falloCalculo = "Fallo propio";
    return texts;
}

const FitTexts twoKinds = textsOf(true);
const FitTexts oneKind = textsOf(false);

/// A distribution whose answers the test sets. It notes the steps that it is asked for.
class ProbeFit : public FitWorksheet {
public:
    ProbeFit(Program& program, const FitTexts& texts)
        : FitWorksheet(program, "frmPrueba", "Prueba", texts) {
        ordinarios = {{&first, &txtuno, "Uno= "}};
        if (texts.momentosLineales) {
            lineales = {{&second, &txtdos, "Dos= "}};
        } else {
            columnasDeAjuste = {&reducidaOrdinaria, &acumOrdinaria};
            curvas = {{&probEmpirica, "Exp", "Empírica"}, {&acumOrdinaria, "Teo", "Teórica"}};
        }
        disponer(layout::fields({txtuno, txtdos}));
        load();
    }

    TextBox txtuno{*this, "txtuno", "Uno:"};
    TextBox txtdos{*this, "txtdos", "Dos:"};

    bool acceptSeries = true;
    bool acceptSorted = true;
    bool acceptEvaluation = true;
    bool acceptFlow = true;
    std::string verdictBefore;
    std::string verdictAfter;
    /// Cumulative values of the ranks, ordinary and linear.
    std::vector<double> ordinary;
    std::vector<double> linear;
    std::vector<std::string> steps;

protected:
    void trasLeer() override { steps.push_back("leída " + textOf(serieDatos)); }
    bool admitirSerie() override {
        steps.push_back("serie " + textOf(serieDatos));
        return acceptSeries;
    }
    bool admitirOrdenada() override {
        steps.push_back("ordenada " + textOf(serieOrdenada));
        return acceptSorted;
    }
    void trasOrdenar() override { steps.emplace_back("tras ordenar"); }
    void calcularParametros() override {
        steps.emplace_back("parámetros");
        first = 1.5;
        second = 2.25;
        fitting = true;
        ranks = {};
    }
    void trasReducir(Momentos tipo, std::span<const Real> reducidas) override {
        steps.push_back(std::string("reducidas ") +
                        (tipo == Momentos::lineales ? "lineales " : "ordinarias ") +
                        std::to_string(reducidas.size()) + txtuno.text());
    }
    void antesDelAjuste() override {
        fitting = false;
        steps.push_back("antes " + txtuno.text());
        lblmensaje.caption = verdictBefore;
    }
    void trasElAjuste() override {
        steps.emplace_back("tras");
        if (!verdictAfter.empty())
            lblmensaje.caption = verdictAfter;
    }
    bool admitirEvaluacion(Momentos tipo) override {
        steps.push_back(tipo == Momentos::lineales ? "evaluar lineales" : "evaluar ordinarios");
        return acceptEvaluation;
    }
    bool admitirCaudal(Evaluacion cual, Momentos /*tipo*/, Real q) override {
        steps.push_back("caudal " + std::to_string(static_cast<int>(cual)) + " " +
                        formatear(q, "0.0"));
        return acceptFlow;
    }
    Real reducir(Momentos /*tipo*/, Real q) override { return fitting ? -0.5 : q; }
    Real probabilidad(Momentos tipo, Real reducida) override {
        const bool isLinear = tipo == Momentos::lineales;
        if (!fitting)
            return isLinear ? reducida / 1000 : reducida / 100;
        steps.emplace_back(isLinear ? "F lineal" : "F ordinaria");
        if (isLinear)
            return linear.empty() ? 0 : linear.at(ranks[1]++);
        return ordinary.at(ranks[0]++);
    }
    Real cuantil(Momentos tipo, Real p) override {
        return tipo == Momentos::lineales ? 1000 * p : 100 * p;
    }

private:
    std::string textOf(const Serie& serie) const {
        std::string joined;
        for (long i = 1; i <= conteoDatos; ++i)
            joined += formatear(serie[i], "0.#") + " ";
        return joined;
    }

    /// Between the parameters and the test, with the ranks asked for so far.
    bool fitting = false;
    std::array<std::size_t, 2> ranks{};
    Real first;
    Real second;
};

class FitTemplate : public WindowTest {
protected:
    void fit(ProbeFit& probe, const std::vector<std::string>& series) {
        std::vector<std::vector<std::string>> rows;
        for (const auto& value : series)
            rows.push_back({value});
        typeRows(program, probe.grdt, rows);
        program.click(probe.bCalcular);
    }
};

using Steps = std::vector<std::string>;

TEST_F(FitTemplate, OrderOfTheSteps) {
    ProbeFit probe(program, twoKinds);
    probe.ordinary = {0.2, 0.4};
    fit(probe, {"3", "1"});
    EXPECT_EQ(probe.steps,
              (Steps{"leída 3. 1. ", "serie 3. 1. ", "ordenada 1. 3. ", "tras ordenar",
                     "parámetros", "reducidas ordinarias 2", "reducidas lineales 2", "F ordinaria",
                     "F ordinaria", "F lineal", "F lineal", "antes 1.5", "tras"}));
    EXPECT_EQ(probe.txtdos.text(), "2.25");
}

TEST_F(FitTemplate, RefusedSeriesEndsTheCommandWithNothingChanged) {
    ProbeFit probe(program, twoKinds);
    probe.acceptSeries = false;
    fit(probe, {"3", "1"});
    EXPECT_EQ(probe.steps, (Steps{"leída 3. 1. ", "serie 3. 1. "}));
    probe.acceptSeries = true;
    probe.acceptSorted = false;
    probe.steps.clear();
    program.click(probe.bCalcular);
    EXPECT_EQ(probe.steps, (Steps{"leída 3. 1. ", "serie 3. 1. ", "ordenada 1. 3. "}));
    EXPECT_EQ(probe.txtuno.text(), "");
    EXPECT_EQ(probe.lblAjuste.caption, "Ajuste:");
    EXPECT_TRUE(messages().empty());
    program.click(probe.bGraficar);
    EXPECT_EQ(messages().at(0).text, "Efectuar cálculos antes de graficar");
}

// Four values have the tabular delta 1.36 / 2 = 0.68 at 5 %. Rank 4 has P = 0.8, and with
// F = 0.8 - 0.68 the delta is 0.68 to the last bit, since both differences are exact.
TEST_F(FitTemplate, EqualDeltasDoNotFit) {
    ProbeFit probe(program, twoKinds);
    probe.ordinary = {0.2, 0.4, 0.6, 0.8 - 0.68};
    fit(probe, {"1", "2", "3", "4"});
    EXPECT_EQ(probe.lblmensaje.caption,
              "Como el delta teórico 0.68, es mayor que el delta tabular 0.68. Los datos no se "
              "ajustan a la distribución de prueba, con un nivel de significación del 5%");
    EXPECT_EQ(probe.lblmensaje.mark, Label::Mark::no);
    // A little less, which the masks do not show, fits.
    probe.ordinary[3] += 1e-9;
    program.click(probe.bCalcular);
    EXPECT_EQ(probe.lblmensaje.caption,
              "Como el delta teórico 0.68, es menor que el delta tabular 0.68. Los datos se "
              "ajustan a la distribución de prueba, con un nivel de significación del 5%");
    EXPECT_EQ(probe.lblmensaje.mark, Label::Mark::yes);
    program.click(probe.bLimpiar);
    EXPECT_EQ(probe.lblmensaje.mark, Label::Mark::none);
}

TEST_F(FitTemplate, VerdictReplacesAnEarlierMessageAndIsReplacedByALaterOne) {
    ProbeFit probe(program, twoKinds);
    probe.ordinary = {0.2, 0.4};
    probe.verdictBefore = "antes";
    fit(probe, {"1", "2"});
    EXPECT_TRUE(probe.lblmensaje.caption.starts_with("Como el delta teórico "));
    probe.verdictAfter = "después";
    program.click(probe.bCalcular);
    EXPECT_EQ(probe.lblmensaje.caption, "después");
}

TEST_F(FitTemplate, FailureShowsTheWindowsOwnMessageAndStopsWhereItStands) {
    ProbeFit probe(program, twoKinds);
    probe.verdictBefore = "antes";
    // No data: the largest delta of none is 0, and the division by the root of 0 fails behind the
    // fields.
    program.click(probe.bCalcular);
    expectMessage({"Fallo propio", "Mensaje de error", Icon::information});
    EXPECT_EQ(probe.txtuno.text(), "1.5");
    EXPECT_EQ(probe.lblmensaje.caption, "antes");
}

TEST_F(FitTemplate, EvaluationAsksForTheKindThenForTheFlow) {
    ProbeFit probe(program, twoKinds);
    probe.ordinary = {0.2, 0.4};
    fit(probe, {"1", "2"});
    probe.steps.clear();
    program.changeText(probe.txtxt, "4");
    program.click(probe.bQ);
    EXPECT_EQ(probe.steps, Steps{"evaluar ordinarios"});
    EXPECT_EQ(probe.txtxq.text(), "75.0"); // 100 (1 - 1/4)
    program.click(probe.tipoDeAjuste->optMomentoLi);
    program.click(probe.bQ);
    EXPECT_EQ(probe.txtxq.text(), "750.0");
    probe.steps.clear();
    program.click(probe.bT);
    EXPECT_EQ(probe.txtxt.text(), "4.0"); // 1 / (1 - 0.75)
    program.click(probe.bPmayor);
    EXPECT_EQ(probe.txtxp.text(), "25.0");
    program.click(probe.bPmenor);
    EXPECT_EQ(probe.txtxp.text(), "75.0");
    EXPECT_EQ(probe.steps, (Steps{"evaluar lineales", "caudal 1 750.0", "evaluar lineales",
                                  "caudal 2 750.0", "evaluar lineales", "caudal 3 750.0"}));
}

TEST_F(FitTemplate, RefusedEvaluationWritesNothingAndDoesNoArithmetic) {
    ProbeFit probe(program, twoKinds);
    probe.ordinary = {0.2, 0.4};
    fit(probe, {"1", "2"});
    probe.acceptEvaluation = false;
    // T = 0 would be fatal.
    program.changeText(probe.txtxt, "0");
    program.click(probe.bQ);
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(probe.txtxq.text(), "");
    probe.acceptEvaluation = true;
    probe.acceptFlow = false;
    program.changeText(probe.txtxq, "10");
    program.click(probe.bPmenor);
    program.click(probe.bT);
    EXPECT_EQ(probe.txtxp.text(), "");
    EXPECT_EQ(probe.txtxt.text(), "0");
}

TEST_F(FitTemplate, WordsOfTheExceedanceGateAreThoseOfTheTexts) {
    ProbeFit probe(program, twoKinds);
    program.click(probe.bPmayor);
    EXPECT_EQ(messages(),
              (std::vector<Message>{
                  {"Efectuar cálculos antes de evaluar la probabilidad de no excedencia",
                   "Mensaje de Error", Icon::error}}));
}

TEST_F(FitTemplate, WindowWithOneKindOfMomentsHasNoChoice) {
    ProbeFit probe(program, oneKind);
    EXPECT_EQ(probe.find("optOrdinario"), nullptr);
    EXPECT_EQ(probe.find("optMomentoLi"), nullptr);
    EXPECT_EQ(probe.grddis.TextMatrix(0, 3), "Z");
    EXPECT_EQ(probe.grddis.TextMatrix(0, 4), "F(Z)");
    probe.ordinary = {0.25, 0.5};
    fit(probe, {"1", "2"});
    EXPECT_EQ(probe.lblAjuste.caption, "Ajuste con momentos ordinarios:");
    EXPECT_EQ(probe.grddis.TextMatrix(1, 3), "-0.50");
    EXPECT_EQ(probe.grddis.TextMatrix(1, 4), "0.250");
    EXPECT_EQ(probe.grddis.TextMatrix(2, 5), "0.1667");
}

TEST_F(FitTemplate, ChartWithTwoSeries) {
    ProbeFit probe(program, oneKind);
    probe.ordinary = {0.25, 0.5};
    fit(probe, {"2", "1"});
    program.click(probe.bGraficar);
    ASSERT_EQ(probe.Graph1.series().size(), 2U);
    EXPECT_EQ(probe.Graph1.series()[0].legend, "Exp");
    EXPECT_EQ(probe.Graph1.series()[1].legend, "Teo");
    EXPECT_EQ(probe.Graph1.series()[1].y, (std::vector<double>{0, 0.25, 0.5}));
    EXPECT_EQ(probe.Graph1.x(), (std::vector<double>{0, 1, 2}));
}

TEST_F(FitTemplate, ReportWithOneKindOfMoments) {
    ProbeFit probe(program, oneKind);
    probe.ordinary = {0.25, 0.5};
    fit(probe, {"1", "2"});
    program.click(probe.bReporte);
    EXPECT_NE(report().find("        m  \t        X  \t           P(X)                   Z     "
                            "             F(Z)                 Delta    \n"),
              std::string::npos);
    EXPECT_NE(report().find("Los parámetros:\n" + std::string(60, '-') + "\nUno= 1.5\n\n\n\n" +
                            std::string(30, '-') + "\nCaudal de diseño:\n"),
              std::string::npos);
    EXPECT_EQ(report().find("Con momentos"), std::string::npos);
}

} // namespace
} // namespace caudalera::testing
