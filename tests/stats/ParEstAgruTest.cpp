// The window of parameters of grouped data: what is its own.

#include "shell/window/Program.h"
#include "tests/stats/GroupedTest.h"
#include "tests/support/PublishedSeries.h"

namespace caudalera::testing {
namespace {

class ParEstAgru : public GroupedTest {
protected:
    ParEstAgru() : GroupedTest("frmParEstAgru") {}

    Texts parameters() {
        Texts results;
        for (long row = 1; row <= 6; ++row)
            results.push_back(cellText("grdParam", row, 1));
        return results;
    }
    const Texts noParameters = Texts(6, "");
    const std::string heading =
        "Resultados\n\nCálculo de parámetros estadísticos agrupando datos\n\n\n";
    const std::string rule100 = std::string(100, '-') + "\n";
    const std::string rule66 = std::string(66, '-') + "\n";
    const std::string classesHeading = "Frecuencias absolutas:\n\n" + rule100 +
                                       "         LCI      "
                                       "         MCL      "
                                       "         LCS      "
                                       "         Fab      \n" +
                                       rule100;
    const std::string parametersHeading = "Parámetros Estadísticos:\n\n" + rule66 +
                                          "     Parámetros       "
                                          "               Valores \n" +
                                          rule66;
    const std::string noSorted = "Serie de datos ordenados:\n\n" + seriesHeading + rule45 + "\n";
    /// The block of parameters without any.
    std::string emptyParameters() const {
        std::string lines = "\t" + std::string(5 + 24, ' ') + "\n";
        for (int i = 0; i < 5; ++i)
            lines += "\t" + std::string(24, ' ') + "\n";
        return parametersHeading + lines + rule66 + "\n";
    }
};

TEST_F(ParEstAgru, TextsOfTheWindow) {
    EXPECT_EQ(window("frmParEstAgru").caption,
              "Cálculo de parámetros estadísticos agrupando datos");
    EXPECT_EQ(rowText("grddis", 0), "LCI|MCL|LCS|Fab");
    EXPECT_EQ(control<MSFlexGrid>("grddis").Cols(), 4);
    auto& grid = control<MSFlexGrid>("grdParam");
    EXPECT_EQ(grid.Rows(), 7);
    EXPECT_EQ(grid.Cols(), 2);
    EXPECT_EQ(grid.FixedRows(), 1);
    EXPECT_EQ(grid.FixedCols(), 0);
    EXPECT_EQ(grid.columnAlignments.at(0), MSFlexGrid::ColumnAlignment::left);
    EXPECT_EQ(rowText("grdParam", 0), "Parámetros|Resultados");
    for (long row = 1; row <= 6; ++row)
        EXPECT_EQ(rowText("grdParam", row), "|") << row;
}

TEST_F(ParEstAgru, CommandsInTheirOrderAndNoChart) {
    Texts names;
    for (const auto& group : window("frmParEstAgru").commands)
        for (const Button* button : group.buttons)
            names.push_back(button->name());
    EXPECT_EQ(names, (Texts{"bCalcular", "bOrdenar", "bLimpiar", "bImprimir", "bReporte", "bCrear",
                            "bAccesar", "bCalculadora", "bMenu"}));
    EXPECT_EQ(window("frmParEstAgru").find("Graph1"), nullptr);
}

// Marks 1, 4, 7, 10 with 2, 3, 3, 2 values: deviations -4.5, -1.5, 1.5, 4.5 about 5.5, so S2 = 94.5
// and S4 = 1670.625. 94.5 / 9, its root, 3.2404 / 5.5, 0, and with M4 = 167.0625 the kurtosis
// 1000 * 167.0625 / (9 * 8 * 7 * 10.5^2) = 3.00656.
TEST_F(ParEstAgru, EvenlySpacedValues) {
    calculate(oneToTen);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(classes(),
              (Texts{"-0.5|1.0|2.5|2", "2.5|4.0|5.5|3", "5.5|7.0|8.5|3", "8.5|10.0|11.5|2"}));
    EXPECT_EQ(parameters(), (Texts{"5.5000", "10.5", "3.2404", "0.5892", "0.0000", "3.0066"}));
}

TEST_F(ParEstAgru, NamesOfTheParametersArePaddedTo28Characters) {
    calculate(oneToTen);
    const Texts names = {"Media:                      ", "Varianza:                   ",
                         "Desviación Estándar:        ", "Coeficiente Variación:      ",
                         "Coeficiente de Sesgo:       ", "Coeficiente de Curtosis:    "};
    for (long row = 1; row <= 6; ++row)
        EXPECT_EQ(cellText("grdParam", row, 0), names[static_cast<std::size_t>(row - 1)]);
}

// 3, 5, 1 and 1 values: m = 40 / 10, deviations -3, 0, 3, 6, so S2 = 72, S3 = 162, S4 = 1620. 8,
// its root, that / 4, 100 * 16.2 / (72 * 8^1.5) = 0.99437, 1000 * 162 / (504 * 64) = 5.02232.
TEST_F(ParEstAgru, SkewedValues) {
    calculate(skewed);
    EXPECT_EQ(classes(),
              (Texts{"-0.5|1.0|2.5|3", "2.5|4.0|5.5|5", "5.5|7.0|8.5|1", "8.5|10.0|11.5|1"}));
    EXPECT_EQ(parameters(), (Texts{"4.0000", "8.0", "2.8284", "0.7071", "0.9944", "5.0223"}));
}

// The same series, whose own mean is 41 / 10.
TEST_F(ParEstAgru, MeanOfTheMarksIsNotThatOfTheValues) {
    calculate(skewed);
    const std::string grouped = cellText("grdParam", 1, 1);
    open("frmParamEsta");
    calculate(skewed);
    EXPECT_EQ(cellText("grdParam", 1, 1), "4.100");
    EXPECT_EQ(grouped, "4.0000");
}

// k = 3, C = 1.5; marks 1, 2.5, 4 with 1, 2, 1 values: S2 = 4.5, S4 = 10.125, so 4.5 / 3 and
// 64 * 2.53125 / (6 * 2.25) = 12.
TEST_F(ParEstAgru, FourValuesAreEnough) {
    calculate({"1", "2", "3", "4"});
    EXPECT_EQ(parameters(), (Texts{"2.5000", "1.5", "1.2247", "0.4899", "0.0000", "12.0000"}));
}

// A second implementation with exact fractions: 192.008696, 2356.073159, 48.539398, 0.252798,
// 0.737673, 4.218136.
TEST_F(ParEstAgru, PeaksOfTheHarricana) {
    calculate(valuesOf(samplePath("harricana_amos.csv")));
    EXPECT_EQ(parameters(),
              (Texts{"192.0087", "2356.0732", "48.5394", "0.2528", "0.7377", "4.2181"}));
}

TEST_F(ParEstAgru, TheLocalesSeparatorIsWritten) {
    platform.separator = ",";
    calculate(oneToTen);
    EXPECT_EQ(classes().front(), "-0,5|1,0|2,5|2");
    EXPECT_EQ(parameters(), (Texts{"5,5000", "10,5", "3,2404", "0,5892", "0,0000", "3,0066"}));
}

TEST_F(ParEstAgru, NewResultsReplaceTheOldOnes) {
    calculate(oneToTen);
    replaceValues(skewed);
    click("bCalcular");
    EXPECT_EQ(parameters().front(), "4.0000");
}

TEST_F(ParEstAgru, TwoValuesDivideByZeroInTheSkew) {
    calculate({"1", "2"});
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

TEST_F(ParEstAgru, ThreeValuesDivideByZeroInTheKurtosis) {
    calculate({"1", "2", "4"});
    EXPECT_TRUE(fatal(11));
}

TEST_F(ParEstAgru, MeanZeroDividesByZero) {
    calculate({"-3", "-1", "1", "3"});
    EXPECT_TRUE(fatal(11));
}

// The classes that are moved below the smallest value count nothing, so that the mean is 0.
TEST_F(ParEstAgru, MovedClassesDivideByZero) {
    calculate({"-8", "-6", "-5", "-4", "-3", "-2", "1"});
    EXPECT_TRUE(fatal(11));
}

TEST_F(ParEstAgru, FourthPowersPastTheDoublesOverflow) {
    calculate({"1E90", "2", "3", "4"});
    EXPECT_TRUE(fatal(6));
}

TEST_F(ParEstAgru, ClearingAndLoadingEmptyTheParameters) {
    calculate(oneToTen);
    click("bLimpiar");
    EXPECT_EQ(parameters(), noParameters);
    EXPECT_EQ(cellText("grdParam", 1, 0), "");
    calculate(oneToTen);
    platform.answers = {std::nullopt};
    click("bAccesar");
    EXPECT_EQ(parameters(), noParameters);
    EXPECT_EQ(rowText("grdParam", 0), "Parámetros|Resultados");
}

// Blanks beside a text of length k: (25 - k) / 2, halves to the even number, so 12 for 1, 11 for 3,
// 10 for 4 (10.5) and for 6 (9.5).
TEST_F(ParEstAgru, WholeReport) {
    calculate({"3", "1", "4", "2"});
    click("bOrdenar");
    click("bReporte");
    const auto name = [](const std::string& text) {
        return "\t" + text + std::string(text == "Desviación Estándar:" ? 8 : 0, ' ');
    };
    EXPECT_EQ(report(),
              heading + "Serie de datos X:\n\n" + seriesHeading +
                  rows({" 1\t\t3.0\t\t", " 2\t\t1.0\t\t", " 3\t\t4.0\t\t", " 4\t\t2.0\t\t"}) +
                  rule45 + "\n" + classesHeading +
                  rows({centred({{10, "0.25"}, {11, "1.0"}, {10, "1.75"}, {12, "1"}}),
                        centred({{10, "1.75"}, {11, "2.5"}, {10, "3.25"}, {12, "2"}}),
                        centred({{10, "3.25"}, {11, "4.0"}, {10, "4.75"}, {12, "1"}})}) +
                  rule100 + "\n" + parametersHeading +
                  rows({"\tMedia:                           " + centred({{10, "2.5000"}}),
                        "\tVarianza:                   " + centred({{11, "1.5"}}),
                        name("Desviación Estándar:") + centred({{10, "1.2247"}}),
                        "\tCoeficiente Variación:      " + centred({{10, "0.4899"}}),
                        "\tCoeficiente de Sesgo:       " + centred({{10, "0.0000"}}),
                        "\tCoeficiente de Curtosis:    " + centred({{9, "12.0000"}})}) +
                  rule66 + "\n" + "Serie de datos ordenados:\n\n" + seriesHeading +
                  rows({" 1\t\t1.0\t\t", " 2\t\t2.0\t\t", " 3\t\t3.0\t\t", " 4\t\t4.0\t\t"}) +
                  rule45 + "\n");
    EXPECT_TRUE(messages().empty());
}

TEST_F(ParEstAgru, ReportBeforeAnyCalculationHasNoClasses) {
    values({"5"});
    click("bReporte");
    EXPECT_EQ(report(), heading + "Serie de datos X:\n\n" + seriesHeading + " 1\t\t5.0\t\t\n" +
                            rule45 + "\n" + classesHeading + rule100 + "\n" + emptyParameters() +
                            noSorted);
}

// Marks 5, 10, 15, 20 with 2, 4, 0 and 1 values about 10: S2 = 150 over 6, S3 = 750, the skew 49
// (750 / 7) / (6 * 5 * 125), S4 = 11250, the kurtosis 343 (11250 / 7) / (6 * 5 * 4 * 625).
TEST_F(ParEstAgru, EveryParameterHasItsMask) {
    calculate({"6", "9", "11", "5", "20", "12", "12"});
    const Texts expected = {"10.0000", "25.0", "5.0", "0.5000", "1.4000", "7.3500"};
    for (long row = 1; row <= 6; ++row)
        EXPECT_EQ(cellText("grdParam", row, 1), expected[static_cast<std::size_t>(row - 1)]) << row;
}

// Marks -24, -16, -8 with 3, 0 and 1 values about -20: S2 = 192 over 3, S3 = 1536, the skew 16 *
// 384 / (3 * 2 * 512), S4 = 21504, the kurtosis 64 * 5376 / (3 * 2 * 1 * 4096).
TEST_F(ParEstAgru, NegativeSeriesHaveANegativeVariation) {
    calculate({"-22", "-8", "-23", "-24"});
    const Texts expected = {"-20.0000", "64.0", "8.0", "-0.4000", "2.0000", "14.0000"};
    for (long row = 1; row <= 6; ++row)
        EXPECT_EQ(cellText("grdParam", row, 1), expected[static_cast<std::size_t>(row - 1)]) << row;
}

TEST_F(ParEstAgru, TheHiddenListOfSortedValuesIsReportedToo) {
    calculate({"2", "1", "4", "3"});
    click("bOrdenar");
    click("bLimpiar");
    click("bReporte");
    EXPECT_TRUE(report().ends_with(
        "Serie de datos ordenados:\n\n" + seriesHeading +
        rows({" 1\t\t1.0\t\t", " 2\t\t2.0\t\t", " 3\t\t3.0\t\t", " 4\t\t4.0\t\t"}) + rule45 +
        "\n"));
}

// Nothing takes the number of classes back, neither clearing nor closing the window.
TEST_F(ParEstAgru, NumberOfClassesOutlivesTheWindow) {
    calculate(oneToTen);
    EXPECT_EQ(program.variables.numClases, 4);
    const std::string empty = heading + "Serie de datos X:\n\n" + seriesHeading + rule45 + "\n" +
                              classesHeading + rows(Texts(4, std::string(4 * 24, ' '))) + rule100 +
                              "\n" + emptyParameters();
    click("bLimpiar");
    click("bReporte");
    EXPECT_EQ(report(), empty + noSorted);
    click("bMenu");
    open("frmParEstAgru");
    click("bReporte");
    EXPECT_EQ(report(), empty + noSorted + empty + noSorted);
}

} // namespace
} // namespace caudalera::testing
