// The gates of the commands, the chart, and what clearing, loading and saving do, in both windows
// of the Gumbel distribution.

#include "tests/fitting/DisGumbelTest.h"

namespace caudalera::testing {
namespace {

class DisGumbelState : public BothGumbelTest {
protected:
    Graph& chart() { return control<Graph>("Graph1"); }
    void expectSeries(std::size_t index, const std::string& legend,
                      const std::vector<double>& values) {
        const auto& series = chart().series().at(index);
        EXPECT_EQ(series.legend, legend);
        ASSERT_EQ(series.y.size(), values.size()) << legend;
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_NEAR(series.y[i], values[i], 1e-9) << legend << " " << i;
    }
    void fitAndEvaluate() {
        fitFour();
        EXPECT_EQ(flowOf("100"), mine.flow);
        EXPECT_EQ(above("3"), mine.above3);
        click("bGraficar");
        EXPECT_TRUE(chart().visible);
        EXPECT_TRUE(messages().empty());
    }
    void expectCleared() {
        EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|G(Y) Ordinario|G(Y) Mom Lineal|Delta");
        EXPECT_EQ(control<MSFlexGrid>("grddis").Rows(), 500);
        EXPECT_TRUE(resultRows().empty());
        EXPECT_EQ(parameters(), noParameters);
        for (const std::string field : {"txtxq", "txtxt", "txtxp"})
            EXPECT_EQ(text(field), "") << field;
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
        EXPECT_EQ(text("lblmensaje"), "");
        EXPECT_FALSE(chart().visible);
        EXPECT_TRUE(chart().series().empty());
        EXPECT_EQ(messagesOf("bQ"), error("Efectuar cálculos antes de evaluar caudal de diseño"));
    }
};
INSTANTIATE_TEST_SUITE_P(Both, DisGumbelState, ::testing::Values(ofValues, ofLogarithms),
                         windowName);

// Both probabilities refuse with the same words.
TEST_P(DisGumbelState, NothingIsAnsweredBeforeACalculation) {
    fit({"1", "2", "3"});
    EXPECT_EQ(messages(), badData);
    EXPECT_EQ(messagesOf("bGraficar"), error("Efectuar cálculos antes de graficar"));
    EXPECT_EQ(messagesOf("bQ"), error("Efectuar cálculos antes de evaluar caudal de diseño"));
    EXPECT_EQ(messagesOf("bT"), error("Efectuar cálculos antes de evaluar el período de retorno"));
    for (const std::string button : {"bPmayor", "bPmenor"}) {
        EXPECT_EQ(messagesOf(button),
                  error("Efectuar cálculos antes de evaluar la probabilidad de no excedencia"))
            << button;
    }
    EXPECT_FALSE(chart().visible);
}

TEST_P(DisGumbelState, EmptyFieldsAreRefused) {
    fitFour();
    EXPECT_EQ(messagesOf("bQ"), error("Ingresar un valor de T, antes de evaluar"));
    for (const std::string button : {"bT", "bPmayor", "bPmenor"})
        EXPECT_EQ(messagesOf(button), error("Ingresar un valor para Q, antes de evaluar"));
    EXPECT_EQ(text("txtxq") + text("txtxt") + text("txtxp"), "");
}

TEST_P(DisGumbelState, ThreeCurvesFromTheOrigin) {
    fitFour();
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(chart().visible);
    ASSERT_EQ(chart().series().size(), 3U);
    EXPECT_EQ(chart().x(), (std::vector<double>{0, 1, 2, 3, 4}));
    expectSeries(0, "Exp", {0, 0.2, 0.4, 0.6, 0.8});
    expectSeries(1, "Ord", mine.ordinary);
    expectSeries(2, "ML", mine.linear);
}

TEST_P(DisGumbelState, OnePointIsNotDrawn) {
    fitFour();
    keepRows(1);
    click("bCrear");
    click("bGraficar");
    expectMessage({"Para graficar se requiere por lo menos dos puntos", "Error", Icon::error});
    EXPECT_FALSE(chart().visible);
}

TEST_P(DisGumbelState, OptionsChangeNothingUntilTheNextCalculation) {
    fitFour();
    const std::string verdict = text("lblmensaje");
    const Texts rows = resultRows();
    click("optMomentoLi");
    click("opt020");
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos ordinarios:");
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(resultRows(), rows);
    click("bCalcular");
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos lineales:");
    EXPECT_NE(text("lblmensaje"), verdict);
}

TEST_P(DisGumbelState, EditedDataChangeNoAnswer) {
    fitFour();
    values({"1000"});
    EXPECT_EQ(flowOf("100"), mine.flow);
    EXPECT_EQ(parameters(), mine.parameters);
}

TEST_P(DisGumbelState, ClearingReturnsToTheStart) {
    fitAndEvaluate();
    click("optMomentoLi");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    EXPECT_TRUE(control<Option>("optMomentoLi").checked());
    expectCleared();
}

TEST_P(DisGumbelState, LoadingShowsTheFileAndClearsTheResults) {
    fitAndEvaluate();
    load({7.5F, 0.1F, 2.0F});
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Valores X|*.X");
    EXPECT_EQ(rowText("grdt", 1), " 1|7.5");
    EXPECT_EQ(rowText("grdt", 2), " 2|0.1");
    EXPECT_EQ(rowText("grdt", 3), " 3|2.0");
    EXPECT_EQ(rowText("grdt", 4), "[->]|");
    expectCleared();
}

TEST_P(DisGumbelState, SavingKeepsTheOrderOfTheGridAndTheResults) {
    fitFour();
    platform.answers = {file("serie.X")};
    click("bCrear");
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Valores de X|*.X");
    // 3, 1, 4 and 2 as IEEE singles: 40400000, 3F800000, 40800000, 40000000.
    EXPECT_EQ(bytesOf(file("serie.X")),
              (std::vector<unsigned char>{0, 0, 0x40, 0x40, 0, 0, 0x80, 0x3F, 0, 0, 0x80, 0x40, 0,
                                          0, 0, 0x40}));
    EXPECT_EQ(parameters(), mine.parameters);
}

} // namespace
} // namespace caudalera::testing
