#include "tests/driver/DriverProcess.h"

#include <set>
#include <string>
#include <vector>

namespace caudalera {
namespace {

class DriverViewsTest : public DriverTest {
protected:
    static constexpr const char* normal = "frmDisNormal";

    json get(const std::string& control) {
        json reply = ok("get", {{"window", normal}, {"control", control}});
        for (const char* common : {"ok", "messages", "ended"})
            reply.erase(common);
        return reply;
    }
};

TEST_F(DriverViewsTest, WindowsAreToldInTheOrderOfTheirLoading) {
    open("mparanoagru", "frmParamEsta");
    open("mdistrinormal", normal);
    click(normal, "bReporte");
    const json windows = ok("windows")["windows"];
    ASSERT_EQ(windows.size(), 4U);
    EXPECT_EQ(windows[1],
              (json{{"name", "frmParamEsta"},
                    {"caption", "Cálculo de parámetros estadísticos, comunes y con momentos "
                                "lineales"},
                    {"visible", true}}));
    EXPECT_EQ(windows[2]["name"], normal);
    EXPECT_EQ(windows[3],
              (json{{"name", "frmPadre"}, {"caption", "Guardar datos"}, {"visible", true}}));
}

TEST_F(DriverViewsTest, ControlsOfEveryWindowAreToldWithNameKindAndCaption) {
    const std::set<std::string> kinds = {"button", "text",  "label", "option", "list",    "grid",
                                         "chart",  "frame", "tabs",  "menu",   "picture", "status"};
    std::vector<std::string> entries;
    const json main = ok("controls", {{"window", "frmCaudalera"}});
    for (const json& control : main["controls"]) {
        if (control["kind"] == "menu" && control["name"] != "mparasalir")
            entries.push_back(control["name"]);
    }
    std::set<std::string> met;
    for (const auto& entry : entries)
        ok("menu", {{"entry", entry}});
    const json loaded = ok("windows");
    for (const json& window : loaded["windows"]) {
        const std::string name = window["name"];
        std::set<std::string> names;
        const json controls = ok("controls", {{"window", name}});
        for (const json& control : controls["controls"]) {
            EXPECT_EQ(control.size(), 3U);
            EXPECT_TRUE(control["caption"].is_string());
            EXPECT_TRUE(kinds.contains(control["kind"])) << control;
            EXPECT_TRUE(names.insert(control["name"]).second)
                << "two controls of " << name << " are named " << control["name"];
            met.insert(control["kind"]);
            const json got = ok("get", {{"window", name}, {"control", control["name"]}});
            for (const char* member : {"text", "visible", "enabled"})
                EXPECT_TRUE(got.contains(member)) << control;
            if (control["kind"] == "grid")
                ok("grid", {{"window", name}, {"control", control["name"]}});
            if (control["kind"] == "chart")
                ok("chart", {{"window", name}, {"control", control["name"]}});
        }
    }
    EXPECT_TRUE(met.contains("chart") && met.contains("grid") && met.contains("button"));
}

TEST_F(DriverViewsTest, AControlIsToldWithWhatAppliesToIt) {
    open("mdistrinormal", normal);
    EXPECT_EQ(get("bCalcular"), (json{{"text", "Calc&ular"},
                                      {"caption", "Calc&ular"},
                                      {"visible", true},
                                      {"enabled", true}}));
    EXPECT_EQ(
        get("lblAjuste"),
        (json{{"text", "Ajuste:"}, {"caption", "Ajuste:"}, {"visible", true}, {"enabled", true}}));
    EXPECT_EQ(get("fraNivel")["text"], "Nivel significación:");
    EXPECT_EQ(get("fraNivel")["caption"], "Nivel significación:");
    EXPECT_EQ(get("opt005"), (json{{"text", "0.05"},
                                   {"caption", "0.05"},
                                   {"checked", true},
                                   {"visible", true},
                                   {"enabled", true}}));
    EXPECT_EQ(get("txtxt"), (json{{"text", ""}, {"visible", true}, {"enabled", true}}));
    EXPECT_EQ(get("txtt"), (json{{"text", ""}, {"visible", false}, {"enabled", true}}));
    EXPECT_EQ(get("Graph1")["visible"], false);
    EXPECT_EQ(get("mnuEditInsertar")["caption"], "Insertar Fila");
    ok("rows", {{"window", normal}, {"rows", {{"3"}}}});
    ok("cell", {{"window", normal}, {"grid", "grdt"}, {"row", 1}, {"col", 1}});
    EXPECT_EQ(get("grdt")["text"], "3.0") << "of a grid, the current cell's";
    error("get", {{"window", "frmNinguna"}, {"control", "txtxt"}});
}

TEST_F(DriverViewsTest, AGridIsToldWhole) {
    open("mdistrinormal", normal);
    ok("rows", {{"window", normal}, {"rows", {{"3"}}}});
    json grid = ok("grid", {{"window", normal}, {"control", "grdt"}});
    for (const char* common : {"ok", "messages", "ended"})
        grid.erase(common);
    EXPECT_EQ(grid, (json{{"rows", 3},
                          {"cols", 2},
                          {"fixedRows", 1},
                          {"fixedCols", 1},
                          {"row", 2},
                          {"col", 1},
                          {"visible", true},
                          {"cells", Table{{"N°", "X"}, {" 1", "3.0"}, {"[->]", ""}}}}));
    const json results = ok("grid", {{"window", normal}, {"control", "grddis"}});
    EXPECT_EQ(results["rows"], 500);
    EXPECT_EQ(results["cells"].size(), 500U) << "empty trailing rows are not left out";
    EXPECT_EQ(results["cells"][499], json(6, ""));
    error("grid", {{"window", normal}, {"control", "txtxt"}});
}

TEST_F(DriverViewsTest, AChartIsToldWithAllDigitsOfItsNumbers) {
    open("mdistrinormal", normal);
    json chart = ok("chart", {{"window", normal}});
    EXPECT_EQ(chart["visible"], false);
    EXPECT_EQ(chart["points"], 0);
    EXPECT_EQ(chart["x"], nullptr);
    EXPECT_EQ(chart["series"], json::array());
    ok("rows", {{"window", normal}, {"rows", {{"3"}, {"0.1"}, {"2"}, {"5"}}}});
    click(normal, "bCalcular");
    click(normal, "bGraficar");
    chart = ok("chart", {{"window", normal}, {"control", "Graph1"}});
    EXPECT_EQ(chart["visible"], true);
    EXPECT_EQ(chart["kind"], "line");
    EXPECT_EQ(chart["style"], 0);
    EXPECT_EQ(chart["points"], 5);
    EXPECT_EQ(chart["x"], (json{0.0, 0.1, 2.0, 3.0, 5.0}));
    ASSERT_EQ(chart["series"].size(), 3U);
    EXPECT_EQ(chart["series"][0]["legend"], "Exp");
    // m / (n + 1) in doubles; 3.0 / 5 has no shorter text than 0.6 that reads back the same.
    EXPECT_EQ(chart["series"][0]["y"], (json{0.0, 1.0 / 5, 2.0 / 5, 3.0 / 5, 4.0 / 5}));
    const double exact = chart["series"][1]["y"][1];
    EXPECT_NE(exact, std::stod(std::to_string(exact))) << "not cut to six decimals";
    error("chart", {{"window", "frmCaudalera"}});
    error("chart", {{"window", normal}, {"control", "grdt"}});
    error("chart", {{"window", normal}, {"control", "Graph2"}});
}

TEST_F(DriverViewsTest, TheFocusIsToldOrNull) {
    EXPECT_EQ(ok("focus", {{"window", "frmCaudalera"}}).contains("control"), true);
    open("mdistrinormal", normal);
    click(normal, "bLimpiar");
    EXPECT_EQ(focus(normal), "bLimpiar");
    error("focus", {{"window", "frmDocumento"}});
}

} // namespace
} // namespace caudalera
