// The report of the seasonal variation curve, letter for letter.

#include "tests/curves/VariacionEstaTest.h"

namespace caudalera::testing {
namespace {

class VariacionEstaReport : public VariacionEstaTest {
protected:
    const std::string rule140 = std::string(140, '-') + "\n";
    const std::string rule130 = std::string(130, '-') + "\n";
    const std::string heading = "Resultados\n\nCurva de variación estacional\n\n\n";
    const std::string yearsHeader =
        "Año    Ene     Feb     Mar     Abr     May     Jun     Jul     Ago     Set     Oct     "
        "Nov     Dic      \n";
    const std::string monthsHeader = "Meses            70%             75%             80%         "
                                     "    85%             90%             95%      \n";

    /// The text with blanks in front of it.
    static std::string behind(std::size_t blanks, const std::string& text) {
        return std::string(blanks, ' ') + text;
    }
    static std::string between(std::size_t blanks, const std::string& text) {
        return behind(blanks, text) + std::string(blanks, ' ');
    }
};

// Blanks in front of a value with its own blank, of k characters in all: (12 - k) / 2, halves to
// the even number, so 5 for 2, 4 for 3 (4.5), 4 for 4, 4 for 5 (3.5).
TEST_F(VariacionEstaReport, WholeReport) {
    calculateTwoYears();
    click("bReporte");
    const std::string years =
        " 1        " + behind(4, " 12.5") + behind(4, " 10") + behind(4, " 8.25") +
        behind(5, " 6") + behind(4, " 15") + behind(4, " 40") + behind(4, " 62.5") +
        behind(4, " 80") + behind(4, " 110") + behind(4, " 95") + behind(4, " 50") +
        behind(4, " 22") + "\n" + " 2        " + behind(4, " 10") + behind(5, " 9") +
        behind(4, " 7.5") + behind(5, " 7") + behind(4, " 30") + behind(4, " 55") +
        behind(4, " 50") + behind(4, " 100") + behind(4, " 90") + behind(4, " 120") +
        behind(4, " 38.5") + behind(4, " 18") + "\n";
    // (18 - 3) / 2 = 7.5 gives 8, (18 - 4) / 2 = 7 and (18 - 5) / 2 = 6.5 gives 6.
    std::string months;
    for (const std::string& row : curves) {
        std::string cells = row;
        std::size_t start = 0;
        std::string line = behind(8, cells.substr(0, 3));
        start = 4;
        while (start < cells.size()) {
            const std::size_t end = std::min(cells.find('|', start), cells.size());
            const std::string value = cells.substr(start, end - start);
            line += between(value.size() == 4 ? 7 : 6, value);
            start = end + 1;
        }
        months += line + "\n";
    }
    EXPECT_EQ(report(), heading + "Serie de datos mensuales\n\n" + rule140 + yearsHeader + rule140 +
                            years + rule140 + "\n" +
                            "Probabilidad de que los eventos mensuales sean igualados o "
                            "superados\n\n" +
                            rule130 + monthsHeader + rule130 + months + rule130 + "\n");
    EXPECT_TRUE(messages().empty());
    // A row of it by hand.
    EXPECT_NE(report().find("        Mar       7.59              7.52              7.43       "
                            "       7.34              7.22              7.04       \n"),
              std::string::npos);
}

TEST_F(VariacionEstaReport, TheSeriesIsReadAgain) {
    calculateTwoYears();
    values(Texts(12, ".5"));
    click("bReporte");
    EXPECT_EQ(text("txtnanos"), "3");
    std::string third = " 3        ";
    for (int month = 0; month < 12; ++month)
        third += behind(4, " .5");
    EXPECT_NE(report().find(third + "\n" + rule140), std::string::npos);
    // The curves are those of the calculation.
    EXPECT_EQ(results(), curves);
}

TEST_F(VariacionEstaReport, WithoutCalculationTheCellsAreEmpty) {
    values(firstYear);
    click("bReporte");
    // Empty cells have 9 blanks on a side; column 0 has them in front alone.
    std::string months;
    for (int month = 0; month < 12; ++month)
        months += std::string(9 + 6 * 18, ' ') + "\n";
    EXPECT_NE(report().find(rule130 + months + rule130 + "\n"), std::string::npos);
    EXPECT_EQ(text("txtnanos"), "1");
    EXPECT_TRUE(messages().empty());
}

TEST_F(VariacionEstaReport, YearsThatAreNotWholeEndItBehindItsTitle) {
    calculateTwoYears();
    values({"1"});
    click("bReporte");
    expectMessage(incomplete);
    EXPECT_EQ(report(), heading);
    EXPECT_EQ(text("txtnanos"), "2");
}

TEST_F(VariacionEstaReport, RowsPastTheCapacityEndItWithItsMessage) {
    for (int year = 0; year < 42; ++year)
        values(firstYear);
    click("bReporte");
    expectMessage({"No se puede editar el reporte: Curva de variación estacional",
                   "Mensaje de error", Icon::information});
    EXPECT_EQ(report(), heading);
}

} // namespace
} // namespace caudalera::testing
