// The report of the gauging, letter for letter.

#include "tests/gauging/AforoCorrenTest.h"

namespace caudalera::testing {
namespace {

class AforoCorrenReport : public AforoCorrenTest {
protected:
    static std::string rule(std::size_t hyphens) { return std::string(hyphens, '-') + "\n"; }
    const std::string heading = "Resultados\n\nAforo con correntómetro o molinete\n\n\n";
    const std::string data =
        "Longitudes, profundidades y velocidades en los tramos:\n\n" + rule(85) +
        " Tramo    \t\t L (m)    \t\t h (m)    \t\t v (m/s)  \t\t\n" + rule(85);
    const std::string results =
        "Resultados para los tramos de la sección transversal:\n\n" + rule(95) +
        " Tramo\t\t Área (m2)\t\t Velocidad (m/s)\t\t Caudal (m3/s) \t\t\n" + rule(95);
};

TEST_F(AforoCorrenReport, WholeReport) {
    calculateThreeStretches();
    click("bReporte");
    EXPECT_EQ(report(), heading + "Valores iniciales:\nProfundidad en el margen ho = 0.5 m\n" +
                            "Velocidad en el margen vo = 0.25 m/s\n\n" + data +
                            " 1\t\t2.0\t\t1.0\t\t0.5\t\t\n 2\t\t3.0\t\t2.0\t\t0.75\t\t\n" +
                            " 3\t\t1.0\t\t0.5\t\t0.25\t\t\n" + rule(85) + "\n" + results +
                            "1\t\t1.5\t\t0.375\t\t0.5625\t\t\n2\t\t4.5\t\t0.625\t\t2.8125\t\t\n" +
                            "3\t\t1.25\t\t0.5\t\t0.625\t\t\n" + rule(95) + "\n" +
                            "Caudal total de la sección: Q = 4.0 m3/s\n");
    EXPECT_TRUE(messages().empty());
}

TEST_F(AforoCorrenReport, WithoutCalculationTheResultsAreEmpty) {
    rows({{"2", "1", "0.5"}});
    click("bReporte");
    EXPECT_EQ(report(), heading + "Valores iniciales:\nProfundidad en el margen ho = 0 m\n" +
                            "Velocidad en el margen vo = 0 m/s\n\n" + data +
                            " 1\t\t2.0\t\t1.0\t\t0.5\t\t\n" + rule(85) + "\n" + results +
                            "\t\t\t\t\t\t\t\t\n" + rule(95) + "\n" +
                            "Caudal total de la sección: Q =  m3/s\n");
}

TEST_F(AforoCorrenReport, AStretchPastTheResultsEndsItWithItsMessage) {
    rows(equalStretches(50));
    click("bReporte");
    expectMessage({"No se puede editar el reporte: Aforo con correntómetro o molinete",
                   "Mensaje de error", Icon::information});
    EXPECT_FALSE(program.ended());
}

} // namespace
} // namespace caudalera::testing
