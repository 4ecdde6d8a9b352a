// Mean rainfall through the windows: numbers, refusals and failures.

#include "tests/precipitation/ArealTest.h"

namespace caudalera {
namespace {

// (20 + 30 + 40.5) / 3 = 30.1666...
TEST_F(ArealTest, TheArithmeticMeanOfItsStations) {
    sheet("frmPromArit");
    values({"20", "30", "40.5"});
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "30.167");
    EXPECT_TRUE(messages().empty());
}

// (20 * 1.5 + 30 * 2 + 999 * 0 + 40 * 4.5) / 8 = 270 / 8 = 33.75.
TEST_F(ArealTest, ThiessenWeighsTheStationsByTheirAreas) {
    sheet("frmThiessen");
    rows({{"20", "1.5"}, {"30", "2"}, {"999", "0"}, {"40", "4.5"}});
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "33.75");
    EXPECT_TRUE(messages().empty());
}

TEST_F(ArealTest, ASingleBandHasTheMeanOfItsTwoIsohyets) {
    sheet("frmIsoyeta");
    rows({{"10", "5"}});
    enter("txtUltimaIsoyeta", "20");
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "15.0");
    EXPECT_TRUE(messages().empty());
}

// Bands of 40, 25 and 36.25 mm: (40 * 1 + 25 * 2 + 36.25 * 1) / 4 = 126.25 / 4 = 31.5625.
TEST_F(ArealTest, TheLastIsohyetClosesTheSeriesWhateverTheirOrder) {
    sheet("frmIsoyeta");
    rows({{"50", "1"}, {"30", "2"}, {"20", "1"}});
    enter("txtUltimaIsoyeta", "52.5");
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "31.563");
    enter("txtUltimaIsoyeta", "20");
    click("bCalcular");
    // The last band has 20 mm: (40 + 50 + 20) / 4.
    EXPECT_EQ(text("txtPprom"), "27.5");
    EXPECT_TRUE(messages().empty());
}

TEST_F(ArealTest, TheMeanHasOneToThreeDecimals) {
    sheet("frmPromArit");
    values({"2"});
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "2.0");
    cell("grdt", 2, 1);
    values({"3"});
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "2.5");
    values({"0.0035"});
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "1.668"); // 5.0035 / 3 = 1.66783
    click("bLimpiar");
    values({"0.4"});
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "0.4");
}

TEST_F(ArealTest, AnEmptyCellIsZero) {
    sheet("frmPromArit");
    values({"10", ""});
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "5.0");
}

TEST_F(ArealTest, WithoutDataEachWindowRefusesInItsOwnWords) {
    const struct {
        const char *name, *text;
    } windows[] = {
        {"frmPromArit", "Antes de realizar cálculos, ingresar datos"},
        {"frmThiessen", "Ingresar datos antes de realizar los cálculos"},
        {"frmIsoyeta", "Ingresar datos antes de realizar cálculos"},
    };
    for (const auto& [name, words] : windows) {
        SCOPED_TRACE(name);
        auto& form = sheet(name);
        if (form.find("txtUltimaIsoyeta"))
            enter("txtUltimaIsoyeta", "20");
        form.setFocus(nullptr);
        click("bCalcular");
        expectMessage({words, "Mensaje de error"});
        EXPECT_EQ(focus(), "grdt");
        EXPECT_EQ(text("txtPprom"), "");
    }
}

TEST_F(ArealTest, TheLastIsohyetIsAskedForBeforeTheRowsAreLookedAt) {
    sheet("frmIsoyeta");
    click("bCalcular");
    expectMessage({"Ingresar un valor adecuado para la última isoyeta", "Mensaje de error"});
    EXPECT_EQ(focus(), "txtUltimaIsoyeta");
    rows({{"10", "0"}});
    click("bCalcular");
    expectMessage({"Ingresar un valor adecuado para la última isoyeta", "Mensaje de error"});
    EXPECT_EQ(text("txtPprom"), "");
    EXPECT_FALSE(platform.ending.has_value());
}

TEST_F(ArealTest, ATotalAreaOfZeroEndsTheProgram) {
    sheet("frmThiessen");
    rows({{"10", "4"}, {"20", "-4"}});
    click("bCalcular");
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_F(ArealTest, BandsWithoutAreaEndTheProgram) {
    sheet("frmIsoyeta");
    rows({{"10", "0"}});
    enter("txtUltimaIsoyeta", "20");
    click("bCalcular");
    EXPECT_TRUE(fatal(11));
}

TEST_F(ArealTest, FiveHundredAndFiftyStationsAreTaken) {
    for (const char* name : {"frmPromArit", "frmThiessen"}) {
        SCOPED_TRACE(name);
        sheet(name);
        loadOnes(550);
        click("bCalcular");
        EXPECT_EQ(text("txtPprom"), "1.0");
        save(file("b"));
        EXPECT_FALSE(platform.ending.has_value());
    }
}

TEST_F(ArealTest, OneStationMoreEndsTheArithmeticMean) {
    sheet("frmPromArit");
    loadOnes(551);
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
}

TEST_F(ArealTest, OneStationMoreEndsThiessen) {
    sheet("frmThiessen");
    loadOnes(551);
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
}

TEST_F(ArealTest, OneStationMoreCannotBeSavedEither) {
    sheet("frmPromArit");
    loadOnes(551);
    save(file("b.P"));
    EXPECT_TRUE(fatal(9));
}

// The last isohyet takes the place behind the rows.
TEST_F(ArealTest, FiveHundredAndFortyNineBandsAreTaken) {
    sheet("frmIsoyeta");
    loadOnes(549);
    click("bCalcular");
    EXPECT_EQ(text("txtPprom"), "1.0");
    save(file("b.IA"));
    EXPECT_EQ(bytesOf(file("b.IA")).size(), 4400U);
}

TEST_F(ArealTest, OneBandMoreEndsTheIsohyets) {
    sheet("frmIsoyeta");
    loadOnes(550);
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
}

TEST_F(ArealTest, OneBandMoreCannotBeSavedEither) {
    sheet("frmIsoyeta");
    loadOnes(550);
    save(file("b.IA"));
    EXPECT_TRUE(fatal(9));
}

} // namespace
} // namespace caudalera
