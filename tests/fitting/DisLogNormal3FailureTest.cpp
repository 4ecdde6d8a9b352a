// bCalcular of the log-normal distribution of three parameters where it refuses a series or fails:
// its messages, and what stays.

#include "tests/fitting/DisLogNormal3Test.h"
#include "tests/support/PublishedSeries.h"

namespace caudalera::testing {
namespace {

class DisLogNormal3Failure : public DisLogNormal3Test {
protected:
    const Graph& drawn() {
        click("bGraficar");
        return control<Graph>("Graph1");
    }
    std::vector<double> empirical() { return drawn().series().at(0).y; }
    /// The texts that a failure leaves as they were.
    Texts results() {
        Texts all = parameters();
        for (const std::string& row : resultRows())
            all.push_back(row);
        all.push_back(text("lblAjuste"));
        all.push_back(text("lblmensaje"));
        return all;
    }
};

TEST_F(DisLogNormal3Failure, ValueOfZeroOrBelowIsRefusedBeforeAnyResult) {
    const Texts before = results();
    for (const std::string value : {"0", "-2", "-0.0001"}) {
        refit({"3", "8", value, "5", "19"});
        EXPECT_EQ(messages(), notPositive) << value;
        EXPECT_EQ(results(), before);
    }
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
}

TEST_F(DisLogNormal3Failure, SmallestValueAboveZeroIsTaken) {
    fit({"0.0001", "1", "8"});
    EXPECT_TRUE(messages().empty());
}

// It comes before the sort: the chart has the new number of points and the old values.
TEST_F(DisLogNormal3Failure, RefusalAfterACalculationLeavesEvenTheSortedSeries) {
    fit(skewed);
    const Texts before = results();
    refit({"9", "8", "0"});
    EXPECT_EQ(messages(), notPositive);
    EXPECT_EQ(results(), before);
    EXPECT_EQ(flowOf("100"), "210.46");
    EXPECT_EQ(drawn().x(), (std::vector<double>{0, 10, 20, 25}));
}

TEST_F(DisLogNormal3Failure, FewerThanThreeValuesAndSymmetricOnes) {
    const Texts before = results();
    const std::vector<Texts> failing = {
        {}, {"5"}, {"1", "9"}, {"1", "2", "3"}, {"3", "1", "6", "4"}, {"7", "7", "7", "7"}};
    for (const Texts& series : failing) {
        refit(series);
        EXPECT_EQ(messages(), badData) << series.size();
        EXPECT_EQ(results(), before);
    }
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
}

// The bound fails before the probabilities are set: four values are drawn with those of five.
TEST_F(DisLogNormal3Failure, SymmetricSeriesLeavesParametersAndProbabilities) {
    fit(skewed);
    const Texts before = results();
    refit({"3", "1", "6", "4"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(results(), before);
    EXPECT_EQ(flowOf("100"), "210.46");
    EXPECT_EQ(drawn().x(), (std::vector<double>{0, 1, 3, 4, 6}));
    const std::vector<double> old = {0, 1.0 / 6, 2.0 / 6, 3.0 / 6, 4.0 / 6};
    EXPECT_EQ(empirical(), old);
}

// 1, 1, 4: xo = 1 is set, then Log(0) fails; scale, shape and probabilities are the old ones.
TEST_F(DisLogNormal3Failure, BoundAtTheSmallestValueLeavesTheMix) {
    fit(skewed);
    const Texts before = results();
    refit({"1", "4", "1"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(results(), before);
    EXPECT_EQ(flowOf("2"), "19.48");    // 1 + Exp(2.91644052), and a hair
    EXPECT_EQ(flowOf("100"), "205.21"); // 1 + 204.20745
    EXPECT_EQ(empirical(), (std::vector<double>{0, 1.0 / 6, 2.0 / 6, 3.0 / 6}));
}

// 1, 9, 10: xo = 71 / 7 = 10.142857 above all values; mean and deviation of Log(xo - x) are
// 0.13353139 and 1.69785691, but Log(x - xo) fails. Behind that the probabilities are the new ones.
TEST_F(DisLogNormal3Failure, UpperBoundFailsInTheVariatesBehindAllParameters) {
    fit(skewed);
    const Texts before = results();
    refit({"9", "10", "1"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(results(), before);
    EXPECT_EQ(flowOf("2"), "11.29");   // 11.285715
    EXPECT_EQ(flowOf("100"), "69.53"); // 69.530130
    EXPECT_EQ(below("12"), "61.25");   // Z = 0.28595332
    EXPECT_EQ(empirical(), (std::vector<double>{0, 0.25, 0.5, 0.75}));
    enter("txtxq", "10");
    click("bPmenor");
    expectMessage({"Para este valor, no es posible calcular la probabilidad de no excedencia",
                   "Error", Icon::information});
}

// 1, 4, 4: xo = 4, the largest value.
TEST_F(DisLogNormal3Failure, BoundAtTheLargestValue) {
    fit({"4", "1", "4"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), noParameters);
}

// A river whose median lies above the middle of its extremes: xo = 177804, beyond its greatest.
TEST_F(DisLogNormal3Failure, TippecanoeHasNoLowerBound) {
    fit(publishedSeries("tippecanoe"));
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), noParameters);
    EXPECT_TRUE(resultRows().empty());
}

TEST_F(DisLogNormal3Failure, Overflow) {
    fit({"1E200", "1", "2", "1E201"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(parameters(), noParameters);
}

} // namespace
} // namespace caudalera::testing
