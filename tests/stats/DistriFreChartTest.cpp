// The chart of the frequency distribution: its two functions, its gates, what it is shown with.

#include "stats/frmDistriFre.h"
#include "tests/stats/GroupedTest.h"

namespace caudalera::testing {
namespace {

const Message notCalculated = {"Ejecutar cálculos antes de graficar", "Mensaje de Error",
                               Icon::information};

class DistriFreChart : public GroupedTest {
protected:
    explicit DistriFreChart(const std::vector<WindowEntry>& opens = ventanas())
        : GroupedTest("frmDistriFre", opens) {}

    Graph& chart() { return control<Graph>("Graph1"); }
    /// Name of the option that is set; empty if none is.
    std::string chosen() {
        std::string name;
        for (const char* each : {"optDensidad", "optAcumulada"}) {
            if (control<Option>(each).checked())
                name += each;
        }
        return name;
    }
    /// The frame of the options and the labels beside the chart.
    void expectSurroundings(bool visible) {
        for (const char* each : {"fraTipoGrafico", "lblMarcaClase", "lblPorcentaje", "lblFuncion"})
            EXPECT_EQ(control<Control>(each).visible, visible) << each;
    }
    void expectNoChart() {
        EXPECT_FALSE(chart().visible);
        EXPECT_TRUE(chart().series().empty());
    }
    void expectCurve(const std::vector<double>& x, const std::vector<double>& y) {
        EXPECT_TRUE(chart().visible);
        EXPECT_EQ(chart().points(), static_cast<long>(x.size()));
        EXPECT_EQ(chart().x(), x);
        ASSERT_EQ(chart().series().size(), 1U);
        EXPECT_EQ(chart().series()[0].legend, "");
        const auto& drawn = chart().series()[0].y;
        ASSERT_EQ(drawn.size(), y.size());
        for (std::size_t i = 0; i < y.size(); ++i)
            EXPECT_NEAR(drawn[i], y[i], 1e-12) << i;
    }

    /// The origin and the marks of the ten values, and the functions there.
    const std::vector<double> marks = {0, 1, 4, 7, 10};
    const std::vector<double> cumulative = {0, 20, 50, 80, 100};
    const std::vector<double> density = {0, 20.0 / 3, 10, 10, 20.0 / 3};
};

TEST_F(DistriFreChart, IsHiddenWithAllThatBelongsToIt) {
    expectNoChart();
    expectSurroundings(false);
    EXPECT_EQ(chosen(), "");
    calculate(oneToTen);
    expectNoChart();
    expectSurroundings(false);
}

TEST_F(DistriFreChart, LabelsStandAlongTheAxes) {
    EXPECT_EQ(chart().xLabels, std::vector<Label*>{&control<Label>("lblMarcaClase")});
    EXPECT_EQ(chart().yLabels, (std::vector<Label*>{&control<Label>("lblFuncion"),
                                                    &control<Label>("lblPorcentaje")}));
}

TEST_F(DistriFreChart, CommandDrawsTheCumulativeFrequency) {
    calculate(oneToTen);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    expectSurroundings(true);
    EXPECT_EQ(chosen(), "optAcumulada");
    EXPECT_EQ(text("lblFuncion"), "Fx");
    EXPECT_EQ(chart().graphKind(), Graph::Kind::line);
    EXPECT_EQ(chart().style(), 0);
    EXPECT_EQ(chart().backgroundColor(), 7);
    EXPECT_TRUE(chart().border());
    EXPECT_TRUE(chart().autoAdvance());
    expectCurve(marks, cumulative);
}

TEST_F(DistriFreChart, OptionsDrawTheirFunctions) {
    calculate(oneToTen);
    click("bGraficar");
    click("optDensidad");
    EXPECT_EQ(chosen(), "optDensidad");
    EXPECT_EQ(text("lblFuncion"), "fx");
    expectCurve(marks, density);
    click("optAcumulada");
    EXPECT_EQ(text("lblFuncion"), "Fx");
    expectCurve(marks, cumulative);
    EXPECT_TRUE(messages().empty());
}

TEST_F(DistriFreChart, CommandReturnsToTheCumulativeFrequency) {
    calculate(oneToTen);
    click("bGraficar");
    click("optDensidad");
    click("bGraficar");
    EXPECT_EQ(chosen(), "optAcumulada");
    EXPECT_EQ(text("lblFuncion"), "Fx");
    expectCurve(marks, cumulative);
    const auto drawings = chart().revision();
    click("bGraficar");
    EXPECT_EQ(chart().revision(), drawings + 1);
    expectCurve(marks, cumulative);
}

TEST_F(DistriFreChart, DrawsTheLastCalculationWhateverTheGridHolds) {
    calculate(oneToTen);
    replaceValues(skewed);
    click("bOrdenar");
    click("bGraficar");
    expectCurve(marks, cumulative);
    click("bCalcular");
    expectCurve(marks, cumulative);
    click("optAcumulada");
    expectCurve(marks, {0, 30, 80, 90, 100});
}

TEST_F(DistriFreChart, NeedsACalculation) {
    values(oneToTen);
    click("bGraficar");
    expectMessage(notCalculated);
    expectNoChart();
    expectSurroundings(true);
    EXPECT_EQ(chosen(), "optAcumulada");
    EXPECT_EQ(text("lblFuncion"), "Fx");
    click("optDensidad");
    expectMessage(notCalculated);
    EXPECT_EQ(text("lblFuncion"), "fx");
    click("optAcumulada");
    expectMessage(notCalculated);
    EXPECT_EQ(text("lblFuncion"), "Fx");
    expectNoChart();
}

TEST_F(DistriFreChart, TwoClassesAreEnough) {
    calculate({"5", "2"});
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    expectCurve({0, 2, 5}, {0, 50, 100});
}

TEST_F(DistriFreChart, ClearingHidesItAndAsksForANewCalculation) {
    calculate(oneToTen);
    click("bGraficar");
    click("bLimpiar");
    expectNoChart();
    expectSurroundings(false);
    EXPECT_EQ(chosen(), "optAcumulada");
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(DistriFreChart, LoadingHidesItAndAsksForANewCalculation) {
    calculate(oneToTen);
    click("bGraficar");
    platform.answers = {std::nullopt};
    click("bAccesar");
    EXPECT_TRUE(messages().empty());
    expectNoChart();
    expectSurroundings(false);
    click("bGraficar");
    expectMessage(notCalculated);
}

/// The window as if its last calculation had found so many classes; a series that is grouped has
/// two and more.
template <std::size_t count>
class Grouped : public frmDistriFre {
public:
    explicit Grouped(Program& program) : frmDistriFre(program) {
        agrupacion.clases.assign(count, {0, 1, 2, 1});
        frecuenciasDeClase.assign(count, {50, 25, 50});
        calculado = true;
    }
};

template <std::size_t count>
class DistriFreFewClasses : public DistriFreChart {
protected:
    DistriFreFewClasses() : DistriFreChart(only()) {}

private:
    static const std::vector<WindowEntry>& only() {
        static const std::vector<WindowEntry> entries =
            withProgramWindows({{"frmDistriFre", [](Program& program) -> std::unique_ptr<Window> {
                                     return std::make_unique<Grouped<count>>(program);
                                 }}});
        return entries;
    }
};

const Message fewerThanTwo = {"Para graficar se requiere por lo menos dos puntos", "Error",
                              Icon::none};

class DistriFreOneClass : public DistriFreFewClasses<1> {};

TEST_F(DistriFreOneClass, IsRefused) {
    click("bGraficar");
    expectMessage(fewerThanTwo);
    expectNoChart();
    click("optDensidad");
    expectMessage(fewerThanTwo);
    EXPECT_EQ(text("lblFuncion"), "fx");
    expectNoChart();
}

class DistriFreTwoClasses : public DistriFreFewClasses<2> {};

TEST_F(DistriFreTwoClasses, AreDrawn) {
    click("optDensidad");
    EXPECT_TRUE(messages().empty());
    expectCurve({0, 1, 1}, {0, 25, 25});
}

} // namespace
} // namespace caudalera::testing
