// Report of a storm.

#include "tests/precipitation/AnalisisTorTest.h"

namespace caudalera {
namespace {

const std::string rule65 = std::string(65, '-') + "\n";
const std::string rule130 = std::string(130, '-') + "\n";
const std::string dataHead =
    "Resultados\n\nAnálisis de una tormenta y cálculo de la intensidad maxima\n\n\n"
    "Pares de datos duración, precipitación:\n" +
    rule65 +
    " Par\t\t Tiempo\t\t Precipitación \t\t\n"
    " \t\t (min)\t\t (mm)\t\t\n" +
    rule65;
const std::string resultHead = "Resultados parciales e intensidades:\n" + rule130 +
                               " N°\t T parcial\t T acum \t P parcial\t P acum\t I  \n"
                               "     \t (min)\t (min) \t (mm)\t (mm) \t (mm/hr)\n" +
                               rule130;

TEST_F(AnalisisTorTest, ReportsPairsTableAndLargestIntensity) {
    rows(tormentaDeCuatro);
    click("bCalcular");
    click("bReporte");
    EXPECT_EQ(report(), dataHead +
                            " 1\t\t10.0\t\t5.0\t\t\n"
                            " 2\t\t20.0\t\t24.0\t\t\n"
                            " 3\t\t8.0\t\t10.0\t\t\n"
                            " 4\t\t30.0\t\t3.0\t\t\n" +
                            rule65 + resultHead +
                            "1\t\t10\t\t10\t\t5\t\t5\t\t30.0\t\t\n"
                            "2\t\t20\t\t30\t\t24\t\t29\t\t72.0\t\t\n"
                            "3\t\t8\t\t38\t\t10\t\t39\t\t75.0\t\t\n"
                            "4\t\t30\t\t68\t\t3\t\t42\t\t6.0\t\t\n" +
                            rule130 +
                            "I máximo:\n"
                            "El Imáx para una duración de 8 min, es 75.0 mm/hr\n");
    EXPECT_TRUE(messages().empty());
}

TEST_F(AnalisisTorTest, ReportsAsManyResultsAsThereAreRowsNow) {
    rows(tormentaDeCuatro);
    click("bCalcular");
    cell("grdt", 4, 1);
    click("mnuEditEliminar");
    click("bReporte");
    const std::string shorter = report();
    EXPECT_NE(shorter.find("3\t\t8\t\t38\t\t10\t\t39\t\t75.0\t\t\n" + rule130), std::string::npos);
    EXPECT_TRUE(shorter.ends_with("El Imáx para una duración de 8 min, es 75.0 mm/hr\n"));
    rows({{"30", "3"}, {"8", "10"}});
    click("bReporte");
    EXPECT_NE(report().find("4\t\t30\t\t68\t\t3\t\t42\t\t6.0\t\t\n" + std::string(12, '\t') + "\n" +
                            rule130),
              std::string::npos);
}

TEST_F(AnalisisTorTest, ReportsTheEmptyWindowToo) {
    click("bReporte");
    EXPECT_EQ(report(), dataHead + rule65 + resultHead + rule130 +
                            "I máximo:\n"
                            "El Imáx para una duración de  min, es  mm/hr\n");
    EXPECT_TRUE(messages().empty());
}

// 198 rows of the table can be written; the one behind them is not there.
TEST_F(AnalisisTorTest, AReportOfMoreRowsThanTheTableHasEndsWithItsMessage) {
    loadMinutes(199);
    click("bReporte");
    expectMessage({"No se puede editar el reporte: Análisis de una tormenta y cálculo de la "
                   "intensidad maxima",
                   "Mensaje de error", Icon::information});
    const std::string text = report();
    EXPECT_NE(text.find(resultHead), std::string::npos);
    EXPECT_EQ(text.find("I máximo:"), std::string::npos);
    EXPECT_FALSE(platform.ending.has_value());
}

} // namespace
} // namespace caudalera
