// Files and chart of the window of simple regression.

#include "tests/regression/EjRegSimpleTest.h"

#include <filesystem>

namespace caudalera {
namespace {

const Message noChart = {"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error};

TEST_F(EjRegSimpleTest, SavesPairsAndLoadsThemBack) {
    rows({{"1.5", "0.1"}, {"-2", "123456.789"}});
    platform.answers = {file("datos.XY"), file("datos.XY")};
    click("bCrear");
    EXPECT_EQ(std::filesystem::file_size(file("datos.XY")), 16U);
    click("bLimpiar");
    click("bAccesar");
    ASSERT_EQ(control<MSFlexGrid>("grdt").Rows(), 4);
    EXPECT_EQ(rowText("grdt", 1), " 1|1.5|0.1");
    // The nearest single to 123456.789 is 123456.7890625, shown in seven significant digits.
    EXPECT_EQ(rowText("grdt", 2), " 2|-2.0|123456.8");
    EXPECT_EQ(rowText("grdt", 3), "[->]||");
    ASSERT_EQ(platform.dialogsSeen.size(), 2U);
    EXPECT_EQ(platform.dialogsSeen[0].filter, "Pares valores X,Y|*.XY");
    EXPECT_EQ(platform.dialogsSeen[1].filter, "Pares valores X,Y|*.XY");
    EXPECT_TRUE(messages().empty());
}

TEST_F(EjRegSimpleTest, ALoadResetsTheResultsOnceTheFileIsIn) {
    rows({{"1", "3"}, {"2", "4"}});
    platform.answers = {file("datos.XY"), file("datos.XY")};
    click("bCrear");
    replaceRows(doubling);
    click("bCalcular");
    click("bGraficar");
    enter("txtvxx", "3");
    click("optLineal");
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 2), " 2|2.0|4.0");
    EXPECT_EQ(equations(), noEquations);
    EXPECT_EQ(text("txtvxx"), "");
    EXPECT_EQ(text("txtvyy"), "");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación:");
    EXPECT_FALSE(control<Option>("optLineal").checked());
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    enter("txtvxx", "3");
    click("optLineal");
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(EjRegSimpleTest, ALoadClearsAnOptionThatWasRefused) {
    platform.answers = {file("datos.XY"), file("datos.XY")};
    click("bCrear");
    click("optPotencial");
    click("bAccesar");
    EXPECT_FALSE(control<Option>("optPotencial").checked());
}

TEST_F(EjRegSimpleTest, ALoadThatFailsEmptiesTheGridAndLeavesTheResults) {
    calculate(doubling);
    click("bGraficar");
    enter("txtvxx", "10");
    click("optLineal");
    platform.answers = {file("no-existe.XY")};
    click("bAccesar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(equations(), doublingEquations);
    EXPECT_EQ(text("txtvxx"), "10");
    EXPECT_EQ(text("txtvyy"), "42.0000");
    EXPECT_EQ(text("lblCalculoY"), "Ecuación Lineal");
    EXPECT_TRUE(control<Option>("optLineal").checked());
    EXPECT_TRUE(control<Graph>("Graph1").visible);
    // The flag stays set too.
    click("optExponencial");
    EXPECT_EQ(text("txtvyy"), "1024.0000");
}

TEST_F(EjRegSimpleTest, SavingMoreThanTheArraysHoldEndsTheProgram) {
    rows(diagonal(251));
    platform.answers = {file("datos.XY")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

TEST_F(EjRegSimpleTest, DrawsThePairsInInputOrderWithoutACalculation) {
    rows({{"3", "30"}, {"1", "-10"}, {"2", "0"}});
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    const auto& graph = control<Graph>("Graph1");
    EXPECT_TRUE(graph.visible);
    EXPECT_EQ(graph.graphKind(), Graph::Kind::line);
    EXPECT_EQ(graph.style(), 1);
    EXPECT_EQ(graph.backgroundColor(), 7);
    EXPECT_TRUE(graph.border());
    EXPECT_FALSE(graph.autoAdvance());
    EXPECT_EQ(graph.points(), 3);
    ASSERT_EQ(graph.series().size(), 1U);
    EXPECT_EQ(graph.series()[0].legend, "");
    EXPECT_EQ(graph.series()[0].y, (std::vector<double>{30, -10, 0}));
    EXPECT_EQ(graph.x(), (std::vector<double>{3, 1, 2}));
}

TEST_F(EjRegSimpleTest, DrawingTwiceShowsTheSameOnce) {
    rows(doubling);
    click("bGraficar");
    click("bGraficar");
    EXPECT_EQ(control<Graph>("Graph1").series().size(), 1U);
    EXPECT_EQ(control<Graph>("Graph1").series()[0].y, (std::vector<double>{2, 4, 8, 16}));
}

TEST_F(EjRegSimpleTest, RefusesToDrawFewerThanTwoPairs) {
    rows({{"1", "2"}});
    click("bGraficar");
    expectMessage(noChart);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
}

TEST_F(EjRegSimpleTest, ARefusedDrawingLeavesTheEarlierOne) {
    rows(doubling);
    click("bGraficar");
    replaceRows({{"1", "2"}});
    click("bGraficar");
    expectMessage(noChart);
    EXPECT_TRUE(control<Graph>("Graph1").visible);
    EXPECT_EQ(control<Graph>("Graph1").points(), 4);
}

TEST_F(EjRegSimpleTest, DrawingMoreThanTheArraysHoldEndsTheProgram) {
    rows(diagonal(251));
    click("bGraficar");
    EXPECT_TRUE(fatal(9));
}

} // namespace
} // namespace caudalera
