// The report of the window of ungrouped data, letter for letter.

#include "tests/stats/ParamEstaTest.h"

namespace caudalera::testing {
namespace {

class ParamEstaReport : public ParamEstaTest {
protected:
    const std::string rule45 = std::string(45, '-') + "\n";
    const std::string rule145 = std::string(145, '-') + "\n";
    const std::string heading =
        "Resultados\n\n"
        "Cálculo de parámetros estadísticos, comunes y con momentos lineales\n\n\n";
    const std::string tableHeader = "     Parámetros       \t                   Muestrales \t"
                                    " Poblacionales  \t    Momentos Lineales  \n";

    /// The cell text with the given numbers of blanks on its sides.
    static std::string cellOf(std::size_t left, const std::string& text, std::size_t right) {
        return std::string(left, ' ') + text + std::string(right, ' ');
    }
};

// Blanks beside a text of length k: (25 - k) / 2, halves to the even number, so 12 for 0 and 1,
// 10 for 4 (10.5), 10 for 5 and 10 for 6 (9.5).
TEST_F(ParamEstaReport, WholeReport) {
    calculate({"3", "1", "4", "2"});
    click("bOrdenar");
    click("bReporte");
    const std::string expected =
        heading + "Serie de datos X:\n\n" + rule45 + " N°\t\t X\t\t\n" + rule45 +
        " 1\t\t3.0\t\t\n 2\t\t1.0\t\t\n 3\t\t4.0\t\t\n 4\t\t2.0\t\t\n" + rule45 + "\n" +
        "Parámetros Estadísticos:\n\n" + rule145 + tableHeader + rule145 +
        "\tMedia:                      " + cellOf(15, "2.500", 10) + cellOf(15, "2.500", 10) +
        cellOf(15, "2.5000", 10) + "\n" +
        "\tVarianza:                   " + cellOf(10, "1.6667", 10) + cellOf(10, "1.25", 10) +
        cellOf(10, "0.6944", 10) + "\n" +
        "\tDesviación Estándar:        " + cellOf(10, "1.2910", 10) + cellOf(10, "1.1180", 10) +
        cellOf(10, "0.8333", 10) + "\n" +
        "\tCoeficiente Variación:      " + cellOf(10, "0.5164", 10) + cellOf(10, "0.4472", 10) +
        cellOf(10, "0.3333", 10) + "\n" +
        "\tCoeficiente de Sesgo:       " + cellOf(10, "0.00", 10) + cellOf(10, "0.00", 10) +
        cellOf(10, "0.0000", 10) + "\n" +
        "\tCoeficiente de Curtosis:    " + cellOf(10, "9.8400", 10) + cellOf(10, "1.6400", 10) +
        cellOf(10, "0.0000", 10) + "\n" + rule145 + "\n" + "Coeficientes Lineales:\n\n" +
        "L1 = 2.5000\nL2 = 0.8333\nL3 = 0.0000\nL4 = 0.0000\n\n" + "Serie de datos ordenados:\n\n" +
        rule45 + " N°\t\t X\t\t\n" + rule45 +
        " 1\t\t1.0\t\t\n 2\t\t2.0\t\t\n 3\t\t3.0\t\t\n 4\t\t4.0\t\t\n" + rule45 + "\n";
    EXPECT_EQ(report(), expected);
    EXPECT_TRUE(messages().empty());
}

TEST_F(ParamEstaReport, WithoutCalculationTheCellsAreEmpty) {
    values({"5"});
    click("bReporte");
    const std::string blank12(24, ' ');
    const std::string row1 = "\t" + std::string(5 + 24, ' ') + std::string(5 + 24, ' ') +
                             std::string(5 + 24, ' ') + "\n";
    const std::string row = "\t" + blank12 + blank12 + blank12 + "\n";
    EXPECT_EQ(report(), heading + "Serie de datos X:\n\n" + rule45 + " N°\t\t X\t\t\n" + rule45 +
                            " 1\t\t5.0\t\t\n" + rule45 + "\n" + "Parámetros Estadísticos:\n\n" +
                            rule145 + tableHeader + rule145 + row1 + row + row + row + row + row +
                            rule145 + "\n" + "Coeficientes Lineales:\n\n" +
                            "L1 = \nL2 = \nL3 = \nL4 = \n\n" + "Serie de datos ordenados:\n\n" +
                            rule45 + " N°\t\t X\t\t\n" + rule45 + rule45 + "\n");
}

TEST_F(ParamEstaReport, CaptionStandsInTheThirdLine) {
    click("bReporte");
    const std::string all = report();
    const auto second = all.find('\n', all.find('\n') + 1);
    const auto third = all.find('\n', second + 1);
    EXPECT_EQ(all.substr(second + 1, third - second - 1),
              "Cálculo de parámetros estadísticos, comunes y con momentos lineales");
}

TEST_F(ParamEstaReport, TextWiderThanItsColumnStandsWithoutBlanks) {
    // 3E12, 6E12, 9E12, 12E12: the variances are 15E24 and 11.25E24, L2 is 2.5E12.
    calculate({"3E12", "6E12", "9E12", "12E12"});
    click("bReporte");
    EXPECT_NE(report().find("\tVarianza:                   15000000000000000000000000.0"
                            "11250000000000000000000000.0"
                            "6250000000000000000000000.0\n"),
              std::string::npos);
}

TEST_F(ParamEstaReport, SortedBlockShowsWhatTheHiddenListHolds) {
    values({"2", "1"});
    click("bOrdenar");
    click("bLimpiar");
    click("bReporte");
    EXPECT_NE(report().find("Serie de datos ordenados:\n\n" + rule45 + " N°\t\t X\t\t\n" + rule45 +
                            " 1\t\t1.0\t\t\n 2\t\t2.0\t\t\n" + rule45 + "\n"),
              std::string::npos);
    EXPECT_NE(report().find("Serie de datos X:\n\n" + rule45 + " N°\t\t X\t\t\n" + rule45 + rule45 +
                            "\n"),
              std::string::npos);
}

TEST_F(ParamEstaReport, SecondReportStandsBehindTheFirst) {
    click("bReporte");
    const std::string first = report();
    click("bReporte");
    EXPECT_EQ(report(), first + first);
}

} // namespace
} // namespace caudalera::testing
