#pragma once

#include "tests/fitting/FitTest.h"

#include <string>

namespace caudalera::testing {

/// A window of the Gumbel distribution, of the values or of their logarithms; its parameters are µ,
/// alfa, µl, alfal.
class GumbelFitTest : public FitTest {
protected:
    explicit GumbelFitTest(const std::string& window)
        : FitTest(window, {"txtmodau", "txtalfa", "txtmodaul", "txtalfal"}) {}
};

/// That of the values, open.
class DisGumbelTest : public GumbelFitTest {
protected:
    DisGumbelTest() : GumbelFitTest("frmDisGumbel") {}
};

/// That of the logarithms, open.
class DisLogGumbelTest : public GumbelFitTest {
protected:
    DisLogGumbelTest() : GumbelFitTest("frmDisLogGumbel") {}
};

/// What the two windows do alike but for their texts and numbers. The numbers are those of the
/// series 3, 1, 4, 2.
struct GumbelCase {
    std::string window;
    std::string caption;
    std::string distribution;
    /// Length of the rule below the heading of the parameters in the report.
    std::size_t rule;
    std::vector<std::string> parameters;
    /// Rows of `grddis` with the ordinary moments.
    std::vector<std::vector<std::string>> rows;
    std::string delta;
    /// Flow of 100 years and probability of exceedance of 3, ordinary.
    std::string flow;
    std::string above3;
    /// The two theoretical curves.
    std::vector<double> ordinary;
    std::vector<double> linear;
};

/// In 120 digits (mpmath): for 1, 2, 3, 4 the mean 2.5, S = Sqr(5/3), l2 = 5/6; for the logarithms
/// of those the mean ln(24) / 4, S = 0.60117, l2 = 0.38036.
inline const GumbelCase ofValues = {
    "frmDisGumbel",
    "Ajuste de una serie de datos a la distribución Gumbel",
    "Gumbel",
    55,
    {"1.919", "1.0066", "1.806", "1.2022"}, // 1.918984, 1.006584, 1.806045, 1.202246
    {{"1", "1.0", "0.20", "0.0828", "0.1415", "0.1172"},
     {"2", "2.0", "0.40", "0.3975", "0.4270", "0.0025"},
     {"3", "3.0", "0.60", "0.7106", "0.6904", "0.1106"},
     {"4", "4.0", "0.80", "0.8812", "0.8511", "0.0812"}},
    "0.1172",
    "6.55",
    "28.94",
    {0, 0.0827676201, 0.397457373, 0.710591194, 0.881161992},
    {0, 0.1415481300, 0.426981992, 0.690440751, 0.851090427}};
inline const GumbelCase ofLogarithms = {
    "frmDisLogGumbel",
    "Ajuste de una serie de datos a la distribución logGumbel o distribución de Fréchet",
    "logGumbel",
    60,
    {"0.524", "0.4687", "0.4778", "0.5487"}, // 0.523956, 0.468728, 0.477768, 0.548747
    {{"1", "1.0", "0.20", "0.0470", "0.0918", "0.1530"},
     {"2", "2.0", "0.40", "0.4981", "0.5090", "0.0981"},
     {"3", "3.0", "0.60", "0.7457", "0.7243", "0.1457"},
     {"4", "4.0", "0.80", "0.8531", "0.8262", "0.0531"}},
    "0.1530",
    "14.59",
    "25.43",
    {0, 0.0469724929, 0.498073062, 0.745673734, 0.853116821},
    {0, 0.0917699623, 0.508967338, 0.724273582, 0.826157230}};

class BothGumbelTest : public GumbelFitTest, public ::testing::WithParamInterface<GumbelCase> {
protected:
    BothGumbelTest() : GumbelFitTest(GetParam().window) {}
    void fitFour() { fit({"3", "1", "4", "2"}); }
    const GumbelCase& mine = GetParam();
};

/// The name of a test of both windows ends with its window's.
inline std::string windowName(const ::testing::TestParamInfo<GumbelCase>& info) {
    return info.param.window;
}

} // namespace caudalera::testing
