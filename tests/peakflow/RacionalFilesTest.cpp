// Series files of the rational method: records of T, D and Imax, three singles each.

#include "tests/peakflow/RacionalTest.h"
#include "tests/support/SeriesBytes.h"

#include <filesystem>

namespace caudalera {
namespace {

class RacionalFilesTest : public RacionalTest {
protected:
    void save(const std::string& path) {
        platform.answers.push_back(path);
        click("bCrear");
    }
    void loadFile(const std::string& path) {
        platform.answers.push_back(path);
        click("bAccesar");
    }
    /// `count` times the record 4, 16, 400.
    static void writeRecords(const std::string& path, int count) {
        std::vector<float> values;
        for (int i = 0; i < count; ++i)
            values.insert(values.end(), {4.0F, 16.0F, 400.0F});
        writeSingles(path, values);
    }
};

// Lowest byte first: 4 is 0x40800000, 16 0x41800000, 400 0x43C80000; 0.1 rounds to 0x3DCCCCCD,
// 20.5 = 1.28125 * 2^4 is 0x41A40000 and 90.25 = 1.41015625 * 2^6 is 0x42B48000.
TEST_F(RacionalFilesTest, ARecordHoldsOneTrio) {
    records({{"4", "16", "400"}, {"0.1", "20.5", "90.25"}});
    save(file("a.TDI"));
    EXPECT_EQ(bytesOf(file("a.TDI")),
              (std::vector<unsigned char>{
                  0x00, 0x00, 0x80, 0x40, 0x00, 0x00, 0x80, 0x41, 0x00, 0x00, 0xC8, 0x43, //
                  0xCD, 0xCC, 0xCC, 0x3D, 0x00, 0x00, 0xA4, 0x41, 0x00, 0x80, 0xB4, 0x42}));
    ASSERT_EQ(platform.dialogsSeen.size(), 1U);
    EXPECT_EQ(platform.dialogsSeen[0].kind, "save");
    EXPECT_EQ(platform.dialogsSeen[0].filter, "Trio valores T,D,I|*.TDI");
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalFilesTest, WhatWasSavedLoadsAgain) {
    records({{"4", "16", "400"}, {"0.1", "20.5", "90.25"}});
    save(file("a.TDI"));
    click("optRegistros");
    loadFile(file("a.TDI"));
    EXPECT_EQ(form.grdt.Rows(), 4);
    EXPECT_EQ(rowText("grdt", 1), " 1|4.0|16.0|400.0");
    EXPECT_EQ(rowText("grdt", 2), " 2|0.1|20.5|90.25");
    EXPECT_EQ(cellText("grdt", 3, 0), "[->]");
    EXPECT_EQ(form.grdt.Row(), 3);
    EXPECT_EQ(platform.dialogsSeen.back().filter, "Trio valores T,D,I|*.TDI");
}

TEST_F(RacionalFilesTest, ALoadResetsTheEquationAndTheFlagAndNothingElse) {
    urbanGroup("10", "techados");
    duration("625", "100");
    records(triosDeLaSuperficie);
    click("bcalcularI");
    save(file("a.TDI"));
    EXPECT_TRUE(form.calculado());
    loadFile(file("a.TDI"));
    EXPECT_FALSE(form.calculado());
    EXPECT_FALSE(shown("lblecuacioni"));
    EXPECT_FALSE(shown("txtecuacioni"));
    EXPECT_EQ(text("txtecuacioni"), "");
    EXPECT_EQ(results(), "625.0|800.0|800.0");
    EXPECT_EQ(text("txtDuracionAdi"), "625");
    EXPECT_EQ(cellText("grdC", 1, 2), "techados");
    EXPECT_EQ(text("txtgrupo"), " 2");
    click("bcalcularI");
    EXPECT_EQ(text("txtecuacioni"), "Imáx = 400.00*T^(0.500) *D^(-0.2500)");
    EXPECT_TRUE(form.calculado());
}

TEST_F(RacionalFilesTest, ACancelledLoadLosesTheEquationAndTheRecords) {
    duration("625", "100");
    records(triosDeLaSuperficie);
    click("bcalcularI");
    click("bAccesar");
    EXPECT_FALSE(shown("txtecuacioni"));
    EXPECT_FALSE(form.calculado());
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_TRUE(messages().empty());
}

TEST_F(RacionalFilesTest, FiveHundredTriosFitInTheArrays) {
    writeRecords(file("500.TDI"), 500);
    click("optRegistros");
    loadFile(file("500.TDI"));
    EXPECT_EQ(form.grdt.Rows(), 502);
    save(file("b.TDI"));
    EXPECT_EQ(std::filesystem::file_size(file("b.TDI")), 6000U);
}

TEST_F(RacionalFilesTest, OneTrioMoreIsToldByTheIntensityAndFatalForTheFile) {
    writeRecords(file("501.TDI"), 501);
    duration("625", "100");
    click("optRegistros");
    loadFile(file("501.TDI"));
    EXPECT_EQ(form.grdt.Rows(), 503);
    click("bcalcularI");
    expectMessage({mensajeDePotencial, ""});
    save(file("b.TDI"));
    EXPECT_TRUE(fatal(9));
}

} // namespace
} // namespace caudalera
