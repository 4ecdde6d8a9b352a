// bGraficar: its two gates and what it draws.

#include "tests/fitting/DisNormalTest.h"

namespace caudalera::testing {
namespace {

class DisNormalChart : public DisNormalTest {
protected:
    Graph& chart() { return control<Graph>("Graph1"); }
    void expectSeries(std::size_t index, const std::string& legend,
                      const std::vector<double>& values) {
        const auto& series = chart().series().at(index);
        EXPECT_EQ(series.legend, legend);
        ASSERT_EQ(series.y.size(), values.size()) << legend;
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_NEAR(series.y[i], values[i], 1e-7) << legend << " " << i;
    }
};

TEST_F(DisNormalChart, NeedsACalculation) {
    values({"1", "2", "3", "4"});
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
    EXPECT_FALSE(chart().visible);
}

// Cumulative values of the exact function at -+1.1618950, -+0.3872983 and -+1.0155412, -+0.3385137.
TEST_F(DisNormalChart, ThreeSeriesFromTheOrigin) {
    fit({"3", "1", "2", "4"});
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(chart().visible);
    EXPECT_EQ(chart().graphKind(), Graph::Kind::line);
    EXPECT_EQ(chart().style(), 0);
    EXPECT_EQ(chart().backgroundColor(), 7);
    EXPECT_TRUE(chart().border());
    EXPECT_TRUE(chart().autoAdvance());
    EXPECT_EQ(chart().points(), 5);
    ASSERT_EQ(chart().series().size(), 3U);
    EXPECT_EQ(chart().x(), (std::vector<double>{0, 1, 2, 3, 4}));
    expectSeries(0, "Exp", {0, 0.2, 0.4, 0.6, 0.8});
    expectSeries(1, "Ord", {0, 0.1226391, 0.3492677, 0.6507323, 0.8773609});
    expectSeries(2, "ML", {0, 0.1549239, 0.3674880, 0.6325120, 0.8450761});
}

TEST_F(DisNormalChart, SecondDrawingReplacesTheFirst) {
    fit({"1", "2", "3", "4"});
    click("bGraficar");
    click("bGraficar");
    EXPECT_EQ(chart().series().size(), 3U);
    EXPECT_EQ(chart().points(), 5);
}

TEST_F(DisNormalChart, DrawsTheLastCalculationWhateverTheGridHolds) {
    fit({"1", "2", "3", "4"});
    values({"50"});
    click("bGraficar");
    EXPECT_EQ(chart().points(), 5);
    EXPECT_EQ(chart().x()->back(), 4);
}

// Saving counts the rows anew: the chart then takes as many points, whatever the arrays hold.
TEST_F(DisNormalChart, SavingSetsTheNumberOfPoints) {
    fit({"1", "2", "3", "4"});
    values({"50"});
    click("bCrear");
    click("bGraficar");
    EXPECT_EQ(chart().x(), (std::vector<double>{0, 1, 2, 3, 4, 0}));
    expectSeries(0, "Exp", {0, 0.2, 0.4, 0.6, 0.8, 0});
}

TEST_F(DisNormalChart, OnePointIsRefused) {
    const std::vector<Message> refused = {
        {"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error}};
    fit({"1", "2", "3", "4"});
    keepRows(1);
    click("bCrear");
    click("bGraficar");
    EXPECT_EQ(messages(), refused);
    keepRows(0);
    click("bCrear");
    click("bGraficar");
    EXPECT_EQ(messages(), refused);
    EXPECT_FALSE(chart().visible);
}

TEST_F(DisNormalChart, TwoPointsAreDrawn) {
    fit({"1", "2", "3", "4"});
    keepRows(2);
    click("bCrear");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(chart().points(), 3);
}

TEST_F(DisNormalChart, ClearingHidesAndEmptiesIt) {
    fit({"1", "2", "3", "4"});
    click("bGraficar");
    click("bLimpiar");
    EXPECT_FALSE(chart().visible);
    EXPECT_TRUE(chart().series().empty());
    click("bGraficar");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_FALSE(chart().visible);
}

} // namespace
} // namespace caudalera::testing
