// The design flow, the chart and the resets of the duration curve.

#include "tests/curves/CurvaDuracionWindow.h"
#include "tests/support/SeriesBytes.h"

namespace caudalera::testing {
namespace {

class CurvaDuracionQuery : public CurvaDuracionWindow {};
class CurvaDuracionChart : public CurvaDuracionWindow {};

TEST_F(CurvaDuracionQuery, InterpolatesWithTheBlankOfTheConversion) {
    calculate({"5", "5", "3", "1"});
    EXPECT_EQ(flowOf("60"), " 4.2");
    EXPECT_EQ(flowOf("100"), " 1");
    EXPECT_EQ(flowOf("75"), " 3");
    EXPECT_EQ(flowOf("50"), " 5");
    EXPECT_TRUE(messages().empty());
}

// 0.5 + (0.25 - 0.5) * 3 / 50 = 0.485, of which the conversion leaves the zero out.
TEST_F(CurvaDuracionQuery, ASmallFlowHasNoZeroInFront) {
    calculate({"0.5", "0.25"});
    EXPECT_EQ(flowOf("53"), " .485");
}

TEST_F(CurvaDuracionQuery, AllDigitsOfTheFlowAreShown) {
    calculate({"2", "1"});
    // 2 - 16.6666667 / 50.
    EXPECT_EQ(flowOf("66.6666667"), " 1.666666666");
}

TEST_F(CurvaDuracionQuery, ProbabilitiesThatAreNoneAreRefused) {
    calculate({"5", "5", "3", "1"});
    enter("txtxq", "7");
    for (const std::string P : {"0", "-1", "101", "100.001", "abc", " "}) {
        EXPECT_EQ(flowOf(P), "7") << P;
        expectMessage(badProbability);
        EXPECT_EQ(text("txtxp"), "") << P;
        EXPECT_EQ(focus(), "txtxp") << P;
    }
    click("bLimpiar");
    click("bQ");
    expectMessage(badProbability);
    EXPECT_EQ(focus(), "txtxp");
}

TEST_F(CurvaDuracionQuery, BelowTheFirstProbabilityIsFatal) {
    calculate({"5", "5", "3", "1"});
    flowOf("30");
    EXPECT_TRUE(fatal(9));
    EXPECT_TRUE(messages().empty());
}

// In doubles 11 / 20 * 100 is a hair above 55, 11 * 100 / 20 is not.
TEST_F(CurvaDuracionQuery, TheProbabilityIsThePartOfTheDaysTimes100) {
    Texts flows(11, "9");
    flows.insert(flows.end(), {"8", "7", "6", "5", "4", "3", "2", "1", "0"});
    calculate(flows);
    EXPECT_EQ(rowText("grddis", 1), "1|9.0|9.0|1.3333|55.0");
    flowOf("55");
    EXPECT_TRUE(fatal(9));
}

TEST_F(CurvaDuracionQuery, TheFlowHasAPointInAnyLocale) {
    platform.separator = ",";
    calculate({"5", "5", "3", "1"});
    EXPECT_EQ(rowText("grddis", 1), "1|5,0|5,0|1,4286|50,0");
    EXPECT_EQ(flowOf("60"), " 4.2");
    EXPECT_EQ(flowOf("60,9"), " 4.2");
}

TEST_F(CurvaDuracionQuery, BeforeAnyCalculationTheFieldBecomesEmpty) {
    values({"5", "3"});
    enter("txtxq", "7");
    EXPECT_EQ(flowOf("60"), "");
    EXPECT_TRUE(messages().empty());
    EXPECT_FALSE(program.ended());
}

TEST_F(CurvaDuracionQuery, TheCurveAnswersUntilTheNextCalculation) {
    calculate({"5", "5", "3", "1"});
    values({"1000"});
    EXPECT_EQ(flowOf("60"), " 4.2");
    click("bLimpiar");
    EXPECT_EQ(flowOf("60"), " 4.2");
    click("bAccesar");
    EXPECT_EQ(flowOf("60"), " 4.2");
    calculate({"8", "4"});
    EXPECT_EQ(flowOf("60"), " 7.2");
}

TEST_F(CurvaDuracionChart, NeedsACalculation) {
    values({"5", "3"});
    click("bGraficar");
    expectMessage(notCalculated);
    EXPECT_FALSE(chart().visible);
}

TEST_F(CurvaDuracionChart, NeedsTwoPoints) {
    calculate({"4", "4", "4"});
    click("bGraficar");
    expectMessage(twoPoints);
    EXPECT_FALSE(chart().visible);
    values({"2"});
    click("bCalcular");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(chart().visible);
}

TEST_F(CurvaDuracionChart, ShowsTheFlowsOrTheirMultiplesOfTheMean) {
    calculate({"8", "8", "3", "1"});
    click("bGraficar");
    EXPECT_TRUE(chart().visible);
    EXPECT_EQ(chart().graphKind(), Graph::Kind::line);
    EXPECT_EQ(chart().style(), 0);
    EXPECT_EQ(chart().points(), 3);
    EXPECT_EQ(*chart().x(), (std::vector<double>{50, 75, 100}));
    ASSERT_EQ(chart().series().size(), 1U);
    EXPECT_EQ(chart().series()[0].legend, "");
    EXPECT_EQ(chart().series()[0].y, (std::vector<double>{8, 3, 1}));

    const auto drawn = chart().revision();
    click("OptAdimensional");
    EXPECT_EQ(chart().revision(), drawn) << "the option alone draws nothing";
    click("bGraficar");
    EXPECT_EQ(*chart().x(), (std::vector<double>{50, 75, 100}));
    ASSERT_EQ(chart().series().size(), 1U);
    EXPECT_EQ(chart().series()[0].y, (std::vector<double>{1.6, 0.6, 0.2}));
    EXPECT_TRUE(messages().empty());
}

TEST_F(CurvaDuracionChart, AStaleCurveCanStillBeDrawn) {
    calculate({"8", "2"});
    values({"6", "7"});
    click("bGraficar");
    EXPECT_EQ(chart().points(), 2);
    EXPECT_TRUE(messages().empty());
}

class Cleared : public CurvaDuracionWindow {
protected:
    void fill() {
        calculate({"5", "5", "3", "1"});
        flowOf("60");
        click("OptAdimensional");
        click("bGraficar");
    }
    void expectNoResults() {
        EXPECT_EQ(rowText("grddis", 0), headers);
        EXPECT_EQ(rowText("grddis", 1), "||||");
        EXPECT_EQ(text("txtxp"), "");
        EXPECT_EQ(text("txtxq"), "");
        EXPECT_TRUE(control<Option>("OptNormal").checked());
        EXPECT_FALSE(control<Option>("OptAdimensional").checked());
        EXPECT_FALSE(chart().visible);
        EXPECT_TRUE(chart().series().empty());
        click("bGraficar");
        expectMessage(notCalculated);
    }
};

TEST_F(Cleared, ClearingEmptiesDataAndResults) {
    fill();
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    expectNoResults();
}

TEST_F(Cleared, LoadingTakesTheResultsEvenIfItIsCancelled) {
    fill();
    click("bAccesar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    expectNoResults();
}

TEST_F(Cleared, LoadingShowsTheFile) {
    fill();
    writeSingles(file("a.CD"), {0.1F, 20.5F});
    platform.answers = {file("a.CD")};
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 1), " 1|0.1");
    EXPECT_EQ(rowText("grdt", 2), " 2|20.5");
    expectNoResults();
}

} // namespace
} // namespace caudalera::testing
