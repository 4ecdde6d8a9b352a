// bCalcular where it has no numbers to give: its one message, and the failures that end the
// program because no trap stands around it.

#include "tests/stats/ParamEstaTest.h"

namespace caudalera::testing {
namespace {

class ParamEstaFailure : public ParamEstaTest {
protected:
    const std::vector<Message> tooFew = {
        {"Para el cálculo de los parámetros se requieren por lo menos dos datos", "Error",
         Icon::error}};
};

TEST_F(ParamEstaFailure, NoRowIsRefused) {
    click("bCalcular");
    EXPECT_EQ(messages(), tooFew);
    EXPECT_EQ(parameters(), noParameters);
    EXPECT_FALSE(program.ended());
}

TEST_F(ParamEstaFailure, OneRowIsRefusedAndTheResultsStay) {
    calculate({"1", "2", "3", "4"});
    const Texts before = parameters();
    keepRows(1);
    ASSERT_EQ(control<MSFlexGrid>("grdt").Rows(), 3);
    click("bCalcular");
    EXPECT_EQ(messages(), tooFew);
    EXPECT_EQ(parameters(), before);
    EXPECT_EQ(coefficients(), (Texts{"2.5000", "0.8333", "0.0000", "0.0000"}));
}

TEST_F(ParamEstaFailure, TwoValuesDivideByZeroInTheSkew) {
    calculate({"1", "2"});
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_F(ParamEstaFailure, ThreeValuesDivideByZeroInTheKurtosis) {
    calculate({"1", "2", "4"});
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_F(ParamEstaFailure, EqualValuesDivideByZero) {
    calculate({"7", "7", "7", "7", "7"});
    EXPECT_TRUE(fatal(11));
}

TEST_F(ParamEstaFailure, MeanZeroDividesByZero) {
    calculate({"-3", "-1", "0", "4"});
    EXPECT_TRUE(fatal(11));
}

TEST_F(ParamEstaFailure, SquaresPastTheDoubleRangeOverflow) {
    calculate({"1E200", "2", "3", "4"});
    EXPECT_TRUE(fatal(6));
}

TEST_F(ParamEstaFailure, FiveHundredValuesAreTheCapacity) {
    Texts series;
    for (int i = 0; i < 500; ++i)
        series.push_back(i % 2 == 0 ? "1" : "3");
    calculate(series);
    ASSERT_FALSE(program.ended());
    // Half ones, half threes: mean 2, S2 = 500.
    EXPECT_EQ(cellText("grdParam", 1, 1), "2.00");
    EXPECT_EQ(cellText("grdParam", 2, 2), "1.0");
    values({"1"});
    ASSERT_EQ(control<MSFlexGrid>("grdt").Rows(), 503);
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
}

TEST_F(ParamEstaFailure, SortingMoreThanTheCapacityIsFatal) {
    values(Texts(501, "1"));
    click("bOrdenar");
    EXPECT_TRUE(fatal(9));
}

TEST_F(ParamEstaFailure, SavingMoreThanTheCapacityIsFatal) {
    values(Texts(501, "1"));
    platform.answers = {file("serie.X")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

} // namespace
} // namespace caudalera::testing
