// bCalcular and bGraficar of the gauging: results, failures, the profile, the resets.

#include "tests/gauging/AforoCorrenTest.h"

#include <cmath>

namespace caudalera::testing {
namespace {

class AforoCorrenCalculate : public AforoCorrenTest {};
class AforoCorrenProfile : public AforoCorrenTest {};
class AforoCorrenReset : public AforoCorrenTest {};

TEST_F(AforoCorrenCalculate, EveryStretchTakesTheMeansOfItsEnds) {
    calculateThreeStretches();
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grdavq", 1), "1|1.5|0.375|0.5625");
    EXPECT_EQ(rowText("grdavq", 2), "2|4.5|0.625|2.8125");
    EXPECT_EQ(rowText("grdavq", 3), "3|1.25|0.5|0.625");
    EXPECT_EQ(rowText("grdavq", 4), "|||");
    EXPECT_EQ(text("txtQ"), "4.0");
}

// (0 + 1) / 2 * 2, (0 + 0.5) / 2 and their product.
TEST_F(AforoCorrenCalculate, FromAnEmptyMarginTheFirstStretchIsATriangle) {
    calculate({{"2", "1", "0.5"}});
    EXPECT_EQ(rowText("grdavq", 1), "1|1.0|0.25|0.25");
    EXPECT_EQ(text("txtQ"), "0.25");
}

// 1.234 * (0 + 0.777) / 2 = 0.479409, (0 + 0.3333) / 2 = 0.16665, product 0.07989350985.
TEST_F(AforoCorrenCalculate, FourDecimalsAreShown) {
    calculate({{"1.234", "0.777", "0.3333"}});
    EXPECT_EQ(rowText("grdavq", 1), "1|0.4794|0.1667|0.0799");
    EXPECT_EQ(text("txtQ"), "0.0799");
}

TEST_F(AforoCorrenCalculate, NegativeVelocitiesCount) {
    calculate({{"2", "1", "-0.5"}, {"2", "1", "-0.5"}});
    EXPECT_EQ(rowText("grdavq", 1), "1|1.0|-0.25|-0.25");
    EXPECT_EQ(rowText("grdavq", 2), "2|2.0|-0.5|-1.0");
    EXPECT_EQ(text("txtQ"), "-1.25");
}

TEST_F(AforoCorrenCalculate, WithoutStretchesTheFlowIsZero) {
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grdavq", 1), "|||");
    EXPECT_EQ(text("txtQ"), "0.0");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    expectProfile({0}, {0});
}

TEST_F(AforoCorrenCalculate, AShorterGaugingLeavesNoRowsOfALongerOne) {
    calculateThreeStretches();
    cell("grdt", 3, 1);
    click("mnuEditEliminar");
    click("bCalcular");
    EXPECT_EQ(rowText("grdavq", 2), "2|4.5|0.625|2.8125");
    EXPECT_EQ(rowText("grdavq", 3), "|||");
    EXPECT_EQ(text("txtQ"), "3.375");
}

TEST_F(AforoCorrenCalculate, FortyNineStretchesFit) {
    calculate(equalStretches(49));
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grdavq", 1), "1|0.5|0.5|0.25");
    EXPECT_EQ(rowText("grdavq", 49), "49|1.0|1.0|1.0");
    EXPECT_EQ(text("txtQ"), "48.25");
}

TEST_F(AforoCorrenCalculate, TheFiftiethStretchFailsBehindTheRowsBeforeIt) {
    calculate(equalStretches(50));
    expectMessage(unsuitable);
    EXPECT_EQ(rowText("grdavq", 49), "49|1.0|1.0|1.0");
    EXPECT_EQ(text("txtQ"), "");
    EXPECT_FALSE(program.ended());
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(AforoCorrenCalculate, AFailureLeavesTheFlowOfTheCalculationBefore) {
    calculateThreeStretches();
    rows(equalStretches(47));
    click("bCalcular");
    expectMessage(unsuitable);
    EXPECT_EQ(text("txtQ"), "4.0");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(chart().points(), 53);
}

TEST_F(AforoCorrenCalculate, AnOverflowFails) {
    calculate({{"1E200", "1E200", "1"}});
    expectMessage(unsuitable);
    EXPECT_EQ(text("txtQ"), "");
    EXPECT_EQ(rowText("grdavq", 1), "|||");
}

// From the water line: (0 + 1) / 2 * 2 and (1 + 2) / 2 * 3 m2.
TEST_F(AforoCorrenCalculate, AnOverflowKeepsTheResultsBefore) {
    calculate({{"2", "1", "0.5"}, {"3", "2", "0.75"}});
    EXPECT_EQ(text("txtQ"), "3.0625");
    messages();
    calculate({{"1E200", "1E200", "1"}});
    EXPECT_EQ(messages(), std::vector{unsuitable});
    EXPECT_EQ(text("txtQ"), "3.0625");
    EXPECT_EQ(rowText("grdavq", 1), "1|1.0|0.25|0.25");
    EXPECT_EQ(rowText("grdavq", 2), "2|4.5|0.625|2.8125");
    EXPECT_EQ(rowText("grdavq", 3), "|||");
}

TEST_F(AforoCorrenCalculate, RowsPastTheArraysFailAndAreFatalInAFile) {
    rows(equalStretches(499));
    platform.answers = {file("a.LHV")};
    click("bCrear");
    ASSERT_FALSE(program.ended());
    rows(equalStretches(1));
    click("bCalcular");
    expectMessage(unsuitable);
    platform.answers = {file("b.LHV")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

TEST_F(AforoCorrenCalculate, TheLocalesSeparatorIsWritten) {
    platform.separator = ",";
    calculate({{"2", "1", "1"}});
    EXPECT_EQ(rowText("grdavq", 1), "1|1,0|0,5|0,5");
    EXPECT_EQ(text("txtQ"), "0,5");
}

TEST_F(AforoCorrenProfile, NeedsACalculation) {
    rows(threeStretches);
    click("bGraficar");
    expectMessage(notCalculated);
    EXPECT_FALSE(chart().visible);
}

TEST_F(AforoCorrenProfile, LiesBelowTheWaterLineWithDepthAtBothMargins) {
    calculateThreeStretches();
    click("bGraficar");
    EXPECT_TRUE(chart().visible);
    EXPECT_EQ(chart().graphKind(), Graph::Kind::line);
    EXPECT_EQ(chart().style(), 0);
    EXPECT_EQ(chart().series().at(0).legend, "");
    expectProfile({0, 0, 2, 5, 6, 6}, {0, -0.5, -1, -2, -0.5, 0});
}

TEST_F(AforoCorrenProfile, ABankThatEndsOnTheWaterLineIsNotClosed) {
    enter("txtho", "0.5");
    calculate({{"2", "1", "0.5"}, {"3", "0", "0"}});
    click("bGraficar");
    expectProfile({0, 0, 2, 5}, {0, -0.5, -1, 0});
    EXPECT_FALSE(std::signbit(chart().series()[0].y[3]));
}

TEST_F(AforoCorrenProfile, FromAnEmptyMargin) {
    calculate({{"2", "1", "0.5"}, {"3", "0.25", "0"}});
    click("bGraficar");
    expectProfile({0, 2, 5, 5}, {0, -1, -0.25, 0});
}

TEST_F(AforoCorrenProfile, TakesTheMarginAsItStandsAndTheRestOfTheLastCalculation) {
    calculateThreeStretches();
    enter("txtho", "0.75");
    rows({{"9", "9", "9"}});
    click("bGraficar");
    expectProfile({0, 0, 2, 5, 6, 6}, {0, -0.75, -1, -2, -0.5, 0});
    // Saving reads the grid too.
    platform.answers = {file("a.LHV")};
    click("bCrear");
    click("bGraficar");
    expectProfile({0, 0, 2, 5, 6, 6}, {0, -0.75, -1, -2, -0.5, 0});
}

TEST_F(AforoCorrenProfile, IsNotRefusedAfterAReset) {
    calculateThreeStretches();
    click("bLimpiar");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    expectProfile({0, 2, 5, 6, 6}, {0, -1, -2, -0.5, 0});
    click("bAccesar");
    EXPECT_FALSE(chart().visible);
    enter("txtho", "0.25");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    expectProfile({0, 0, 2, 5, 6, 6}, {0, -0.25, -1, -2, -0.5, 0});
}

// 298 stretches, the origin and the closing point are 300 points; a margin with depth is one more.
TEST_F(AforoCorrenProfile, ThreeHundredPointsFitAndOneMoreIsFatal) {
    click("bCalcular");
    rows(equalStretches(298));
    click("bCalcular");
    expectMessage(unsuitable);
    click("bGraficar");
    ASSERT_FALSE(program.ended());
    EXPECT_EQ(chart().points(), 300);
    EXPECT_EQ(chart().x()->back(), 298);
    enter("txtho", "1");
    click("bGraficar");
    EXPECT_TRUE(fatal(9));
}

TEST_F(AforoCorrenProfile, OfMoreStretchesThanTheArraysHoldIsFatal) {
    click("bCalcular");
    rows(equalStretches(501));
    click("bCalcular");
    expectMessage(unsuitable);
    click("bGraficar");
    EXPECT_TRUE(fatal(9));
}

TEST_F(AforoCorrenReset, ClearingRestoresTheStart) {
    calculateThreeStretches();
    click("optSi");
    for (const char* field : {"txtNR", "txtTiempo", "txtA", "txtB"})
        enter(field, "2");
    click("bVelocidad");
    click("bGraficar");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    expectNoResults();
    EXPECT_EQ(text("txtho"), "0");
    EXPECT_EQ(text("txtvo"), "0");
    EXPECT_TRUE(control<Option>("optNo").checked());
    EXPECT_FALSE(control<Option>("optSi").checked());
    EXPECT_FALSE(control<Frame>("fraVelocidad").visible);
}

TEST_F(AforoCorrenReset, ALoadTakesResultsAndFieldsBeforeItsDialog) {
    calculateThreeStretches();
    click("optSi");
    for (const char* field : {"txtNR", "txtTiempo", "txtA", "txtB"})
        enter(field, "2");
    click("bVelocidad");
    click("bGraficar");
    click("bAccesar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    expectNoResults();
    EXPECT_EQ(text("txtho"), "0");
    EXPECT_EQ(text("txtvo"), "0");
    EXPECT_TRUE(control<Option>("optSi").checked());
    EXPECT_TRUE(control<Frame>("fraVelocidad").visible);
}

} // namespace
} // namespace caudalera::testing
