// The report of the duration curve, letter for letter.

#include "tests/curves/CurvaDuracionWindow.h"

namespace caudalera::testing {
namespace {

class CurvaDuracionReport : public CurvaDuracionWindow {
protected:
    static std::string rule(std::size_t hyphens) { return std::string(hyphens, '-') + "\n"; }
    static std::string between(std::size_t blanks, const std::string& text) {
        return std::string(blanks, ' ') + text + std::string(blanks, ' ');
    }
    const std::string heading =
        "Resultados\n\n"
        "Análisis de frecuencia de caudales, a través de la curva de duración\n\n\n";
    const std::string flows =
        "Serie de caudales Q:\n\n" + rule(50) + " Día\t\t Caudal (m3/s)\t\t\n" + rule(50);
    const std::string sorted = "Caudales ordenados descendentemente:\n\n" + rule(50) +
                               "\n Nº\t\t Caudal (m3/s)\t\t\n\n" + rule(50);
    const std::string curve = "Resultados de los cálculos de la curva de duración:\n\n" + rule(80) +
                              "     Q considerado     Q adimensional      Probabilidad Q >=\n" +
                              rule(80);
    const std::string design = rule(30) + "Caudal de diseño:\n" + rule(30);
};

// Blanks beside a text of k characters: (18 - k) / 2, halves to the even number, so 8 for 3 (7.5),
// 7 for 4, 6 for 5 (6.5) and 6.
TEST_F(CurvaDuracionReport, WholeReport) {
    calculate({"3", "5", "1", "5"});
    EXPECT_EQ(flowOf("60"), " 4.2");
    click("bReporte");
    EXPECT_EQ(
        report(),
        heading + flows + " 1\t\t3.0\t\t\n 2\t\t5.0\t\t\n 3\t\t1.0\t\t\n 4\t\t5.0\t\t\n" +
            rule(50) + "\n" + sorted + "1\t\t5.0\t\t\n2\t\t5.0\t\t\n3\t\t3.0\t\t\n4\t\t1.0\t\t\n" +
            rule(50) + "\n" + curve + " " + between(8, "5.0") + " " + between(6, "1.4286") + " " +
            between(7, "50.0") + "\n" + between(8, "3.0") + between(6, "0.8571") +
            between(7, "75.0") + "\n" + between(8, "1.0") + between(6, "0.2857") +
            between(6, "100.0") + "\n" + rule(80) + "\n" + design +
            "El caudal de diseño: Q =  4.2 m3/s, tiene una probalidad del 60 % de ser igualado o "
            "excedido\n");
    EXPECT_TRUE(messages().empty());
}

TEST_F(CurvaDuracionReport, WithoutCalculationCellsAndFieldsAreEmpty) {
    values({"3", "5"});
    click("bReporte");
    EXPECT_EQ(report(), heading + flows + " 1\t\t3.0\t\t\n 2\t\t5.0\t\t\n" + rule(50) + "\n" +
                            sorted + "\t\t\t\t\n\t\t\t\t\n" + rule(50) + "\n" + curve + rule(80) +
                            "\n" + design +
                            "El caudal de diseño: Q =  m3/s, tiene una probalidad del  % de ser "
                            "igualado o excedido\n");
}

TEST_F(CurvaDuracionReport, TheCurveKeepsItsLinesWhenItsCellsAreGone) {
    calculate({"3", "5"});
    click("bLimpiar");
    click("bReporte");
    EXPECT_EQ(report(), heading + flows + rule(50) + "\n" + sorted + rule(50) + "\n" + curve +
                            std::string(3 * 19, ' ') + "\n" + std::string(3 * 18, ' ') + "\n" +
                            rule(80) + "\n" + design +
                            "El caudal de diseño: Q =  m3/s, tiene una probalidad del  % de ser "
                            "igualado o excedido\n");
}

TEST_F(CurvaDuracionReport, ARowPastTheGridEndsItWithItsMessage) {
    values(Texts(500, "1"));
    click("bReporte");
    expectMessage({"No se puede editar el reporte: Análisis de frecuencia de caudales, a través de "
                   "la curva de duración",
                   "Mensaje de error", Icon::information});
    // What was inserted stays.
    EXPECT_TRUE(report().ends_with("\t\t\t\t\n"));
    EXPECT_FALSE(program.ended());
}

} // namespace
} // namespace caudalera::testing
