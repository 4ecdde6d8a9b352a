// Changes of a data grid, taken back and brought again: the grid then says what it said before or
// behind the change, fixed cells and current cell included.

#include "tests/shell/worksheet/SheetFilesTest.h"

#include "shell/worksheet/PastedBlock.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace caudalera {
namespace {

constexpr std::size_t byteLimit = 24U * 1024 * 1024;

class GridHistoryTest : public SheetFilesTest {
protected:
    TestSheet& openSheet(const std::string& name) {
        sheet_ = &sheet(name);
        history().note();
        return *sheet_;
    }
    MSFlexGrid& grid() { return sheet_->grdt; }
    GridHistory& history() { return *grid().history; }

    /// An act of the user and its end.
    template <typename Act>
    void act(const Act& run) {
        run();
        history().note();
    }
    bool undo() {
        program.focus(grid());
        return history().undo();
    }
    bool redo() {
        program.focus(grid());
        return history().redo();
    }

    /// All that the grid says.
    std::string shown() {
        std::string all = std::to_string(grid().Row()) + "," + std::to_string(grid().Col());
        for (long row = 0; row < grid().Rows(); ++row) {
            all += "\n";
            for (long col = 0; col < grid().Cols(); ++col)
                all += grid().TextMatrix(row, col) + "|";
        }
        return all;
    }
    /// Only the data, the append row's too.
    std::string held() {
        std::string all;
        for (long row = 1; row < grid().Rows(); ++row) {
            for (long col = 1; col < grid().Cols(); ++col)
                all += grid().TextMatrix(row, col) + "|";
            all += "\n";
        }
        return all;
    }
    /// Rows of data without typing them, the append row behind.
    void fill(long rows) {
        grid().setRows(rows + 2);
        for (long row = 1; row <= rows; ++row) {
            for (long col = 1; col < grid().Cols(); ++col)
                grid().setTextMatrix(row, col, std::to_string(row * 10 + col));
        }
        click("mnuEditInsertar");
    }
    void pasteBlock(const std::string& text) {
        const PastedBlock block(text);
        if (block.refusalFor(grid()).empty())
            block.enter(program, grid());
    }

    TestSheet* sheet_ = nullptr;
};

TEST_F(GridHistoryTest, ATypedValueIsTakenBackAndBroughtAgain) {
    openSheet("hojaDos");
    act([&] { rows({{"1", "2"}}); });
    act([&] { cell("grdt", 1, 2); });
    act([&] { type("grdt", "9"); });
    act([&] { key("grdt", Key::Kind::enter); });
    EXPECT_EQ(rowText("grdt", 1), " 1|1.0|9.0");
    EXPECT_TRUE(undo());
    EXPECT_EQ(rowText("grdt", 1), " 1|1.0|2.0");
    EXPECT_EQ(grid().Row(), 1);
    EXPECT_EQ(grid().Col(), 2);
    EXPECT_TRUE(redo());
    EXPECT_EQ(rowText("grdt", 1), " 1|1.0|9.0");
    EXPECT_EQ(grid().Row(), 2);
    EXPECT_EQ(marks(), " 1|[->]");
}

TEST_F(GridHistoryTest, NothingIsTakenBackBeforeTheFirstChangeNorBroughtBehindTheLast) {
    openSheet("hojaUno");
    EXPECT_FALSE(history().canUndo());
    EXPECT_FALSE(undo());
    act([&] { values({"1"}); });
    EXPECT_FALSE(history().canRedo());
    EXPECT_FALSE(redo());
    EXPECT_TRUE(undo());
    EXPECT_EQ(marks(), "[?]") << "as a fresh grid says until the first row change";
    EXPECT_FALSE(undo());
    EXPECT_TRUE(redo());
    EXPECT_FALSE(redo());
    EXPECT_EQ(data(), "1.0");
}

TEST_F(GridHistoryTest, MovingTheCurrentCellIsNoChange) {
    openSheet("hojaUno");
    act([&] { values({"1", "2"}); });
    act([&] { cell("grdt", 1, 1); });
    act([&] { cell("grdt", 2, 1); });
    EXPECT_TRUE(undo());
    EXPECT_EQ(data(), "");
    EXPECT_FALSE(history().canUndo());
}

TEST_F(GridHistoryTest, AnotherChangeEndsWhatCouldBeBroughtAgain) {
    openSheet("hojaUno");
    act([&] { values({"1"}); });
    act([&] { values({"2"}); });
    EXPECT_TRUE(undo());
    act([&] { values({"3"}); });
    EXPECT_FALSE(redo());
    EXPECT_TRUE(undo());
    EXPECT_TRUE(undo());
    EXPECT_EQ(data(), "");
}

TEST_F(GridHistoryTest, InsertingDeletingAndEmptyingAreTakenBackOneByOne) {
    openSheet("hojaDos");
    act([&] { rows({{"1", "2"}, {"3", "4"}, {"5", "6"}}); });
    act([&] { cell("grdt", 2, 1); });
    act([&] { click("mnuEditInsertar"); });
    act([&] { cell("grdt", 1, 1); });
    act([&] { click("mnuEditEliminar"); });
    act([&] { click("bLimpiar"); });
    EXPECT_EQ(data(), "");
    undo();
    EXPECT_EQ(data(), "|/3.0|4.0/5.0|6.0");
    EXPECT_EQ(marks(), " 1| 2| 3|[?]");
    undo();
    EXPECT_EQ(data(), "1.0|2.0/|/3.0|4.0/5.0|6.0");
    undo();
    EXPECT_EQ(data(), "1.0|2.0/3.0|4.0/5.0|6.0");
    EXPECT_EQ(marks(), " 1| 2| 3|[?]");
    EXPECT_EQ(grid().Row(), 2);
}

TEST_F(GridHistoryTest, TheEmptyingByTheAppendRowIsTakenBack) {
    openSheet("hojaDos");
    act([&] { rows({{"1", "2"}, {"3", "4"}}); });
    const std::string before = shown();
    act([&] { click("mnuEditEliminar"); });
    EXPECT_EQ(grid().Rows(), 2);
    undo();
    EXPECT_EQ(held(), "1.0|2.0|\n3.0|4.0|\n||\n");
    EXPECT_EQ(shown(), before);
}

TEST_F(GridHistoryTest, WhatTheAppendRowLosesComesBackWithTheCursorInIt) {
    openSheet("hojaDos");
    act([&] { rows({{"1", "2"}}); });
    act([&] { type("grdt", "7"); });
    act([&] { key("grdt", Key::Kind::enter); });
    const std::string before = shown();
    act([&] { cell("grdt", 1, 1); });
    EXPECT_EQ(rowText("grdt", 2), "[?]||");
    undo();
    EXPECT_EQ(rowText("grdt", 2), "[->]|7.0|");
    EXPECT_EQ(shown(), before);
    redo();
    EXPECT_EQ(rowText("grdt", 2), "[?]||");
    EXPECT_EQ(grid().Row(), 1);
}

TEST_F(GridHistoryTest, AnOpenBoxIsStoredFirstAndThatIsTakenBack) {
    openSheet("hojaUno");
    act([&] { values({"1"}); });
    act([&] { cell("grdt", 1, 1); });
    act([&] { type("grdt", "55"); });
    act([&] { program.focus(sheet_->txtotro); });
    EXPECT_TRUE(undo());
    EXPECT_FALSE(sheet_->txtt.visible);
    EXPECT_EQ(data(), "1.0");
    EXPECT_TRUE(redo());
    EXPECT_EQ(data(), "55");
}

TEST_F(GridHistoryTest, ALoadIsTakenBackWithTheFieldsOfItsFile) {
    openSheet("hojaUltimoUno");
    sheet_->registroFinal = {7};
    act([&] { values({"1", "2"}); });
    act([&] { save(file("a.U")); });
    act([&] { values({"3"}); });
    act([&] { enter("txtultimo", "5"); });
    act([&] { load(file("a.U")); });
    EXPECT_EQ(text("txtultimo"), "7.0");
    act([&] { enter("txtultimo", "6"); });
    undo();
    EXPECT_EQ(text("txtultimo"), "5");
    EXPECT_EQ(data(), "1.0/2.0/3.0");
    act([&] { enter("txtultimo", "4"); });
    undo();
    EXPECT_EQ(text("txtultimo"), "4") << "typing a row does nothing to it";
    EXPECT_EQ(data(), "1.0/2.0");
    redo();
    redo();
    EXPECT_EQ(text("txtultimo"), "7.0");
    EXPECT_EQ(marks(), " 1| 2|[->]");
}

TEST_F(GridHistoryTest, ResultsStayAsTheyAre) {
    openSheet("hojaUno");
    act([&] { values({"1", "2"}); });
    act([&] { click("bCalcular"); });
    EXPECT_EQ(text("txtres"), "1.500");
    undo();
    EXPECT_EQ(data(), "");
    EXPECT_EQ(text("txtres"), "1.500");
    EXPECT_EQ(cellText("grdres", 1, 0), "1.500");
}

TEST_F(GridHistoryTest, MonthsStandBesideTheRowsThatComeBack) {
    openSheet("hojaMeses");
    act([&] { values({"1", "2", "3"}); });
    act([&] { cell("grdt", 1, 1); });
    act([&] { click("mnuEditEliminar"); });
    EXPECT_EQ(marks(), "Ene|Feb|[?]");
    undo();
    EXPECT_EQ(marks(), "Ene|Feb|Mar|[?]");
}

TEST_F(GridHistoryTest, ARowInsertedIntoALongGridTakesNoMoreThanARow) {
    openSheet("hojaDos");
    act([&] { fill(30000); });
    // From one empty row to the filled ones.
    EXPECT_LT(history().bytes(), 2000U);
    act([&] { cell("grdt", 15000, 1); });
    act([&] { click("mnuEditInsertar"); });
    act([&] { click("mnuEditEliminar"); });
    EXPECT_LT(history().bytes(), 4000U);
    EXPECT_EQ(grid().TextMatrix(15000, 1), "149991");
    undo();
    EXPECT_EQ(grid().TextMatrix(15000, 1), "");
    EXPECT_EQ(grid().TextMatrix(15001, 1), "149991");
    undo();
    EXPECT_EQ(grid().TextMatrix(15000, 1), "149991");
}

TEST_F(GridHistoryTest, TheOldestStepsGoWhenTheyTakeTooMuch) {
    openSheet("hojaCuatro");
    for (int i = 0; i < 8; ++i) {
        act([&] { fill(32000); });
        act([&] { click("bLimpiar"); });
    }
    EXPECT_LE(history().bytes(), byteLimit);
    EXPECT_GT(history().bytes(), byteLimit / 2);
    int undone = 0;
    for (; undo(); ++undone)
        EXPECT_LE(history().bytes(), byteLimit);
    // A filled grid has 128,000 texts of at least 32 and at most 56 bytes.
    EXPECT_GE(undone, 5);
    EXPECT_LE(undone, 13);
    int redone = 0;
    while (redo())
        ++redone;
    EXPECT_EQ(redone, undone);
    EXPECT_EQ(grid().Rows(), 2);
}

TEST_F(GridHistoryTest, TheLastStepStaysWhateverItTakes) {
    openSheet("hojaUno");
    const std::string huge(byteLimit + 1, '1');
    act([&] { values({"1"}); });
    act([&] { grid().setTextMatrix(1, 1, huge); });
    act([&] { grid().setTextMatrix(1, 1, "2"); });
    EXPECT_TRUE(undo());
    EXPECT_EQ(grid().TextMatrix(1, 1), huge);
    EXPECT_TRUE(redo());
    EXPECT_EQ(grid().TextMatrix(1, 1), "2");
}

/// Acts in any order against all that the grid said before and behind each of them.
class GridHistoryWalk : public GridHistoryTest, public ::testing::WithParamInterface<unsigned> {
protected:
    long below(long bound) {
        return static_cast<long>(random_() % static_cast<unsigned long>(bound));
    }
    std::string anyNumber() { return std::to_string(below(100)); }

    void anyAct() {
        switch (below(11)) {
        case 0:
            return click("mnuEditInsertar");
        case 1:
            return click("mnuEditEliminar");
        case 2:
            return below(4) == 0 ? click("bLimpiar") : program.rightClick(grid());
        case 3:
            return pasteBlock(anyNumber() + "\t" + anyNumber() + "\n" + anyNumber() + "\t" +
                              anyNumber());
        case 4:
            return below(4) == 0 ? load(file("walk.D")) : program.focus(sheet_->txtotro);
        case 5:
            type("grdt", anyNumber());
            return key("grdt", Key::Kind::down);
        case 6:
        case 7:
            return cell("grdt", 1 + below(grid().Rows() - 1), 1 + below(2));
        default:
            type("grdt", anyNumber());
            return key("grdt", Key::Kind::enter);
        }
    }

    std::mt19937 random_{GetParam()};
};

TEST_P(GridHistoryWalk, EveryStepLeadsToWhatTheGridSaid) {
    openSheet("hojaDos");
    rows({{"1", "2"}, {"3", "4"}, {"5", "6"}});
    save(file("walk.D"));
    struct Change {
        std::string before;
        std::string after;
    };
    history().note();
    std::vector<Change> changes;
    std::size_t done = 0;
    // The rows that were typed before the walk.
    changes.push_back({{}, shown()});
    done = 1;
    std::size_t longest = 0;
    for (int i = 0; i < 600; ++i) {
        const long way = below(10);
        if (way < 2 && done > 1) {
            ASSERT_TRUE(undo());
            --done;
            ASSERT_EQ(shown(), changes[done].before) << "act " << i;
        } else if (way < 4 && done < changes.size()) {
            ASSERT_TRUE(redo());
            ASSERT_EQ(shown(), changes[done].after) << "act " << i;
            ++done;
        } else if (way >= 2) {
            // The box stores what it holds when the grid is asked to go back, so it ends here.
            const std::string before = shown();
            const std::string data = held();
            act([&] { anyAct(); });
            if (held() == data)
                continue;
            changes.resize(done);
            changes.push_back({before, shown()});
            ++done;
        }
        longest = std::max(longest, changes.size());
    }
    EXPECT_GT(longest, 20U);
    EXPECT_TRUE(messages().empty());
}

INSTANTIATE_TEST_SUITE_P(Seeds, GridHistoryWalk, ::testing::Values(1U, 2U, 3U, 4U, 5U, 6U));

} // namespace
} // namespace caudalera
