// Reports of the mean rainfall.

#include "tests/precipitation/ArealTest.h"

namespace caudalera {
namespace {

const std::string rule65 = std::string(65, '-') + "\n";
const std::string rule60 = std::string(60, '-') + "\n";

TEST_F(ArealTest, TheArithmeticMeanReportsItsStations) {
    sheet("frmPromArit");
    values({"20", "30"});
    click("bCalcular");
    click("bReporte");
    EXPECT_EQ(report(),
              "Resultados\n\n"
              "Cálculo de la precipitación promedio por el método del promedio aritmético\n\n\n"
              "Datos de precipitación:\n" +
                  rule65 + " Estación\t Precipitación (mm)\n" + rule65 +
                  " 1\t\t20.0\t\t\n"
                  " 2\t\t30.0\t\t\n" +
                  rule65 + "\nResultado del método del promedio aritmético:\n" + rule60 +
                  " Precipitación promedio =  25.0 mm\n" + rule60);
    EXPECT_TRUE(messages().empty());
}

TEST_F(ArealTest, ThiessenReportsItsStationsAndAreas) {
    sheet("frmThiessen");
    rows({{"20", "1"}, {"30", "3"}});
    click("bCalcular");
    click("bReporte");
    EXPECT_EQ(report(), "Resultados\n\n"
                        "Cálculo de la precipitación promedio por el método de Thiessen\n\n\n"
                        "Pares de datos Precipitación, Área:\n" +
                            rule65 + " Estación\t Precipitación\t Área\n" + rule65 +
                            " 1\t\t20.0\t\t1.0\t\t\n"
                            " 2\t\t30.0\t\t3.0\t\t\n" +
                            rule65 + "\nResultado del método de Thiessen:\n" + rule60 +
                            " Precipitación promedio =  27.5 mm\n" + rule60);
}

TEST_F(ArealTest, TheIsohyetsReportTheLastOneBehindTheRows) {
    sheet("frmIsoyeta");
    rows({{"10", "5"}, {"20", "5"}});
    enter("txtUltimaIsoyeta", "30");
    click("bCalcular");
    click("bReporte");
    EXPECT_EQ(report(), "Resultados\n\n"
                        "Cálculo de la precipitación promedio por el método de las isoyetas\n\n\n"
                        "Datos Isoyeta, Área:\n" +
                            rule65 + " Isoyeta\t Valor de isoyeta (mm)\t Área entre isoyetas\n" +
                            rule65 +
                            " 1\t\t10.0\t\t5.0\t\t\n"
                            " 2\t\t20.0\t\t5.0\t\t\n"
                            " 3\t\t30\t\t\n" +
                            rule65 + "\nResultado del método de isoyetas:\n" + rule60 +
                            " Precipitación promedio =  20.0 mm\n" + rule60);
}

TEST_F(ArealTest, AnEmptyWindowIsReportedToo) {
    sheet("frmThiessen");
    click("bReporte");
    EXPECT_EQ(report(), "Resultados\n\n"
                        "Cálculo de la precipitación promedio por el método de Thiessen\n\n\n"
                        "Pares de datos Precipitación, Área:\n" +
                            rule65 + " Estación\t Precipitación\t Área\n" + rule65 + rule65 +
                            "\nResultado del método de Thiessen:\n" + rule60 +
                            " Precipitación promedio =   mm\n" + rule60);
    EXPECT_TRUE(messages().empty());
}

} // namespace
} // namespace caudalera
