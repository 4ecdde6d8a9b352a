// What clearing, loading and saving do to the results.

#include "tests/stats/ParamEstaTest.h"
#include "tests/support/SeriesBytes.h"

namespace caudalera::testing {
namespace {

class ParamEstaState : public ParamEstaTest {
protected:
    void resultsWithSortedList() {
        calculate({"1", "2", "3", "4"});
        click("bOrdenar");
    }
    void expectNoResults() {
        EXPECT_EQ(rowText("grdParam", 0), "Parámetros|Muestrales|Poblacionales|Momentos Lineales");
        for (long row = 1; row <= 6; ++row)
            EXPECT_EQ(rowText("grdParam", row), "|||") << row;
        EXPECT_EQ(coefficients(), noCoefficients);
        EXPECT_FALSE(control<Control>("grdorden").visible);
        EXPECT_FALSE(control<Control>("lblOrdenado").visible);
    }
};

TEST_F(ParamEstaState, EditingLeavesTheResults) {
    resultsWithSortedList();
    const Texts before = parameters();
    values({"100"});
    EXPECT_EQ(parameters(), before);
    EXPECT_TRUE(control<Control>("grdorden").visible);
}

TEST_F(ParamEstaState, ClearingEmptiesDataAndResultsAndHidesTheSortedList) {
    resultsWithSortedList();
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    expectNoResults();
}

TEST_F(ParamEstaState, ClearingOnlyHidesTheSortedListWhichKeepsItsRows) {
    resultsWithSortedList();
    click("bLimpiar");
    EXPECT_EQ(sorted(), (Texts{"1.0", "2.0", "3.0", "4.0"}));
}

TEST_F(ParamEstaState, LoadingShowsTheFileAndClearsTheResults) {
    resultsWithSortedList();
    writeSingles(file("serie.X"), {0.1F, -2.5F, 1000.0F});
    platform.answers = {file("serie.X")};
    click("bAccesar");
    ASSERT_EQ(platform.dialogsSeen.size(), 1U);
    EXPECT_EQ(platform.dialogsSeen[0].kind, "open");
    EXPECT_EQ(platform.dialogsSeen[0].filter, "Valores X|*.X");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 5);
    EXPECT_EQ(rowText("grdt", 1), " 1|0.1");
    EXPECT_EQ(rowText("grdt", 2), " 2|-2.5");
    EXPECT_EQ(rowText("grdt", 3), " 3|1000.0");
    EXPECT_EQ(rowText("grdt", 4), "[->]|");
    expectNoResults();
}

TEST_F(ParamEstaState, CancelledFirstLoadHasLostDataAndResults) {
    resultsWithSortedList();
    platform.answers = {std::nullopt};
    click("bAccesar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    expectNoResults();
}

TEST_F(ParamEstaState, LoadedValuesAreCalculatedWith) {
    writeSingles(file("serie.X"), {4.0F, 2.0F, 1.0F, 3.0F});
    platform.answers = {file("serie.X")};
    click("bAccesar");
    click("bCalcular");
    EXPECT_EQ(cellText("grdParam", 2, 1), "1.6667");
    EXPECT_EQ(text("txtL2"), "0.8333");
}

TEST_F(ParamEstaState, SavingWritesTheSeriesInTheOrderOfTheGrid) {
    values({"2", "-1", "0.5"});
    platform.answers = {file("serie.X")};
    click("bCrear");
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Valores de X|*.X");
    // 2, -1 and 0.5 as IEEE singles: 40000000, BF800000, 3F000000, lowest byte first.
    EXPECT_EQ(bytesOf(file("serie.X")),
              (std::vector<unsigned char>{0, 0, 0, 0x40, 0, 0, 0x80, 0xBF, 0, 0, 0, 0x3F}));
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 5);
}

} // namespace
} // namespace caudalera::testing
