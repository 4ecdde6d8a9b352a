// Table and largest intensity of a storm, and the refusal and the failures of the command.

#include "tests/precipitation/AnalisisTorTest.h"

namespace caudalera {
namespace {

TEST_F(AnalisisTorTest, FillsTheTableAndTellsTheLargestIntensity) {
    rows(tormentaDeCuatro);
    click("bCalcular");
    EXPECT_EQ(rowText("grdecua", 2), "1|10|10|5|5|30.0");
    EXPECT_EQ(rowText("grdecua", 3), "2|20|30|24|29|72.0");
    EXPECT_EQ(rowText("grdecua", 4), "3|8|38|10|39|75.0");
    EXPECT_EQ(rowText("grdecua", 5), "4|30|68|3|42|6.0");
    EXPECT_EQ(rowText("grdecua", 6), "|||||");
    EXPECT_EQ(largest(), "75.0|8");
    EXPECT_TRUE(form.calculado());
    EXPECT_TRUE(messages().empty());
}

// 2.5 * 60 / 7 = 21.428571..., 60 * 0.2 / 0.3 = 40; 0.1 + 0.2 is 0.3 in 15 digits.
TEST_F(AnalisisTorTest, ShowsTimesAndRainfallsPlainAndIntensitiesWithTwoDecimalsAtMost) {
    rows({{"7", "2.5"}, {"0.1", "0.05"}, {"0.2", "0.1"}, {"0.7", "0.00875"}});
    click("bCalcular");
    EXPECT_EQ(rowText("grdecua", 2), "1|7|7|2.5|2.5|21.43");
    EXPECT_EQ(rowText("grdecua", 3), "2|0.1|7.1|0.05|2.55|30.0");
    EXPECT_EQ(rowText("grdecua", 4), "3|0.2|7.3|0.1|2.65|30.0");
    EXPECT_EQ(rowText("grdecua", 5), "4|0.7|8|0.00875|2.65875|0.75");
    EXPECT_EQ(largest(), "30.0|0.1");
}

// 1234567.89 in the table; as singles 1234567.875 and 123456.789 have 7 digits.
TEST_F(AnalisisTorTest, TheLargestIntensityAndItsDurationAreSingles) {
    rows({{"60", "1234567.89"}, {"1", "1"}});
    click("bCalcular");
    EXPECT_EQ(rowText("grdecua", 2), "1|60|60|1234567.89|1234567.89|1234567.89");
    EXPECT_EQ(largest(), "1234568.0|60");
    click("bLimpiar");
    rows({{"123456.789", "123456.789"}, {"1", "0"}});
    click("bCalcular");
    EXPECT_EQ(rowText("grdecua", 2), "1|123456.789|123456.789|123456.789|123456.789|60.0");
    EXPECT_EQ(largest(), "60.0|123456.8");
}

TEST_F(AnalisisTorTest, TheEarlierOfTwoEqualIntensitiesGivesTheDuration) {
    rows({{"10", "5"}, {"20", "20"}, {"10", "10"}});
    click("bCalcular");
    EXPECT_EQ(largest(), "60.0|20");
}

TEST_F(AnalisisTorTest, WithoutRainTheLargestIntensityIsZero) {
    rows({{"10", "0"}, {"20", "0"}});
    click("bCalcular");
    EXPECT_EQ(rowText("grdecua", 3), "2|20|30|0|0|0.0");
    EXPECT_EQ(largest(), "0.0|0");
}

// Nothing of the larger storm before it is left.
TEST_F(AnalisisTorTest, EveryCalculationStartsAnew) {
    rows(tormentaDeCuatro);
    click("bCalcular");
    cell("grdt", 3, 1);
    click("mnuEditEliminar");
    click("bCalcular");
    EXPECT_EQ(largest(), "72.0|20");
    EXPECT_EQ(rowText("grdecua", 4), "3|30|60|3|32|6.0");
    EXPECT_EQ(rowText("grdecua", 5), "|||||");
    cell("grdt", 3, 1);
    click("mnuEditEliminar");
    click("bCalcular");
    EXPECT_EQ(rowText("grdecua", 3), "2|20|30|24|29|72.0");
    EXPECT_EQ(rowText("grdecua", 4), "|||||");
}

TEST_F(AnalisisTorTest, TwoPairsAreEnoughAndOneIsNot) {
    rows({{"10", "5"}, {"20", "20"}});
    click("bCalcular");
    EXPECT_EQ(largest(), "60.0|20");
    EXPECT_TRUE(messages().empty());
    cell("grdt", 2, 1);
    click("mnuEditEliminar");
    cell("grdt", 1, 2);
    click("bCalcular");
    expectMessage({"Para el cálculo ingrese por lo menos dos pares de datos", "Error"});
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(form.grdt.Row(), 2);
    EXPECT_EQ(form.grdt.Col(), 1);
    EXPECT_EQ(rowText("grdecua", 3), "2|20|30|20|25|60.0");
    EXPECT_EQ(largest(), "60.0|20");
}

TEST_F(AnalisisTorTest, ARefusalSetsTheFlagToo) {
    click("bCalcular");
    expectMessage({"Para el cálculo ingrese por lo menos dos pares de datos", "Error"});
    EXPECT_TRUE(form.calculado());
    EXPECT_EQ(form.grdt.Row(), 1);
    EXPECT_EQ(largest(), "|");
    click("bLimpiar");
    EXPECT_FALSE(form.calculado());
}

TEST_F(AnalisisTorTest, AnIntervalWithoutDurationEndsTheProgram) {
    rows({{"10", "5"}, {"0", "20"}, {"10", "5"}});
    click("bCalcular");
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

// The derivation comes before the pairs are counted.
TEST_F(AnalisisTorTest, OnePairWithoutDurationEndsTheProgramToo) {
    rows({{"0", "5"}});
    click("bCalcular");
    EXPECT_TRUE(fatal(11));
}

TEST_F(AnalisisTorTest, ARowThatIsInsertedAndLeftEmptyEndsTheProgram) {
    rows(tormentaDeCuatro);
    cell("grdt", 2, 1);
    click("mnuEditInsertar");
    click("bCalcular");
    EXPECT_TRUE(fatal(11));
}

TEST_F(AnalisisTorTest, TheTableHoldsAHundredAndNinetyEightIntervals) {
    loadMinutes(198);
    click("bCalcular");
    EXPECT_EQ(rowText("grdecua", 199), "198|1|198|1|198|60.0");
    EXPECT_EQ(largest(), "60.0|1");
    EXPECT_FALSE(platform.ending.has_value());
}

TEST_F(AnalisisTorTest, OneIntervalMoreThanTheTableHoldsEndsTheProgram) {
    loadMinutes(199);
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
}

TEST_F(AnalisisTorTest, AnIntensityPastTheSinglesEndsTheProgram) {
    rows({{"10", "5"}, {"1e-30", "1e10"}});
    cell("grdt", 2, 1);
    type("grdt", "1e-30");
    key("grdt", Key::Kind::down);
    click("bCalcular");
    EXPECT_TRUE(fatal(6));
}

} // namespace
} // namespace caudalera
