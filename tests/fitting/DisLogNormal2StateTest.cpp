// What the log-normal distribution of two parameters draws, and what clearing, loading and saving
// do.

#include "tests/fitting/DisLogNormal2Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal2State : public DisLogNormal2Test {
protected:
    Graph& chart() { return control<Graph>("Graph1"); }
    void fitAndEvaluate() {
        fit({"3", "1", "4", "2"});
        EXPECT_EQ(flowOf("100"), "8.96");
        EXPECT_EQ(above("3"), "30.65");
        click("bGraficar");
        EXPECT_TRUE(chart().visible);
    }
    void expectCleared() {
        EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|F(Z) Ordinario|F(Z) Mom Lineal|Delta");
        EXPECT_TRUE(resultRows().empty());
        EXPECT_EQ(parameters(), noParameters);
        for (const std::string field : {"txtxq", "txtxt", "txtxp"})
            EXPECT_EQ(text(field), "") << field;
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
        EXPECT_EQ(text("lblmensaje"), "");
        EXPECT_FALSE(chart().visible);
        click("bQ");
        expectMessage({"Efectuar cálculos antes de evaluar caudal de diseño", "Mensaje de Error",
                       Icon::error});
    }
};

TEST_F(DisLogNormal2State, ChartNeedsACalculationAndTwoPoints) {
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
    fit({"1", "2", "3", "4"});
    keepRows(1);
    click("bCrear");
    messages();
    click("bGraficar");
    expectMessage({"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error});
}

TEST_F(DisLogNormal2State, ChartOfThreeSeriesFromTheOrigin) {
    fitAndEvaluate();
    EXPECT_EQ(chart().x(), (std::vector<double>{0, 1, 2, 3, 4}));
    struct Curve {
        std::string legend;
        std::vector<double> y;
    };
    const std::vector<Curve> curves = {
        {"Exp", {0, 0.2, 0.4, 0.6, 0.8}},
        {"Ord", {0, 0.093147826, 0.43304948, 0.69351797, 0.83753709}},
        {"ML", {0, 0.11929909, 0.44024184, 0.67402983, 0.80996998}}};
    ASSERT_EQ(chart().series().size(), curves.size());
    for (std::size_t i = 0; i < curves.size(); ++i) {
        const auto& series = chart().series()[i];
        EXPECT_EQ(series.legend, curves[i].legend);
        ASSERT_EQ(series.y.size(), 5U);
        for (std::size_t m = 0; m < 5; ++m)
            EXPECT_NEAR(series.y[m], curves[i].y[m], 1e-7) << series.legend << " " << m;
    }
}

TEST_F(DisLogNormal2State, ClearingReturnsToTheStart) {
    fitAndEvaluate();
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    expectCleared();
}

TEST_F(DisLogNormal2State, LoadingShowsTheFileAndClearsTheResults) {
    fitAndEvaluate();
    load({7.5F, 0.5F, 2.0F});
    EXPECT_EQ(rowText("grdt", 2), " 2|0.5");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 5);
    expectCleared();
}

TEST_F(DisLogNormal2State, SavingKeepsTheOrderOfTheGridAndTheResults) {
    fit({"3", "1", "2", "0.5"});
    const Texts before = parameters();
    platform.answers = {file("serie.X")};
    click("bCrear");
    // 3, 1, 2 and 0.5 as IEEE singles: 40400000, 3F800000, 40000000, 3F000000.
    EXPECT_EQ(bytesOf(file("serie.X")),
              (std::vector<unsigned char>{0, 0, 0x40, 0x40, 0, 0, 0x80, 0x3F, 0, 0, 0, 0x40, 0, 0,
                                          0, 0x3F}));
    EXPECT_EQ(parameters(), before);
}

TEST_F(DisLogNormal2State, EditedDataChangeNoAnswer) {
    fitAndEvaluate();
    values({"1000"});
    EXPECT_EQ(flowOf("100"), "8.96");
}

} // namespace
} // namespace caudalera::testing
