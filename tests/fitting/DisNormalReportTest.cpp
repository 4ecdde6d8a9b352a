// The report of the normal distribution, letter for letter.

#include "tests/fitting/DisNormalTest.h"

namespace caudalera::testing {
namespace {

class DisNormalReport : public DisNormalTest {
protected:
    static std::string rule(std::size_t length) { return std::string(length, '-') + "\n"; }
    static std::string blanks(std::size_t count) { return std::string(count, ' '); }

    const std::string heading =
        "Resultados\n\nAjuste de una serie de datos a la distribución normal\n\n\n";
    const std::string seriesHeading =
        "Serie de datos X:\n\n" + rule(40) + " N°\t\t X\t\t\n" + rule(40);
    const std::string tableHeading =
        "Cálculos del ajuste Smirnov Kolmogorov:\n\n" + rule(130) +
        "        m  \t        X  \t           P(X)        F(Z) Ordinario    F(Z) Mom Lineal    "
        "Delta    \n" +
        rule(130);
};

// Blanks beside a text of length k: (18 - k) / 2, halves to the even number: 8 for 1 (8.5), 8 for 3
// (7.5), 7 for 4, 6 for 5 (6.5) and 6. The first row has one blank more in front of every cell.
TEST_F(DisNormalReport, WholeReport) {
    fit({"3", "1", "4", "2"});
    EXPECT_EQ(flowOf("100"), "5.50");
    click("bReporte");
    const std::string b8 = blanks(8);
    const std::string b7 = blanks(7);
    const std::string b6 = blanks(6);
    const std::string expected =
        heading + seriesHeading + " 1\t\t3.0\t\t\n 2\t\t1.0\t\t\n 3\t\t4.0\t\t\n 4\t\t2.0\t\t\n" +
        rule(40) + "\n\n\n" + tableHeading +
        // 1|1.0|0.20|0.1226|0.1549|0.0774
        " " + b8 + "1" + b8 + " " + b8 + "1.0" + b8 + " " + b7 + "0.20" + b7 + " " + b6 + "0.1226" +
        b6 + " " + b6 + "0.1549" + b6 + " " + b6 + "0.0774" + b6 + "\n" +
        // 2|2.0|0.40|0.3493|0.3675|0.0507
        b8 + "2" + b8 + b8 + "2.0" + b8 + b7 + "0.40" + b7 + b6 + "0.3493" + b6 + b6 + "0.3675" +
        b6 + b6 + "0.0507" + b6 + "\n" +
        // 3|3.0|0.60|0.6507|0.6325|0.0507
        b8 + "3" + b8 + b8 + "3.0" + b8 + b7 + "0.60" + b7 + b6 + "0.6507" + b6 + b6 + "0.6325" +
        b6 + b6 + "0.0507" + b6 + "\n" +
        // 4|4.0|0.80|0.8774|0.8451|0.0774
        b8 + "4" + b8 + b8 + "4.0" + b8 + b7 + "0.80" + b7 + b6 + "0.8774" + b6 + b6 + "0.8451" +
        b6 + b6 + "0.0774" + b6 + "\n" + rule(130) + "\n" + rule(55) +
        "Ajuste con momentos ordinarios:\n" + rule(55) +
        "Como el delta teórico 0.0774, es menor que el delta tabular 0.680. Los datos se ajustan a "
        "la distribución Normal, con un nivel de significación del 5%\n\n" +
        rule(55) + "\n" + "Parámetros de la distribución normal:\n" + rule(55) +
        "Con momentos ordinarios:\n"
        "Parámetro de localización (Xm)= 2.5\n"
        "Parámetro de escala (S)= 1.291\n"
        "\n"
        "Con momentos lineales:\n"
        "Media lineal (Xl)= 2.5\n"
        "Desviación estándar lineal (Sl)= 1.477\n"
        "\n\n\n" +
        rule(30) + "Caudal de diseño:\n" + rule(30) +
        "El caudal de diseño para un periodo de retorno de 100 años, es 5.50\n";
    EXPECT_EQ(report(), expected);
    EXPECT_TRUE(messages().empty());
}

TEST_F(DisNormalReport, BeforeAnyCalculationTablesAndVerdictAreEmpty) {
    click("bReporte");
    EXPECT_EQ(report(), heading + seriesHeading + rule(40) + "\n\n\n" + tableHeading + rule(130) +
                            "\n" + rule(55) + "Ajuste:\n" + rule(55) + "\n\n" + rule(55) + "\n" +
                            "Parámetros de la distribución normal:\n" + rule(55) +
                            "Con momentos ordinarios:\n"
                            "Parámetro de localización (Xm)= \n"
                            "Parámetro de escala (S)= \n"
                            "\n"
                            "Con momentos lineales:\n"
                            "Media lineal (Xl)= \n"
                            "Desviación estándar lineal (Sl)= \n"
                            "\n\n\n" +
                            rule(30) + "Caudal de diseño:\n" + rule(30) +
                            "El caudal de diseño para un periodo de retorno de  años, es \n");
}

TEST_F(DisNormalReport, RowsAddedLaterStandInBothTablesEmptyInTheSecond) {
    fit({"1", "2", "3", "4"});
    values({"9"});
    click("bReporte");
    EXPECT_NE(report().find(" 4\t\t4.0\t\t\n 5\t\t9.0\t\t\n" + rule(40)), std::string::npos);
    // Six empty cells of 9 and 9 blanks.
    EXPECT_NE(report().find("0.0774" + blanks(6) + "\n" + blanks(108) + "\n" + rule(130)),
              std::string::npos);
}

TEST_F(DisNormalReport, WorksOnceMoreBehindTheFirst) {
    click("bReporte");
    const std::string first = report();
    click("bReporte");
    EXPECT_EQ(report(), first + first);
}

// The result grid has rows up to 499: the 500th ends the report with its message.
TEST_F(DisNormalReport, FiveHundredRowsEndInTheMessage) {
    load(countingSeries(500));
    click("bReporte");
    expectMessage({"No se puede editar el reporte: "
                   "Ajuste de una serie de datos a la distribución normal",
                   "Mensaje de error", Icon::information});
    EXPECT_FALSE(program.ended());
    const std::string whole = report();
    EXPECT_NE(whole.find(" 500\t\t500.0\t\t\n" + rule(40)), std::string::npos);
    // Heading, 499 rows of 108 blanks, and in the first one six more.
    const std::string rows = whole.substr(whole.find(tableHeading) + tableHeading.size());
    EXPECT_EQ(rows.size(), 499U * 109 + 6);
    EXPECT_EQ(rows.find_first_not_of(" \n"), std::string::npos);
}

TEST_F(DisNormalReport, FourHundredAndNinetyNineRowsAreWhole) {
    load(countingSeries(499));
    click("bCalcular");
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    EXPECT_NE(report().find(blanks(8) + "499" + blanks(8) + blanks(6) + "499.0" + blanks(6)),
              std::string::npos);
    EXPECT_NE(report().find("El caudal de diseño para"), std::string::npos);
}

} // namespace
} // namespace caudalera::testing
