// bCalcular and bGraficar of the seasonal variation curve: results, messages, what stays.

#include "tests/curves/VariacionEstaTest.h"
#include "tests/support/SeriesBytes.h"

#include <cmath>

namespace caudalera::testing {
namespace {

class VariacionEstaCalculate : public VariacionEstaTest {};

TEST_F(VariacionEstaCalculate, TwoYears) {
    calculateTwoYears();
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtnanos"), "2");
    EXPECT_EQ(results(), curves);
}

// A third year for January, 14, and December, 25; in the other months as in the first one.
TEST_F(VariacionEstaCalculate, ThreeYears) {
    Texts third = firstYear;
    third.front() = "14";
    third.back() = "25";
    values(firstYear);
    values(secondYear);
    values(third);
    click("bCalcular");
    EXPECT_EQ(text("txtnanos"), "3");
    EXPECT_EQ(rowText("grddis", 1), "Ene|11.02|10.74|10.43|10.09|9.68|9.09");
    EXPECT_EQ(rowText("grddis", 12), "Dic|19.69|19.2|18.68|18.09|17.37|16.35");
}

TEST_F(VariacionEstaCalculate, ValuesFallFromTheFirstProbabilityToTheLast) {
    calculateTwoYears();
    for (long row = 1; row <= 12; ++row) {
        for (long col = 2; col <= 6; ++col)
            EXPECT_LT(std::stod(cellText("grddis", row, col)),
                      std::stod(cellText("grddis", row, col - 1)));
    }
}

TEST_F(VariacionEstaCalculate, EqualYearsGiveTheirValueWithEveryProbability) {
    values(firstYear);
    values(firstYear);
    click("bCalcular");
    EXPECT_EQ(rowText("grddis", 1), "Ene|12.5|12.5|12.5|12.5|12.5|12.5");
    EXPECT_EQ(rowText("grddis", 4), "Abr|6.0|6.0|6.0|6.0|6.0|6.0");
}

TEST_F(VariacionEstaCalculate, YearsThatAreNotWholeAreRefused) {
    values(firstYear);
    values(secondYear);
    deleteRow(24);
    click("bCalcular");
    expectMessage(incomplete);
    EXPECT_EQ(text("txtnanos"), "");
    EXPECT_EQ(results(), noCurves);
    values({"18", "1"});
    click("bCalcular");
    expectMessage(incomplete);
}

TEST_F(VariacionEstaCalculate, ARefusalLeavesTheResultsAndTheirYears) {
    calculateTwoYears();
    values({"1"});
    click("bCalcular");
    expectMessage(incomplete);
    EXPECT_EQ(text("txtnanos"), "2");
    EXPECT_EQ(results(), curves);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(chart().visible);
}

TEST_F(VariacionEstaCalculate, AnEmptyGridIsRefused) {
    click("bCalcular");
    expectMessage(incomplete);
}

TEST_F(VariacionEstaCalculate, AZeroIsRefusedInAnyMonthAndYear) {
    for (const long row : {1L, 12L, 13L, 24L}) {
        click("bLimpiar");
        values(firstYear);
        values(secondYear);
        setCell(row, "0");
        click("bCalcular");
        expectMessage(zeros);
        EXPECT_EQ(results(), noCurves);
        EXPECT_EQ(text("txtnanos"), "2");
    }
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(VariacionEstaCalculate, ANegativeIsRefusedAsAZeroIs) {
    values(firstYear);
    values(secondYear);
    setCell(7, "-3");
    click("bCalcular");
    expectMessage(zeros);
}

TEST_F(VariacionEstaCalculate, OneYearFails) {
    values(firstYear);
    click("bCalcular");
    expectMessage(failed);
    EXPECT_EQ(text("txtnanos"), "1");
    EXPECT_EQ(results(), noCurves);
    EXPECT_FALSE(program.ended());
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(VariacionEstaCalculate, AFailureKeepsTheResultsOfTheCalculationBefore) {
    calculateTwoYears();
    for (long row = 24; row > 12; --row)
        deleteRow(row);
    click("bCalcular");
    expectMessage(failed);
    EXPECT_EQ(text("txtnanos"), "1");
    EXPECT_EQ(results(), curves);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(chart().visible);
    EXPECT_NEAR(chart().series().at(0).y.at(0), 10.293128562331356, 1e-10);
}

TEST_F(VariacionEstaCalculate, AZeroInASingleYearIsRefusedBeforeItFails) {
    values(firstYear);
    setCell(1, "0");
    click("bCalcular");
    expectMessage(zeros);
}

TEST_F(VariacionEstaCalculate, FortyOneYearsFitAndFortyTwoFail) {
    for (int year = 0; year < 41; ++year)
        values(year % 2 == 0 ? firstYear : secondYear);
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtnanos"), "41");
    values(firstYear);
    click("bCalcular");
    expectMessage(failed);
    EXPECT_EQ(text("txtnanos"), "41");
    EXPECT_FALSE(program.ended());
}

TEST_F(VariacionEstaCalculate, FiveHundredValuesCanBeSaved) {
    writeSingles(file("a.VE"), std::vector<float>(500, 1.5F));
    platform.answers = {file("a.VE"), file("b.VE")};
    click("bAccesar");
    click("bCrear");
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(bytesOf(file("b.VE")), bytesOf(file("a.VE")));
}

TEST_F(VariacionEstaCalculate, SavingMoreThanTheCapacityIsFatal) {
    values(Texts(501, "1"));
    platform.answers = {file("serie.VE")};
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

TEST_F(VariacionEstaCalculate, TheLocalesSeparatorIsWritten) {
    platform.separator = ",";
    values(Texts(12, "4"));
    values(Texts(12, "16"));
    click("bCalcular");
    // 8 times 4 to the power 0.70711 z.
    EXPECT_EQ(rowText("grddis", 1), "Ene|4,79|4,13|3,51|2,9|2,28|1,59");
}

TEST_F(VariacionEstaCalculate, TheChartShowsACurveAProbability) {
    calculateTwoYears();
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    const Graph& graph = chart();
    EXPECT_TRUE(graph.visible);
    EXPECT_EQ(graph.graphKind(), Graph::Kind::line);
    EXPECT_EQ(graph.style(), 0);
    EXPECT_EQ(graph.points(), 12);
    ASSERT_TRUE(graph.x().has_value());
    EXPECT_EQ(*graph.x(), (std::vector<double>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
    const Texts legends = {"70%", "75%", "80%", "85%", "90%", "95%"};
    ASSERT_EQ(graph.series().size(), 6U);
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(graph.series()[i].legend, legends[i]);
        EXPECT_EQ(graph.series()[i].y.size(), 12U);
    }
    // The values themselves, of which the grid shows two decimals.
    const double january[] = {10.293128562331356, 10.052074653628625, 9.7902452881760288,
                              9.4936405667266964, 9.1332135263554155, 8.6241379721581563};
    for (std::size_t i = 0; i < 6; ++i)
        EXPECT_NEAR(graph.series()[i].y[0], january[i], 1e-10) << i;
    EXPECT_NEAR(graph.series()[1].y[11], 18.084272296792340, 1e-10);
    EXPECT_NEAR(graph.series()[4].y[11], 16.590585940071354, 1e-10);
}

TEST_F(VariacionEstaCalculate, WithoutCalculationThereIsNoChart) {
    values(firstYear);
    values(secondYear);
    click("bGraficar");
    expectMessage(notCalculated);
    EXPECT_FALSE(chart().visible);
}

TEST_F(VariacionEstaCalculate, ClearingEmptiesEverything) {
    calculateTwoYears();
    click("bGraficar");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(results(), noCurves);
    EXPECT_EQ(rowText("grddis", 0), "Meses| 70 %| 75 %|80 %|85 %|90 %|95 %");
    EXPECT_EQ(text("txtnanos"), "");
    EXPECT_FALSE(chart().visible);
    EXPECT_TRUE(chart().series().empty());
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(VariacionEstaCalculate, LoadingTakesTheResultsBeforeTheDialog) {
    calculateTwoYears();
    click("bGraficar");
    click("bAccesar");
    ASSERT_EQ(platform.dialogsSeen.size(), 1U);
    EXPECT_EQ(platform.dialogsSeen[0].title, "Seleccionar el archivo a cargar");
    EXPECT_EQ(platform.dialogsSeen[0].filter, "Valores mensuales de X|*.VE");
    EXPECT_EQ(results(), noCurves);
    EXPECT_EQ(text("txtnanos"), "");
    EXPECT_FALSE(chart().visible);
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(VariacionEstaCalculate, ASavedSeriesComesBackWithItsMonths) {
    values({"1.5", "0.1", "3"});
    platform.answers = {file("serie.VE"), file("serie.VE")};
    click("bCrear");
    EXPECT_EQ(platform.dialogsSeen.at(0).filter, "Valores mensuales de X|*.VE");
    EXPECT_EQ(bytesOf(file("serie.VE")).size(), 12U);
    click("bLimpiar");
    click("bAccesar");
    EXPECT_EQ(rowText("grdt", 1), "Ene|1.5");
    EXPECT_EQ(rowText("grdt", 2), "Feb|0.1");
    EXPECT_EQ(rowText("grdt", 3), "Mar|3.0");
    EXPECT_EQ(cellText("grdt", 4, 0), "[->]");
}

} // namespace
} // namespace caudalera::testing
