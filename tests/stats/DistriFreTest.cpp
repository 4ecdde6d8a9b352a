// The window of the frequency distribution: its table and its report.

#include "tests/stats/GroupedTest.h"
#include "tests/support/PublishedSeries.h"

#include "shell/window/Program.h"

namespace caudalera::testing {
namespace {

class DistriFre : public GroupedTest {
protected:
    DistriFre() : GroupedTest("frmDistriFre") {}

    const std::string heading =
        "Resultados\n\nCálculo de la distribución de frecuencia de una muestra\n\n\n";
    const std::string rule153 = std::string(153, '-') + "\n";
    const std::string classesHeading = "Distribución de Frecuencias:\n\n" + rule153 +
                                       "        LCI  "
                                       "        MCL  "
                                       "           LCS  "
                                       "   FreAbsoluta "
                                       "   FreRelativa "
                                       "   FunDensidad "
                                       "   FunAcumulada \n" +
                                       rule153;
    const std::string noSorted = "Serie de datos ordenados:\n\n" + seriesHeading + rule45 + "\n";
};

TEST_F(DistriFre, TextsOfTheWindow) {
    EXPECT_EQ(window("frmDistriFre").caption,
              "Cálculo de la distribución de frecuencia de una muestra");
    EXPECT_EQ(rowText("grddis", 0), "LCI|MCL|LCS|FreAbsoluta|FreRelativa|FunDensidad|FunAcumulada");
    EXPECT_EQ(control<MSFlexGrid>("grddis").Cols(), 7);
    EXPECT_EQ(text("bGraficar"), "&Graficar");
    EXPECT_EQ(control<Control>("bGraficar").toolTip, "Mostrar gráfico");
    EXPECT_EQ(text("fraTipoGrafico"), "Tipo de gráfico:");
    EXPECT_EQ(text("optDensidad"), "F. Densidad");
    EXPECT_EQ(text("optAcumulada"), "F. Acumulada");
    EXPECT_EQ(text("lblMarcaClase"), "Marca de clase");
    EXPECT_EQ(text("lblPorcentaje"), "(%)");
    EXPECT_EQ(text("lblFuncion"), "fx");
}

TEST_F(DistriFre, CommandsInTheirOrder) {
    Texts names;
    for (const auto& group : window("frmDistriFre").commands)
        for (const Button* button : group.buttons)
            names.push_back(button->name());
    EXPECT_EQ(names, (Texts{"bCalcular", "bOrdenar", "bGraficar", "bLimpiar", "bImprimir",
                            "bReporte", "bCrear", "bAccesar", "bCalculadora", "bMenu"}));
}

// Two, three, three and two of ten values; 20 / 3 and 30 / 3.
TEST_F(DistriFre, EvenlySpacedValues) {
    calculate(oneToTen);
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(classes(),
              (Texts{"-0.5|1.0|2.5|2|20.0|6.6667|20.0", "2.5|4.0|5.5|3|30.0|10.0|50.0",
                     "5.5|7.0|8.5|3|30.0|10.0|80.0", "8.5|10.0|11.5|2|20.0|6.6667|100.0"}));
}

// k = 4, C = 6 / 3; 3 / 8 of the values and 3 / 8 / 2.
TEST_F(DistriFre, DecimalsByTheirMasks) {
    calculate({"0", "1", "1", "3", "5", "5", "6", "6"});
    EXPECT_EQ(classes(),
              (Texts{"-1.0|0.0|1.0|3|37.50|18.750|37.50", "1.0|2.0|3.0|1|12.50|6.250|50.0",
                     "3.0|4.0|5.0|2|25.0|12.50|75.0", "5.0|6.0|7.0|2|25.0|12.50|100.0"}));
}

TEST_F(DistriFre, TheLocalesSeparatorIsWritten) {
    platform.separator = ",";
    calculate(oneToTen);
    EXPECT_EQ(classes().front(), "-0,5|1,0|2,5|2|20,0|6,6667|20,0");
}

// Two classes of a value each, C = 3: this window has no skew that would need more.
TEST_F(DistriFre, TwoValuesAreEnough) {
    calculate({"5", "2"});
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(classes(),
              (Texts{"0.5|2.0|3.5|1|50.0|16.6667|50.0", "3.5|5.0|6.5|1|50.0|16.6667|100.0"}));
}

// C = (-8 + 1 + 1.5) / 4 = -1.375, A = -8 - 1: no class reaches a value.
TEST_F(DistriFre, MovedClassesCountNothing) {
    calculate({"-8", "-6", "-5", "-4", "-3", "-2", "1"});
    EXPECT_EQ(classes(),
              (Texts{"-9.0|-9.69|-10.38|0|0.0|0.0|0.0", "-10.38|-11.06|-11.75|0|0.0|0.0|0.0",
                     "-11.75|-12.44|-13.13|0|0.0|0.0|0.0", "-13.13|-13.81|-14.5|0|0.0|0.0|0.0"}));
}

// C = (-3 + 1 + 2) / 2.
TEST_F(DistriFre, MovedClassesWithoutWidthDivideByZero) {
    calculate({"-3", "1"});
    EXPECT_TRUE(fatal(11));
    EXPECT_TRUE(messages().empty());
}

// A second implementation with exact fractions: shares of 69 values, of them 30 / 69 / 39.7.
TEST_F(DistriFre, PeaksOfTheHarricana) {
    calculate(valuesOf(samplePath("harricana_amos.csv")));
    EXPECT_EQ(classes(), (Texts{"78.95|98.8|118.65|3|4.3478|0.1095|4.35",
                                "118.65|138.5|158.35|11|15.9420|0.4016|20.29",
                                "158.35|178.2|198.05|30|43.4783|1.0952|63.77",
                                "198.05|217.9|237.75|14|20.2899|0.5111|84.06",
                                "237.75|257.6|277.45|8|11.5942|0.2920|95.65",
                                "277.45|297.3|317.15|1|1.4493|0.0365|97.10",
                                "317.15|337.0|356.85|2|2.8986|0.0730|100.0"}));
}

// Blanks beside a text of length k: (25 - k) / 2, halves to the even number, so 12 for 1, 11 for 3,
// 10 for 4 (10.5), 5 and 6 (9.5).
TEST_F(DistriFre, WholeReport) {
    calculate({"5", "2"});
    click("bOrdenar");
    click("bReporte");
    EXPECT_EQ(report(), heading + "Serie de datos X:\n\n" + seriesHeading +
                            rows({" 1\t\t5.0\t\t", " 2\t\t2.0\t\t"}) + rule45 + "\n" +
                            classesHeading +
                            rows({centred({{11, "0.5"},
                                           {11, "2.0"},
                                           {11, "3.5"},
                                           {12, "1"},
                                           {10, "50.0"},
                                           {9, "16.6667"},
                                           {10, "50.0"}}),
                                  centred({{11, "3.5"},
                                           {11, "5.0"},
                                           {11, "6.5"},
                                           {12, "1"},
                                           {10, "50.0"},
                                           {9, "16.6667"},
                                           {10, "100.0"}})}) +
                            rule153 + "\n" + "Serie de datos ordenados:\n\n" + seriesHeading +
                            rows({" 1\t\t2.0\t\t", " 2\t\t5.0\t\t"}) + rule45 + "\n");
    EXPECT_TRUE(messages().empty());
}

TEST_F(DistriFre, ReportBeforeAnyCalculationHasNoClasses) {
    values({"5"});
    click("bReporte");
    EXPECT_EQ(report(), heading + "Serie de datos X:\n\n" + seriesHeading + " 1\t\t5.0\t\t\n" +
                            rule45 + "\n" + classesHeading + rule153 + "\n" + noSorted);
}

// Clearing keeps the number of classes, which the window takes with it when it closes; that of the
// other window is none of it.
TEST_F(DistriFre, NumberOfClassesIsTheWindowsOwn) {
    calculate(oneToTen);
    EXPECT_EQ(program.variables.numClases, 0);
    const std::string untilClasses =
        heading + "Serie de datos X:\n\n" + seriesHeading + rule45 + "\n" + classesHeading;
    const std::string cleared =
        untilClasses + rows(Texts(4, std::string(7 * 24, ' '))) + rule153 + "\n" + noSorted;
    click("bLimpiar");
    click("bReporte");
    EXPECT_EQ(report(), cleared);
    click("bMenu");
    open("frmParEstAgru");
    calculate(oneToTen);
    open("frmDistriFre");
    click("bReporte");
    EXPECT_EQ(report(), cleared + untilClasses + rule153 + "\n" + noSorted);
}

} // namespace
} // namespace caudalera::testing
