// Hyetograph and mass curve of a storm.

#include "tests/precipitation/AnalisisTorTest.h"

#include "shell/worksheet/Messages.h"

namespace caudalera {
namespace {

using Values = std::vector<double>;
using Captions = std::vector<std::string>;

TEST_F(AnalisisTorTest, GraficarDrawsTheIntensitiesAsBarsOnTheTimeAxis) {
    rows(tormentaDeCuatro);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(shown("Graph1"));
    EXPECT_TRUE(shown("fraTipoGra"));
    EXPECT_EQ(captionsShown(), (Captions{"Intensidad (mm/hr)", "Tiempo acumulado (min)"}));
    EXPECT_TRUE(form.optHistograma.checked());
    EXPECT_EQ(form.Graph1.graphKind(), Graph::Kind::area);
    EXPECT_EQ(form.Graph1.style(), 0);
    EXPECT_TRUE(form.Graph1.border());
    EXPECT_TRUE(form.Graph1.autoAdvance());
    EXPECT_EQ(form.Graph1.points(), 20);
    EXPECT_EQ(form.Graph1.x(),
              (Values{0, 0, 10, 10, 10, 10, 30, 30, 30, 30, 38, 38, 38, 38, 68, 68}));
    ASSERT_EQ(form.Graph1.series().size(), 2U);
    EXPECT_EQ(form.Graph1.series()[0].y,
              (Values{0, 30, 30, 0, 0, 72, 72, 0, 0, 75, 75, 0, 0, 6, 6, 0}));
    EXPECT_EQ(form.Graph1.series()[0].legend, "");
    EXPECT_TRUE(form.Graph1.series()[1].y.empty());
}

TEST_F(AnalisisTorTest, TheMassCurveStartsAtTheOrigin) {
    rows(tormentaDeCuatro);
    click("bGraficar");
    click("optCurvamasa");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(captionsShown(), (Captions{"Precipitación (mm)", "Tiempo acumulado (min)"}));
    EXPECT_TRUE(form.optCurvamasa.checked());
    EXPECT_FALSE(form.optHistograma.checked());
    EXPECT_EQ(form.Graph1.graphKind(), Graph::Kind::line);
    EXPECT_EQ(form.Graph1.style(), 0);
    EXPECT_EQ(form.Graph1.points(), 5);
    EXPECT_EQ(form.Graph1.x(), (Values{0, 10, 30, 38, 68}));
    ASSERT_EQ(form.Graph1.series().size(), 1U);
    EXPECT_EQ(form.Graph1.series()[0].y, (Values{0, 5, 29, 39, 42}));
}

TEST_F(AnalisisTorTest, AChosenOptionDrawsAnew) {
    rows(tormentaDeCuatro);
    click("bGraficar");
    cell("grdt", 4, 1);
    click("mnuEditEliminar");
    click("optHistograma");
    EXPECT_EQ(form.Graph1.points(), 16);
    EXPECT_EQ(form.Graph1.series()[0].y.size(), 12U);
    EXPECT_EQ(captionsShown(), (Captions{"Intensidad (mm/hr)", "Tiempo acumulado (min)"}));
}

TEST_F(AnalisisTorTest, GraficarComesBackToTheHistogram) {
    rows(tormentaDeCuatro);
    click("bGraficar");
    click("optCurvamasa");
    click("bGraficar");
    EXPECT_TRUE(form.optHistograma.checked());
    EXPECT_FALSE(form.optCurvamasa.checked());
    EXPECT_EQ(form.Graph1.graphKind(), Graph::Kind::area);
    EXPECT_EQ(captionsShown(), (Captions{"Intensidad (mm/hr)", "Tiempo acumulado (min)"}));
}

TEST_F(AnalisisTorTest, DrawingNeedsNoCalculationAndShowsNoResults) {
    rows(tormentaDeCuatro);
    click("bGraficar");
    click("optCurvamasa");
    EXPECT_EQ(rowText("grdecua", 2), "|||||");
    EXPECT_EQ(largest(), "|");
    EXPECT_FALSE(form.calculado());
}

TEST_F(AnalisisTorTest, ARefusedDrawingShowsTheOptionsAndCaptionsAndNoChart) {
    rows({{"10", "5"}});
    cell("grdt", 1, 2);
    click("bGraficar");
    expectMessage({"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error});
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(form.grdt.Row(), 2);
    EXPECT_EQ(form.grdt.Col(), 1);
    EXPECT_FALSE(shown("Graph1"));
    EXPECT_TRUE(shown("fraTipoGra"));
    EXPECT_EQ(captionsShown(), (Captions{"Intensidad (mm/hr)", "Tiempo acumulado (min)"}));
    cell("grdt", 1, 2);
    click("optCurvamasa");
    expectMessage(graficoDeDosPuntos());
    EXPECT_EQ(form.grdt.Row(), 2);
    EXPECT_FALSE(shown("Graph1"));
    EXPECT_EQ(captionsShown(), (Captions{"Precipitación (mm)", "Tiempo acumulado (min)"}));
}

TEST_F(AnalisisTorTest, TwoPairsCanBeDrawn) {
    rows({{"10", "5"}, {"5", "1"}});
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(form.Graph1.points(), 12);
    click("optCurvamasa");
    EXPECT_EQ(form.Graph1.x(), (Values{0, 10, 15}));
    EXPECT_EQ(form.Graph1.series()[0].y, (Values{0, 5, 6}));
}

TEST_F(AnalisisTorTest, ADrawingOfAnIntervalWithoutDurationEndsTheProgram) {
    rows({{"10", "5"}, {"0", "20"}});
    click("bGraficar");
    EXPECT_TRUE(fatal(11));
}

TEST_F(AnalisisTorTest, AMassCurveOfAnIntervalWithoutDurationEndsTheProgramToo) {
    rows({{"10", "5"}, {"10", "20"}});
    click("bGraficar");
    cell("grdt", 2, 1);
    type("grdt", "0");
    key("grdt", Key::Kind::enter);
    click("optCurvamasa");
    EXPECT_TRUE(fatal(11));
}

TEST_F(AnalisisTorTest, FiveHundredIntervalsCanBeDrawn) {
    loadMinutes(500);
    click("bGraficar");
    EXPECT_EQ(form.Graph1.points(), 2004);
    EXPECT_EQ(form.Graph1.x()->back(), 500);
    click("optCurvamasa");
    EXPECT_EQ(form.Graph1.points(), 501);
    EXPECT_EQ(form.Graph1.series()[0].y.back(), 500);
    EXPECT_FALSE(platform.ending.has_value());
}

TEST_F(AnalisisTorTest, OneIntervalMoreInAMassCurveEndsTheProgramToo) {
    loadMinutes(501);
    click("optCurvamasa");
    EXPECT_TRUE(fatal(9));
}

TEST_F(AnalisisTorTest, OneIntervalMoreEndsTheProgram) {
    loadMinutes(501);
    click("bGraficar");
    EXPECT_TRUE(fatal(9));
}

} // namespace
} // namespace caudalera
