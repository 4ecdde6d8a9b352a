#include "tests/driver/DriverProcess.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class DriverEventsTest : public DriverTest {
protected:
    static constexpr const char* normal = "frmDisNormal";

    std::vector<std::string> loaded() {
        std::vector<std::string> names;
        const json reply = ok("windows");
        for (const json& window : reply["windows"])
            names.push_back(window["name"]);
        return names;
    }
    void openNormal() { open("mdistrinormal", normal); }
    json rows(const Table& rows) { return ok("rows", {{"window", normal}, {"rows", rows}}); }
    json cell(long row, long col) {
        return ok("cell", {{"window", normal}, {"grid", "grdt"}, {"row", row}, {"col", col}});
    }
};

using Names = std::vector<std::string>;

TEST_F(DriverEventsTest, TheMenuOpensWindowsAndShowsThemAgain) {
    openNormal();
    rows({{"3"}});
    open("mparanoagru", "frmParamEsta");
    openNormal();
    EXPECT_EQ(loaded(), (Names{"frmCaudalera", normal, "frmParamEsta"}));
    EXPECT_EQ(cells(normal, "grdt")[1], (Row{" 1", "3.0"})) << "with its data untouched";
    open("mayuacerca", "frmacerc");
    click("frmacerc", "bsalir");
    EXPECT_EQ(loaded(), (Names{"frmCaudalera", normal, "frmParamEsta"}));
    for (const char* title : {"mpara", "mayuda"})
        EXPECT_EQ(ok("menu", {{"entry", title}})["window"], nullptr);
    error("menu", {{"entry", "bsalir"}});
    error("menu", {{"entry", "mnuFileNew"}});
    ok("close", {{"window", "frmCaudalera"}});
    EXPECT_NE(error("menu", {{"entry", "mdistrinormal"}}), "ended");
    EXPECT_EQ(loaded(), (Names{normal, "frmParamEsta"}));
}

TEST_F(DriverEventsTest, HelpIsAProcessOrAMessage) {
    const json reply = ok("menu", {{"entry", "mayuayu"}});
    EXPECT_EQ(reply["window"], nullptr);
    EXPECT_EQ(reply["messages"], json::array());
    EXPECT_EQ(ok("processes", {{"fail", true}})["started"],
              (json{R"(c:\Caudalera\hh c:\Caudalera\Ayuda.chm)"}));
    EXPECT_EQ(ok("menu", {{"entry", "mayuayu"}})["messages"],
              (json{{{"text", "Para obtener la ayuda presionar tecla F1 "},
                     {"title", "Mensaje de error"},
                     {"icon", "information"}}}));
    ok("processes", {{"fail", false}});
    EXPECT_EQ(ok("menu", {{"entry", "mayuayu"}})["messages"], json::array());
}

TEST_F(DriverEventsTest, ClosingAWindowLosesItsData) {
    openNormal();
    rows({{"3"}});
    ok("close", {{"window", normal}});
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
    error("close", {{"window", normal}});
    error("get", {{"window", normal}, {"control", "lblmensaje"}});
    openNormal();
    EXPECT_EQ(cells(normal, "grdt"), (Table{{"N°", "X"}, {"[?]", ""}}));
    click(normal, "bMenu");
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
}

TEST_F(DriverEventsTest, ClicksGoToWhatTakesThem) {
    openNormal();
    click(normal, "optMomentoLi");
    EXPECT_EQ(ok("get", {{"window", normal}, {"control", "optMomentoLi"}})["checked"], true);
    EXPECT_EQ(ok("get", {{"window", normal}, {"control", "optOrdinario"}})["checked"], false);
    click(normal, "optMomentoLi");
    EXPECT_EQ(ok("get", {{"window", normal}, {"control", "optMomentoLi"}})["checked"], true);
    click(normal, "txtxq");
    EXPECT_EQ(focus(normal), "txtxq");
    for (const char* control : {"lblmensaje", "fraCaudal", "Graph1", "StatusBar1"})
        error("click", {{"window", normal}, {"control", control}});
    error("click", {{"window", "frmDocumento"}, {"control", "mnuEditCopy"}});
    error("click", {{"window", "frmPadre"}, {"control", "mnuEditCopy"}});
}

TEST_F(DriverEventsTest, TextReplacesAFieldAndLeavesNoEnter) {
    openNormal();
    ok("text", {{"window", normal}, {"control", "txtxt"}, {"text", "año €"}});
    EXPECT_EQ(text(normal, "txtxt"), "año €");
    EXPECT_EQ(focus(normal), "txtxt");
    error("text", {{"window", normal}, {"control", "grdt"}, {"text", "1"}});
    error("text", {{"window", normal}, {"control", "bCalcular"}, {"text", "1"}});
}

TEST_F(DriverEventsTest, LeavingTakesTheFocusAway) {
    openNormal();
    EXPECT_EQ(focus(normal), "grdt");
    key(normal, "grdt", "5");
    EXPECT_EQ(focus(normal), "txtt");
    EXPECT_EQ(text(normal, "StatusBar1"),
              "Para introducir o modificar datos, digitarlos y luego presionar ENTER");
    ok("leave", {{"window", normal}, {"control", "txtxt"}});
    EXPECT_EQ(focus(normal), "txtt") << "that one did not have it";
    ok("leave", {{"window", normal}, {"control", "txtt"}});
    EXPECT_EQ(focus(normal), "null");
    EXPECT_EQ(text(normal, "StatusBar1"), "");
}

TEST_F(DriverEventsTest, KeysGoToTheGridAndToTheOpenBox) {
    openNormal();
    rows({{"1"}, {"2"}});
    cell(1, 1);
    for (const char* name : {"ñ", "4", ".", "Down"})
        key(normal, "grdt", name);
    EXPECT_EQ(cells(normal, "grdt")[1][1], "ñ4.");
    key(normal, "grdt", "Up");
    key(normal, "grdt", "7");
    EXPECT_EQ(ok("get", {{"window", normal}, {"control", "txtt"}})["visible"], true);
    key(normal, "grdt", "Escape");
    EXPECT_EQ(ok("get", {{"window", normal}, {"control", "txtt"}})["visible"], false);
    EXPECT_EQ(cells(normal, "grdt")[1][1], "ñ4.");
    key(normal, "grdt", " ");
    EXPECT_EQ(text(normal, "txtt"), "0.0") << "a blank loads the numeric reading of the cell";
    key(normal, "txtt", "8");
    key(normal, "txtt", "Enter");
    const json grid = ok("grid", {{"window", normal}, {"control", "grdt"}});
    EXPECT_EQ(grid["cells"][1][1], "8.0");
    EXPECT_EQ(grid["row"], 2);
    key(normal, "txtxt", "5");
    key(normal, "txtxt", "0");
    EXPECT_EQ(text(normal, "txtxt"), "50");
    EXPECT_EQ(key(normal, "bQ", "Enter")["messages"].size(), 1U) << "nothing is calculated yet";
    for (const char* control : {"lblmensaje", "fraCaudal", "Graph1", "mnuEditInsertar"})
        error("key", {{"window", normal}, {"control", control}, {"key", "5"}});
    EXPECT_EQ(focus(normal), "bQ");
}

TEST_F(DriverEventsTest, RowsAreTypedAtTheAppendRowWhereverTheCurrentCellIs) {
    openNormal();
    rows({{"3"}, {"abc"}, {""}});
    EXPECT_EQ(cells(normal, "grdt"),
              (Table{{"N°", "X"}, {" 1", "3.0"}, {" 2", "0.0"}, {" 3", "0.0"}, {"[->]", ""}}));
    cell(1, 1);
    key(normal, "grdt", "9");
    rows({{"7"}});
    EXPECT_EQ(cells(normal, "grdt")[1], (Row{" 1", "9"})) << "what was being typed is stored";
    EXPECT_EQ(cells(normal, "grdt")[4], (Row{" 4", "7.0"}));
    rows({});
    EXPECT_EQ(cells(normal, "grdt").size(), 6U);
    open("mregresimple", "frmEjRegSimple");
    ok("rows", {{"window", "frmEjRegSimple"}, {"rows", Table{{"1", "2"}, {"3", ""}}}});
    EXPECT_EQ(cells("frmEjRegSimple", "grdt")[1], (Row{" 1", "1.0", "2.0"}));
    EXPECT_EQ(cells("frmEjRegSimple", "grdt")[2], (Row{" 2", "3.0", "0.0"}));
    error("rows", {{"window", "frmCaudalera"}, {"rows", {{"1"}}}});
}

TEST_F(DriverEventsTest, OnlyCellsThatCanBeCurrentAreMadeSo) {
    openNormal();
    rows({{"3"}, {"4"}});
    cell(2, 1);
    const auto where = [&] {
        const json grid = ok("grid", {{"window", normal}, {"control", "grdt"}});
        return json{grid["row"], grid["col"], grid["cells"][3][0]};
    };
    EXPECT_EQ(where(), (json{2, 1, "[?]"})) << "the row change has run";
    for (const auto& [row, col] : std::vector<std::pair<int, int>>{
             {0, 1}, {1, 0}, {4, 1}, {1, 2}, {-1, 1}, {1, -1}, {99999, 1}})
        error("cell", {{"window", normal}, {"grid", "grdt"}, {"row", row}, {"col", col}});
    EXPECT_EQ(where(), (json{2, 1, "[?]"}));
    ok("cell", {{"window", normal}, {"grid", "grddis"}, {"row", 5}, {"col", 0}});
    error("cell", {{"window", normal}, {"grid", "txtxt"}, {"row", 1}, {"col", 1}});
}

TEST_F(DriverEventsTest, TheRightButtonTellsTheMenu) {
    openNormal();
    rows({{"1"}, {"2"}});
    const json request = {{"window", normal}, {"grid", "grdt"}};
    EXPECT_EQ(ok("rightclick", request)["menu"],
              (json{{{"name", "mnuEditInsertar"}, {"enabled", false}},
                    {{"name", "mnuEditEliminar"}, {"enabled", true}}}));
    cell(1, 1);
    EXPECT_EQ(ok("rightclick", request)["menu"][0]["enabled"], true);
    EXPECT_EQ(ok("rightclick", {{"window", normal}, {"grid", "grddis"}})["menu"], json::array());
    click(normal, "mnuEditInsertar");
    EXPECT_EQ(cells(normal, "grdt").size(), 5U);
    click(normal, "mnuEditEliminar");
    click(normal, "mnuEditEliminar");
    EXPECT_EQ(cells(normal, "grdt"), (Table{{"N°", "X"}, {" 1", "2.0"}, {"[?]", ""}}))
        << "the entries need no right click before";
    error("rightclick", {{"window", normal}, {"grid", "bCalcular"}});
}

TEST_F(DriverEventsTest, TabsAreChosenByTheirIndex) {
    constexpr const char* rational = "frmQmaxRacional";
    open("mmaxeraci", rational);
    const auto tab = [&] {
        return ok("get", {{"window", rational}, {"control", "SSTab1"}})["tab"];
    };
    EXPECT_EQ(tab(), 0);
    ok("tab", {{"window", rational}, {"index", 1}});
    EXPECT_EQ(tab(), 1);
    EXPECT_EQ(focus(rational), "txtac");
    for (const json& index : {json(3), json(-1), json("1"), json(0.5)})
        error("tab", {{"window", rational}, {"index", index}});
    EXPECT_EQ(tab(), 1);
    ok("tab", {{"window", rational}, {"index", 0}});
    EXPECT_EQ(focus(rational), "txtcq");
    openNormal();
    error("tab", {{"window", normal}, {"index", 0}});
}

TEST_F(DriverEventsTest, ListsTakeAnItemOrWhatIsTyped) {
    constexpr const char* penman = "frmPenman";
    open("mevapenman", penman);
    const json request = {{"window", penman}, {"control", "cobMes"}};
    const json items = ok("get", request)["items"];
    ASSERT_EQ(items.size(), 12U);
    const auto choose = [&](const std::string& text) {
        json members = request;
        members["text"] = text;
        ok("choose", members);
        return ok("get", request)["text"];
    };
    EXPECT_EQ(choose(items[3]), items[3]);
    EXPECT_EQ(focus(penman), "cobMes");
    EXPECT_EQ(choose("ningún mes"), "ningún mes");
    error("choose", request);
    error("choose", {{"window", penman}, {"control", "txtT"}, {"text", "x"}});
}

} // namespace
} // namespace caudalera
