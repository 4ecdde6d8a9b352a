// bCalcular of the log-normal distribution of two parameters where it refuses a series or fails:
// its messages, and what stays.

#include "tests/fitting/DisLogNormal2Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal2Failure : public DisLogNormal2Test {
protected:
    const Graph& drawn() {
        click("bGraficar");
        return control<Graph>("Graph1");
    }
};

TEST_F(DisLogNormal2Failure, ValueOfZeroOrBelowIsRefusedBeforeAnyResult) {
    for (const std::string value : {"0", "-2", "-0.0001"}) {
        refit({"3", value, "5", "7", "9"});
        EXPECT_EQ(messages(), notPositive) << value;
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_TRUE(resultRows().empty());
        EXPECT_EQ(text("lblmensaje"), "");
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
    }
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
}

TEST_F(DisLogNormal2Failure, SmallestValueAboveZeroIsTaken) {
    fit({"0.0001", "1", "2", "4"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(parameters().at(0), "-1.7827"); // Log(8E-4) / 4 = -1.782725
}

TEST_F(DisLogNormal2Failure, RefusalAfterACalculationLeavesResultsAndParameters) {
    fit({"1", "2", "3", "4"});
    const std::string verdict = text("lblmensaje");
    const Texts rows = resultRows();
    refit({"9", "8", "0", "5", "6"});
    EXPECT_EQ(messages(), notPositive);
    EXPECT_EQ(parameters(), (Texts{"0.7945", "0.6012", "0.7945", "0.6742"}));
    EXPECT_EQ(resultRows(), rows);
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(flowOf("100"), "8.96");
    // The series is sorted by then, the probabilities are those of the four values.
    const Graph& chart = drawn();
    EXPECT_EQ(chart.x(), (std::vector<double>{0, 0, 5, 6, 8, 9}));
    EXPECT_EQ(chart.series().at(0).y, (std::vector<double>{0, 0.2, 0.4, 0.6, 0.8, 0}));
}

TEST_F(DisLogNormal2Failure, FewerThanFourValues) {
    click("bCalcular");
    EXPECT_EQ(messages(), badData) << "no value";
    for (const std::string value : {"3", "1", "2"}) {
        fit({value});
        EXPECT_EQ(messages(), badData) << value;
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_TRUE(resultRows().empty());
    }
    fit({"4"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(resultRows().size(), 4U);
}

TEST_F(DisLogNormal2Failure, EqualValues) {
    for (const std::string value : {"1", "5"}) {
        refit({value, value, value, value});
        EXPECT_EQ(messages(), badData) << value;
        EXPECT_EQ(parameters(), noParameters);
    }
}

// 0.25, 1, 1, 4: the logarithms sum up to 0 to the last bit.
TEST_F(DisLogNormal2Failure, GeometricMeanOfExactlyOne) {
    fit({"4", "1", "1", "0.25"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), noParameters);
}

// 5, 6, 7 stop in the linear moments: Log(210) / 3 = 1.7823692 and 0.1684326 are the new ordinary
// parameters, what is linear is that of 1, 2, 3, 4, and so are all texts.
TEST_F(DisLogNormal2Failure, FailureInTheLinearMomentsLeavesTheMix) {
    fit({"1", "2", "3", "4"});
    const std::string verdict = text("lblmensaje");
    refit({"5", "6", "7"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), (Texts{"0.7945", "0.6012", "0.7945", "0.6742"}));
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(resultRows().size(), 4U);
    EXPECT_EQ(flowOf("2"), "5.94");   // the third root of 210
    EXPECT_EQ(flowOf("100"), "8.80"); // 5.943922 * Exp(0.1684326 * 2.3267853)
    click("optMomentoLi");
    EXPECT_EQ(flowOf("2"), "2.21");
    EXPECT_EQ(flowOf("100"), "10.62");
    // The probabilities are those of three values.
    EXPECT_EQ(drawn().series().at(0).y, (std::vector<double>{0, 0.25, 0.5, 0.75}));
}

// The quotient of both fails behind µy = 0 and Sy, the deviation of -Log(4), 0, 0, Log(4):
// Sqr(8 / 3) Log(2) = 1.1319046.
TEST_F(DisLogNormal2Failure, FailureInTheQuotientHasSetBothOrdinaryParameters) {
    fit({"1", "2", "3", "4"});
    refit({"4", "1", "1", "0.25"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(flowOf("2"), "1.0");
    EXPECT_EQ(flowOf("100"), "13.93"); // Exp(1.1319046 * 2.3267853)
    click("optMomentoLi");
    EXPECT_EQ(flowOf("100"), "10.62");
}

// One value: µy is its logarithm, Sy is still that of 1, 2, 3, 4.
TEST_F(DisLogNormal2Failure, FailureInTheDeviationHasSetTheScale) {
    fit({"1", "2", "3", "4"});
    refit({"10"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(flowOf("2"), "10.0");
    EXPECT_EQ(flowOf("100"), "40.50"); // 10 * Exp(0.60116761 * 2.3267853)
}

// Five values of 5: all four parameters are set, the shapes to 0, and the evaluation has no trap.
TEST_F(DisLogNormal2Failure, EvaluationAfterEqualValuesIsFatal) {
    fit({"1", "2", "3", "4"});
    refit({"5", "5", "5", "5", "5"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(flowOf("100"), "5.0");
    enter("txtxq", "6");
    click("bPmenor");
    EXPECT_TRUE(fatal(11));
}

} // namespace
} // namespace caudalera::testing
