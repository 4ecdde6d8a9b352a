// The certified regressions of the NIST/ITL Statistical Reference Datasets, typed into the windows.
// Where a window's model is the certified one (Norris for the line, Pontius for the second degree)
// the values are NIST's; elsewhere they are the least-squares solution of the window's own model,
// solved from the data in rational arithmetic (fractions of whole numbers, no rounding at all), the
// potential equations with logarithms of 60 digits.
//
// Every digit that a window shows is right in every one of these sets, but for Se of the exact line
// NoInt1, which is what rounding leaves; with four or five decimals that are not many where a
// coefficient is small:
// - Norris: a0 and a1 with 4 to 6 digits; the coefficients of X^2 and X^3, near 1E-6 and 1E-9, show
//   as 0.00.
// - Pontius: a0 with 1 digit, or 3 in the line; all others, below 1E-6, show as 0.00. The windows
//   evaluate with the unrounded ones: Y at 3 000 000 has all of its five digits.
// - Wampler1, 3, 4, 5: 8 to 11 digits of each coefficient, Wampler2: 3 to 5, in the
//   line 6 and 7. Their certified model is of the fifth degree, which no window fits.
// - NoInt1, NoInt2: certified for a line through the origin, which no window fits: all of them have
//   a constant. With one, NoInt1 is an exact line; the line of NoInt2 has 6 digits, R 5, and its
//   three pairs are too few for the polynomials.
// - Longley: 2 to 9 digits of the fits on its first two and three columns. No window has six
//   variables.

#include "tests/regression/RegressionTest.h"
#include "tests/support/PublishedTable.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

struct Case {
    std::string window;
    std::string set;
    std::string equation;
    std::string x;
    std::string y;
};

const std::string second = "Polinomio 2° grado|Y = ";
const std::string third = "Polinomio 3er grado|Y = ";
const std::string line = "Lineal|Y = ";

const std::vector<Case> cases = {
    {"frmRegreLineal", "Norris", line + "-0.26232 + 1.00212 * X|1.0|0.99999", "500", "500.7961"},
    {"frmRegPoli2Gra", "Norris", second + "-0.4489 +1.0040 * X 0.00 * X ^2|1.00|1.00|0.8754", "500",
     "501.0384"},
    {"frmRegPoli3Gra", "Norris",
     third + "-0.4109 +1.0029 * X +0.00 * X ^2 0.00 * X ^3|1.00|1.00|0.8873", "500", "501.0443"},
    {"frmRegreLineal", "Pontius", line + "0.00615 + 0.0 * X|0.99999|0.99999", "3000000", "2.1725"},
    {"frmRegPoli2Gra", "Pontius", second + "0.0007 +0.00 * X 0.00 * X ^2|1.00|1.00|0.0002",
     "3000000", "2.1684"},
    {"frmRegPoli3Gra", "Pontius",
     third + "0.0005 +0.00 * X 0.00 * X ^2 +0.00 * X ^3|1.00|1.00|0.0002", "3000000", "2.1685"},
    {"frmRegreLineal", "NoInt1", line + "70.0 + 1.0 * X|1.0|1.0", "10", "80.0000"},
    {"frmRegreLineal", "NoInt2", line + "1.16667 + 0.5 * X|0.86603|0.75", "10", "6.1667"},
    {"frmRegreLineal", "Wampler1", line + "-655614.80952 + 127957.51429 * X|0.81859|0.67009", "10",
     "623960.3333"},
    {"frmRegPoli2Gra", "Wampler1",
     second + "319917.5714 -180105.3429 * X +15403.1429 * X ^2|0.9762|0.9530|221698.9540", "10",
     "59178.4286"},
    {"frmRegPoli3Gra", "Wampler1",
     third + "-77334.4286 +91930.9683 * X -19443.5238 * X ^2 +1161.5556 * X "
             "^3|0.9988|0.9977|50970.7508",
     "10", "59178.4286"},
    {"frmRegreLineal", "Wampler2", line + "-10.60294 + 2.53839 * X|0.86683|0.7514", "10",
     "14.7809"},
    {"frmRegPoli2Gra", "Wampler2",
     second + "5.6194 -2.5845 * X +0.2561 * X ^2|0.9871|0.9743|3.0705", "10", "5.3890"},
    {"frmRegPoli3Gra", "Wampler2",
     third + "0.0771 +1.2109 * X -0.2300 * X ^2 +0.0162 * X ^3|0.9995|0.9991|0.5988", "10",
     "5.3890"},
    {"frmRegreLineal", "Wampler3", line + "-655614.80952 + 127957.51429 * X|0.81859|0.67009", "10",
     "623960.3333"},
    {"frmRegPoli2Gra", "Wampler3",
     second + "319917.5714 -180105.3429 * X +15403.1429 * X ^2|0.9762|0.9530|221709.4227", "10",
     "59178.4286"},
    {"frmRegPoli3Gra", "Wampler3",
     third + "-77334.4286 +91930.9683 * X -19443.5238 * X ^2 +1161.5556 * X "
             "^3|0.9988|0.9976|51018.9416",
     "10", "59178.4286"},
    {"frmRegreLineal", "Wampler4", line + "-655614.80952 + 127957.51429 * X|0.801|0.6416", "10",
     "623960.3333"},
    {"frmRegPoli2Gra", "Wampler4",
     second + "319917.5714 -180105.3429 * X +15403.1429 * X ^2|0.9552|0.9125|309143.1125", "10",
     "59178.4286"},
    {"frmRegPoli3Gra", "Wampler4",
     third + "-77334.4286 +91930.9683 * X -19443.5238 * X ^2 +1161.5556 * X "
             "^3|0.9774|0.9552|227480.9593",
     "10", "59178.4286"},
    {"frmRegreLineal", "Wampler5", line + "-655614.80952 + 127957.51429 * X|0.0388|0.00151", "10",
     "623960.3333"},
    {"frmRegPoli2Gra", "Wampler5",
     second + "319917.5714 -180105.3429 * X +15403.1429 * X ^2|0.0463|0.0021|21546218.4200", "10",
     "59178.4286"},
    {"frmRegPoli3Gra", "Wampler5",
     third + "-77334.4286 +91930.9683 * X -19443.5238 * X ^2 +1161.5556 * X "
             "^3|0.0473|0.0022|22169760.7595",
     "10", "59178.4286"},
};

class NistWindowsTest : public RegressionTest, public ::testing::WithParamInterface<Case> {
protected:
    NistWindowsTest() : RegressionTest(GetParam().window) {}
};

INSTANTIATE_TEST_SUITE_P(Sets, NistWindowsTest, ::testing::ValuesIn(cases),
                         [](const auto& test) { return test.param.set + test.param.window; });

TEST_P(NistWindowsTest, ShowsEveryDigitRight) {
    calculate(publishedTable("nist_" + GetParam().set, {"x1", "y"}));
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(equations(), std::vector{GetParam().equation});
    enter(GetParam().window == "frmRegreLineal" ? "txtvxx" : "txtvxx1", GetParam().x);
    click("bCalY");
    EXPECT_EQ(text("txtvyy"), GetParam().y);
}

class NistSetsTest : public WindowTest {
protected:
    std::string row(long number) { return rowText("grdecua", number); }
    void calculate(const std::string& window, const std::string& set,
                   const std::vector<std::string>& columns) {
        open(window);
        rows(publishedTable("nist_" + set, columns));
        click("bCalcular");
    }
};

// Nothing is left of Y behind an exact line. The polynomials take Se from a difference of sums,
// where only rounding stays: below 0 it would end the program, and no digit of Se means anything.
TEST_F(NistSetsTest, ThePolynomialsFindTheExactLineOfNoInt1) {
    calculate("frmRegPoli2Gra", "NoInt1", {"x1", "y"});
    EXPECT_TRUE(row(1).starts_with(second + "70.00 +1.00 * X ")) << row(1);
    calculate("frmRegPoli3Gra", "NoInt1", {"x1", "y"});
    EXPECT_TRUE(row(1).starts_with(third + "70.00 +1.00 * X ")) << row(1);
}

TEST_F(NistSetsTest, NoInt2HasTooFewPairsForAPolynomial) {
    for (const char* window : {"frmRegPoli2Gra", "frmRegPoli3Gra"}) {
        calculate(window, "NoInt2", {"x1", "y"});
        EXPECT_EQ(messages().size(), 1U) << window;
        EXPECT_EQ(row(1), "||||") << window;
    }
}

TEST_F(NistSetsTest, LongleyByItsFirstTwoColumns) {
    calculate("frmRegMul2Var", "Longley", {"x1", "x2", "y"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(row(1),
              "Lineal Múltiple|Y = 56945.0382 -85.1065 *X1 +0.0439 *X2|0.9841|0.9685|669.3392");
    EXPECT_EQ(row(2),
              "Potencial Múltiple|Y= 4492.9444*X1^(-0.2617) *X2^(0.3026)|0.9845|0.9693|654.5954");
}

TEST_F(NistSetsTest, LongleyByItsFirstThreeColumns) {
    calculate("frmRegMul3Var", "Longley", {"x1", "x2", "x3", "y"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(row(1),
              "Lineal Múltiple|Y = 53927.1744 -25.9424 * X1 +0.0406 * X2-0.5334 * X3        "
              "|0.9903|0.9808|544.6883");
    EXPECT_EQ(row(2), "Potencial Múltiple|Y = 4686.3718 *X1^(-0.1832) *X2^(+0.2768)* X3^(-0.0092)"
                      "|0.9853|0.9709|663.1215");
}

} // namespace
} // namespace caudalera
