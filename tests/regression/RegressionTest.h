#pragma once

#include "shell/window/MSFlexGrid.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// The open window of a regression.
class RegressionTest : public WindowTest {
protected:
    using Rows = std::vector<std::vector<std::string>>;

    explicit RegressionTest(const std::string& window) { open(window); }

    void calculate(const Rows& data) {
        rows(data);
        click("bCalcular");
    }

    /// Replaces the grid's data without touching anything else of the window.
    void replaceRows(const Rows& data) {
        cell("grdt", control<MSFlexGrid>("grdt").Rows() - 1, 1);
        click("mnuEditEliminar");
        rows(data);
    }

    /// As many pairs (i, i).
    static Rows diagonal(int count) {
        Rows pairs;
        for (int i = 1; i <= count; ++i)
            pairs.push_back({std::to_string(i), std::to_string(i)});
        return pairs;
    }

    /// The rows of `grdecua` below its header.
    std::vector<std::string> equations() {
        std::vector<std::string> texts;
        for (long row = 1; row < control<MSFlexGrid>("grdecua").Rows(); ++row)
            texts.push_back(rowText("grdecua", row));
        return texts;
    }
};

} // namespace caudalera
