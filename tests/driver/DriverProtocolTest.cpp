#include "tests/driver/DriverProcess.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class DriverProtocolTest : public DriverTest {};

const json exited = {{"reason", "exit"}};

TEST_F(DriverProtocolTest, WhatIsNoRequestIsAnsweredAndNothingHappens) {
    for (const char* line : {"", " ", "x", "{", "{\"op\":}", "[]", "1", "null", "\"windows\"", "{}",
                             "{\"op\":null}", "{\"op\":1}", "{\"op\":\"\"}", "{\"op\":\"Windows\"}",
                             "{\"op\":\"no such\"}", "{\"op\":\"windows\"} x",
                             "{\"op\":\"win\xff\"}", "{\"op\":\"\xc3\"}", "{\"op\":\"\\ud800\"}"}) {
        const json reply = raw(line);
        EXPECT_FALSE(reply["ok"].get<bool>()) << line;
        EXPECT_NE(reply["error"], "") << line;
        EXPECT_EQ(reply["messages"], json::array()) << line;
        EXPECT_EQ(reply["ended"], nullptr) << line;
    }
    EXPECT_EQ(ok("windows")["windows"].size(), 1U);
}

TEST_F(DriverProtocolTest, DeepNestingAndLongLinesAreAnswered) {
    const std::string deep(100000, '[');
    EXPECT_FALSE(raw(deep)["ok"].get<bool>());
    EXPECT_FALSE(raw(deep + std::string(100000, ']'))["ok"].get<bool>());
    const std::string name(1000000, 'x');
    EXPECT_NE(error("close", {{"window", name}}), "");
    EXPECT_EQ(ok("clipboard", {{"text", name}})["text"], name);
}

TEST_F(DriverProtocolTest, EveryRequestIsAnsweredInOrder) {
    driver.send("{\"op\":\"windows\"}\n\n{\"op\":\"report\"}\n{\"op\":\"settings\"}\n");
    EXPECT_TRUE(json::parse(driver.receive()).contains("windows"));
    EXPECT_FALSE(json::parse(driver.receive())["ok"].get<bool>());
    EXPECT_TRUE(json::parse(driver.receive()).contains("documents"));
    EXPECT_TRUE(json::parse(driver.receive()).contains("settings"));
}

TEST_F(DriverProtocolTest, AMemberThatIsMissingOrOfAnotherTypeIsAnError) {
    open("mdistrinormal", "frmDisNormal");
    const json window = {{"window", "frmDisNormal"}};
    const auto with = [&](json members) {
        members.update(window);
        return members;
    };
    for (const char* op : {"close", "controls", "click", "text", "leave", "key", "choose", "tab",
                           "rows", "cell", "rightclick", "get", "grid", "chart", "focus", "move"}) {
        error(op);
        error(op, {{"window", 1}});
        error(op, {{"window", nullptr}});
    }
    for (const char* op : {"click", "text", "leave", "key", "choose", "get", "grid"}) {
        error(op, window);
        error(op, with({{"control", 7}}));
        error(op, with({{"control", "none"}}));
    }
    error("menu");
    error("menu", {{"entry", json::array()}});
    error("text", with({{"control", "txtxt"}}));
    error("text", with({{"control", "txtxt"}, {"text", 5}}));
    error("key", with({{"control", "txtxt"}}));
    error("key", with({{"control", "txtxt"}, {"key", ""}}));
    error("key", with({{"control", "txtxt"}, {"key", "ab"}}));
    error("key", with({{"control", "txtxt"}, {"key", "enter"}}));
    error("rows", window);
    for (const json& rows : {json("1"), json{"1"}, json{{1, 2}}, json{{"1"}, "2"}, json(nullptr)})
        error("rows", with({{"rows", rows}}));
    error("cell", with({{"grid", "grdt"}, {"row", 1}}));
    error("cell", with({{"grid", "grdt"}, {"row", "1"}, {"col", 1}}));
    error("cell", with({{"grid", "grdt"}, {"row", 1.5}, {"col", 1}}));
    error("cell", with({{"grid", "grdt"}, {"row", 1e18}, {"col", 1}}));
    error("cell", with({{"grid", "grdt"}, {"row", 18446744073709551615U}, {"col", 1}}));
    error("rightclick", window);
    error("chart", with({{"control", 1}}));
    error("dialog");
    error("dialog", {{"answers", "a"}});
    error("dialog", {{"answers", {1}}});
    error("clipboard", {{"text", 1}});
    error("processes", {{"fail", "yes"}});
    error("activate");
    error("activate", {{"document", -1}});
    error("restart", {{"keepSettings", 1}});
    error("restart", {{"decimalSeparator", ""}});
    error("restart", {{"decimalSeparator", ".,"}});
    error("restart", {{"decimalSeparator", nullptr}});

    EXPECT_EQ(cells("frmDisNormal", "grdt"), (Table{{"N°", "X"}, {"[?]", ""}}));
    EXPECT_EQ(text("frmDisNormal", "txtxt"), "");
    EXPECT_EQ(ok("windows")["windows"].size(), 2U) << "the program still stands as it was";
}

TEST_F(DriverProtocolTest, ARequestThatIsNotUnderstoodDropsNoAnswerAndMovesNoFocus) {
    open("mdistrinormal", "frmDisNormal");
    ok("text", {{"window", "frmDisNormal"}, {"control", "txtxt"}, {"text", "5"}});
    error("key", {{"window", "frmDisNormal"}, {"control", "grdt"}, {"key", "F1"}});
    error("cell", {{"window", "frmDisNormal"}, {"grid", "grdt"}, {"row", 9}, {"col", 1}});
    EXPECT_EQ(focus("frmDisNormal"), "txtxt");
}

TEST_F(DriverProtocolTest, AnExitEndsEverythingButRestart) {
    EXPECT_EQ(ok("menu", {{"entry", "mparasalir"}})["ended"], exited);
    for (const char* op : {"windows", "menu", "report", "dialog", "clipboard", "no such"}) {
        const json reply = ask(op);
        EXPECT_FALSE(reply["ok"].get<bool>());
        EXPECT_EQ(reply["error"], "ended");
        EXPECT_EQ(reply["ended"], exited);
        EXPECT_EQ(reply["messages"], json::array());
    }
    EXPECT_EQ(ask("restart", {{"keepSettings", "no"}})["ended"], exited);
    EXPECT_EQ(ok("restart")["ended"], nullptr);
    EXPECT_EQ(ok("windows")["windows"].size(), 1U);
}

TEST_F(DriverProtocolTest, TheExitButtonAndClosingTheLastWindowEndToo) {
    EXPECT_EQ(click("frmCaudalera", "bsalir")["ended"], exited);
    ok("restart");
    EXPECT_EQ(ok("close", {{"window", "frmCaudalera"}})["ended"], exited);
}

TEST_F(DriverProtocolTest, AFatalFailureTellsItsNumber) {
    open("mparanoagru", "frmParamEsta");
    // The sample kurtosis of three values divides by n - 3.
    ok("rows", {{"window", "frmParamEsta"}, {"rows", {{"1"}, {"2"}, {"3"}}}});
    const json reply = click("frmParamEsta", "bCalcular");
    EXPECT_EQ(reply["ended"], (json{{"reason", "fatal"}, {"number", 11}}));
    EXPECT_EQ(reply["messages"], json::array()) << "the box of a fatal failure is told by ended";
    EXPECT_EQ(ask("windows")["ended"], (json{{"reason", "fatal"}, {"number", 11}}));
}

TEST_F(DriverProtocolTest, AFatalFailureInTheMiddleOfRowsLeavesTheRest) {
    open("mparanoagru", "frmParamEsta");
    const json reply =
        ok("rows", {{"window", "frmParamEsta"}, {"rows", {{"1"}, {"1e999"}, {"3"}}}});
    EXPECT_EQ(reply["ended"], (json{{"reason", "fatal"}, {"number", 6}}));
}

TEST_F(DriverProtocolTest, RestartBeginsAfreshAndMayKeepTheSettings) {
    open("mdistrinormal", "frmDisNormal");
    click("frmDisNormal", "bReporte");
    ok("move", {{"window", "frmPadre"}, {"left", 120}});
    ok("close", {{"window", "frmPadre"}});
    ok("clipboard", {{"text", "x"}});
    ok("dialog", {{"answers", {"a", "b"}}});
    const json kept = ok("settings")["settings"];
    EXPECT_EQ(kept["MainLeft"], "120");
    ok("restart", {{"keepSettings", true}});
    EXPECT_EQ(ok("settings")["settings"], kept);
    EXPECT_EQ(ok("windows")["windows"].size(), 1U);
    EXPECT_EQ(ok("report")["open"], false);
    ok("restart");
    EXPECT_EQ(ok("settings")["settings"], json::object());
}

TEST_F(DriverProtocolTest, EndOfInputEndsTheDriver) {
    driver.send("{\"op\":\"windows\"}");
    EXPECT_EQ(driver.finish(), 0);
}

TEST(DriverArguments, UnknownOnesAreRefused) {
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"--help"},
                                               {"--fixed-dir"},
                                               {"--decimal-separator", ""},
                                               {"--decimal-separator", "::"},
                                               {"--decimal-separator", ",", "--fixed-dir"}})
        EXPECT_EQ(DriverProcess(arguments).finish(), 2) << arguments.front();
    EXPECT_EQ(DriverProcess({"--decimal-separator", ",", "--fixed-dir", "/"}).finish(), 0);
}

class DriverCommaTest : public DriverTest {
protected:
    DriverCommaTest() : DriverTest({"--decimal-separator", ","}) {}
    std::string typed() {
        open("mparanoagru", "frmParamEsta");
        ok("rows", {{"window", "frmParamEsta"}, {"rows", {{"2.5"}}}});
        return cells("frmParamEsta", "grdt")[1][1];
    }
};

TEST_F(DriverCommaTest, TheSeparatorIsTheOneStartedWithUnlessRestartNamesAnother) {
    // The mask writes 2,5, which the appending reads as 2.
    EXPECT_EQ(typed(), "2,0");
    ok("restart", {{"decimalSeparator", "."}});
    EXPECT_EQ(typed(), "2.5");
    ok("restart", {{"decimalSeparator", "·"}});
    EXPECT_EQ(typed(), "2·0");
    ok("restart");
    EXPECT_EQ(typed(), "2,0");
}

} // namespace
} // namespace caudalera
