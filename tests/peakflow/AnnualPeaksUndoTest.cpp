// The start year goes with the rows when their changes are taken back.

#include "tests/peakflow/AnnualPeaksTest.h"

namespace caudalera {
namespace {

class PeakUndoTest : public BothPeakWindowsTest {
protected:
    GridHistory& history() { return *form.grdt.history; }
    template <typename Act>
    void act(const Act& run) {
        run();
        history().note();
    }
    bool undo() {
        program.focus(form.grdt);
        return history().undo();
    }
    bool redo() {
        program.focus(form.grdt);
        return history().redo();
    }
};
INSTANTIATE_TEST_SUITE_P(Peaks, PeakUndoTest, ::testing::Values("frmQmaxGumbel", "frmQmaxNash"));

TEST_P(PeakUndoTest, AClearingIsTakenBackWithTheYear) {
    act([&] { enter("txtanno", "1918"); });
    act([&] { values({"16.5", "0.1"}); });
    act([&] { click("bLimpiar"); });
    EXPECT_EQ(text("txtanno"), "");
    EXPECT_TRUE(undo());
    EXPECT_EQ(text("txtanno"), "1918");
    EXPECT_EQ(marks(), " 1918| 1919|[->]");
    values({"3"});
    EXPECT_EQ(marks(), " 1918| 1919| 1920|[->]");
}

TEST_P(PeakUndoTest, RowsThatComeBackTakeTheYearThatWasTypedSince) {
    act([&] { enter("txtanno", "1918"); });
    act([&] { values({"16.5", "0.1"}); });
    act([&] { cell("grdt", 1, 1); });
    act([&] { click("mnuEditEliminar"); });
    act([&] { enter("txtanno", "2000"); });
    EXPECT_TRUE(undo());
    EXPECT_EQ(text("txtanno"), "2000");
    EXPECT_EQ(marks(), " 2000| 2001|[?]");
    EXPECT_EQ(rowText("grdt", 1), " 2000|16.5");
}

// 32767 is the last year; three rows from 32766 on would reach past it.
TEST_P(PeakUndoTest, RowsWhoseYearsWouldNotBeCountedStayAway) {
    act([&] { values({"1", "2", "3"}); });
    act([&] { cell("grdt", 3, 1); });
    act([&] { click("mnuEditEliminar"); });
    act([&] { enter("txtanno", "32766"); });
    program.focus(form.grdt);
    EXPECT_EQ(marks(), " 32766| 32767|[?]");
    EXPECT_FALSE(undo());
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(marks(), " 32766| 32767|[?]");
    EXPECT_EQ(rowText("grdt", 2), " 32767|2.0");
    EXPECT_EQ(text("txtanno"), "32766");
    act([&] { enter("txtanno", "32765"); });
    EXPECT_TRUE(undo());
    EXPECT_EQ(marks(), " 32765| 32766| 32767|[?]");
    EXPECT_EQ(rowText("grdt", 3), " 32767|3.0");
}

} // namespace
} // namespace caudalera
