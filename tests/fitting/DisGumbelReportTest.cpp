// The report of both windows of the Gumbel distribution, letter for letter.

#include "tests/fitting/DisGumbelTest.h"

namespace caudalera::testing {
namespace {

class DisGumbelReport : public BothGumbelTest {
protected:
    static std::string rule(std::size_t length) { return std::string(length, '-') + "\n"; }
    static std::string blanks(std::size_t count) { return std::string(count, ' '); }

    /// A cell between its blanks: 8 for texts of 1 and 3 letters, 7 for 4, 6 for 6, by the rule
    /// (18 - length) / 2, halves to the even number.
    static std::string centred(const std::string& cell) {
        const std::string side = blanks(cell.size() < 4 ? 8 : cell.size() == 4 ? 7 : 6);
        return side + cell + side;
    }

    std::string beforeTheRows() const {
        return "Resultados\n\n" + mine.caption + "\n\n\nSerie de datos X:\n\n" + rule(40) +
               " N°\t\t X\t\t\n" + rule(40);
    }
    std::string tableHeading() const {
        return rule(40) + "\n\n\nCálculos del ajuste Smirnov Kolmogorov:\n\n" + rule(130) +
               "        m  \t        X  \t           P(X)        G(Y) Ordinario    "
               "G(Y) Mom Lineal    Delta    \n" +
               rule(130);
    }
    std::string verdict(const std::string& kind, const std::string& words) const {
        return rule(130) + "\n" + rule(55) + kind + "\n" + rule(55) + words + "\n\n" + rule(55) +
               "\n";
    }
    std::string parameterLines(const Texts& shown) const {
        return "Parámetros de la distribución " + mine.distribution + ":\n" + rule(mine.rule) +
               "Con momentos ordinarios:\n"
               "Parámetro de posición (µ)= " +
               shown[0] + "\nParámetro de escala (alfa)= " + shown[1] +
               "\n\nCon momentos lineales:\n"
               "Parámetro de posición (µl)= " +
               shown[2] + "\nParámetro de escala (alfal)= " + shown[3] + "\n\n\n\n" + rule(30) +
               "Caudal de diseño:\n" + rule(30);
    }
};
INSTANTIATE_TEST_SUITE_P(Both, DisGumbelReport, ::testing::Values(ofValues, ofLogarithms),
                         windowName);

TEST_P(DisGumbelReport, WholeReport) {
    fitFour();
    EXPECT_EQ(flowOf("100"), mine.flow);
    click("bReporte");
    std::string rows;
    for (std::size_t row = 0; row < mine.rows.size(); ++row) {
        for (const std::string& cell : mine.rows[row])
            rows += (row == 0 ? " " : "") + centred(cell);
        rows += "\n";
    }
    EXPECT_EQ(report(),
              beforeTheRows() + " 1\t\t3.0\t\t\n 2\t\t1.0\t\t\n 3\t\t4.0\t\t\n 4\t\t2.0\t\t\n" +
                  tableHeading() + rows +
                  verdict("Ajuste con momentos ordinarios:",
                          "Como el delta teórico " + mine.delta +
                              ", es menor que el delta tabular 0.680. Los datos se ajustan a la "
                              "distribución " +
                              mine.distribution + ", con un nivel de significación del 5%") +
                  parameterLines(mine.parameters) +
                  "El caudal de diseño para un periodo de retorno de 100 años, es " + mine.flow +
                  "\n");
    EXPECT_TRUE(messages().empty());
}

TEST_P(DisGumbelReport, BeforeAnyCalculationTablesAndVerdictAreEmpty) {
    click("bReporte");
    EXPECT_EQ(report(), beforeTheRows() + tableHeading() + verdict("Ajuste:", "") +
                            parameterLines(noParameters) +
                            "El caudal de diseño para un periodo de retorno de  años, es \n");
}

TEST_P(DisGumbelReport, RowsAddedLaterStandInBothTablesEmptyInTheSecond) {
    fitFour();
    values({"9"});
    click("bReporte");
    EXPECT_NE(report().find(" 4\t\t2.0\t\t\n 5\t\t9.0\t\t\n" + rule(40)), std::string::npos);
    EXPECT_NE(report().find(mine.rows[3][5] + blanks(6) + "\n" + blanks(108) + "\n" + rule(130)),
              std::string::npos);
}

} // namespace
} // namespace caudalera::testing
