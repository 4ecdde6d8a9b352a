#include "tests/driver/DriverProcess.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

/// Whole journeys through the program, from the menu to the end.
class DriverJourneyTest : public DriverTest {
protected:
    static constexpr const char* normal = "frmDisNormal";
    static constexpr const char* parameters = "frmParamEsta";

    json rows(const std::string& window, const Table& rows) {
        return ok("rows", {{"window", window}, {"rows", rows}});
    }
    void enter(const std::string& control, const std::string& value) {
        ok("text", {{"window", normal}, {"control", control}, {"text", value}});
    }
    static json error(const std::string& text, const std::string& title) {
        return json{{{"text", text}, {"title", title}, {"icon", "error"}}};
    }
};

// The series 1, 2, 3, 5 (sorted): mean 2.75, S = Sqr(8.75 / 3) = 1.70783, second linear moment
// 13/12, Sl = Sqr(pi) * 13/12 = 1.92016. Cumulative values from the error function: 0.152754,
// 0.330275, 0.558191, 0.906159; the largest difference to m/5 is that of the last, 0.106159. The
// tabular delta is 1.36 / Sqr(4).
TEST_F(DriverJourneyTest, ASeriesIsFittedTestedAndAskedForADesignFlow) {
    open("mdistrinormal", normal);
    EXPECT_EQ(click(normal, "bGraficar")["messages"],
              error("Efectuar cálculos antes de graficar", "Mensaje de Error"));
    rows(normal, {{"3"}, {"1"}, {"2"}, {"5"}});
    EXPECT_EQ(click(normal, "bCalcular")["messages"], json::array());
    EXPECT_EQ(text(normal, "txtux"), "2.75");
    EXPECT_EQ(text(normal, "txtSX"), "1.7078");
    EXPECT_EQ(text(normal, "txtsl"), "1.9202");
    EXPECT_EQ(text(normal, "lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(text(normal, "lblmensaje"),
              "Como el delta teórico 0.1062, es menor que el delta tabular 0.680. Los datos se "
              "ajustan a la distribución Normal, con un nivel de significación del 5%");
    const Table fit = cells(normal, "grddis");
    EXPECT_EQ(fit[1], (Row{"1", "1.0", "0.20", "0.1528", "0.1810", "0.0472"}));
    EXPECT_EQ(fit[4], (Row{"4", "5.0", "0.80", "0.9062", "0.8794", "0.1062"}));
    EXPECT_EQ(fit[5], (Row{"", "", "", "", "", ""}));

    EXPECT_EQ(click(normal, "bQ")["messages"],
              error("Ingresar un valor de T, antes de evaluar", "Mensaje de Error"));
    enter("txtxt", "100");
    click(normal, "bQ");
    // The inverse at 0.99 is 2.326785 by the rational approximation.
    EXPECT_EQ(text(normal, "txtxq"), "6.72");
    click(normal, "optMomentoLi");
    click(normal, "bQ");
    EXPECT_EQ(text(normal, "txtxq"), "7.22");
    click(normal, "optOrdinario");
    enter("txtxq", "6");
    click(normal, "bT");
    EXPECT_EQ(text(normal, "txtxt"), "35.1");
    click(normal, "bPmayor");
    EXPECT_EQ(text(normal, "txtxp"), "2.85");

    click(normal, "bGraficar");
    const json chart = ok("chart", {{"window", normal}});
    EXPECT_EQ(chart["x"], (json{0.0, 1.0, 2.0, 3.0, 5.0}));
    EXPECT_EQ(chart["series"][2]["legend"], "ML");
    EXPECT_NEAR(chart["series"][1]["y"][4].get<double>(), 0.90615861, 1e-7);

    click(normal, "bReporte");
    const json told = report();
    EXPECT_EQ(told["documents"][0]["caption"], "Documento 1");
    const std::string written = told["documents"][0]["text"];
    for (const char* line :
         {"Resultados\n\nAjuste de una serie de datos a la distribución normal\n\n\n",
          " 1\t\t3.0\t\t\n", "Con momentos ordinarios:\nParámetro de localización (Xm)= 2.75\n",
          "El caudal de diseño para un periodo de retorno de 35.1 años, es 6\n"})
        EXPECT_NE(written.find(line), std::string::npos) << line << "in\n" << written;

    click(normal, "bLimpiar");
    EXPECT_EQ(ok("chart", {{"window", normal}})["visible"], false);
    EXPECT_EQ(text(normal, "lblmensaje"), "");
    EXPECT_EQ(cells(normal, "grdt"), (Table{{"N°", "X"}, {"[?]", ""}}));
    click(normal, "bMenu");
    EXPECT_EQ(ok("menu", {{"entry", "mparasalir"}})["ended"], (json{{"reason", "exit"}}));
}

TEST_F(DriverJourneyTest, TwoDataAreTooFewAndTheFitSaysSo) {
    open("mdistrinormal", normal);
    rows(normal, {{"1"}, {"2"}});
    const json reply = click(normal, "bCalcular");
    EXPECT_EQ(reply["messages"], (json{{{"text", "Ingresar datos adecuadamente "},
                                        {"title", "Mensaje de error"},
                                        {"icon", "information"}}}));
    EXPECT_EQ(reply["ended"], nullptr);
}

TEST_F(DriverJourneyTest, AReturnPeriodOfZeroEndsTheProgram) {
    open("mdistrinormal", normal);
    rows(normal, {{"3"}, {"1"}, {"2"}, {"5"}});
    click(normal, "bCalcular");
    enter("txtxt", "0");
    EXPECT_EQ(click(normal, "bQ")["ended"], (json{{"reason", "fatal"}, {"number", 11}}));
    ok("restart");
    open("mdistrinormal", normal);
    EXPECT_EQ(text(normal, "txtxt"), "");
}

// Of 1, 2, 3, 4: mean 2.5, squares 5, so sample variance 5/3 and deviation 1.29099.
TEST_F(DriverJourneyTest, ASeriesIsSavedLoadedElsewhereAndItsParametersRead) {
    open("mdistrinormal", normal);
    rows(normal, {{"4"}, {"1"}, {"3"}, {"2"}});
    ok("dialog", {{"answers", {file("serie.X"), file("serie.X")}}});
    click(normal, "bCrear");
    open("mparanoagru", parameters);
    click(parameters, "bAccesar");
    EXPECT_EQ(cells(parameters, "grdt"), (Table{{"N°", "X"},
                                                {" 1", "4.0"},
                                                {" 2", "1.0"},
                                                {" 3", "3.0"},
                                                {" 4", "2.0"},
                                                {"[->]", ""}}));
    click(parameters, "bCalcular");
    const Table results = cells(parameters, "grdParam");
    EXPECT_EQ(results[1][1], "2.500");
    EXPECT_EQ(results[2][1], "1.6667");
    EXPECT_EQ(results[3][1], "1.2910");
    EXPECT_EQ(text(parameters, "txtL1"), "2.5000");
    EXPECT_EQ(ok("get", {{"window", parameters}, {"control", "grdorden"}})["visible"], false);
    click(parameters, "bOrdenar");
    EXPECT_EQ(ok("get", {{"window", parameters}, {"control", "grdorden"}})["visible"], true);
    EXPECT_EQ(cells(parameters, "grdorden"),
              (Table{{"N°", "X"}, {" 1", "1.0"}, {" 2", "2.0"}, {" 3", "3.0"}, {" 4", "4.0"}}));
    EXPECT_EQ(cells(normal, "grdt").size(), 6U) << "the other window keeps its data";
}

TEST_F(DriverJourneyTest, ACancelledLoadHasLostTheResultsAndNothingIsSaid) {
    open("mparanoagru", parameters);
    rows(parameters, {{"1"}, {"2"}, {"3"}, {"4"}});
    click(parameters, "bCalcular");
    ok("dialog", {{"answers", {nullptr}}});
    const json reply = click(parameters, "bAccesar");
    EXPECT_EQ(reply["messages"], json::array());
    EXPECT_EQ(cells(parameters, "grdt"), (Table{{"N°", "X"}, {"[?]", ""}}));
    EXPECT_EQ(cells(parameters, "grdParam")[1], (Row{"", "", "", ""}));
    EXPECT_EQ(text(parameters, "txtL1"), "");
}

TEST_F(DriverJourneyTest, TheReportIsEditedSavedAndOpenedInAnotherRun) {
    open("mparanoagru", parameters);
    rows(parameters, {{"1"}, {"2"}, {"3"}, {"4"}});
    click(parameters, "bCalcular");
    click(parameters, "bReporte");
    const std::string written = report()["documents"][0]["text"];
    ok("move", {{"window", "frmPadre"}, {"left", 555}});
    ok("dialog", {{"answers", {file("informe.rtf")}}});
    click("frmPadre", "mnuFileSave");
    ok("close", {{"window", "frmPadre"}});
    EXPECT_EQ(click("frmCaudalera", "bsalir")["ended"], (json{{"reason", "exit"}}));

    ok("restart", {{"keepSettings", true}});
    EXPECT_EQ(ok("settings")["settings"]["MainLeft"], "555");
    open("mparanoagru", parameters);
    click(parameters, "bReporte");
    ok("dialog", {{"answers", {file("informe.rtf")}}});
    click("frmPadre", "mnuFileOpen");
    const json opened = report()["documents"][0];
    EXPECT_EQ(opened["text"], written);
    EXPECT_EQ(opened["caption"], file("informe.rtf"));
    EXPECT_EQ(opened["paragraphs"][0],
              (json{{"align", "center"}, {"indent", 200}, {"rightIndent", 200}}));
}

// The factors of the build's own table file. Twelve months of 20 degrees: I = 12 x 4^1.514 =
// 97.88138, a = 2.140842, ETo = 16 (200 / I)^a = 73.87325; at 10 N January's factor is 1.0.
TEST_F(DriverJourneyTest, ATableFileIsReadFromTheDataDirectory) {
    constexpr const char* thornthwaite = "frmThornthwaite";
    open("mevthorn", thornthwaite);
    rows(thornthwaite, Table(12, {"20"}));
    EXPECT_EQ(focus(thornthwaite), "cobLatitud");
    EXPECT_EQ(click(thornthwaite, "bCalcular")["messages"], json::array());
    EXPECT_EQ(text(thornthwaite, "txti"), "97.8814");
    EXPECT_EQ(cells(thornthwaite, "grddis")[1],
              (Row{"Ene", "20.0", "8.157", "73.873", "1.0", "73.873", "2.38"}));
    click(thornthwaite, "bGraficar");
    const json chart = ok("chart", {{"window", thornthwaite}});
    EXPECT_EQ(chart["points"], 12);
    EXPECT_EQ(chart["x"][11], 11.0);
}

TEST_F(DriverJourneyTest, RowsPastTheArraysAreFatalWhereNoTrapStands) {
    open("mparanoagru", parameters);
    rows(parameters, Table(501, {"1"}));
    EXPECT_EQ(click(parameters, "bCalcular")["ended"], (json{{"reason", "fatal"}, {"number", 9}}));
}

} // namespace
} // namespace caudalera
