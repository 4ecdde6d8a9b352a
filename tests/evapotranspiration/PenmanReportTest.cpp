// The report of the Penman window.

#include "tests/evapotranspiration/PenmanTest.h"

#include "shell/report/frmPadre.h"

namespace caudalera {
namespace {

const std::string rule = "-----------------------------------\n";
const std::string title = "Resultados\n\nCálculo de la evapotranspiración potencial por el método "
                          "de Penman modificado por la FAO\n\n\n";

// The numbers are those of the calculation test of the same site.
TEST_F(PenmanTest, ReportsEveryFieldInItsWords) {
    fill();
    choose("cobNS", "S");
    choose("cobMes", "Octubre");
    click("bCalcular");
    click("bReporte");
    EXPECT_EQ(report(),
              title + rule + "Datos: \n" + rule +
                  " Latitud: Lat = 12 S\n"
                  " Altitud: h = 250 m.s.n.m.\n"
                  " Mes de cálculo: Mes = Octubre\n"
                  " Temperatura: Tmed = 24.3 ºC\n"
                  " Humedad relativa media: HRmed = 68 %\n"
                  " Humedad relativa máxima: HRmáx = 90 %\n"
                  " Velocidad del viento: Uz = 12 km/hr\n"
                  " Altura medición del viento hz = : 3 m\n"
                  " Relación velocidad dia/velocidad noche: Ud/Un = 1.8\n"
                  " Horas de insolación real: n = 7.2 hr/día\n"
                  "\n" +
                  rule + " Resultados parciales:\n" + rule +
                  " Radiación extraterrestre: Ra = 16.05 mm/día\n"
                  " Duración máxima posible de horas de insolación : N = 12.27 hr/día\n"
                  " Insolación relativa: n/N = 0.59\n"
                  " Coeficiente de correción por altura velocidad fz = 0.93\n"
                  " Velocidad del viento medida a 2 m: U2 = 11.17 km/hr\n"
                  " Presión de vapor del agua a saturación: ea = 30.38 mbar\n"
                  " Presión de vapor del agua actual: ed = 20.66 mbar\n"
                  " Déficit presión de vapor: ea - ed = 9.72 mbar\n"
                  " Factor de ponderación para Penman: w = 0.74\n"
                  " Valor de: 1 - w = 0.26\n"
                  " Función del viento: fu = 0.99\n"
                  " Función de la temperatura: ft = 15.53\n"
                  " Función de la presión del vapor del agua: fed = 0.14\n"
                  " Función de la relación entre hora de insolación reales y máxima: fu/N = 0.63\n"
                  " Radiación neta de onda larga: Rn1 = 1.37 mm/día\n"
                  " Radiación de onda corta: Rs = 8.72 mm/día\n"
                  " Radiación neta de onda corta: Rns = 6.54 mm/día\n"
                  " Radiación neta total: Rn = 5.18 mm/día\n"
                  "\n" +
                  rule + " Resultados finales:\n" + rule +
                  " Factor de ajuste para Penman: c = 1.17\n"
                  " Témino de radiación: TerRadiación = 3.8 mm/día\n"
                  " Témino de advección: TerAdvección = 2.56 mm/día\n"
                  "\n"
                  " Evapotranpiración de referencia: ETo = 7.46 mm/día\n"
                  "\n");
}

TEST_F(PenmanTest, ReportsTheFieldsAsTheyStandBeforeACalculation) {
    enter("txtHRmed", "mucho");
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    const std::string text = report();
    EXPECT_EQ(text.find(title + rule + "Datos: \n" + rule +
                        " Latitud: Lat = 10 N\n"
                        " Altitud: h =  m.s.n.m.\n Mes de cálculo: Mes = Enero\n"
                        " Temperatura: Tmed =  ºC\n"
                        " Humedad relativa media: HRmed = mucho %\n"),
              0U);
    EXPECT_NE(text.find(" Evapotranpiración de referencia: ETo =  mm/día\n"), std::string::npos);
}

TEST_F(PenmanTest, CentresTheTitleAndIndentsTheWholeReport) {
    click("bReporte");
    const auto& paragraphs = ventanaDeReportes(program)->active()->rtfText.paragraphs();
    EXPECT_EQ(paragraphs[0].format.alignment, Alignment::center);
    EXPECT_EQ(paragraphs[2].format.alignment, Alignment::center);
    EXPECT_EQ(paragraphs[5].text() + "\n", rule);
    EXPECT_EQ(paragraphs[5].format.alignment, Alignment::left);
    for (const Paragraph& paragraph : paragraphs) {
        EXPECT_EQ(paragraph.format.indent, 200);
        EXPECT_EQ(paragraph.format.rightIndent, 200);
    }
}

} // namespace
} // namespace caudalera
