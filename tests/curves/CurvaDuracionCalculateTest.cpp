// The window of the duration curve: what it shows, bCalcular, its failures.

#include "tests/curves/CurvaDuracionWindow.h"
#include "tests/support/SeriesBytes.h"

namespace caudalera::testing {
namespace {

class CurvaDuracionForm : public CurvaDuracionWindow {};
class CurvaDuracionCalculate : public CurvaDuracionWindow {};

TEST_F(CurvaDuracionForm, TextsOfTheWindow) {
    EXPECT_EQ(window("frmCurvaDuracion").caption,
              "Análisis de frecuencia de caudales, a través de la curva de duración");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de caudales:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("fraCaudal"), "Caudal de diseño:");
    EXPECT_EQ(control<TextBox>("txtxp").label()->caption,
              "Probabilidad de ser excedido o igualado (P):");
    EXPECT_EQ(control<TextBox>("txtxp").unit()->caption, "%");
    EXPECT_EQ(control<TextBox>("txtxq").label()->caption, "Caudal (Q):");
    EXPECT_EQ(control<TextBox>("txtxq").unit()->caption, "m3/s");
    EXPECT_EQ(text("bQ"), "Q=f(P)");
    EXPECT_EQ(control<Button>("bQ").toolTip, "Caudal de diseño");
    EXPECT_EQ(text("fraGrafico"), "Gráfico curva duración:");
    EXPECT_EQ(text("OptNormal"), "Curva duración normal");
    EXPECT_EQ(text("OptAdimensional"), "Curva duración adimensional");
    EXPECT_EQ(text("bGraficar"), "&Graficar");
    EXPECT_EQ(control<Button>("bGraficar").toolTip, "Mostrar gráfico");
}

TEST_F(CurvaDuracionForm, CommandsInTheOrderOfEveryWindow) {
    Texts names;
    for (const auto& group : window("frmCurvaDuracion").commands) {
        for (const Button* button : group.buttons)
            names.push_back(button->name());
    }
    EXPECT_EQ(names, (Texts{"bCalcular", "bGraficar", "bLimpiar", "bImprimir", "bReporte", "bCrear",
                            "bAccesar", "bCalculadora", "bMenu"}));
}

TEST_F(CurvaDuracionForm, StartsEmpty) {
    EXPECT_EQ(rowText("grdt", 0), "Día|Caudal Q (m3/s)");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(focus(), "grdt");
    const auto& grid = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grid.Rows(), 500);
    EXPECT_EQ(grid.Cols(), 5);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 0);
    EXPECT_EQ(grid.columnWidths, (std::vector<int>{800, 1450, 1450, 1450, 1450}));
    EXPECT_EQ(grid.columnAlignments, std::vector(5, MSFlexGrid::ColumnAlignment::center));
    EXPECT_EQ(rowText("grddis", 0), headers);
    EXPECT_EQ(rowText("grddis", 1), "||||");
    EXPECT_EQ(text("txtxp") + text("txtxq"), "");
    EXPECT_TRUE(control<Option>("OptNormal").checked());
    EXPECT_FALSE(control<Option>("OptAdimensional").checked());
    EXPECT_FALSE(chart().visible);
}

// Mean 14 / 4 = 3.5: 5 / 3.5 = 1.42857, 3 / 3.5 = 0.85714, 1 / 3.5 = 0.28571.
TEST_F(CurvaDuracionCalculate, EqualFlowsAreMerged) {
    calculate({"3", "5", "1", "5"});
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 1), "1|5.0|5.0|1.4286|50.0");
    EXPECT_EQ(rowText("grddis", 2), "2|5.0|3.0|0.8571|75.0");
    EXPECT_EQ(rowText("grddis", 3), "3|3.0|1.0|0.2857|100.0");
    EXPECT_EQ(rowText("grddis", 4), "4|1.0|||");
    EXPECT_EQ(rowText("grddis", 5), "||||");
}

// Mean 30.75 / 3 = 10.25: 20.125 / 10.25 = 1.96341, 10.5 / 10.25 = 1.02439, 0.125 / 10.25 =
// 0.012195.
TEST_F(CurvaDuracionCalculate, FlowsWithoutTies) {
    calculate({"10.5", "0.125", "20.125"});
    EXPECT_EQ(rowText("grddis", 1), "1|20.125|20.125|1.9634|33.33");
    EXPECT_EQ(rowText("grddis", 2), "2|10.5|10.5|1.0244|66.67");
    EXPECT_EQ(rowText("grddis", 3), "3|0.125|0.125|0.0122|100.0");
    EXPECT_EQ(rowText("grddis", 4), "||||");
}

TEST_F(CurvaDuracionCalculate, MasksShowFourDecimalsAndTwo) {
    // The fifth decimals round half away from zero.
    calculate({"0.99995", "0.49999", "0.75003"});
    EXPECT_EQ(cellText("grddis", 1, 1), "1.0");
    EXPECT_EQ(cellText("grddis", 2, 1), "0.75");
    EXPECT_EQ(cellText("grddis", 3, 1), "0.5");
    EXPECT_EQ(cellText("grddis", 1, 2), "1.0");
    EXPECT_EQ(cellText("grddis", 3, 2), "0.5");
}

TEST_F(CurvaDuracionCalculate, AShorterSeriesLeavesNoRowsOfALongerOne) {
    calculate({"4", "3", "2", "1"});
    EXPECT_EQ(rowText("grddis", 4), "4|1.0|1.0|0.4|100.0");
    keepRows(2);
    click("bCalcular");
    EXPECT_EQ(rowText("grddis", 2), "2|3.0|3.0|0.8571|100.0");
    EXPECT_EQ(rowText("grddis", 3), "||||");
    EXPECT_EQ(rowText("grddis", 4), "||||");
    EXPECT_EQ(control<MSFlexGrid>("grddis").Rows(), 500);
}

TEST_F(CurvaDuracionCalculate, NewTiesLeaveNoPointsOfTheFormerCurve) {
    calculate({"4", "3", "2"});
    cell("grdt", 2, 1);
    type("grdt", "4");
    key("txtt", Key::Kind::enter);
    click("bCalcular");
    // Mean 10 / 3.
    EXPECT_EQ(rowText("grddis", 1), "1|4.0|4.0|1.2|66.67");
    EXPECT_EQ(rowText("grddis", 2), "2|4.0|2.0|0.6|100.0");
    EXPECT_EQ(rowText("grddis", 3), "3|2.0|||");
}

TEST_F(CurvaDuracionCalculate, AnEmptyGridDividesByZero) {
    click("bCalcular");
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_F(CurvaDuracionCalculate, AMeanOfZeroDividesByZero) {
    calculate({"-2", "2"});
    EXPECT_TRUE(fatal(11));
}

TEST_F(CurvaDuracionCalculate, FourHundredAndNinetyNineRowsFit) {
    calculate(Texts(499, "2"));
    ASSERT_FALSE(program.ended());
    EXPECT_EQ(rowText("grddis", 1), "1|2.0|2.0|1.0|100.0");
    EXPECT_EQ(rowText("grddis", 499), "499|2.0|||");
    values({"2"});
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
}

// The row that is not there comes before the division by the mean.
TEST_F(CurvaDuracionCalculate, RowsPastTheGridComeBeforeAMeanOfZero) {
    Texts flows(250, "1");
    flows.insert(flows.end(), 250, "-1");
    calculate(flows);
    EXPECT_TRUE(fatal(9));
}

TEST_F(CurvaDuracionCalculate, SevenHundredFlowsCanBeSavedAndNoMore) {
    writeSingles(file("a.CD"), std::vector<float>(700, 1.5F));
    platform.answers = {file("a.CD"), file("b.CD")};
    click("bAccesar");
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Valores de caudales Q|*.CD");
    EXPECT_EQ(rowText("grdt", 700), " 700|1.5");
    click("bCrear");
    EXPECT_EQ(platform.dialogsSeen.at(1).filter, "Valores de caudales Q|*.CD");
    EXPECT_EQ(bytesOf(file("b.CD")), bytesOf(file("a.CD")));
    ASSERT_FALSE(program.ended());
    values({"1"});
    platform.answers = {file("b.CD")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

TEST_F(CurvaDuracionCalculate, FlowsPastTheArraysAreFatal) {
    writeSingles(file("a.CD"), std::vector<float>(701, 1.5F));
    platform.answers = {file("a.CD")};
    click("bAccesar");
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
}

// The mean is summed as the flows stand in the grid: 1E16 + 1 - 1E16 + 1 is 1 in doubles, the 1
// behind 1E16 being lost; in descending order it would be 0.
TEST_F(CurvaDuracionCalculate, TheMeanIsSummedInTheOrderOfTheGrid) {
    calculate({"1E16", "1", "-1E16", "1"});
    ASSERT_FALSE(program.ended());
    EXPECT_EQ(rowText("grddis", 1),
              "1|10000000000000000.0|10000000000000000.0|40000000000000000.0|25.0");
    EXPECT_EQ(rowText("grddis", 2), "2|1.0|1.0|4.0|75.0");
    EXPECT_EQ(rowText("grddis", 4), "4|-10000000000000000.0|||");
}

TEST_F(CurvaDuracionCalculate, AnOverflowOfTheMeanIsFatal) {
    calculate({"1E308", "1E308"});
    EXPECT_TRUE(fatal(6));
    EXPECT_TRUE(messages().empty());
}

TEST_F(CurvaDuracionCalculate, TheLocalesSeparatorIsWritten) {
    platform.separator = ",";
    calculate({"1", "2", "3"});
    EXPECT_EQ(rowText("grddis", 2), "2|2,0|2,0|1,0|66,67");
}

} // namespace
} // namespace caudalera::testing
