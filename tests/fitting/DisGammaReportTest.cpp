// The reports of the gamma family, letter for letter.

#include "tests/fitting/DisGamma3Test.h"

namespace caudalera::testing {
namespace {

std::string rule(std::size_t length) {
    return std::string(length, '-') + "\n";
}
std::string blanks(std::size_t count) {
    return std::string(count, ' ');
}

/// Behind the verdict: the parameters and the design flow.
const std::string flow = "\n\n\n" + rule(30) + "Caudal de diseño:\n" + rule(30) +
                         "El caudal de diseño para un periodo de retorno de ";

const std::string tableHeading =
    "Cálculos del ajuste Smirnov Kolmogorov:\n\n" + rule(130) +
    "        m  \t        X  \t           P(X)        G(Y) Ordinario    G(Y) Mom Lineal    "
    "Delta    \n" +
    rule(130);

class DisGammaReport : public WindowTest {
protected:
    void make(const std::string& form) {
        open(form);
        values({"11", "2", "5", "3"});
        click("bCalcular");
        enter("txtxt", "5");
        click("bQ");
        click("bReporte");
        EXPECT_TRUE(messages().empty());
    }
    void expectPart(const std::string& part) {
        EXPECT_NE(report().find(part), std::string::npos) << part << "\nin\n" << report();
    }
};

// Blanks beside a text of length k: (18 - k) / 2, halves to the even number: 8 for 1 (8.5), 8 for 3
// (7.5), 7 for 4, 6 for 5 (6.5) and 6. The first row has one blank more in front of every cell.
TEST_F(DisGammaReport, WholeReportOfTwoParameters) {
    make("frmDisGamma2par");
    const std::string b8 = blanks(8);
    const std::string b7 = blanks(7);
    const std::string b6 = blanks(6);
    EXPECT_EQ(
        report(),
        "Resultados\n\nAjuste de una serie de datos a la distribución Gamma de 2 parámetros\n\n\n"
        "Serie de datos X:\n\n" +
            rule(40) + " N°\t\t X\t\t\n" + rule(40) +
            " 1\t\t11.0\t\t\n 2\t\t2.0\t\t\n 3\t\t5.0\t\t\n 4\t\t3.0\t\t\n" + rule(40) + "\n\n\n" +
            tableHeading +
            // 1|2.0|0.20|0.1343|0.4624|0.0657
            " " + b8 + "1" + b8 + " " + b8 + "2.0" + b8 + " " + b7 + "0.20" + b7 + " " + b6 +
            "0.1343" + b6 + " " + b6 + "0.4624" + b6 + " " + b6 + "0.0657" + b6 + "\n" +
            // 2|3.0|0.40|0.2744|0.5499|0.1256
            b8 + "2" + b8 + b8 + "3.0" + b8 + b7 + "0.40" + b7 + b6 + "0.2744" + b6 + b6 +
            "0.5499" + b6 + b6 + "0.1256" + b6 + "\n" +
            // 3|5.0|0.60|0.5532|0.6707|0.0468
            b8 + "3" + b8 + b8 + "5.0" + b8 + b7 + "0.60" + b7 + b6 + "0.5532" + b6 + b6 +
            "0.6707" + b6 + b6 + "0.0468" + b6 + "\n" +
            // 4|11.0|0.80|0.9386|0.8523|0.1386
            b8 + "4" + b8 + b7 + "11.0" + b7 + b7 + "0.80" + b7 + b6 + "0.9386" + b6 + b6 +
            "0.8523" + b6 + b6 + "0.1386" + b6 + "\n" + rule(130) + "\n" + rule(55) +
            "Ajuste con momentos ordinarios:\n" + rule(55) +
            "Como el delta teórico 0.1386, es menor que el delta tabular 0.680. Los datos se "
            "ajustan a la distribución Gamma de 2 parámetros, con un nivel de significación del "
            "5%\n\n" +
            rule(55) + "\nLos 2 parámetros de la distribución Gamma:\n" + rule(65) +
            "Con momentos ordinarios:\n"
            "Parámetro de forma (gamma)= 2.5526\n"
            "Parámetro de escala (beta)= 2.0568\n"
            "\n"
            "Con momentos lineales:\n"
            "Parámetro de forma (gammal)= 0.5013\n"
            "Parámetro de escala (betal)= 10.4727\n" +
            flow + "5 años, es " + text("txtxq") + "\n");
}

TEST_F(DisGammaReport, ThreeParameters) {
    make("frmDisGamma3par");
    EXPECT_TRUE(report().starts_with(
        "Resultados\n\nAjuste de una serie de datos a la distribución Gamma de 3 parámetros\n\n\n"
        "Serie de datos X:\n\n"));
    expectPart(tableHeading);
    expectPart(rule(55) + "\nLos 3 parámetros de la distribución Gamma:\n" + rule(65) +
               "Con momentos ordinarios:\n"
               "Parámetro de localización (Xo)= -0.237\n"
               "Parámetro de forma (gamma)= 1.8528\n"
               "Parámetro de escala (beta)= 2.9615\n"
               "\n"
               "Con momentos lineales:\n"
               "Parámetro de localización (Xol)= 1.7199\n"
               "Parámetro de forma (gammal)= 0.3893\n"
               "Parámetro de escala (betal)= 9.067\n" +
               flow + "5 años, es 8.05\n");
}

TEST_F(DisGammaReport, LogPearson) {
    make("frmDisLogPearson3");
    EXPECT_TRUE(report().starts_with(
        "Resultados\n\nAjuste de una serie de datos a la distribución Log-Pearson tipo III\n\n\n"
        "Serie de datos X:\n\n"));
    expectPart(tableHeading);
    expectPart(rule(55) + "\nLos 3 parámetros de la distribución Log-Pearson tipo 3:\n" + rule(65) +
               "Con momentos ordinarios:\n"
               "Parámetro de localización (Xo)= -0.8535\n"
               "Parámetro de forma (gamma)= 9.8229\n"
               "Parámetro de escala (beta)= 0.2345\n"
               "\n"
               "Con momentos lineales:\n"
               "Parámetro de localización (Xol)= 0.0392\n"
               "Parámetro de forma (gammal)= 2.6218\n"
               "Parámetro de escala (betal)= 0.538\n" +
               flow + "5 años, es 7.65\n");
}

TEST_F(DisGammaReport, OfAnInvalidKind) {
    open("frmDisGamma3par");
    values({"4", "7", "8", "9"});
    click("bCalcular");
    click("bReporte");
    expectPart(rule(55) + "Ajuste con momentos ordinarios:\n" + rule(55) +
               "Los parámetros: Xo, gamma y ß calculada por momentos ordinarios, son incorrectos, "
               "por lo que los datos no se ajustan a la distribución gamma de 3 parámetros\n\n");
    expectPart("Parámetro de escala (beta)= -1.2857\n");
}

TEST_F(DisGammaReport, BeforeAnyCalculation) {
    for (const std::string form : {"frmDisGamma2par", "frmDisGamma3par", "frmDisLogPearson3"}) {
        open(form);
        click("bReporte");
        EXPECT_TRUE(messages().empty());
        expectPart("Parámetro de escala (betal)= \n" + flow + " años, es \n");
    }
}

} // namespace
} // namespace caudalera::testing
