// Published results of published series, typed into the window; tests/data/README.md names the
// sources. Where a source prints fewer digits than the masks, its own digits are what is compared.

#include "tests/stats/ParamEstaTest.h"
#include "tests/support/PublishedSeries.h"

#include <cmath>

namespace caudalera::testing {
namespace {

class ParamEstaPublished : public ParamEstaTest {
protected:
    double shown(long row, long col) { return std::stod(cellText("grdParam", row, col)); }
    /// Half a unit of the fourth decimal, which is where the masks round, and a little for the
    /// comparison of binary numbers.
    static constexpr double maskStep = 0.5e-4 + 1e-9;
};

// Certified mean and standard deviation (n - 1), rounded by "0.##00".
TEST_F(ParamEstaPublished, NistLew) {
    calculate(publishedSeries("nist_Lew"));
    EXPECT_EQ(cellText("grdParam", 1, 1), "-177.4350"); // -177.435000000000
    EXPECT_EQ(cellText("grdParam", 1, 2), "-177.4350");
    EXPECT_EQ(cellText("grdParam", 3, 1), "277.3322"); // 277.332168044316
    EXPECT_EQ(text("txtL1"), "-177.4350");
}

TEST_F(ParamEstaPublished, NistLottery) {
    calculate(publishedSeries("nist_Lottery"));
    EXPECT_EQ(cellText("grdParam", 1, 1), "518.9587"); // 518.958715596330
    EXPECT_EQ(cellText("grdParam", 3, 1), "291.6997"); // 291.699727470969
    EXPECT_EQ(text("txtL1"), "518.9587");
}

TEST_F(ParamEstaPublished, NistMavro) {
    calculate(publishedSeries("nist_Mavro"));
    EXPECT_EQ(cellText("grdParam", 1, 1), "2.0019"); // 2.00185600000000
    EXPECT_EQ(cellText("grdParam", 3, 1), "0.0004"); // 0.000429123454003053
    EXPECT_EQ(text("txtL1"), "2.0019");
}

TEST_F(ParamEstaPublished, NistMichelso) {
    calculate(publishedSeries("nist_Michelso"));
    EXPECT_EQ(cellText("grdParam", 1, 1), "299.8524"); // 299.852400000000
    EXPECT_EQ(cellText("grdParam", 3, 1), "0.0790");   // 0.0790105478190518
    EXPECT_EQ(text("txtL1"), "299.8524");
}

// Three values: the kurtosis has no number to give.
TEST_F(ParamEstaPublished, NistNumAcc1EndsTheProgram) {
    calculate(publishedSeries("nist_NumAcc1"));
    EXPECT_TRUE(fatal(11));
}

TEST_F(ParamEstaPublished, HarricanaMomentsOfBobeeAndAshkar) {
    calculate(valuesOf(samplePath("harricana_amos.csv")));
    EXPECT_NEAR(shown(1, 1), 191.31739, maskStep + 0.5e-5);
    EXPECT_NEAR(shown(3, 1), 47.96161, maskStep + 0.5e-5);
    EXPECT_NEAR(shown(5, 1), 0.86055, maskStep + 0.5e-5);
    // The published excess G2 = n (n + 1) S4 / ((n - 1)(n - 2)(n - 3) s^4)
    // - 3 (n - 1)^2 / ((n - 2)(n - 3)); the window shows n^2 S4 / ((n - 1)(n - 2)(n - 3) s^4).
    const double n = 69;
    const double excess = 1.3434868130194;
    const double kurtosis = (excess + 3 * std::pow(n - 1, 2) / ((n - 2) * (n - 3))) * n / (n + 1);
    EXPECT_NEAR(shown(6, 1), kurtosis, maskStep);
}

TEST_F(ParamEstaPublished, TippecanoeMomentsOfRaoAndHamed) {
    calculate(publishedSeries("tippecanoe"));
    EXPECT_NEAR(shown(1, 1), 12665, 0.5);
    EXPECT_NEAR(shown(3, 1), 4710, 0.5);
    EXPECT_NEAR(shown(3, 2), 4660, 0.5);
}

TEST_F(ParamEstaPublished, LinearMomentsOfHoskingsPackage) {
    calculate(publishedSeries("sample31"));
    EXPECT_EQ(text("txtL1"), "1648.8065");           // 1648.8064516
    EXPECT_EQ(text("txtL2"), "138.2366");            // 138.2365591
    EXPECT_EQ(cellText("grdParam", 5, 3), "0.1034"); // t3 0.1033903
    EXPECT_EQ(cellText("grdParam", 6, 3), "0.1941"); // t4 0.1940943
    // l3 = t3 l2 and l4 = t4 l2, each known to half a unit of the last printed digit.
    EXPECT_NEAR(std::stod(text("txtL3")), 0.1033903 * 138.2365591, maskStep + 1e-5);
    EXPECT_NEAR(std::stod(text("txtL4")), 0.1940943 * 138.2365591, maskStep + 1e-5);
}

TEST_F(ParamEstaPublished, LinearMomentsOfTheWindSpeeds) {
    calculate(publishedSeries("airquality_wind"));
    EXPECT_EQ(text("txtL1"), "9.9575"); // 9.9575163
    EXPECT_EQ(text("txtL2"), "1.9822"); // 1.9822411
    EXPECT_EQ(cellText("grdParam", 1, 3), "9.9575");
    EXPECT_EQ(cellText("grdParam", 3, 3), "1.9822");
}

} // namespace
} // namespace caudalera::testing
