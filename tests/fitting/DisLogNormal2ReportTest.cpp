// The report of the log-normal distribution of two parameters, letter for letter.

#include "tests/fitting/DisLogNormal2Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal2Report : public DisLogNormal2Test {
protected:
    static std::string rule(std::size_t length) { return std::string(length, '-') + "\n"; }
    /// A row of the result table: cells with their number of blanks on either side.
    static std::string row(const std::vector<std::pair<std::string, std::size_t>>& cells,
                           const std::string& extra) {
        std::string line;
        for (const auto& [cell, blanks] : cells)
            line += extra + std::string(blanks, ' ') + cell + std::string(blanks, ' ');
        return line + "\n";
    }
};

// Blanks beside a text of length k: (18 - k) / 2, halves to the even number. The first row has one
// blank more in front of every cell.
TEST_F(DisLogNormal2Report, WholeReport) {
    fit({"3", "1", "4", "2"});
    EXPECT_EQ(flowOf("100"), "8.96");
    click("bReporte");
    const std::string expected =
        "Resultados\n\nAjuste de una serie de datos a la distribución lognormal de 2 parámetros"
        "\n\n\nSerie de datos X:\n\n" +
        rule(40) + " N°\t\t X\t\t\n" + rule(40) +
        " 1\t\t3.0\t\t\n 2\t\t1.0\t\t\n 3\t\t4.0\t\t\n 4\t\t2.0\t\t\n" + rule(40) +
        "\n\n\nCálculos del ajuste Smirnov Kolmogorov:\n\n" + rule(130) +
        "        m  \t        X  \t           P(X)        F(Z) Ordinario    F(Z) Mom Lineal    "
        "Delta    \n" +
        rule(130) +
        row({{"1", 8}, {"1.0", 8}, {"0.20", 7}, {"0.0931", 6}, {"0.1193", 6}, {"0.1069", 6}}, " ") +
        row({{"2", 8}, {"2.0", 8}, {"0.40", 7}, {"0.4330", 6}, {"0.4402", 6}, {"0.0330", 6}}, "") +
        row({{"3", 8}, {"3.0", 8}, {"0.60", 7}, {"0.6935", 6}, {"0.6740", 6}, {"0.0935", 6}}, "") +
        row({{"4", 8}, {"4.0", 8}, {"0.80", 7}, {"0.8375", 6}, {"0.810", 6}, {"0.0375", 6}}, "") +
        rule(130) + "\n" + rule(55) + "Ajuste con momentos ordinarios:\n" + rule(55) +
        "Como el delta teórico 0.1069, es menor que el delta tabular 0.680. Los datos se ajustan a "
        "la distribución logNormal 2 parámetros, con un nivel de significación del 5%\n\n" +
        rule(55) + "\nParámetros de la distribución logNormal:\n" + rule(60) +
        "Con momentos ordinarios:\n"
        "Parámetro de escala (µy)= 0.7945\n"
        "Parámetro de forma (Sy)= 0.6012\n"
        "\n"
        "Con momentos lineales:\n"
        "Parámetro de escala (µyl)= 0.7945\n"
        "Parámetro de forma (Syl)= 0.6742\n"
        "\n\n\n" +
        rule(30) + "Caudal de diseño:\n" + rule(30) +
        "El caudal de diseño para un periodo de retorno de 100 años, es 8.96\n";
    EXPECT_EQ(report(), expected);
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogNormal2Report, BeforeAnyCalculation) {
    click("bReporte");
    EXPECT_TRUE(report().ends_with(rule(60) +
                                   "Con momentos ordinarios:\n"
                                   "Parámetro de escala (µy)= \n"
                                   "Parámetro de forma (Sy)= \n"
                                   "\n"
                                   "Con momentos lineales:\n"
                                   "Parámetro de escala (µyl)= \n"
                                   "Parámetro de forma (Syl)= \n"
                                   "\n\n\n" +
                                   rule(30) + "Caudal de diseño:\n" + rule(30) +
                                   "El caudal de diseño para un periodo de retorno de  años, es "
                                   "\n"));
}

} // namespace
} // namespace caudalera::testing
