#pragma once

#include "shell/window/MSFlexGrid.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera::testing {

/// The window of ungrouped data, open.
class ParamEstaTest : public WindowTest {
protected:
    ParamEstaTest() { open("frmParamEsta"); }

    void calculate(const std::vector<std::string>& series) {
        values(series);
        click("bCalcular");
    }

    /// Takes all rows of data out but the first `kept`, as the pop-up does.
    void keepRows(long kept) {
        auto& grdt = control<MSFlexGrid>("grdt");
        while (grdt.Rows() - 2 > kept) {
            cell("grdt", grdt.Rows() - 2, 1);
            click("mnuEditEliminar");
        }
    }

    /// Rows 1 to 6 of the results, cells joined by '|' and the padding of the names cut off.
    std::vector<std::string> parameters() {
        std::vector<std::string> rows;
        for (long row = 1; row <= 6; ++row) {
            std::string joined;
            for (long col = 1; col <= 3; ++col)
                joined += (col > 1 ? "|" : "") + cellText("grdParam", row, col);
            rows.push_back(joined);
        }
        return rows;
    }

    /// The fields L1 to L4.
    std::vector<std::string> coefficients() {
        return {text("txtL1"), text("txtL2"), text("txtL3"), text("txtL4")};
    }

    /// Column 1 of the sorted list.
    std::vector<std::string> sorted() {
        std::vector<std::string> cells;
        for (long row = 1; row < control<MSFlexGrid>("grdorden").Rows(); ++row)
            cells.push_back(cellText("grdorden", row, 1));
        return cells;
    }

    using Texts = std::vector<std::string>;
    const Texts noParameters = Texts(6, "||");
    const Texts noCoefficients = Texts(4, "");
};

} // namespace caudalera::testing
