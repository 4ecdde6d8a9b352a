// Series files of the windows of Gumbel and Nash: one single a peak and the start year behind them.

#include "tests/peakflow/AnnualPeaksTest.h"
#include "tests/support/PublishedTable.h"
#include "tests/support/SeriesBytes.h"

#include <cmath>
#include <filesystem>
#include <limits>

namespace caudalera {
namespace {

class PeakFilesTest : public BothPeakWindowsTest {};
INSTANTIATE_TEST_SUITE_P(Peaks, PeakFilesTest, ::testing::Values("frmQmaxGumbel", "frmQmaxNash"));

// Lowest byte first: 16.5 = 1.03125 * 2^4 is 0x41840000, 0.1 rounds to 0x3DCCCCCD, 1918 =
// 1.873046875 * 2^10 is 0x44EFC000.
TEST_P(PeakFilesTest, TheYearStandsBehindThePeaks) {
    enter("txtanno", "1918");
    values({"16.5", "0.1"});
    save(file("a.Q"));
    EXPECT_EQ(bytesOf(file("a.Q")),
              (Bytes{0x00, 0x00, 0x84, 0x41, 0xCD, 0xCC, 0xCC, 0x3D, 0x00, 0xC0, 0xEF, 0x44}));
    ASSERT_EQ(platform.dialogsSeen.size(), 1U);
    EXPECT_EQ(platform.dialogsSeen[0].filter, "Valores de Q|*.Q");
    EXPECT_TRUE(messages().empty());
}

TEST_P(PeakFilesTest, WhatWasSavedLoadsAgainWithItsYears) {
    enter("txtanno", "1918");
    values({"16.5", "0.1"});
    save(file("a.Q"));
    click("bLimpiar");
    loadFile(file("a.Q"));
    EXPECT_EQ(rowText("grdt", 1), " 1918|16.5");
    EXPECT_EQ(rowText("grdt", 2), " 1919|0.1");
    EXPECT_EQ(marks(), " 1918| 1919|[->]");
    EXPECT_EQ(form.grdt.Row(), 3);
    EXPECT_EQ(text("txtanno"), "1918");
    EXPECT_EQ(platform.dialogsSeen.back().filter, "Valores Q|*.Q");
    values({"3"});
    EXPECT_EQ(marks(), " 1918| 1919| 1920|[->]");
}

TEST_P(PeakFilesTest, AnEmptyGridIsItsYearAlone) {
    enter("txtanno", "1918");
    save(file("a.Q"));
    EXPECT_EQ(bytesOf(file("a.Q")), (Bytes{0x00, 0xC0, 0xEF, 0x44}));
    values({"1"});
    enter("txtanno", "5");
    loadFile(file("a.Q"));
    EXPECT_EQ(marks(), "[->]");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(text("txtanno"), "1918");
}

TEST_P(PeakFilesTest, AFileOfNothingFailsSilently) {
    writeSingles(file("a.Q"), {});
    enter("txtanno", "1918");
    loadFile(file("a.Q"));
    EXPECT_EQ(marks(), "[?]");
    EXPECT_EQ(text("txtanno"), "1918");
    EXPECT_TRUE(messages().empty());
    EXPECT_FALSE(platform.ending.has_value());
}

TEST_P(PeakFilesTest, ALoadClearsTheResultsAndKeepsThePeriod) {
    enter("txtanno", "1918");
    values(fivePeaks());
    calculate("50");
    // A load that is cancelled has lost the peaks and the results.
    click("bAccesar");
    EXPECT_EQ(form.grdt.Rows(), 2);
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
    EXPECT_EQ(text("txtTdato"), "50");
    EXPECT_EQ(text("txtanno"), "1918");
    EXPECT_TRUE(messages().empty());
}

TEST_P(PeakFilesTest, AYearOfTheFileIsRoundedToEven) {
    for (const auto& [year, shown] : {std::pair{1970.5F, "1970"}, std::pair{1971.5F, "1972"},
                                      std::pair{-3.0F, "-3"}, std::pair{0.0F, "0"}}) {
        writeSingles(file("a.Q"), {7, year});
        loadFile(file("a.Q"));
        EXPECT_EQ(text("txtanno"), shown);
        EXPECT_EQ(form.grdt.Rows(), 3);
    }
}

TEST_P(PeakFilesTest, AYearPastTheCountersFailsSilently) {
    for (const float year :
         {32768.0F, 1e20F, -32769.0F, std::numeric_limits<float>::infinity(), std::nanf("")}) {
        writeSingles(file("a.Q"), {7, year});
        loadFile(file("a.Q"));
        // The file was left open: the next command fails on that and closes it.
        EXPECT_TRUE(program.variables.archivoUnoEnUso);
        loadFile(file("a.Q"));
        EXPECT_FALSE(program.variables.archivoUnoEnUso);
    }
    EXPECT_EQ(text("txtanno"), "");
    EXPECT_TRUE(messages().empty());
    EXPECT_FALSE(platform.ending.has_value());
}

// The rows are labelled by the file's year, not by the one that stood there.
TEST_P(PeakFilesTest, TheYearThatStoodThereDoesNotCount) {
    writeSingles(file("a.Q"), {7, 8, 9, 1918});
    enter("txtanno", "32767");
    loadFile(file("a.Q"));
    EXPECT_EQ(marks(), " 1918| 1919| 1920|[->]");
    EXPECT_EQ(text("txtanno"), "1918");
}

TEST_P(PeakFilesTest, LabelsPastTheCountersFailSilently) {
    writeSingles(file("a.Q"), {7, 8, 9, 32766});
    loadFile(file("a.Q"));
    EXPECT_TRUE(program.variables.archivoUnoEnUso);
    EXPECT_FALSE(platform.ending.has_value());
    EXPECT_TRUE(messages().empty());
}

TEST_P(PeakFilesTest, FiveHundredPeaksFitInTheArrays) {
    std::vector<float> singles(500, 7);
    singles.push_back(1500);
    writeSingles(file("500.Q"), singles);
    loadFile(file("500.Q"));
    EXPECT_EQ(form.grdt.Rows(), 502);
    EXPECT_EQ(cellText("grdt", 500, 0), " 1999");
    save(file("b.Q"));
    EXPECT_EQ(std::filesystem::file_size(file("b.Q")), 2004U);
}

TEST_P(PeakFilesTest, OnePeakMoreIsInadequateAndFatalForTheFile) {
    writeSingles(file("501.Q"), std::vector<float>(502, 7));
    loadFile(file("501.Q"));
    EXPECT_EQ(form.grdt.Rows(), 503);
    calculate("10");
    expectMessage(datosInadecuados);
    EXPECT_EQ(rowText("grddis", 1), "||||||||");
    save(file("b.Q"));
    EXPECT_TRUE(fatal(9));
}

TEST_P(PeakFilesTest, TheFoxRiverPeaksLoad) {
    const auto table = tableOf(samplePath("fox_wrightstown.csv"), {"anio", "caudal_cfs"});
    ASSERT_EQ(table.size(), 33U);
    loadFile(samplePath("fox_wrightstown.Q").string());
    ASSERT_EQ(form.grdt.Rows(), 35);
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(rowText("grdt", static_cast<long>(i) + 1),
                  " " + table[i][0] + "|" + table[i][1] + ".0");
    }
    EXPECT_EQ(text("txtanno"), "1918");
}

} // namespace
} // namespace caudalera
