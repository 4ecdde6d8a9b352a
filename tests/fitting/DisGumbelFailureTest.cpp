// bCalcular of the Gumbel distribution where a run-time failure stops it: its one message, and what
// stays, which is all of an earlier calculation.

#include "tests/fitting/DisGumbelTest.h"

namespace caudalera::testing {
namespace {

class DisGumbelFailure : public DisGumbelTest {
protected:
    void fitFour() { fit({"1", "2", "3", "4"}); }
    void expectFourStand() {
        EXPECT_EQ(parameters(), ofValues.parameters);
        EXPECT_EQ(resultRows().size(), 4U);
        EXPECT_EQ(flowOf("100"), "6.55");
        click("optMomentoLi");
        EXPECT_EQ(flowOf("100"), "7.34");
        EXPECT_TRUE(messages().empty());
    }
};

TEST_F(DisGumbelFailure, FewerThanFourValues) {
    click("bCalcular");
    EXPECT_EQ(messages(), badData) << "no value";
    for (const std::string value : {"3", "1", "2"}) {
        fit({value});
        EXPECT_EQ(messages(), badData) << value;
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_TRUE(resultRows().empty());
        EXPECT_EQ(text("lblmensaje"), "");
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
    }
    fit({"4"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters(), ofValues.parameters);
}

TEST_F(DisGumbelFailure, MeanOfExactlyZero) {
    fit({"-3", "-1", "0", "4"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), noParameters);
}

// Three values have a mean, a deviation and a skew; what fails are the linear sums, and by then no
// parameter has been set.
TEST_F(DisGumbelFailure, FailureInTheLinearSumsLeavesAllParameters) {
    fitFour();
    keepRows(0);
    fit({"50", "60", "75"});
    EXPECT_EQ(messages(), badData);
    expectFourStand();
}

TEST_F(DisGumbelFailure, EqualValuesHaveNoSkew) {
    fitFour();
    keepRows(0);
    fit({"5", "5", "5", "5", "5"});
    EXPECT_EQ(messages(), badData);
    expectFourStand();
}

// The skew of 1E105 cannot be had, though nothing needs it: mean and deviation could.
TEST_F(DisGumbelFailure, CubesPastTheDoubleRange) {
    fitFour();
    keepRows(0);
    fit({"1", "2", "3", "1E105"});
    EXPECT_EQ(messages(), badData);
    expectFourStand();
}

// The lowest reduced variates that 499 values can have are far from the overflow of exp(-y).
TEST_F(DisGumbelFailure, OneValueFarBelowAllOthersIsCalculated) {
    std::vector<float> series(499, 0.0F);
    series[7] = -1e6F;
    load(series);
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    // The reduced variates of the lowest are some -28 and -346: both probabilities are 0.
    EXPECT_EQ(rowText("grddis", 1), "1|-1000000.0|0.0020|0.00|0.00|0.0020");
}

} // namespace
} // namespace caudalera::testing
