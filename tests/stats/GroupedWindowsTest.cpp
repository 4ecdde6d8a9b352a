// What the two windows of grouped data have in common: form, sorted list, state, files, failures.

#include "tests/stats/GroupedTest.h"
#include "tests/support/PublishedSeries.h"
#include "tests/support/SeriesBytes.h"

namespace caudalera::testing {
namespace {

class GroupedWindows : public GroupedTest, public ::testing::WithParamInterface<const char*> {
protected:
    GroupedWindows() : GroupedTest(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Windows, GroupedWindows,
                         ::testing::Values("frmParEstAgru", "frmDistriFre"),
                         [](const auto& each) { return std::string(each.param); });

TEST_P(GroupedWindows, OpenEmpty) {
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 0), "N°|X");
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    EXPECT_EQ(focus(), "grdt");
    auto& grid = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grid.Rows(), 15);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 0);
    EXPECT_EQ(static_cast<long>(grid.columnWidths.size()), grid.Cols());
    EXPECT_EQ(static_cast<long>(grid.columnAlignments.size()), grid.Cols());
    EXPECT_TRUE(classes().empty());
    EXPECT_FALSE(sortedListIsVisible());
    EXPECT_EQ(control<MSFlexGrid>("grdorden").Rows(), 1);
    EXPECT_EQ(control<MSFlexGrid>("grdorden").FixedCols(), 1);
    EXPECT_EQ(rowText("grdorden", 0), "N°|X");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("lblOrdenado"), "Datos ordenados:");
    EXPECT_EQ(text("bOrdenar"), "&Ordenar");
    EXPECT_EQ(control<Control>("bOrdenar").toolTip, "Mostrar serie ordenada");
}

// 7.5 and 2.5 by the masks of limits and list.
TEST_P(GroupedWindows, SortedListShowsTheSeriesWithItsNumbers) {
    values({"7.5", "-1", "20", "2.5"});
    click("bOrdenar");
    EXPECT_TRUE(sortedListIsVisible());
    EXPECT_EQ(control<MSFlexGrid>("grdorden").Rows(), 5);
    EXPECT_EQ(rowText("grdorden", 0), "N°|X");
    EXPECT_EQ(rowText("grdorden", 1), " 1|-1.0");
    EXPECT_EQ(rowText("grdorden", 2), " 2|2.5");
    EXPECT_EQ(rowText("grdorden", 3), " 3|7.5");
    EXPECT_EQ(rowText("grdorden", 4), " 4|20.0");
    EXPECT_EQ(rowText("grdt", 1), " 1|7.5");
    EXPECT_TRUE(classes().empty());
}

TEST_P(GroupedWindows, CalculatingLeavesTheSortedListAlone) {
    calculate(oneToTen);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(classes().size(), 4U);
    EXPECT_FALSE(sortedListIsVisible());
    EXPECT_EQ(control<MSFlexGrid>("grdorden").Rows(), 1);
}

TEST_P(GroupedWindows, SortingLeavesTheResults) {
    calculate(oneToTen);
    const Texts before = allClasses();
    replaceValues({"2", "1"});
    click("bOrdenar");
    EXPECT_EQ(sorted(), (Texts{"1.0", "2.0"}));
    EXPECT_EQ(allClasses(), before);
}

TEST_P(GroupedWindows, EditingLeavesTheResults) {
    calculate(oneToTen);
    const Texts before = allClasses();
    values({"1000"});
    EXPECT_EQ(allClasses(), before);
}

TEST_P(GroupedWindows, FewerClassesLeaveNoneOfTheEarlierOnes) {
    Texts thirty;
    for (int i = 1; i <= 30; ++i)
        thirty.push_back(std::to_string(i));
    calculate(thirty);
    ASSERT_EQ(classes().size(), 6U);
    replaceValues(oneToTen);
    click("bCalcular");
    EXPECT_EQ(classes().size(), 4U);
    EXPECT_EQ(control<MSFlexGrid>("grddis").Rows(), 15);
    EXPECT_EQ(cellText("grddis", 4, 2), "11.5");
    EXPECT_EQ(cellText("grddis", 5, 0), "");
}

// Half zeros, half sixteens: k = 9, C = 2, A = -1.
TEST_P(GroupedWindows, FiveHundredValuesAreTheCapacity) {
    Texts series;
    for (int i = 0; i < 500; ++i)
        series.emplace_back(i % 2 == 0 ? "16" : "0");
    calculate(series);
    ASSERT_FALSE(program.ended());
    ASSERT_EQ(classes().size(), 9U);
    EXPECT_EQ(cellText("grddis", 1, 0) + " " + cellText("grddis", 1, 3), "-1.0 250");
    EXPECT_EQ(cellText("grddis", 5, 1) + " " + cellText("grddis", 5, 3), "8.0 0");
    EXPECT_EQ(cellText("grddis", 9, 2) + " " + cellText("grddis", 9, 3), "17.0 250");
    values({"1"});
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
}

TEST_P(GroupedWindows, SortingMoreThanTheCapacityIsFatal) {
    values(Texts(501, "1"));
    click("bOrdenar");
    EXPECT_TRUE(fatal(9));
}

TEST_P(GroupedWindows, SavingMoreThanTheCapacityIsFatal) {
    values(Texts(501, "1"));
    platform.answers = {file("serie.X")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

TEST_P(GroupedWindows, NoValuesHaveNoLogarithm) {
    click("bCalcular");
    EXPECT_TRUE(fatal(5));
    EXPECT_TRUE(messages().empty());
}

TEST_P(GroupedWindows, OneValueDividesByZero) {
    calculate({"3"});
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_P(GroupedWindows, EqualValuesDivideByZero) {
    calculate({"7", "7", "7", "7", "7"});
    EXPECT_TRUE(fatal(11));
}

TEST_P(GroupedWindows, RangePastTheDoublesOverflows) {
    calculate({"1E308", "-1E308", "2", "3", "4"});
    EXPECT_TRUE(fatal(6));
}

TEST_P(GroupedWindows, ClearingEmptiesDataAndResultsAndHidesTheSortedList) {
    calculate(oneToTen);
    click("bOrdenar");
    const std::string headers = rowText("grddis", 0);
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    EXPECT_EQ(rowText("grddis", 0), headers);
    EXPECT_TRUE(classes().empty());
    EXPECT_FALSE(sortedListIsVisible());
    EXPECT_EQ(sorted().size(), 10U);
}

TEST_P(GroupedWindows, CancelledFirstLoadHasLostDataAndResults) {
    calculate(oneToTen);
    click("bOrdenar");
    platform.answers = {std::nullopt};
    click("bAccesar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_TRUE(classes().empty());
    EXPECT_FALSE(sortedListIsVisible());
}

TEST_P(GroupedWindows, SavedSeriesIsLoadedAndGrouped) {
    values(oneToTen);
    platform.answers = {file("serie.X"), file("serie.X")};
    click("bCrear");
    // 4 and 2 as IEEE singles: 40800000, 40000000, lowest byte first.
    const Bytes saved = bytesOf(file("serie.X"));
    ASSERT_EQ(saved.size(), 40U);
    EXPECT_EQ(Bytes(saved.begin(), saved.begin() + 8), (Bytes{0, 0, 0x80, 0x40, 0, 0, 0, 0x40}));
    click("bLimpiar");
    click("bAccesar");
    ASSERT_EQ(platform.dialogsSeen.size(), 2U);
    EXPECT_EQ(platform.dialogsSeen[0].filter, "Valores de X|*.X");
    EXPECT_EQ(platform.dialogsSeen[1].filter, "Valores X|*.X");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 12);
    EXPECT_EQ(rowText("grdt", 1), " 1|4.0");
    EXPECT_EQ(rowText("grdt", 11), "[->]|");
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 1, 0), "-0.5");
    EXPECT_EQ(cellText("grddis", 4, 3), "2");
}

TEST_P(GroupedWindows, AnInsertedRowCountsAsZeroAndAPrefixAsItsNumber) {
    values({"1", "2", "3", "6"});
    cell("grdt", 4, 1);
    type("grdt", "5abc");
    key("txtt", Key::Kind::up);
    ASSERT_EQ(cellText("grdt", 4, 1), "5abc");
    cell("grdt", 1, 1);
    click("mnuEditInsertar");
    click("bCalcular");
    // 0, 1, 2, 3, 5: k = 3, C = 2.5, A = -1.25.
    EXPECT_EQ(cellText("grddis", 1, 0), "-1.25");
    EXPECT_EQ(cellText("grddis", 3, 2), "6.25");
    EXPECT_EQ(cellText("grddis", 1, 3), "2");
    EXPECT_EQ(cellText("grddis", 2, 3), "2");
    EXPECT_EQ(cellText("grddis", 3, 3), "1");
}

// Limits by "0.0#": C = 1 / 3 about 1 and 2, rounded half away from zero.
TEST_P(GroupedWindows, LimitsShowOneOrTwoDecimals) {
    calculate({"1", "1", "1", "1", "1", "2", "2"});
    EXPECT_EQ(cellText("grddis", 1, 0), "0.83");
    EXPECT_EQ(cellText("grddis", 1, 1), "1.0");
    EXPECT_EQ(cellText("grddis", 1, 2), "1.17");
    EXPECT_EQ(cellText("grddis", 2, 1), "1.33");
    EXPECT_EQ(cellText("grddis", 3, 0), "1.5");
    EXPECT_EQ(cellText("grddis", 3, 1), "1.67");
}

// A second implementation with exact fractions, over the annual peaks of the Harricana: C = 39.7,
// A = 98.8 - 19.85.
TEST_P(GroupedWindows, AnnualPeaksOfTheHarricana) {
    platform.answers = {samplePath("harricana_amos.X").string()};
    click("bAccesar");
    click("bCalcular");
    Texts firstFour;
    for (long row = 1; row <= 8; ++row) {
        std::string joined;
        for (long col = 0; col < 4; ++col)
            joined += (col > 0 ? "|" : "") + cellText("grddis", row, col);
        firstFour.push_back(joined);
    }
    EXPECT_EQ(firstFour,
              (Texts{"78.95|98.8|118.65|3", "118.65|138.5|158.35|11", "158.35|178.2|198.05|30",
                     "198.05|217.9|237.75|14", "237.75|257.6|277.45|8", "277.45|297.3|317.15|1",
                     "317.15|337.0|356.85|2", "|||"}));
}

TEST_P(GroupedWindows, PrintsItsImageAndReturnsToTheMainMenu) {
    click("bImprimir");
    ASSERT_EQ(platform.printed.size(), 1U);
    EXPECT_EQ(platform.printed[0].what, "window");
    EXPECT_EQ(platform.printed[0].name, GetParam());
    click("bMenu");
    EXPECT_EQ(program.find(GetParam()), nullptr);
    EXPECT_EQ(program.front(), program.find("frmCaudalera"));
}

} // namespace
} // namespace caudalera::testing
