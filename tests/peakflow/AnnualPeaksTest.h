#pragma once

#include "peakflow/AnnualPeaksWindow.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// An open window of the flows of annual peaks.
class AnnualPeaksTest : public WindowTest {
protected:
    explicit AnnualPeaksTest(const std::string& name)
        : form(dynamic_cast<AnnualPeaksWindow&>(open(name))) {}

    AnnualPeaksWindow& form;

    static const std::vector<std::string>& fivePeaks() {
        static const std::vector<std::string> peaks = {"200", "100", "300", "250", "150"};
        return peaks;
    }

    /// Fixed column of `grdt` from row 1 on, joined by '|'.
    std::string marks() {
        std::string joined = form.grdt.TextMatrix(1, 0);
        for (long row = 2; row < form.grdt.Rows(); ++row)
            joined += "|" + form.grdt.TextMatrix(row, 0);
        return joined;
    }
    void calculate(const std::string& T) {
        enter("txtTdato", T);
        click("bCalcular");
    }
    /// The row of `grddis` for a series that stands in the grid alone.
    std::string result(const std::vector<std::string>& peaks, const std::string& T) {
        click("bLimpiar");
        values(peaks);
        calculate(T);
        return rowText("grddis", 1);
    }
    void save(const std::string& path) {
        platform.answers.push_back(path);
        click("bCrear");
    }
    void loadFile(const std::string& path) {
        platform.answers.push_back(path);
        click("bAccesar");
    }
    static std::string rule(std::size_t hyphens) { return std::string(hyphens, '-') + "\n"; }

    const Message datosInadecuados{"Ingresar datos adecuadamente ", "Mensaje de error"};
};

class GumbelWindowTest : public AnnualPeaksTest {
protected:
    GumbelWindowTest() : AnnualPeaksTest("frmQmaxGumbel") {}
};

class NashWindowTest : public AnnualPeaksTest {
protected:
    NashWindowTest() : AnnualPeaksTest("frmQmaxNash") {}

    /// The five sums, joined by '|'.
    std::string sums() {
        return text("txtSQ") + "|" + text("txtSX") + "|" + text("txtSQX") + "|" + text("txtSQ2") +
               "|" + text("txtSX2");
    }
};

/// What holds of both windows.
class BothPeakWindowsTest : public AnnualPeaksTest,
                            public ::testing::WithParamInterface<const char*> {
protected:
    BothPeakWindowsTest() : AnnualPeaksTest(GetParam()) {}
};

} // namespace caudalera
