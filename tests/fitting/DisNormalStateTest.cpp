// What clearing, loading and saving do to data, results and the gate.

#include "tests/fitting/DisNormalTest.h"

namespace caudalera::testing {
namespace {

class DisNormalState : public DisNormalTest {
protected:
    void fitAndEvaluate() {
        fit({"3", "1", "4", "2"});
        EXPECT_EQ(flowOf("100"), "5.50");
        EXPECT_EQ(above("3"), "34.93");
        click("bGraficar");
        EXPECT_TRUE(control<Graph>("Graph1").visible);
    }
    void expectCleared() {
        EXPECT_EQ(rowText("grddis", 0), "m|X|P(X)|F(Z) Ordinario|F(Z) Mom Lineal|Delta");
        EXPECT_EQ(control<MSFlexGrid>("grddis").Rows(), 500);
        for (long row = 1; row <= 5; ++row)
            EXPECT_EQ(rowText("grddis", row), "|||||") << row;
        EXPECT_EQ(parameters(), noParameters);
        for (const std::string field : {"txtxq", "txtxt", "txtxp"})
            EXPECT_EQ(text(field), "") << field;
        EXPECT_EQ(text("lblAjuste"), "Ajuste:");
        EXPECT_EQ(text("lblmensaje"), "");
        EXPECT_FALSE(control<Graph>("Graph1").visible);
        EXPECT_TRUE(control<Graph>("Graph1").series().empty());
        messages();
        click("bQ");
        expectMessage({"Efectuar cálculos antes de evaluar caudal de diseño", "Mensaje de Error",
                       Icon::error});
    }
};

TEST_F(DisNormalState, ClearingReturnsToTheStart) {
    fitAndEvaluate();
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    expectCleared();
}

TEST_F(DisNormalState, ClearingLeavesTheOptions) {
    click("optMomentoLi");
    click("opt020");
    click("bLimpiar");
    EXPECT_TRUE(control<Option>("optMomentoLi").checked());
    EXPECT_TRUE(control<Option>("opt020").checked());
}

TEST_F(DisNormalState, LoadingShowsTheFileAndClearsTheResults) {
    fitAndEvaluate();
    load({7.5F, 0.1F, -2.0F});
    EXPECT_EQ(platform.dialogsSeen.at(0).kind, "open");
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Valores X|*.X");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 5);
    EXPECT_EQ(rowText("grdt", 1), " 1|7.5");
    EXPECT_EQ(rowText("grdt", 2), " 2|0.1");
    EXPECT_EQ(rowText("grdt", 3), " 3|-2.0");
    EXPECT_EQ(rowText("grdt", 4), "[->]|");
    expectCleared();
}

TEST_F(DisNormalState, CancelledFirstLoadHasLostDataAndResults) {
    fitAndEvaluate();
    platform.answers = {std::nullopt};
    click("bAccesar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    expectCleared();
}

TEST_F(DisNormalState, LoadedSeriesIsFitted) {
    load({3.0F, 1.0F, 4.0F, 2.0F});
    click("bCalcular");
    EXPECT_EQ(parameters(), (Texts{"2.5", "1.291", "2.5", "1.477"}));
}

TEST_F(DisNormalState, SavingKeepsTheOrderOfTheGridAndTheResults) {
    fit({"3", "1", "2", "0.5"});
    const Texts before = parameters();
    platform.answers = {file("serie.X")};
    click("bCrear");
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Valores de X|*.X");
    // 3, 1, 2 and 0.5 as IEEE singles: 40400000, 3F800000, 40000000, 3F000000.
    EXPECT_EQ(bytesOf(file("serie.X")),
              (std::vector<unsigned char>{0, 0, 0x40, 0x40, 0, 0, 0x80, 0x3F, 0, 0, 0, 0x40, 0, 0,
                                          0, 0x3F}));
    EXPECT_EQ(parameters(), before);
}

} // namespace
} // namespace caudalera::testing
