// What clearing, loading and the options do in the windows of the gamma family.

#include "tests/fitting/DisGamma3Test.h"

namespace caudalera::testing {
namespace {

class DisGammaState : public DisGammaTest, public ::testing::WithParamInterface<const char*> {
protected:
    DisGammaState() : DisGammaTest(GetParam()) {}

    void fitAndEvaluate() {
        fit({"11", "2", "5", "3"});
        EXPECT_NE(flowOf("2"), "");
        EXPECT_NE(above("4"), "");
        click("bGraficar");
        EXPECT_TRUE(messages().empty());
        EXPECT_TRUE(control<Graph>("Graph1").visible);
        EXPECT_NE(text("txtbetal"), "");
    }
    void expectCleared() {
        EXPECT_TRUE(resultRows().empty());
        EXPECT_EQ(parameters(), noParameters);
        EXPECT_EQ(texts({"txtxq", "txtxt", "txtxp", "lblmensaje"}), Texts(4, ""));
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
        EXPECT_FALSE(control<Graph>("Graph1").visible);
        click("bQ");
        expectMessage({"Efectuar cálculos antes de evaluar caudal de diseño", "Mensaje de Error",
                       Icon::error});
    }
};

TEST_P(DisGammaState, ClearingReturnsToTheStart) {
    fitAndEvaluate();
    click("bLimpiar");
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    expectCleared();
}

TEST_P(DisGammaState, LoadingClearsTheResultsAndShowsTheFile) {
    fitAndEvaluate();
    load({7.5F, 0.5F});
    EXPECT_EQ(rowText("grdt", 2), " 2|0.5");
    expectCleared();
}

TEST_P(DisGammaState, OptionsChangeNothingUntilTheNextCalculation) {
    fit({"11", "2", "5", "3"});
    const std::string verdict = text("lblmensaje");
    const Texts rows = resultRows();
    click("optMomentoLi");
    click("opt020");
    EXPECT_EQ(text("lblmensaje"), verdict);
    EXPECT_EQ(resultRows(), rows);
    click("bCalcular");
    EXPECT_NE(text("lblmensaje"), verdict);
    EXPECT_TRUE(text("lblmensaje").ends_with(" 20%"));
    EXPECT_EQ(text("lblAjuste"), "Ajuste con momentos lineales:");
}

TEST_P(DisGammaState, EditedDataChangeNoAnswer) {
    fit({"11", "2", "5", "3"});
    const std::string before = flowOf("2");
    values({"1000"});
    click("bCrear");
    EXPECT_EQ(flowOf("2"), before);
}

INSTANTIATE_TEST_SUITE_P(Windows, DisGammaState,
                         ::testing::Values("frmDisGamma2par", "frmDisGamma3par",
                                           "frmDisLogPearson3"),
                         [](const auto& each) { return std::string(each.param); });

} // namespace
} // namespace caudalera::testing
