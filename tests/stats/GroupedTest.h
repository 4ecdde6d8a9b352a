#pragma once

#include "shell/window/Graph.h"
#include "shell/window/MSFlexGrid.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera::testing {

/// The open window of grouped data.
class GroupedTest : public WindowTest {
protected:
    using Texts = std::vector<std::string>;

    explicit GroupedTest(const std::string& window,
                         const std::vector<WindowEntry>& opens = ventanas())
        : WindowTest(opens) {
        open(window);
    }

    void calculate(const Texts& series) {
        values(series);
        click("bCalcular");
    }

    /// Replaces the grid's data without touching anything else of the window.
    void replaceValues(const Texts& series) {
        cell("grdt", control<MSFlexGrid>("grdt").Rows() - 1, 1);
        click("mnuEditEliminar");
        values(series);
    }

    /// The rows of `grddis` below its header, and those of them that hold something.
    Texts allClasses() {
        Texts all;
        for (long row = 1; row < control<MSFlexGrid>("grddis").Rows(); ++row)
            all.push_back(rowText("grddis", row));
        return all;
    }
    Texts classes() {
        Texts filled;
        for (const std::string& row : allClasses()) {
            if (row.find_first_not_of('|') != std::string::npos)
                filled.push_back(row);
        }
        return filled;
    }

    /// Column 1 of the sorted list.
    Texts sorted() {
        Texts cells;
        for (long row = 1; row < control<MSFlexGrid>("grdorden").Rows(); ++row)
            cells.push_back(cellText("grdorden", row, 1));
        return cells;
    }
    bool sortedListIsVisible() {
        EXPECT_EQ(control<Control>("grdorden").visible, control<Control>("lblOrdenado").visible);
        return control<Control>("grdorden").visible;
    }

    /// C = 3: two, three, three and two values in classes that begin at -0.5.
    const Texts oneToTen = {"4", "2", "10", "1", "7", "3", "9", "5", "8", "6"};
    /// The same classes with three, five, one and one values.
    const Texts skewed = {"3", "10", "2", "3", "1", "5", "3", "2", "8", "4"};

    // The report's blocks.
    const std::string rule45 = std::string(45, '-') + "\n";
    const std::string seriesHeading = rule45 + " N°\t\t X\t\t\n" + rule45;
    static std::string rows(const Texts& lines) {
        std::string all;
        for (const std::string& line : lines)
            all += line + "\n";
        return all;
    }
    /// Cells of a class with the given numbers of blanks on both sides of each.
    static std::string centred(const std::vector<std::pair<std::size_t, std::string>>& cells) {
        std::string line;
        for (const auto& [blanks, text] : cells)
            line += std::string(blanks, ' ') + text + std::string(blanks, ' ');
        return line;
    }
};

} // namespace caudalera::testing
