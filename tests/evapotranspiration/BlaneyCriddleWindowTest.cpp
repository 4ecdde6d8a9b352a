// The Blaney-Criddle window: its form, its messages, its files and its report.

#include "tests/evapotranspiration/BlaneyCriddleTest.h"

#include <string>
#include <utility>
#include <vector>

namespace caudalera {
namespace {

TEST_F(BlaneyCriddleTest, HasItsTexts) {
    EXPECT_EQ(window("frmBlaneyCriddle").caption,
              "Cálculo de la evapotranspiración potencial por el método de Blaney_Criddle "
              "modificado por la FAO");
    const std::vector<std::pair<std::string, std::string>> captions = {
        {"lblIngreso", "Ingreso de datos de temperaturas:"},
        {"fraLatitud", "Ingreso del dato de la  latitud:"},
        {"fraClima", "Datos climáticos:"},
        {"OptEstimado", "Estimados"},
        {"OptMedido", "Medidos"},
        {"fraClimaEstimado", "Datos climáticos estimados:"},
        {"lblNubosidad", "(en función de la nubosidad)"},
        {"fraClimaMedido", "Datos climáticos medidos:"},
        {"fraKc", "Datos Kc cultivo:"},
        {"optKcEstimado", "Estimado"},
        {"optKcTabla", "Tabla"},
        {"fraKcEstimado", "Dato Kc cultivo estimado:"},
        {"fraKcTabla", "Dato Kc cultivo tabla:"},
        {"lblEjeMeses", "Eje de Meses: 0 = Ene, 1 = Feb, ... ,11= Dic"},
        {"cobInsolacion.rótulo", "Insolación relativa (n/N):"},
        {"cobHumedad.rótulo", "Humedad relativa mínima (%):"},
        {"cobViento.rótulo", "Velocidad del viento (Km/hr):"},
        {"txtcn.rótulo", "Número de horas de insolación real (n):"},
        {"txtchrmin.rótulo", "Humedad relativa mínima (HRmin) (%):"},
        {"txtcv.rótulo", "Velocidad del viento  (Km/hr):"},
        {"txtKcTabla.rótulo", "Kc:"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(text(name), caption);
    EXPECT_EQ(rowText("grdt", 0), "Mes|Temperatura (ºC)");
    EXPECT_EQ(rowText("grddis", 0), "Mes|T|P(%)|ETo diaria (mm)|ETr diaria|ETr mensual");
}

TEST_F(BlaneyCriddleTest, StartsEstimatedAndWithoutAChoice) {
    EXPECT_EQ(control<List>("cobLatitud").items(),
              (Year{"0", "5", "10", "15", "20", "25", "30", "35", "40", "42", "44", "46", "48",
                    "50", "52", "54", "56", "58", "60"}));
    EXPECT_EQ(text("cobLatitud"), "10");
    EXPECT_EQ(text("cobLatitudNS"), "N");
    EXPECT_EQ(control<List>("cobInsolacion").items(),
              (Year{"Despejado (0.85-0.95)", "Nublado parcial (0.65-0.85)", "Nublado (0.30-0.60)",
                    "Cubierto (0.15-0.25)"}));
    EXPECT_EQ(control<List>("cobHumedad").items(),
              (Year{"Baja (< 20)", "Media (20-50)", "Alta (>50)"}));
    EXPECT_EQ(control<List>("cobViento").items(),
              (Year{"Débil (< 7.2)", "Moderado (7.2-18)", "Fuerte ( >18)"}));
    EXPECT_EQ(control<List>("cobKc").items().size(), 19U);
    EXPECT_EQ(control<List>("cobKc").items()[18], "Viñas (0.55)");
    for (const char* name : {"cobInsolacion", "cobHumedad", "cobViento", "cobKc", "txtcn",
                             "txtchrmin", "txtcv", "txtKcTabla"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_TRUE(control<Option>("OptEstimado").checked());
    EXPECT_TRUE(control<Option>("optKcEstimado").checked());
    EXPECT_TRUE(shown("fraClimaEstimado"));
    EXPECT_FALSE(shown("fraClimaMedido"));
    EXPECT_TRUE(shown("fraKcEstimado"));
    EXPECT_FALSE(shown("fraKcTabla"));
    const auto& grddis = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grddis.Rows(), 13);
    EXPECT_EQ(grddis.Cols(), 6);
    EXPECT_EQ(grddis.FixedRows(), 1);
    EXPECT_EQ(grddis.FixedCols(), 0);
    EXPECT_EQ(focus(), "grdt");
}

TEST_F(BlaneyCriddleTest, EachOptionShowsItsFrame) {
    click("OptMedido");
    EXPECT_FALSE(shown("fraClimaEstimado"));
    EXPECT_TRUE(shown("fraClimaMedido"));
    EXPECT_EQ(focus(), "txtcn");
    click("optKcTabla");
    EXPECT_FALSE(shown("fraKcEstimado"));
    EXPECT_TRUE(shown("fraKcTabla"));
    EXPECT_EQ(focus(), "txtKcTabla");
    click("OptEstimado");
    EXPECT_TRUE(shown("fraClimaEstimado"));
    EXPECT_FALSE(shown("fraClimaMedido"));
    EXPECT_EQ(focus(), "cobInsolacion");
    click("optKcEstimado");
    EXPECT_TRUE(shown("fraKcEstimado"));
    EXPECT_FALSE(shown("fraKcTabla"));
    EXPECT_EQ(focus(), "cobKc");
}

TEST_F(BlaneyCriddleTest, TheTwelfthValueLeadsToTheLatitude) {
    values(temperatures);
    EXPECT_EQ(focus(), "cobLatitud");
    EXPECT_EQ(columnOf("grdt", 0), monthLabels);
}

Message missing(const std::string& text) {
    return {text, "Error", Icon::information};
}

TEST_F(BlaneyCriddleTest, TellsTheFirstChoiceThatIsMissing) {
    values(temperatures);
    const std::vector<std::vector<std::string>> lists = {
        {"cobInsolacion", "Ingresar dato de insolación", "Despejado (0.85-0.95)"},
        {"cobHumedad", "Ingresar dato de humedad relativa", "Media (20-50)"},
        {"cobViento", "Ingresar dato de velocidad de viento", "Moderado (7.2-18)"},
        {"cobKc", "Ingresar dato de Kc del cultivo", "Alfalfa (0.85)"}};
    for (const auto& list : lists) {
        click("bCalcular");
        expectMessage(missing(list[1]));
        EXPECT_EQ(focus(), list[0]);
        choose(list[0], "otro");
        click("bCalcular");
        expectMessage(missing(list[1]));
        EXPECT_EQ(yearOf("grddis"), noResults);
        choose(list[0], list[2]);
    }
    click("bGraficar");
    expectMessage(notCalculated);
    click("bCalcular");
    EXPECT_EQ(yearOf("grddis"), estimatedAtTenNorth);
}

TEST_F(BlaneyCriddleTest, TellsTheFirstMeasureThatIsMissing) {
    values(temperatures);
    click("OptMedido");
    click("optKcTabla");
    const std::vector<std::pair<std::string, std::string>> fields = {
        {"txtcn", "Ingresar valor adecuado del número de horas de insolación real (n)"},
        {"txtchrmin", "Ingresar valor adecuado de la humedad relativa mínima"},
        {"txtcv", "Ingresar valor adecuado de la velocidad del viento"},
        {"txtKcTabla", "Ingresar dato de Kc del cultivo adecuado"}};
    for (const auto& [field, message] : fields) {
        click("bCalcular");
        expectMessage(told(message));
        EXPECT_EQ(focus(), field);
        EXPECT_EQ(yearOf("grddis"), noResults);
        enter(field, "abc");
    }
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    // All of it reads as 0: no sun, dry, calm, and no crop. January: -2 + 1.15 x 4.81676.
    EXPECT_EQ(rowText("grddis", 1), "Ene|22.6|0.26|3.539|0.0|0.0");
}

TEST_F(BlaneyCriddleTest, FewerThanTwelveMonthsGoOnWithTheLastOnes) {
    estimate();
    click("bCalcular");
    expectMessage(twelveMonths);
    // f = 8.13 x 0.26 = 2.1138, no month has been read: -2.5 + 1.61 f = 0.903218.
    EXPECT_EQ(rowText("grddis", 1), "|0.0|0.26|0.903|0.768|23.8");
    values(temperatures);
    click("bCalcular");
    cell("grdt", 12, 1);
    click("mnuEditEliminar");
    click("bCalcular");
    expectMessage(twelveMonths);
    EXPECT_EQ(yearOf("grddis"), estimatedAtTenNorth);
}

TEST_F(BlaneyCriddleTest, TheMessageOfTheMonthsStandsBeforeTheOthers) {
    click("bCalcular");
    EXPECT_EQ(messages(), (std::vector{twelveMonths, missing("Ingresar dato de insolación")}));
    EXPECT_EQ(focus(), "cobInsolacion");
}

TEST_F(BlaneyCriddleTest, AThirteenthMonthIsInadequate) {
    values(Year(13, "20"));
    estimate();
    click("bCalcular");
    expectMessage(inadequate);
    EXPECT_EQ(yearOf("grddis"), noResults);
    click("bGraficar");
    expectMessage(notCalculated);
}

// 10 U in m/s leaves the doubles, before Kc is asked for.
TEST_F(BlaneyCriddleTest, AWindPastTheDoublesIsInadequate) {
    values(temperatures);
    measure("7.2", "30", "1e308");
    click("optKcTabla");
    click("bCalcular");
    expectMessage(inadequate);
    EXPECT_EQ(yearOf("grddis"), noResults);
}

// Five months were read to be saved; of January f = (0.46 x 22.6 + 8.13) 0.26, as in a whole year,
// and June on has the temperature 0: f = 8.13 x 0.29 = 2.3577, ETo = 1.295897.
TEST_F(BlaneyCriddleTest, AFileThatWasSavedHandsItsMonthsToTheNextRun) {
    values({"22.6", "23.1", "23.9", "24.4", "24.1"});
    save(file("cinco.TB"));
    estimate();
    click("bCalcular");
    expectMessage(twelveMonths);
    EXPECT_EQ(rowText("grddis", 5), estimatedAtTenNorth[4]);
    EXPECT_EQ(rowText("grddis", 6), "|0.0|0.29|1.296|1.102|33.05");
}

// The light of the latitude is taken before the choices are looked at.
TEST_F(BlaneyCriddleTest, TheLightIsTakenBeforeAChoiceIsMissing) {
    values(temperatures);
    choose("cobLatitud", "20");
    choose("cobLatitudNS", "S");
    click("bCalcular");
    EXPECT_EQ(messages().size(), 1U);
    choose("cobLatitud", "55");
    estimate();
    click("bCalcular");
    // f = (0.46 x 22.6 + 8.13) 0.30 = 5.5578; ETo = -2.5 + 1.61 f = 6.448058.
    EXPECT_EQ(rowText("grddis", 1), "Ene|22.6|0.3|6.448|5.481|169.91");
}

TEST_F(BlaneyCriddleTest, LimpiarEmptiesTheDataAndClearsTheFlag) {
    values(temperatures);
    estimate();
    click("bCalcular");
    click("bGraficar");
    measure("7", "30", "10");
    click("optKcTabla");
    enter("txtKcTabla", "2");
    choose("cobLatitud", "15");
    click("bLimpiar");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(yearOf("grddis"), noResults);
    for (const char* name : {"cobInsolacion", "cobHumedad", "cobViento", "cobKc", "txtcn",
                             "txtchrmin", "txtcv", "txtKcTabla"})
        EXPECT_EQ(text(name), "") << name;
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_TRUE(control<Graph>("Graph1").series().empty());
    // The options and the latitude stay.
    EXPECT_TRUE(control<Option>("OptMedido").checked());
    EXPECT_TRUE(shown("fraClimaMedido"));
    EXPECT_TRUE(control<Option>("optKcTabla").checked());
    EXPECT_EQ(text("cobLatitud"), "15");
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(BlaneyCriddleTest, AccesarTakesTheResultsAndTheFlagAwayAndKeepsTheData) {
    values(temperatures);
    estimate();
    click("bCalcular");
    click("bGraficar");
    click("bAccesar");
    EXPECT_EQ(yearOf("grddis"), noResults);
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_EQ(text("cobKc"), "Alfalfa (0.85)");
    EXPECT_EQ(text("cobViento"), "Moderado (7.2-18)");
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(BlaneyCriddleTest, FilesHoldTheTemperatures) {
    values({"22.6", "-3.14159"});
    save(file("dos.TB"));
    EXPECT_EQ(bytesOf(file("dos.TB")), (Bytes{0xCD, 0xCC, 0xB4, 0x41, 0xD0, 0x0F, 0x49, 0xC0}));
    load(file("dos.TB"));
    EXPECT_EQ(rowText("grdt", 1), "Ene|22.6");
    EXPECT_EQ(rowText("grdt", 2), "Feb|-3.14");
    EXPECT_EQ(rowText("grdt", 3), "[->]|");
    EXPECT_TRUE(messages().empty());
}

TEST_F(BlaneyCriddleTest, SavingAThirteenthMonthIsFatal) {
    values(Year(13, "20"));
    save(file("trece.TB"));
    EXPECT_TRUE(fatal(9));
}

const std::string rule40(40, '-');
const std::string rule145(145, '-');

std::string reportWith(const std::string& data) {
    std::string expected =
        "Resultados\n\nCálculo de la evapotranspiración potencial por el método de Blaney_Criddle "
        "modificado por la FAO\n\n\nSerie de datos de temperaturas mensuales\n\n" +
        rule40 + "\n Mes\t       Temperatura\t\n" + rule40 + "\n";
    for (std::size_t month = 0; month < 12; ++month)
        expected += monthLabels[month] + "\t" + temperatures[month] + "\t\n";
    return expected + rule40 + "\n\n Datos climatológicos:\n" + rule40 + "\n Latitud: 10º N\n" +
           data + "\n" + rule145 +
           "\nResultado del cálculo de la evapotranspiración potencial, método de "
           "Blaney-Criddle:\n" +
           rule145 +
           "\nMes    Temperatura              P(%)          ETo diaria (mm)      ETr diaria (mm)  "
           "    ETr mensual (mm)   \n" +
           rule145 + "\n";
}

TEST_F(BlaneyCriddleTest, ReportsEstimatedDataAndResults) {
    values(temperatures);
    estimate();
    click("bCalcular");
    choose("cobKc", "Frijoles (0.85)");
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    std::string expected = reportWith("Datos climáticos estimados:\n"
                                      " Insolación relativa (n/N): Despejado (0.85-0.95)\n"
                                      " Humedad relativa mínima: Media (20-50) %\n"
                                      " Velocidad del viento: Moderado (7.2-18) Km/hr\n"
                                      "Dato Kc cultivo estimado:\n"
                                      " Kc: Frijoles (0.85)\n");
    for (const std::string& row : estimatedAtTenNorth) {
        for (const char letter : row)
            expected += letter == '|' ? '\t' : letter;
        expected += "\t\n";
    }
    EXPECT_EQ(report(), expected + rule145 + "\n");
}

TEST_F(BlaneyCriddleTest, ReportsMeasuredDataBeforeACalculation) {
    values(temperatures);
    measure("7.2", "30", "10");
    click("optKcTabla");
    enter("txtKcTabla", "0.9");
    click("bReporte");
    std::string expected = reportWith("Datos climáticos medidos:\n"
                                      " Número de horas de insolación real (n): 7.2 horas\n"
                                      " Humedad relativa mínima: 30 %\n"
                                      " Velocidad del viento: 10 Km/hr\n"
                                      "Dato Kc cultivo tabla:\n"
                                      " Kc: 0.9\n");
    for (int month = 0; month < 12; ++month)
        expected += "\t\t\t\t\t\t\n";
    EXPECT_EQ(report(), expected + rule145 + "\n");
}

TEST_F(BlaneyCriddleTest, AReportWithoutTwelveRowsFails) {
    click("bReporte");
    expectMessage(
        told("No se puede editar el reporte: Cálculo de la evapotranspiración potencial por el "
             "método de Blaney_Criddle modificado por la FAO"));
}

} // namespace
} // namespace caudalera
