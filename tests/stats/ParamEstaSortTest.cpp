// bOrdenar: the sorted list.

#include "tests/stats/ParamEstaTest.h"

namespace caudalera::testing {
namespace {

class ParamEstaSort : public ParamEstaTest {};

TEST_F(ParamEstaSort, ShowsTheSeriesAscendingWithItsNumbers) {
    values({"3", "-1.5", "20", "3", "0.125"});
    click("bOrdenar");
    EXPECT_TRUE(control<Control>("grdorden").visible);
    EXPECT_TRUE(control<Control>("lblOrdenado").visible);
    EXPECT_EQ(control<MSFlexGrid>("grdorden").Rows(), 6);
    EXPECT_EQ(rowText("grdorden", 0), "N°|X");
    EXPECT_EQ(rowText("grdorden", 1), " 1|-1.5");
    EXPECT_EQ(rowText("grdorden", 2), " 2|0.125");
    EXPECT_EQ(rowText("grdorden", 3), " 3|3.0");
    EXPECT_EQ(rowText("grdorden", 4), " 4|3.0");
    EXPECT_EQ(rowText("grdorden", 5), " 5|20.0");
}

TEST_F(ParamEstaSort, LeavesTheDataAndTheResultsAlone) {
    values({"3", "1", "2"});
    click("bOrdenar");
    EXPECT_EQ(rowText("grdt", 1), " 1|3.0");
    EXPECT_EQ(rowText("grdt", 2), " 2|1.0");
    EXPECT_EQ(rowText("grdt", 3), " 3|2.0");
    EXPECT_EQ(parameters(), noParameters);
}

TEST_F(ParamEstaSort, SortedSeriesStaysAsItIs) {
    values({"1", "2", "3", "4"});
    click("bOrdenar");
    EXPECT_EQ(sorted(), (Texts{"1.0", "2.0", "3.0", "4.0"}));
}

TEST_F(ParamEstaSort, DescendingSeriesIsReversed) {
    values({"5", "4", "3", "2", "1"});
    click("bOrdenar");
    EXPECT_EQ(sorted(), (Texts{"1.0", "2.0", "3.0", "4.0", "5.0"}));
}

TEST_F(ParamEstaSort, EmptyGridShowsTheHeaderOnly) {
    click("bOrdenar");
    EXPECT_TRUE(control<Control>("grdorden").visible);
    EXPECT_TRUE(control<Control>("lblOrdenado").visible);
    EXPECT_EQ(control<MSFlexGrid>("grdorden").Rows(), 1);
    EXPECT_EQ(rowText("grdorden", 0), "N°|X");
    EXPECT_TRUE(messages().empty());
}

TEST_F(ParamEstaSort, OneValue) {
    values({"8"});
    click("bOrdenar");
    EXPECT_EQ(sorted(), Texts{"8.0"});
}

TEST_F(ParamEstaSort, ShorterSeriesLeavesNoRowsOfALongerOne) {
    values({"3", "1", "2"});
    click("bOrdenar");
    keepRows(2);
    click("bOrdenar");
    EXPECT_EQ(sorted(), (Texts{"1.0", "3.0"}));
}

TEST_F(ParamEstaSort, ListStaysAsSortedWhenTheDataChange) {
    values({"3", "1"});
    click("bOrdenar");
    values({"2"});
    EXPECT_EQ(sorted(), (Texts{"1.0", "3.0"}));
}

TEST_F(ParamEstaSort, ValuesShowUpToEightDecimals) {
    values({"0.123456785", "2.5"});
    click("bOrdenar");
    // The cell itself was rounded to eight decimals by ENTER, half away from zero.
    EXPECT_EQ(sorted(), (Texts{"0.12345679", "2.5"}));
}

TEST_F(ParamEstaSort, TheLocalesSeparatorIsWritten) {
    platform.separator = ",";
    values({"3", "1"});
    click("bOrdenar");
    EXPECT_EQ(sorted(), (Texts{"1,0", "3,0"}));
}

} // namespace
} // namespace caudalera::testing
