#include "shell/window/Graph.h"
#include "shell/window/MSFlexGrid.h"
#include "tests/support/WindowTest.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace caudalera {
namespace {

/// Every window with a chart, drawn from rows that all of them can calculate with.
class ChartTitlesTest : public WindowTest {
protected:
    Graph* draw(const std::string& name) {
        auto* graph = dynamic_cast<Graph*>(open(name).find("Graph1"));
        if (!graph)
            return nullptr;
        const std::vector<std::string> skewed = {"12", "15", "17", "19", "20", "22",
                                                 "25", "29", "35", "44", "58", "90"};
        std::vector<std::vector<std::string>> data;
        // A law of each month takes two years.
        const std::size_t count = name == "frmVariacionEsta" ? 24 : 12;
        for (std::size_t i = 0; i < count; ++i) {
            data.emplace_back(static_cast<std::size_t>(control<MSFlexGrid>("grdt").Cols() - 1),
                              skewed[(7 * i) % 12]);
            data.back().front() = i < 12 ? skewed[i] : skewed[23 - i];
        }
        rows(data);
        for (Control* each : graph->window().controls()) {
            if (auto* list = dynamic_cast<List*>(each); list && list->text().empty())
                choose(list->name(), list->items().back());
        }
        click("bCalcular");
        click("bGraficar");
        return graph;
    }
    static std::string legends(const Graph& graph) {
        std::string all;
        for (const Graph::Series& series : graph.series())
            all += series.legend + "=" + series.meaning + ";";
        return all;
    }
};

TEST_F(ChartTitlesTest, BothAxesOfEveryDrawingHaveATitle) {
    std::map<std::string, std::pair<std::string, std::string>> titles;
    for (const WindowEntry& entry : ventanas()) {
        const std::string name(entry.name);
        if (const Graph* graph = draw(name)) {
            EXPECT_TRUE(graph->visible) << name;
            EXPECT_FALSE(graph->series().empty()) << name;
            titles[name] = {graph->xTitle(), graph->yTitle()};
        }
    }
    const std::string months = "Eje de Meses: 0 = Ene, 1 = Feb, ... ,11= Dic";
    const std::pair<std::string, std::string> xy{"X", "Y"};
    const std::pair<std::string, std::string> fit{"X", "P(X)"};
    const std::map<std::string, std::pair<std::string, std::string>> expected = {
        {"frmDistriFre", {"Marca de clase", "Fx (%)"}},
        {"frmEjRegSimple", xy},
        {"frmRegreLineal", xy},
        {"frmRegPoli2Gra", xy},
        {"frmRegPoli3Gra", xy},
        {"frmDisNormal", fit},
        {"frmDisLogNormal2", fit},
        {"frmDisLogNormal3", fit},
        {"frmDisGamma2par", fit},
        {"frmDisGamma3par", fit},
        {"frmDisLogPearson3", fit},
        {"frmDisGumbel", fit},
        {"frmDisLogGumbel", fit},
        {"frmVariacionEsta", {months, "X"}},
        {"frmCurvaDuracion", {"Probabilidad Q >= (%)", "Q considerado (m3/s)"}},
        {"frmAnalisisTor", {"Tiempo acumulado (min)", "Intensidad (mm/hr)"}},
        {"frmAforoCorren", {"L acumulada (m)", "h (m)"}},
        {"frmThornthwaite", {months, "ETr diaria (mm)"}},
        {"frmBlaneyCriddle", {months, "ETr diaria (mm)"}},
        {"frmBalanceHidro", {months, "ETo, P (mm)"}},
    };
    EXPECT_EQ(titles, expected);
}

TEST_F(ChartTitlesTest, TheTitlesFollowWhatIsDrawn) {
    const Graph* duration = draw("frmCurvaDuracion");
    click("OptAdimensional");
    click("bGraficar");
    EXPECT_EQ(duration->yTitle(), "Q adimensional");
    const Graph* storm = draw("frmAnalisisTor");
    click("optCurvamasa");
    EXPECT_EQ(storm->yTitle(), "Precipitación (mm)");
}

TEST_F(ChartTitlesTest, LegendsOfSeveralCurvesTellWhatTheyStandFor) {
    EXPECT_EQ(legends(*draw("frmDisGumbel")), "Exp=Probabilidad experimental de los datos;"
                                              "Ord=Probabilidad teórica con parámetros ordinarios;"
                                              "ML=Probabilidad teórica con momentos lineales;");
    EXPECT_EQ(legends(*draw("frmDisLogNormal3")),
              "Exp=Probabilidad experimental de los datos;"
              "Teo=Probabilidad teórica con parámetros ordinarios;");
    // The word of the theoretical curve elsewhere stands at the data here.
    EXPECT_EQ(legends(*draw("frmDisLogPearson3")),
              "Teo=Probabilidad experimental de los datos;"
              "Ord=Probabilidad teórica con parámetros ordinarios;"
              "ML=Probabilidad teórica con momentos lineales;");
    EXPECT_EQ(legends(*draw("frmRegPoli2Gra")), "Dat=Datos;Teo=Valores teóricos de la ecuación;");
    EXPECT_EQ(legends(*draw("frmBalanceHidro")),
              "ETo=Evapotranspiración potencial;P=Precipitación;");
    EXPECT_EQ(legends(*draw("frmVariacionEsta")).substr(0, 43),
              "70%=Probabilidad de ocurrencia del 70%;75%=");
    for (const WindowEntry& entry : ventanas()) {
        const Graph* graph = draw(std::string(entry.name));
        if (!graph)
            continue;
        for (const Graph::Series& series : graph->series())
            EXPECT_EQ(series.legend.empty(), series.meaning.empty()) << entry.name;
    }
}

} // namespace
} // namespace caudalera
