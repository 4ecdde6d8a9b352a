// The report of the log-normal distribution of three parameters, letter for letter.

#include "tests/fitting/DisLogNormal3Test.h"

namespace caudalera::testing {
namespace {

class DisLogNormal3Report : public DisLogNormal3Test {
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
TEST_F(DisLogNormal3Report, WholeReport) {
    fit({"9", "5", "3", "2"});
    EXPECT_EQ(flowOf("-1"), "1.25"); // 0.6666667 + Exp(1.18039513 - 0.68428901 * 2.515517)
    click("bReporte");
    const std::string expected =
        "Resultados\n\nAjuste de una serie de datos a la distribución lognormal de 3 parámetros"
        "\n\n\nSerie de datos X:\n\n" +
        rule(40) + " N°\t\t X\t\t\n" + rule(40) +
        " 1\t\t9.0\t\t\n 2\t\t5.0\t\t\n 3\t\t3.0\t\t\n 4\t\t2.0\t\t\n" + rule(40) +
        "\n\n\nCálculos del ajuste Smirnov Kolmogorov:\n\n" + rule(130) +
        "        m  \t        X  \t           P(X)                   Z                  F(Z)    "
        "             Delta    \n" +
        rule(130) +
        row({{"1", 8}, {"2.0", 8}, {"0.20", 7}, {"-1.3046", 6}, {"0.0960", 6}, {"0.1040", 6}},
            " ") +
        row({{"2", 8}, {"3.0", 8}, {"0.40", 7}, {"-0.4868", 6}, {"0.3132", 6}, {"0.0868", 6}}, "") +
        row({{"3", 8}, {"5.0", 8}, {"0.60", 7}, {"0.4179", 6}, {"0.6620", 6}, {"0.0620", 6}}, "") +
        row({{"4", 8}, {"9.0", 8}, {"0.80", 7}, {"1.3735", 6}, {"0.9152", 6}, {"0.1152", 6}}, "") +
        rule(130) + "\n" + rule(55) + "Ajuste con momentos ordinarios:\n" + rule(55) +
        "Como el delta teórico 0.1152, es menor que el delta tabular 0.680. Los datos se ajustan a "
        "la distribución logNormal 3 parámetros, con un nivel de significación del 5%\n\n" +
        rule(55) + "\nParámetros de la distribución lognormal:\n" + rule(55) +
        "Parámetro de posición (xo)= 0.6667\n"
        "Parámetro de escala (µy)= 1.1804\n"
        "Parámetro de forma (Sy)= 0.6843\n"
        "\n\n\n" +
        rule(30) + "Caudal de diseño:\n" + rule(30) +
        "El caudal de diseño para un periodo de retorno de -1 años, es 1.25\n";
    EXPECT_EQ(report(), expected);
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisLogNormal3Report, BeforeAnyCalculation) {
    click("bReporte");
    EXPECT_TRUE(report().ends_with(rule(55) + "Ajuste:\n" + rule(55) + "\n\n" + rule(55) +
                                   "\nParámetros de la distribución lognormal:\n" + rule(55) +
                                   "Parámetro de posición (xo)= \n"
                                   "Parámetro de escala (µy)= \n"
                                   "Parámetro de forma (Sy)= \n"
                                   "\n\n\n" +
                                   rule(30) + "Caudal de diseño:\n" + rule(30) +
                                   "El caudal de diseño para un periodo de retorno de  años, es "
                                   "\n"));
}

} // namespace
} // namespace caudalera::testing
