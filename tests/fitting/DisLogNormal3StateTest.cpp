// What the log-normal distribution of three parameters draws, and what clearing, loading and saving
// do.

#include "tests/fitting/DisLogNormal3Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal3State : public DisLogNormal3Test {
protected:
    Graph& chart() { return control<Graph>("Graph1"); }
    void fitAndEvaluate() {
        fit(skewed);
        EXPECT_EQ(flowOf("100"), "210.46");
        EXPECT_EQ(above("60"), "15.05");
        click("bGraficar");
        EXPECT_TRUE(chart().visible);
    }
    void expectCleared() {
        EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|Z|F(Z)|Delta");
        EXPECT_TRUE(resultRows().empty());
        EXPECT_EQ(parameters(), noParameters);
        for (const std::string field : {"txtxq", "txtxt", "txtxp"})
            EXPECT_EQ(text(field), "") << field;
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
        EXPECT_EQ(text("lblmensaje"), "");
        EXPECT_FALSE(chart().visible);
        click("bT");
        expectMessage({"Efectuar cálculos antes de evaluar el período de retorno",
                       "Mensaje de Error", Icon::error});
    }
};

TEST_F(DisLogNormal3State, ChartNeedsACalculationAndTwoPoints) {
    click("bGraficar");
    expectMessage({"Efectuar cálculos antes de graficar", "Mensaje de Error", Icon::error});
    fit(skewed);
    keepRows(1);
    click("bCrear");
    messages();
    click("bGraficar");
    expectMessage({"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error});
}

TEST_F(DisLogNormal3State, ChartOfTwoSeriesFromTheOrigin) {
    fitAndEvaluate();
    EXPECT_EQ(chart().x(), (std::vector<double>{0, 10, 20, 25, 30, 100}));
    ASSERT_EQ(chart().series().size(), 2U);
    const auto& exp = chart().series()[0];
    EXPECT_EQ(exp.legend, "Exp");
    EXPECT_EQ(exp.y, (std::vector<double>{0, 1.0 / 6, 2.0 / 6, 3.0 / 6, 4.0 / 6, 5.0 / 6}));
    const auto& teo = chart().series()[1];
    EXPECT_EQ(teo.legend, "Teo");
    const std::vector<double> F = {0, 0.061257549, 0.38741271, 0.50569954, 0.59607765, 0.9421263};
    ASSERT_EQ(teo.y.size(), F.size());
    for (std::size_t m = 0; m < F.size(); ++m)
        EXPECT_NEAR(teo.y[m], F[m], 1e-7) << m;
}

TEST_F(DisLogNormal3State, ClearingReturnsToTheStart) {
    fitAndEvaluate();
    click("opt010");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_TRUE(control<Option>("opt010").checked());
    expectCleared();
}

TEST_F(DisLogNormal3State, LoadingShowsTheFileAndClearsTheResults) {
    fitAndEvaluate();
    load({7.5F, 0.5F, 2.0F});
    EXPECT_EQ(rowText("grdt", 2), " 2|0.5");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 5);
    expectCleared();
}

TEST_F(DisLogNormal3State, SavingKeepsTheOrderOfTheGridAndTheResults) {
    fit({"3", "1", "2", "8"});
    const Texts before = parameters();
    platform.answers = {file("serie.X")};
    click("bCrear");
    // 3, 1, 2 and 8 as IEEE singles: 40400000, 3F800000, 40000000, 41000000.
    EXPECT_EQ(bytesOf(file("serie.X")),
              (std::vector<unsigned char>{0, 0, 0x40, 0x40, 0, 0, 0x80, 0x3F, 0, 0, 0, 0x40, 0, 0,
                                          0, 0x41}));
    EXPECT_EQ(parameters(), before);
}

} // namespace
} // namespace caudalera::testing
