#include "shell/window/Graph.h"
#include "tests/support/FailureNumber.h"
#include "tests/support/TestSheet.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

using testing::failureNumber;

class GraphTest : public SheetTest {
protected:
    Graph& graph() { return control<Graph>("Graph1"); }
    GraphTest() { sheet(); }

    static Chart chart() {
        Chart chart;
        chart.style = 1;
        chart.autoAdvance = false;
        chart.x = std::vector<double>{0.5, 1.5, 2.5};
        chart.series = {{"obs", {1, 2, 3}}, {"teo", {1.1, 2.2, 3.3}}};
        return chart;
    }
};

TEST_F(GraphTest, IsHiddenAndEmptyUntilDrawn) {
    EXPECT_FALSE(graph().visible);
    EXPECT_EQ(graph().points(), 0);
    EXPECT_TRUE(graph().series().empty());
    EXPECT_FALSE(graph().border());
    EXPECT_EQ(graph().backgroundColor(), 7);
}

TEST_F(GraphTest, AChartGoesThroughAllItsOperations) {
    const auto before = graph().revision();
    dibujar(graph(), chart());
    EXPECT_TRUE(graph().visible);
    EXPECT_EQ(graph().graphKind(), Graph::Kind::line);
    EXPECT_EQ(graph().style(), 1);
    EXPECT_EQ(graph().backgroundColor(), 7);
    EXPECT_TRUE(graph().border());
    EXPECT_FALSE(graph().autoAdvance());
    EXPECT_EQ(graph().points(), 3);
    ASSERT_EQ(graph().series().size(), 2U);
    EXPECT_EQ(graph().series()[0].legend, "obs");
    EXPECT_EQ(graph().series()[1].y, (std::vector<double>{1.1, 2.2, 3.3}));
    EXPECT_EQ(graph().x(), (std::vector<double>{0.5, 1.5, 2.5}));
    EXPECT_GT(graph().revision(), before);
}

TEST_F(GraphTest, TwoDrawsInARowShowTheSameCurveOnce) {
    dibujar(graph(), chart());
    dibujar(graph(), chart());
    EXPECT_EQ(graph().series().size(), 2U);
    EXPECT_EQ(graph().points(), 3);
    EXPECT_EQ(graph().x()->size(), 3U);
}

TEST_F(GraphTest, ADrawReplacesPositionsAndLegendsOfTheOneBefore) {
    dibujar(graph(), chart());
    Chart next;
    next.series = {{"", {9}}};
    dibujar(graph(), next);
    EXPECT_FALSE(graph().x()) << "the points stand at 1, 2, 3 again";
    EXPECT_EQ(graph().points(), 1);
    ASSERT_EQ(graph().series().size(), 1U);
    EXPECT_EQ(graph().series()[0].legend, "");
    EXPECT_TRUE(graph().autoAdvance());
    EXPECT_EQ(graph().style(), 0);
}

TEST_F(GraphTest, ClearingErasesAndHides) {
    dibujar(graph(), chart());
    click("bLimpiar");
    EXPECT_FALSE(graph().visible);
    EXPECT_FALSE(graph().border());
    EXPECT_EQ(graph().backgroundColor(), 7);
    EXPECT_EQ(graph().points(), 0);
    EXPECT_TRUE(graph().series().empty());
    EXPECT_FALSE(graph().x());
    dibujar(graph(), chart());
    EXPECT_TRUE(graph().visible);
}

TEST_F(GraphTest, TitlesAreThoseOfTheLabelsOrElseOfTheDrawing) {
    Label function(graph().window(), "lblFuncion", "fx");
    Label share(graph().window(), "lblPorcentaje", "(%)");
    Chart titled = chart();
    titled.xTitle = "X";
    titled.yTitle = "Y";
    titled.series[0].meaning = "Observado";
    dibujar(graph(), titled);
    EXPECT_EQ(graph().xTitle(), "X");
    EXPECT_EQ(graph().yTitle(), "Y");
    EXPECT_EQ(graph().series()[0].meaning, "Observado");
    EXPECT_EQ(graph().series()[1].meaning, "");
    graph().yLabels = {&function, &share};
    EXPECT_EQ(graph().yTitle(), "fx (%)");
    function.visible = false;
    EXPECT_EQ(graph().yTitle(), "(%)");
    share.visible = false;
    EXPECT_EQ(graph().yTitle(), "Y");
    graph().clear();
    EXPECT_EQ(graph().xTitle(), "");
    EXPECT_EQ(graph().yTitle(), "");
    graph().yLabels.clear();
}

TEST_F(GraphTest, AnAreaChartIsAKindOfItsOwn) {
    Chart area = chart();
    area.kind = Graph::Kind::area;
    area.style = 2;
    dibujar(graph(), area);
    EXPECT_EQ(graph().graphKind(), Graph::Kind::area);
    EXPECT_EQ(graph().style(), 2);
    dibujar(graph(), chart());
    EXPECT_EQ(graph().graphKind(), Graph::Kind::line);
    EXPECT_EQ(graph().style(), 1);
}

// Two intervals of a storm, four points each: declared are as many again as one interval has.
TEST_F(GraphTest, MorePointsCanBeDeclaredThanAreSet) {
    Chart storm;
    storm.kind = Graph::Kind::area;
    storm.points = 12;
    storm.x = std::vector<double>{0, 0, 10, 10, 10, 10, 30, 30};
    storm.series = {{"", {0, 12, 12, 0, 0, 48, 48, 0}}, {}};
    dibujar(graph(), storm);
    EXPECT_EQ(graph().points(), 12);
    EXPECT_EQ(graph().x()->size(), 8U);
    ASSERT_EQ(graph().series().size(), 2U);
    EXPECT_EQ(graph().series()[0].y.size(), 8U);
    EXPECT_TRUE(graph().series()[1].y.empty());
}

TEST_F(GraphTest, AsManyPointsAreDeclaredAsTheLongestSeriesHas) {
    Chart uneven;
    uneven.series = {{"", {1}}, {"", {1, 2, 3}}, {"", {1, 2}}};
    dibujar(graph(), uneven);
    EXPECT_EQ(graph().points(), 3);
    dibujar(graph(), Chart());
    EXPECT_EQ(graph().points(), 0);
    EXPECT_TRUE(graph().series().empty());
}

TEST_F(GraphTest, AValuePastTheDeclaredPointsIsFailure9) {
    Chart over = chart();
    over.points = 2;
    EXPECT_EQ(failureNumber([&] { dibujar(graph(), over); }), 9);
    over.x.reset();
    EXPECT_EQ(failureNumber([&] { dibujar(graph(), over); }), 9);
    over.points = 3;
    dibujar(graph(), over);
    EXPECT_EQ(graph().points(), 3);
}

TEST_F(GraphTest, ASeriesThatIsNotThereIsFailure9) {
    graph().setSize(2, 1);
    EXPECT_EQ(failureNumber([&] { graph().setY(1, {1, 2}); }), 9);
    EXPECT_EQ(failureNumber([&] { graph().setLegend(1, "x"); }), 9);
}

} // namespace
} // namespace caudalera
