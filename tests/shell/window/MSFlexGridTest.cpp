#include "shell/window/MSFlexGrid.h"
#include "tests/support/FailureNumber.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

using testing::failureNumber;

/// A window of one grid of 3 rows and 3 columns, header and row labels fixed, which notes its
/// events.
class GridTest : public WindowTest {
protected:
    GridTest() {
        grid.reset(3, 3, 1, 1);
        grid.onLeaveCell = [this] { note("leave"); };
        grid.onRowColChange = [this] { note("change"); };
        grid.onScroll = [this] { events.emplace_back("scroll"); };
    }

    void note(const char* event) {
        events.push_back(event + (" " + std::to_string(grid.Row())) + "," +
                         std::to_string(grid.Col()));
    }

    Window window{program, "frmGrid", ""};
    MSFlexGrid grid{window, "grid"};
    std::vector<std::string> events;
};

using Events = std::vector<std::string>;

TEST_F(GridTest, ResetMakesItEmptyWithTheFirstFreeCellCurrent) {
    grid.setTextMatrix(2, 2, "x");
    grid.selectCell(2, 2);
    events.clear();
    grid.reset(4, 2, 1, 1);
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.Cols(), 2);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 1);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.TopRow(), 1);
    for (long row = 0; row < 4; ++row) {
        for (long col = 0; col < 2; ++col)
            EXPECT_EQ(grid.TextMatrix(row, col), "");
    }
    EXPECT_EQ(events, Events{});
}

TEST_F(GridTest, AGridOfItsHeaderOnlyHasTheHeaderCurrent) {
    grid.reset(1, 2, 1, 1);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_FALSE(grid.canSelect(0, 1));
}

TEST_F(GridTest, HeadersFillRowZero) {
    grid.setHeaders({"Nº", "X"});
    EXPECT_EQ(grid.TextMatrix(0, 0), "Nº");
    EXPECT_EQ(grid.TextMatrix(0, 1), "X");
    EXPECT_EQ(grid.TextMatrix(0, 2), "");
    EXPECT_EQ(failureNumber([&] { grid.setHeaders({"a", "b", "c", "d"}); }), 9);
}

TEST_F(GridTest, ASecondFixedRowTakesHeadersOfItsOwn) {
    grid.reset(4, 2, 2, 1);
    grid.setHeaders({"N°", "T"});
    grid.setHeaders({"", "(min)"}, 1);
    EXPECT_EQ(grid.TextMatrix(0, 1), "T");
    EXPECT_EQ(grid.TextMatrix(1, 1), "(min)");
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_FALSE(grid.canSelect(1, 1));
    EXPECT_EQ(failureNumber([&] { grid.setHeaders({"a"}, 4); }), 9);
}

TEST_F(GridTest, ACellOutsideIsFailure9) {
    using Cell = std::pair<long, long>;
    for (const Cell& cell : {Cell{-1, 0}, Cell{0, -1}, Cell{3, 0}, Cell{0, 3}}) {
        const long row = cell.first;
        const long col = cell.second;
        EXPECT_EQ(failureNumber([&] { (void)grid.TextMatrix(row, col); }), 9);
        EXPECT_EQ(failureNumber([&] { grid.setTextMatrix(row, col, "x"); }), 9);
        EXPECT_EQ(failureNumber([&] { grid.setSelectionEnd(row, col); }), 9);
    }
    EXPECT_EQ(failureNumber([&] { grid.setRow(3); }), 9);
    EXPECT_EQ(failureNumber([&] { grid.setCol(-1); }), 9);
    EXPECT_EQ(failureNumber([&] { grid.selectCell(0, 1); }), 9) << "a fixed cell is never chosen";
    EXPECT_EQ(failureNumber([&] { grid.selectCell(1, 0); }), 9);
    EXPECT_EQ(events, Events{});
}

TEST_F(GridTest, MoreRowsThan16BitsIsFailure6) {
    grid.setRows(32767);
    EXPECT_EQ(grid.Rows(), 32767);
    EXPECT_EQ(failureNumber([&] { grid.setRows(32768); }), 6);
    EXPECT_EQ(failureNumber([&] { grid.reset(32768, 2, 1, 1); }), 6);
    EXPECT_EQ(grid.Rows(), 32767);
}

TEST_F(GridTest, FewerRowsThanTheFixedOnesIsFailure9) {
    grid.setRows(1);
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(failureNumber([&] { grid.setRows(0); }), 9);
}

TEST_F(GridTest, NewRowsAreEmptyAndStandAtTheEnd) {
    grid.setTextMatrix(2, 1, "last");
    grid.setRows(5);
    EXPECT_EQ(grid.TextMatrix(2, 1), "last");
    EXPECT_EQ(grid.TextMatrix(3, 1), "");
    EXPECT_EQ(grid.TextMatrix(4, 2), "");
}

TEST_F(GridTest, FewerRowsKeepTheFirstOnesAndTheCurrentRowInside) {
    grid.setTextMatrix(1, 1, "first");
    grid.selectCell(2, 2);
    events.clear();
    grid.setRows(2);
    EXPECT_EQ(grid.TextMatrix(1, 1), "first");
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(events, Events{});
}

TEST_F(GridTest, RemovingARowMovesTheLowerOnesUp) {
    for (long row = 0; row < 3; ++row)
        grid.setTextMatrix(row, 1, "row " + std::to_string(row));
    grid.RemoveItem(1);
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.TextMatrix(0, 1), "row 0");
    EXPECT_EQ(grid.TextMatrix(1, 1), "row 2");
    EXPECT_EQ(failureNumber([&] { grid.RemoveItem(0); }), 9) << "a fixed row stays";
    EXPECT_EQ(failureNumber([&] { grid.RemoveItem(2); }), 9);
}

TEST_F(GridTest, RemovingTheLastRowMovesTheCurrentRowUpWithoutAnEvent) {
    grid.selectCell(2, 2);
    events.clear();
    grid.RemoveItem(2);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(events, Events{});
}

TEST_F(GridTest, MovingRunsLeaveBeforeAndChangeAfter) {
    grid.setRow(2);
    EXPECT_EQ(events, (Events{"leave 1,1", "change 2,1"}));
    events.clear();
    grid.setCol(2);
    EXPECT_EQ(events, (Events{"leave 2,1", "change 2,2"}));
}

TEST_F(GridTest, SettingTheSameRowOrColumnRunsNothing) {
    grid.setRow(1);
    grid.setCol(1);
    EXPECT_EQ(events, Events{});
}

TEST_F(GridTest, ChoosingTheCurrentCellRunsTheChangeAlone) {
    grid.selectCell(1, 1);
    EXPECT_EQ(events, Events{"change 1,1"});
}

TEST_F(GridTest, ChoosingTheCurrentCellEndsTheSelection) {
    grid.setSelectionEnd(2, 2);
    grid.selectCell(1, 1);
    EXPECT_EQ(grid.RowSel(), 1);
    EXPECT_EQ(grid.ColSel(), 1);
}

TEST_F(GridTest, AMoveEndsTheSelection) {
    grid.setSelectionEnd(2, 2);
    EXPECT_EQ(grid.RowSel(), 2);
    EXPECT_EQ(grid.ColSel(), 2);
    EXPECT_EQ(grid.Row(), 1);
    grid.setRow(1);
    EXPECT_EQ(grid.RowSel(), 1);
    EXPECT_EQ(grid.ColSel(), 1);
}

TEST_F(GridTest, ScrollingRunsItsEventAndStaysBelowTheHeader) {
    grid.setTopRow(2);
    EXPECT_EQ(grid.TopRow(), 2);
    EXPECT_EQ(events, Events{"scroll"});
    grid.setTopRow(2);
    EXPECT_EQ(events, Events{"scroll"});
    grid.setTopRow(0);
    EXPECT_EQ(grid.TopRow(), 1);
    grid.setTopRow(99);
    EXPECT_EQ(grid.TopRow(), 2);
}

TEST_F(GridTest, ClearingRowsLeavesTheFixedColumnAndTheRowsAbove) {
    for (long row = 0; row < 3; ++row) {
        for (long col = 0; col < 3; ++col)
            grid.setTextMatrix(row, col, "x");
    }
    grid.clearRowsFrom(2);
    EXPECT_EQ(grid.TextMatrix(1, 1), "x");
    EXPECT_EQ(grid.TextMatrix(2, 0), "x");
    EXPECT_EQ(grid.TextMatrix(2, 1), "");
    EXPECT_EQ(grid.TextMatrix(2, 2), "");
    grid.clearRowsFrom(3);
    EXPECT_EQ(grid.Rows(), 3);
}

TEST_F(GridTest, TheRevisionGrowsWithWhatAViewMustReadAgain) {
    const auto first = grid.revision();
    grid.setTextMatrix(1, 1, "a");
    const auto second = grid.revision();
    EXPECT_GT(second, first);
    grid.setTextMatrix(1, 1, "a");
    grid.setRows(3);
    EXPECT_EQ(grid.revision(), second) << "nothing changed";
    grid.setRows(4);
    const auto third = grid.revision();
    EXPECT_GT(third, second);
    grid.RemoveItem(3);
    EXPECT_GT(grid.revision(), third);
}

} // namespace
} // namespace caudalera
