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

    static LineChart chart() {
        return {1,
                false,
                std::vector<double>{0.5, 1.5, 2.5},
                {{"obs", {1, 2, 3}}, {"teo", {1.1, 2.2, 3.3}}}};
    }
};

TEST_F(GraphTest, IsHiddenAndEmptyUntilDrawn) {
    EXPECT_FALSE(graph().visible);
    EXPECT_EQ(graph().points(), 0);
    EXPECT_TRUE(graph().series().empty());
    EXPECT_FALSE(graph().border());
    EXPECT_EQ(graph().backgroundColor(), 7);
}

TEST_F(GraphTest, ALineChartGoesThroughAllItsOperations) {
    const auto before = graph().revision();
    dibujarLineas(graph(), chart());
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
    dibujarLineas(graph(), chart());
    dibujarLineas(graph(), chart());
    EXPECT_EQ(graph().series().size(), 2U);
    EXPECT_EQ(graph().points(), 3);
    EXPECT_EQ(graph().x()->size(), 3U);
}

TEST_F(GraphTest, ADrawReplacesPositionsAndLegendsOfTheOneBefore) {
    dibujarLineas(graph(), chart());
    dibujarLineas(graph(), {0, true, std::nullopt, {{"", {9}}}});
    EXPECT_FALSE(graph().x()) << "the points stand at 1, 2, 3 again";
    EXPECT_EQ(graph().points(), 1);
    ASSERT_EQ(graph().series().size(), 1U);
    EXPECT_EQ(graph().series()[0].legend, "");
    EXPECT_TRUE(graph().autoAdvance());
    EXPECT_EQ(graph().style(), 0);
}

TEST_F(GraphTest, ClearingErasesAndHides) {
    dibujarLineas(graph(), chart());
    click("bLimpiar");
    EXPECT_FALSE(graph().visible);
    EXPECT_FALSE(graph().border());
    EXPECT_EQ(graph().backgroundColor(), 7);
    EXPECT_EQ(graph().points(), 0);
    EXPECT_TRUE(graph().series().empty());
    EXPECT_FALSE(graph().x());
    dibujarLineas(graph(), chart());
    EXPECT_TRUE(graph().visible);
}

TEST_F(GraphTest, AnAreaChartIsAKindOfItsOwn) {
    graph().setKind(Graph::Kind::area, 2);
    graph().setSize(2, 1);
    graph().setY(0, {3, 4});
    graph().draw();
    EXPECT_EQ(graph().graphKind(), Graph::Kind::area);
    EXPECT_EQ(graph().style(), 2);
    dibujarLineas(graph(), chart());
    EXPECT_EQ(graph().graphKind(), Graph::Kind::line);
}

TEST_F(GraphTest, ASeriesThatIsNotThereIsFailure9) {
    graph().setSize(2, 1);
    EXPECT_EQ(failureNumber([&] { graph().setY(1, {1, 2}); }), 9);
    EXPECT_EQ(failureNumber([&] { graph().setLegend(1, "x"); }), 9);
}

} // namespace
} // namespace caudalera
