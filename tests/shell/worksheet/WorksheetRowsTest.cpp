#include "shell/text/MonthData.h"
#include "tests/support/TestSheet.h"

#include <string>

namespace caudalera {
namespace {

class WorksheetRowsTest : public SheetTest {
protected:
    std::string current() {
        const auto& grid = control<MSFlexGrid>("grdt");
        return std::to_string(grid.Row()) + "," + std::to_string(grid.Col());
    }
    bool canInsert() { return control<Control>("mnuEditInsertar").enabled; }
    void rightClick() { program.rightClick(control<MSFlexGrid>("grdt")); }
};

TEST_F(WorksheetRowsTest, TheMarkerShowsWhetherTheAppendRowIsCurrent) {
    sheet("hojaUno");
    EXPECT_EQ(marks(), "[?]") << "until the first row change";
    cell("grdt", 1, 1);
    EXPECT_EQ(marks(), "[->]");
    values({"1", "2"});
    EXPECT_EQ(marks(), " 1| 2|[->]");
    cell("grdt", 1, 1);
    EXPECT_EQ(marks(), " 1| 2|[?]");
    cell("grdt", 3, 1);
    EXPECT_EQ(marks(), " 1| 2|[->]");
}

TEST_F(WorksheetRowsTest, MovingWithinTheAppendRowKeepsItsCells) {
    sheet();
    type("grdt", "4");
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(current(), "1,2");
    cell("grdt", 1, 3);
    EXPECT_EQ(rowText("grdt", 1), "[->]|4.0||");
}

TEST_F(WorksheetRowsTest, MovingWithinARowOfDataEmptiesOnlyTheAppendRow) {
    sheet();
    rows({{"1", "2", "3"}});
    cell("grdt", 1, 1);
    cell("grdt", 1, 3);
    EXPECT_EQ(data(), "1.0|2.0|3.0");
    EXPECT_EQ(marks(), " 1|[?]");
}

TEST_F(WorksheetRowsTest, TheNumberOfRowsOfDataLeavesOutHeaderAndAppendRow) {
    auto& hoja = sheet("hojaUno");
    click("bCrear");
    EXPECT_EQ(hoja.n, 0);
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    values({"1", "2", "3"});
    click("bCalcular");
    EXPECT_EQ(hoja.n, 3);
    EXPECT_EQ(hoja.valor(1, 3).value(), 3.0);
}

TEST_F(WorksheetRowsTest, TheRightButtonSelectsTheRowFromColumnOne) {
    auto& hoja = sheet();
    rows({{"1", "2", "3"}, {"4", "5", "6"}});
    cell("grdt", 1, 3);
    rightClick();
    EXPECT_EQ(current(), "1,1");
    EXPECT_EQ(hoja.grdt.RowSel(), 1);
    EXPECT_EQ(hoja.grdt.ColSel(), 3);
    EXPECT_TRUE(canInsert());
    EXPECT_TRUE(hoja.mnuEditEliminar.enabled);
    ASSERT_EQ(hoja.grdt.popup, &hoja.mnuEdicion);
    EXPECT_EQ(hoja.mnuEdicion.entries,
              (std::vector<MenuEntry*>{&hoja.mnuEditInsertar, nullptr, &hoja.mnuEditEliminar}));
}

TEST_F(WorksheetRowsTest, TheRightButtonStoresWhatIsBeingTyped) {
    sheet("hojaUno");
    values({"1", "2"});
    cell("grdt", 1, 1);
    type("grdt", "9");
    rightClick();
    EXPECT_EQ(data(), "9/2.0");
    click("mnuEditEliminar");
    cell("grdt", 1, 1);
    EXPECT_EQ(data(), "2.0") << "nothing of it moves on to the next row";
}

TEST_F(WorksheetRowsTest, OnTheAppendRowOnlyDeletingIsOffered) {
    auto& hoja = sheet();
    rows({{"1", "2", "3"}});
    rightClick();
    EXPECT_FALSE(canInsert());
    EXPECT_TRUE(hoja.mnuEditEliminar.enabled);
    EXPECT_EQ(current(), "2,1");
    click("mnuEditInsertar");
    EXPECT_EQ(hoja.grdt.Rows(), 3);
    cell("grdt", 1, 1);
    rightClick();
    EXPECT_TRUE(canInsert());
}

TEST_F(WorksheetRowsTest, InsertingIsRefusedOnTheAppendRowAlsoWithoutAPopUp) {
    auto& hoja = sheet();
    rows({{"1", "2", "3"}});
    click("mnuEditInsertar");
    EXPECT_EQ(hoja.grdt.Rows(), 3);
    EXPECT_EQ(data(), "1.0|2.0|3.0");
}

TEST_F(WorksheetRowsTest, InsertingMovesTheRowsDownAndLeavesAnEmptyOne) {
    auto& hoja = sheet("hojaDos");
    rows({{"1", "2"}, {"3", "4"}, {"5", "6"}});
    cell("grdt", 2, 2);
    rightClick();
    click("mnuEditInsertar");
    EXPECT_EQ(data(), "1.0|2.0/|/3.0|4.0/5.0|6.0");
    EXPECT_EQ(marks(), " 1| 2| 3| 4|[?]");
    EXPECT_EQ(rowText("grdt", 5), "[?]||");
    EXPECT_EQ(current(), "2,1");
    click("bCalcular");
    EXPECT_EQ(hoja.n, 4);
    EXPECT_EQ(text("txtres"), "2.2500") << "the empty row counts as 0: (1 + 0 + 3 + 5) / 4";
}

TEST_F(WorksheetRowsTest, InsertingAtTheFirstAndTheLastRowOfData) {
    sheet("hojaUno");
    values({"1", "2"});
    cell("grdt", 2, 1);
    click("mnuEditInsertar");
    EXPECT_EQ(data(), "1.0//2.0");
    cell("grdt", 1, 1);
    click("mnuEditInsertar");
    EXPECT_EQ(data(), "/1.0//2.0");
    EXPECT_EQ(marks(), " 1| 2| 3| 4|[?]");
}

TEST_F(WorksheetRowsTest, AnInsertedRowIsFilledByTyping) {
    sheet("hojaUno");
    values({"1", "2"});
    cell("grdt", 1, 1);
    click("mnuEditInsertar");
    type("grdt", "7");
    key("grdt", Key::Kind::enter);
    EXPECT_EQ(data(), "7.0/1.0/2.0");
    EXPECT_EQ(current(), "2,1");
}

TEST_F(WorksheetRowsTest, DeletingTheFirstOfThreeRowsRenumbersTheOthers) {
    sheet("hojaUno");
    values({"1", "2", "3"});
    cell("grdt", 1, 1);
    rightClick();
    click("mnuEditEliminar");
    EXPECT_EQ(data(), "2.0/3.0");
    EXPECT_EQ(marks(), " 1| 2|[?]");
    EXPECT_EQ(current(), "1,1");
}

TEST_F(WorksheetRowsTest, DeletingTheLastRowOfDataMakesTheAppendRowCurrent) {
    sheet("hojaUno");
    values({"1", "2"});
    cell("grdt", 2, 1);
    rightClick();
    click("mnuEditEliminar");
    EXPECT_EQ(data(), "1.0");
    EXPECT_EQ(current(), "2,1");
    EXPECT_EQ(marks(), " 1|[?]") << "until the next row change";
    cell("grdt", 2, 1);
    EXPECT_EQ(marks(), " 1|[->]");
}

TEST_F(WorksheetRowsTest, DeletingTheOnlyRowLeavesTheAppendRow) {
    auto& hoja = sheet("hojaUno");
    values({"1"});
    cell("grdt", 1, 1);
    click("mnuEditEliminar");
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(marks(), "[?]");
    values({"9"});
    EXPECT_EQ(data(), "9.0");
    EXPECT_EQ(marks(), " 1|[->]");
}

TEST_F(WorksheetRowsTest, DeletingOnTheAppendRowEmptiesTheWholeGrid) {
    auto& hoja = sheet();
    rows({{"1", "2", "3"}, {"4", "5", "6"}});
    rightClick();
    EXPECT_TRUE(hoja.mnuEditEliminar.enabled);
    click("mnuEditEliminar");
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(rowText("grdt", 0), "Nº|X1|X2|Y");
    EXPECT_EQ(rowText("grdt", 1), "[?]|||");
    EXPECT_EQ(current(), "1,1");
}

TEST_F(WorksheetRowsTest, DeletingInAnEmptyGridLeavesItSo) {
    auto& hoja = sheet("hojaUno");
    rightClick();
    click("mnuEditEliminar");
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(marks(), "[?]");
    EXPECT_FALSE(program.ended());
}

TEST_F(WorksheetRowsTest, MonthLabelsRunInCycles) {
    sheet("hojaMeses");
    values(std::vector<std::string>(14, "1"));
    EXPECT_EQ(marks(), "Ene|Feb|Mar|Abr|May|Jun|Jul|Ago|Set|Oct|Nov|Dic|Ene|Feb|[->]");
    EXPECT_EQ(mesDeFila(24), "Dic");
    EXPECT_EQ(mesDeFila(25), "Ene");
}

TEST_F(WorksheetRowsTest, InsertingAndDeletingWriteTheMonthsAnew) {
    sheet("hojaMeses");
    values({"1", "2", "3"});
    cell("grdt", 2, 1);
    click("mnuEditInsertar");
    EXPECT_EQ(data(), "1.0//2.0/3.0");
    EXPECT_EQ(marks(), "Ene|Feb|Mar|Abr|[?]");
    click("mnuEditEliminar");
    cell("grdt", 1, 1);
    click("mnuEditEliminar");
    EXPECT_EQ(data(), "2.0/3.0");
    EXPECT_EQ(marks(), "Ene|Feb|[?]");
}

TEST_F(WorksheetRowsTest, ResettingTheGridWhileEditingDropsTheBox) {
    auto& hoja = sheet("hojaUno");
    values({"1"});
    type("grdt", "5");
    click("bLimpiar");
    EXPECT_FALSE(hoja.txtt.visible);
    program.focus(hoja.grdt);
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
}

TEST_F(WorksheetRowsTest, LabelsCarryALeadingBlankPastNineRows) {
    sheet("hojaUno");
    values(std::vector<std::string>(10, "1"));
    EXPECT_EQ(cellText("grdt", 9, 0), " 9");
    EXPECT_EQ(cellText("grdt", 10, 0), " 10");
}

} // namespace
} // namespace caudalera
