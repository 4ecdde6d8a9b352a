#include "tests/driver/DriverProcess.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class DriverCalculatorTest : public DriverTest {
protected:
    static constexpr const char* calculator = "frmCalculadora";

    /// Opened as a person opens it, from a calculation.
    DriverCalculatorTest() {
        open("mdistrinormal", "frmDisNormal");
        click("frmDisNormal", "bCalculadora");
    }

    /// Clicks on these; the display then.
    std::string after(const std::vector<std::string>& controls) {
        for (const std::string& control : controls)
            click(calculator, control);
        return text(calculator, "lblDisplay");
    }
};

TEST_F(DriverCalculatorTest, ACalculationOpensTheOneCalculator) {
    EXPECT_EQ(ok("get", {{"window", "frmDisNormal"}, {"control", "bCalculadora"}})["enabled"],
              true);
    EXPECT_EQ(after({"cmdNum(7)"}), "7");
    open("mevapenman", "frmPenman");
    click("frmPenman", "bCalculadora");
    const json windows = ok("windows")["windows"];
    ASSERT_EQ(windows.size(), 4U);
    EXPECT_EQ(
        windows[2],
        (json{{"name", calculator}, {"caption", "Calculadora científica"}, {"visible", true}}));
    click("frmPenman", "bMenu");
    EXPECT_EQ(text(calculator, "lblDisplay"), "7");
    ok("close", {{"window", calculator}});
    click("frmDisNormal", "bCalculadora");
    EXPECT_EQ(text(calculator, "lblDisplay"), "0.");
}

TEST_F(DriverCalculatorTest, MembersOfItsArraysAreNamedByWhatTheyDo) {
    EXPECT_EQ(after({"cmdNum(1)", "cmdNum(6)", "cmdOp(11)", "cmdNum(5)", "cmdEquals"}), "1.");
    EXPECT_EQ(after({"cmdNum(3)", "cmdNum(9)", "cmdNum(0)", "cmdSci(sin)"}), "0.5");
    EXPECT_EQ(after({"cmdSci(sin-1)"}), "30.");
    EXPECT_EQ(after({"cmdMem(MS)", "cmdMem(M+)", "cmdClear(C)", "cmdMem(MR)"}), "60.");
    EXPECT_EQ(after({"OptRadian", "cmdSci(pi)", "cmdSci(cos)"}), "-1.");
    EXPECT_EQ(after({"cmdMem(MC)", "cmdMem(MR)"}), "0.");
    EXPECT_EQ(after({"cmdNum(2)", "cmdDecimal", "cmdNum(5)", "cmdValue", "cmdBackSpace"}), "-2.");
    EXPECT_EQ(after({"cmdOp(4)", "cmdNum(8)", "cmdClear(CE)"}), "-2.");
    const std::string drawn = after({"cmdSci(ran)"});
    EXPECT_EQ(drawn.substr(0, 2), "0.");
    EXPECT_GT(drawn.size(), 5U);
}

TEST_F(DriverCalculatorTest, ARefusalIsAMessage) {
    after({"cmdNum(5)", "cmdOp(1)", "cmdNum(0)"});
    EXPECT_EQ(click(calculator, "cmdEquals")["messages"],
              (json{{{"text", "No se puede cumplir con su petición.\r\n"
                              "Esta operación ha sido cancelada."},
                     {"title", "Error en cálculo"},
                     {"icon", "error"}}}));
    EXPECT_EQ(text(calculator, "lblDisplay"), "0");
}

TEST_F(DriverCalculatorTest, TheMenuOfTheDisplayWorksTheClipboard) {
    EXPECT_EQ(after({"cmdNum(4)", "cmdNum(2)", "mnuCopy"}), "42");
    EXPECT_EQ(ok("clipboard")["text"], "42");
    ok("clipboard", {{"text", "-1.25"}});
    EXPECT_EQ(after({"mnuPaste"}), "-1.25");
}

TEST_F(DriverCalculatorTest, KeysWorkItFromAnyControl) {
    for (const char* pressed : {"7", "*", "6", "Enter"})
        key(calculator, "cmdNum(0)", pressed);
    EXPECT_EQ(text(calculator, "lblDisplay"), "42.");
    key(calculator, "OptRadian", "Escape");
    EXPECT_EQ(text(calculator, "lblDisplay"), "0.");
}

TEST_F(DriverCalculatorTest, AFailureEndsTheProgram) {
    after({"cmdNum(8)", "cmdOp(11)", "cmdNum(0)"});
    EXPECT_EQ(click(calculator, "cmdEquals")["ended"], (json{{"reason", "fatal"}, {"number", 11}}));
}

} // namespace
} // namespace caudalera
