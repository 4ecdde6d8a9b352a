#include "tests/support/TestSheet.h"

#include <string>

namespace caudalera {
namespace {

constexpr const char* aviso =
    "Para introducir o modificar datos, digitarlos y luego presionar ENTER";

class WorksheetEditingTest : public SheetTest {
protected:
    bool editing() { return control<TextBox>("txtt").visible; }
    std::string status() { return control<StatusBar>("StatusBar1").panels[0]; }
    std::string current() {
        const auto& grid = control<MSFlexGrid>("grdt");
        return std::to_string(grid.Row()) + "," + std::to_string(grid.Col());
    }
    void press(char32_t code) {
        program.key(control<Control>("grdt"), {Key::Kind::character, code});
    }
};

TEST_F(WorksheetEditingTest, LoadsWithHeaderAndAppendRow) {
    const auto& hoja = sheet();
    EXPECT_EQ(rowText("grdt", 0), "Nº|X1|X2|Y");
    EXPECT_EQ(rowText("grdt", 1), "[?]|||");
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(hoja.grdt.FixedRows(), 1);
    EXPECT_EQ(hoja.grdt.FixedCols(), 1);
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(hoja.grdt.columnWidths, (std::vector<int>{700, 1800, 1800, 1800}));
    EXPECT_EQ(hoja.grdt.visibleRows, 14);
    EXPECT_FALSE(editing());
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(status(), "");
}

TEST_F(WorksheetEditingTest, ACharacterOpensTheBoxWithItAndTheCaretBehind) {
    auto& hoja = sheet();
    press(U'7');
    EXPECT_TRUE(editing());
    EXPECT_EQ(text("txtt"), "7");
    EXPECT_EQ(hoja.txtt.selStart(), 1U);
    EXPECT_EQ(hoja.txtt.selLength(), 0U);
    EXPECT_EQ(focus(), "txtt");
    EXPECT_EQ(cellText("grdt", 1, 1), "");
    type("grdt", ".5");
    EXPECT_EQ(text("txtt"), "7.5") << "the keys now go to the box";
}

TEST_F(WorksheetEditingTest, ACodeUpTo32OpensTheBoxWithTheCellSelected) {
    auto& hoja = sheet("hojaUno");
    values({"12.5"});
    for (const char32_t code : {0U, 1U, 8U, 32U}) {
        cell("grdt", 1, 1);
        press(code);
        EXPECT_TRUE(editing());
        EXPECT_EQ(text("txtt"), "12.5");
        EXPECT_EQ(hoja.txtt.selStart(), 0U);
        EXPECT_EQ(hoja.txtt.selLength(), 4U);
        key("grdt", Key::Kind::escape);
        EXPECT_FALSE(editing());
    }
    key("grdt", Key::Kind::escape);
    EXPECT_TRUE(editing()) << "Escape on the grid itself is a key like those";
    EXPECT_EQ(text("txtt"), "12.5");
    press(U'3');
    EXPECT_EQ(text("txtt"), "3") << "what is typed replaces the selection";
    press(33);
    EXPECT_EQ(text("txtt"), "3!");
}

TEST_F(WorksheetEditingTest, AnEmptyCellAndOneWithoutANumberAreLoadedAsZero) {
    sheet("hojaUno");
    values({"1", "2"});
    cell("grdt", 1, 1);
    type("grdt", "abc");
    key("grdt", Key::Kind::down);
    EXPECT_EQ(cellText("grdt", 1, 1), "abc");
    cell("grdt", 1, 1);
    press(32);
    EXPECT_EQ(text("txtt"), "0.0");
    cell("grdt", 3, 1);
    press(32);
    EXPECT_EQ(text("txtt"), "0.0");
}

TEST_F(WorksheetEditingTest, EscapeHidesTheBoxWithoutStoring) {
    sheet();
    type("grdt", "5");
    key("grdt", Key::Kind::escape);
    EXPECT_FALSE(editing());
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(cellText("grdt", 1, 1), "");
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(status(), "");
}

TEST_F(WorksheetEditingTest, EnterStoresTheNumericReading) {
    sheet("hojaUno");
    values({"abc", "12abc", "1,5", "1 234", " .5", "-7", "1e2", "1.123456785", "5"});
    EXPECT_EQ(data(), "0.0/12.0/1.0/1234.0/0.5/-7.0/100.0/1.12345679/5.0");
    EXPECT_EQ(focus(), "grdt");
    EXPECT_FALSE(editing());
}

TEST_F(WorksheetEditingTest, AKeyEditsTheOpenBoxWhereItsCaretIs) {
    auto& hoja = sheet("hojaUno");
    type("grdt", "15");
    program.select(hoja.txtt, 1, 0);
    type("grdt", "2");
    EXPECT_EQ(text("txtt"), "125");
    program.select(hoja.txtt, 0, 0);
    key("grdt", Key::Kind::forwardDelete);
    EXPECT_EQ(text("txtt"), "25");
    press(8);
    EXPECT_EQ(text("txtt"), "25") << "nothing stands before the caret";
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(data(), "25.0");
}

TEST_F(WorksheetEditingTest, DeleteOnTheGridOpensNoBox) {
    sheet();
    key("grdt", Key::Kind::forwardDelete);
    EXPECT_FALSE(editing());
}

TEST_F(WorksheetEditingTest, ANumberPastedIntoTheOpenBoxIsReadAsAPastedBlockIs) {
    auto& hoja = sheet("hojaUno");
    const std::vector<std::pair<std::string, std::string>> pasted = {
        {"1,5", "1.5"},     {"1.234,5", "1234.5"}, {"-0,25\r\n", "-0.25"},
        {"1.5", "1.5"},     {" 1,5e3 ", "1.5e3"},  {"12abc", "12abc"},
        {"1,5 m", "1,5 m"}, {"1.5,2", "1.5,2"},    {"", ""},
    };
    for (const auto& [clipboard, shown] : pasted) {
        press(32);
        program.pasteText(hoja.txtt, clipboard);
        EXPECT_EQ(text("txtt"), shown) << clipboard;
        key("grdt", Key::Kind::escape);
    }
    type("grdt", "2");
    program.pasteText(hoja.txtt, "1,5");
    EXPECT_EQ(text("txtt"), "21.5");
    key("grdt", Key::Kind::enter);
    type("grdt", "1,5");
    key("grdt", Key::Kind::enter);
    program.changeText(hoja.txtt, "1,5");
    EXPECT_EQ(text("txtt"), "1,5") << "a text that is set stays as it is";
    EXPECT_EQ(data(), "21.5/1.0") << "and typing a comma still ends the number";
}

TEST_F(WorksheetEditingTest, DownStoresTheTextAsTypedAndMovesDown) {
    sheet("hojaUno");
    values({"1", "2"});
    cell("grdt", 1, 1);
    type("grdt", "abc");
    key("grdt", Key::Kind::down);
    EXPECT_EQ(cellText("grdt", 1, 1), "abc");
    EXPECT_EQ(current(), "2,1");
    EXPECT_EQ(focus(), "grdt");
    EXPECT_FALSE(editing());
    click("bCalcular");
    EXPECT_EQ(text("txtres"), "1.00") << "abc counts as 0: (0 + 2) / 2";
}

TEST_F(WorksheetEditingTest, DownOnTheAppendRowStaysThere) {
    sheet();
    type("grdt", "4x");
    key("grdt", Key::Kind::down);
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(cellText("grdt", 1, 1), "4x");
    EXPECT_EQ(data(), "") << "it is no row of data";
}

TEST_F(WorksheetEditingTest, UpStoresTheTextAsTypedAndMovesUpToTheFirstDataRow) {
    sheet("hojaUno");
    values({"1", "2"});
    cell("grdt", 2, 1);
    type("grdt", "8");
    key("grdt", Key::Kind::up);
    EXPECT_EQ(cellText("grdt", 2, 1), "8");
    EXPECT_EQ(current(), "1,1");
    type("grdt", "9");
    key("grdt", Key::Kind::up);
    EXPECT_EQ(cellText("grdt", 1, 1), "9");
    EXPECT_EQ(current(), "1,1");
}

TEST_F(WorksheetEditingTest, UpFromTheAppendRowDropsWhatWasTyped) {
    sheet("hojaUno");
    values({"1"});
    type("grdt", "8");
    key("grdt", Key::Kind::up);
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(rowText("grdt", 2), "[?]|");
}

TEST_F(WorksheetEditingTest, ArrowsOnTheGridMoveTheCurrentRow) {
    sheet("hojaUno");
    values({"1", "2"});
    EXPECT_EQ(current(), "3,1");
    key("grdt", Key::Kind::down);
    EXPECT_EQ(current(), "3,1");
    for (const char* expected : {"2,1", "1,1", "1,1"}) {
        key("grdt", Key::Kind::up);
        EXPECT_EQ(current(), expected);
    }
    EXPECT_FALSE(editing());
}

TEST_F(WorksheetEditingTest, TheStatusBarTellsHowToEnterWhileTheBoxHasTheFocus) {
    sheet();
    type("grdt", "5");
    EXPECT_EQ(status(), aviso);
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(status(), "");
    type("grdt", "5");
    EXPECT_EQ(status(), aviso);
    program.focus(control<Control>("txtres"));
    EXPECT_EQ(status(), "");
}

TEST_F(WorksheetEditingTest, ACommandLeavesTheBoxOpenAndNothingStored) {
    sheet("hojaUno");
    values({"2", "4"});
    cell("grdt", 1, 1);
    type("grdt", "100");
    click("bCalcular");
    EXPECT_TRUE(editing());
    EXPECT_EQ(text("txtres"), "3.00");
    EXPECT_EQ(status(), "");
    program.focus(control<Control>("grdt"));
    EXPECT_FALSE(editing());
    EXPECT_EQ(cellText("grdt", 1, 1), "100") << "the grid stores it when it gets the focus";
    click("bCalcular");
    EXPECT_EQ(text("txtres"), "52.00");
}

TEST_F(WorksheetEditingTest, AClickOnAnotherCellStoresInTheOneBeingEdited) {
    sheet("hojaUno");
    values({"2", "4"});
    cell("grdt", 1, 1);
    type("grdt", "7.");
    cell("grdt", 2, 1);
    EXPECT_FALSE(editing());
    EXPECT_EQ(data(), "7./4.0");
    EXPECT_EQ(current(), "2,1");
}

TEST_F(WorksheetEditingTest, TypingInTheAppendRowAndClickingOnAnotherRowClearsIt) {
    sheet();
    rows({{"1", "2", "3"}});
    type("grdt", "4");
    key("grdt", Key::Kind::enter);
    type("grdt", "5");
    EXPECT_EQ(rowText("grdt", 2), "[->]|4.0||");
    cell("grdt", 1, 1);
    EXPECT_EQ(rowText("grdt", 2), "[?]|||");
    EXPECT_EQ(data(), "1.0|2.0|3.0");
}

TEST_F(WorksheetEditingTest, ScrollingHidesTheBoxAndStoresNothing) {
    sheet("hojaUno");
    values({"1", "2", "3"});
    cell("grdt", 1, 1);
    type("grdt", "9");
    program.scroll(control<MSFlexGrid>("grdt"), 2);
    EXPECT_FALSE(editing());
    EXPECT_EQ(data(), "1.0/2.0/3.0");
}

TEST_F(WorksheetEditingTest, ALeftCellHidesTheBoxAndStoresNothing) {
    auto& hoja = sheet("hojaUno");
    values({"1", "2", "3"});
    cell("grdt", 1, 1);
    type("grdt", "9");
    program.act([&] { hoja.grdt.setRow(2); });
    EXPECT_FALSE(editing());
    EXPECT_EQ(data(), "1.0/2.0/3.0");
}

TEST_F(WorksheetEditingTest, EnterInTheFirstOfTwoColumnsMovesRightAndAddsNoRow) {
    auto& hoja = sheet("hojaDos");
    type("grdt", "1");
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(current(), "1,2");
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    type("grdt", "2");
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(hoja.grdt.Rows(), 3);
    EXPECT_EQ(current(), "2,1");
    EXPECT_EQ(marks(), " 1|[->]");
}

TEST_F(WorksheetEditingTest, AnEmptyCellOfTheAppendRowBecomesZero) {
    sheet();
    rows({{"", "5", ""}});
    EXPECT_EQ(data(), "0.0|5.0|0.0");
    EXPECT_EQ(current(), "2,1");
}

TEST_F(WorksheetEditingTest, AppendingNormalisesWhatUpAndDownLeftAsTyped) {
    auto& hoja = sheet("hojaDos");
    type("grdt", "2x");
    key("grdt", Key::Kind::down);
    EXPECT_EQ(cellText("grdt", 1, 1), "2x");
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(current(), "1,2");
    EXPECT_EQ(cellText("grdt", 1, 1), "2x");
    type("grdt", ".123456789");
    key("grdt", Key::Kind::down);
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(data(), "2.0|0.12345679");
    EXPECT_EQ(hoja.grdt.Rows(), 3);
}

TEST_F(WorksheetEditingTest, EnterOnARowOfDataMovesDownInItsColumn) {
    sheet();
    rows({{"1", "2", "3"}, {"4", "5", "6"}});
    cell("grdt", 1, 2);
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(current(), "2,2");
    type("grdt", "9");
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(current(), "3,2");
    EXPECT_EQ(data(), "1.0|2.0|3.0/4.0|9.0|6.0");
    EXPECT_EQ(marks(), " 1| 2|[->]");
}

TEST_F(WorksheetEditingTest, EnterOnTheGridScrollsTheCurrentRowToTheTop) {
    auto& hoja = sheet("hojaUno");
    values({"1", "2", "3"});
    EXPECT_EQ(hoja.grdt.TopRow(), 1) << "ENTER in the box does not scroll";
    cell("grdt", 1, 1);
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(hoja.grdt.TopRow(), 2);
    EXPECT_FALSE(editing());
}

TEST_F(WorksheetEditingTest, ACommaLocaleCutsTheDecimals) {
    platform.separator = ",";
    sheet("hojaUno");
    type("grdt", "2.5");
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(data(), "2,0") << "the mask writes 2,5, which the appending reads as 2";
    cell("grdt", 1, 1);
    type("grdt", "2.5");
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(data(), "2,5");
    click("bCalcular");
    EXPECT_EQ(text("txtres"), "2,00");
}

TEST_F(WorksheetEditingTest, AValuePastTheDoubleRangeIsFatal) {
    sheet("hojaUno");
    type("grdt", "1e309");
    EXPECT_FALSE(program.ended());
    key("grdt", Key::Kind::enter);
    EXPECT_TRUE(fatal(6));
}

TEST_F(WorksheetEditingTest, TheGridItselfHasNoCapacity) {
    auto& hoja = sheet("hojaUno");
    values(std::vector<std::string>(TestSheet::capacidad + 5, "1"));
    EXPECT_EQ(hoja.grdt.Rows(), TestSheet::capacidad + 7);
    EXPECT_FALSE(program.ended());
}

} // namespace
} // namespace caudalera
