// The window of the water balance.

#include "evapotranspiration/balanceHidrico.h"
#include "tests/evapotranspiration/MonthlyTest.h"

#include <limits>
#include <string>
#include <vector>

namespace caudalera {
namespace {

class BalanceHidroTest : public MonthlyTest {
protected:
    BalanceHidroTest() { open("frmBalanceHidro"); }

    /// Types months with their temperature and rain.
    void year(const Year& T, const Year& P) {
        std::vector<std::vector<std::string>> typed;
        for (std::size_t month = 0; month < T.size(); ++month)
            typed.push_back({T[month], P[month]});
        rows(typed);
    }
    /// The same rain every month.
    void steady(const std::string& P) { year(temperatures, Year(12, P)); }
    void clearAndType(const Year& P) {
        click("bLimpiar");
        year(temperatures, P);
        click("bCalcular");
    }
    Year results() {
        Year all;
        for (long row = 1; row < 15; ++row)
            all.push_back(rowText("grddis", row));
        return all;
    }

    const Message twelveMonths =
        told("Ingresar las temperaturas y precipitaciones promedios mensuales, para los 12 meses");
    const Year labels = {
        "T (ºC)|||||||||||||",    "i|||||||||||||",        "ETosc(mm)|||||||||||||",
        "facCorrec|||||||||||||", "ETo (mm)|||||||||||||", "P (mm)|||||||||||||",
        "P-e (mm)|||||||||||||",  "|||||||||||||",         "|||||||||||||",
        "|||||||||||||",          "|||||||||||||",         "|||||||||||||",
        "|||||||||||||",          "|||||||||||||"};
};

// The evapotranspiration is that of the Thornthwaite window for the same temperatures; P-e by
// hand: January 8 - 87.028 = -79.03, May 220 - 112.487 = 107.51, December 32 - 82.998 = -51.00.
const Year atTenNorth = {
    "T (ºC)|22.6|23.1|23.9|24.4|24.1|23.6|23.4|23.5|23.2|22.9|22.5|22.3|",
    "i|9.815|10.145|10.682|11.022|10.818|10.48|10.346|10.413|10.212|10.013|9.749|9.618|123.31",
    "ETosc(mm)|87.028|92.518|101.757|107.82|104.155|98.226|95.916|97.067|93.642|90.296|85.956|"
    "83.837|",
    "facCorrec|1.0|0.91|1.03|1.03|1.08|1.06|1.08|1.07|1.02|1.02|0.98|0.99|",
    "ETo (mm)|87.028|84.191|104.809|111.055|112.487|104.12|103.59|103.861|95.515|92.102|84.237|"
    "82.998|",
    "P (mm)|8.0|12.0|15.0|55.0|220.0|265.0|190.0|235.0|310.0|305.0|130.0|32.0|",
    "P-e (mm)|-79.03|-72.19|-89.81|-56.05|107.51|160.88|86.41|131.14|214.49|212.9|45.76|-51.0|"};

TEST_F(BalanceHidroTest, HasItsTextsAndStartsAtTenNorth) {
    EXPECT_EQ(window("frmBalanceHidro").caption,
              "Cálculo del balance hídrico por el método de Thornthwaite");
    EXPECT_EQ(rowText("grdt", 0), "Mes|Temperatura (ºC)|Precipitación (mm)");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos de temperaturas y precipitación:");
    EXPECT_EQ(text("fraLatitud"), "Ingresar dato de latitud:");
    EXPECT_EQ(control<List>("cobLatitud").items().size(), 11U);
    EXPECT_EQ(text("cobLatitud"), "10");
    EXPECT_EQ(text("cobLatitudNS"), "N");
    EXPECT_EQ(control<TextBox>("txtMesIni").label()->caption, "Mes de inicio que P > ETo:");
    EXPECT_EQ(control<TextBox>("txtA").label()->caption, "exponente (a):");
    EXPECT_TRUE(control<TextBox>("txtMesIni").result);
    EXPECT_TRUE(control<TextBox>("txtA").result);
    const auto& grddis = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grddis.Rows(), 15);
    EXPECT_EQ(grddis.Cols(), 14);
    EXPECT_EQ(grddis.FixedRows(), 1);
    EXPECT_EQ(grddis.FixedCols(), 1);
    EXPECT_EQ(rowText("grddis", 0), " |Ene|Feb|Mar|Abr|May|Jun|Jul|Ago|Set|Oct|Nov|Dic|Año");
    EXPECT_EQ(results(), labels);
    EXPECT_EQ(text("lblEjeMeses"), "Eje de Meses: 0 = Ene, 1 = Feb, ... ,11= Dic");
    EXPECT_EQ(focus(), "grdt");
}

TEST_F(BalanceHidroTest, ComputesTheYear) {
    year(temperatures, rains);
    EXPECT_EQ(focus(), "cobLatitud");
    EXPECT_EQ(columnOf("grdt", 0), monthLabels);
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txtMesIni"), "Mayo");
    EXPECT_EQ(text("txtA"), "2.79561");
    Year expected = atTenNorth;
    expected.resize(14, "|||||||||||||");
    EXPECT_EQ(results(), expected);
}

TEST_F(BalanceHidroTest, NamesTheFirstMonthWithMoreRainThanEvapotranspiration) {
    const Year names = {"Enero", "Febrero", "Marzo",     "Abril",   "Mayo",      "Junio",
                        "Julio", "Agosto",  "Setiembre", "Octubre", "Noviembre", "Diciembre"};
    for (std::size_t first = 0; first < 12; ++first) {
        Year P(12, "0");
        for (std::size_t month = first; month < 12; ++month)
            P[month] = "500";
        clearAndType(P);
        EXPECT_EQ(text("txtMesIni"), names[first]);
    }
}

TEST_F(BalanceHidroTest, WithoutSuchAMonthTheLastOneFoundStands) {
    steady("0");
    click("bCalcular");
    EXPECT_EQ(text("txtMesIni"), "Diciembre");
    clearAndType(rains);
    EXPECT_EQ(text("txtMesIni"), "Mayo");
    clearAndType(Year(12, "0"));
    EXPECT_EQ(text("txtMesIni"), "Mayo");
    // Not that of another opening of the window.
    click("bMenu");
    open("frmBalanceHidro");
    steady("0");
    click("bCalcular");
    EXPECT_EQ(text("txtMesIni"), "Diciembre");
}

// At 0 degrees and without rain P-e of January is exactly 0.
TEST_F(BalanceHidroTest, AsMuchRainAsEvapotranspirationIsNotMore) {
    Year T = temperatures;
    T[0] = "0";
    Year P = rains;
    P[0] = "0";
    year(T, P);
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 7, 1), "0.0");
    EXPECT_EQ(text("txtMesIni"), "Mayo");
    put(1, 2, "0.001");
    click("bCalcular");
    EXPECT_EQ(text("txtMesIni"), "Enero");
}

TEST(BalanceHidrico, TheFirstMonthIsFoundByItsDifference) {
    const std::vector<float> none(12, 0);
    EXPECT_EQ(primerMesConExceso(none), std::nullopt);
    std::vector<float> some = {-1, 0, std::numeric_limits<float>::denorm_min(), 5};
    EXPECT_EQ(primerMesConExceso(some), 3);
    some[0] = 1;
    EXPECT_EQ(primerMesConExceso(some), 1);
    EXPECT_EQ(primerMesConExceso({}), std::nullopt);
    EXPECT_EQ(nombreDelMes(1), "Enero");
    EXPECT_EQ(nombreDelMes(11), "Noviembre");
    for (const long other : {12L, 0L, 13L, -1L})
        EXPECT_EQ(nombreDelMes(other), "Diciembre") << other;
}

TEST_F(BalanceHidroTest, TakesTheFactorsOfTheLatitude) {
    year(temperatures, rains);
    choose("cobLatitud", "20");
    choose("cobLatitudNS", "S");
    click("bCalcular");
    // 87.0279 x 1.14 = 99.2118, 8 - 99.2118; 83.8366 x 1.15.
    EXPECT_EQ(cellText("grddis", 4, 1), "1.14");
    EXPECT_EQ(cellText("grddis", 5, 1), "99.212");
    EXPECT_EQ(cellText("grddis", 7, 1), "-91.21");
    EXPECT_EQ(cellText("grddis", 5, 12), "96.412");
}

// The temperature is a single of seven digits, the rain a double: 1.0049999 is 1.005 as a single.
TEST_F(BalanceHidroTest, TemperaturesAreSinglesAndRainsAreNot) {
    Year T = temperatures;
    Year P = rains;
    T[0] = P[0] = "20.005";
    year(T, P);
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 1, 1), "20.01");
    EXPECT_EQ(cellText("grddis", 6, 1), "20.01");
    put(1, 1, "1.0049999");
    put(1, 2, "1.0049999");
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 1, 1), "1.01");
    EXPECT_EQ(cellText("grddis", 6, 1), "1.0");
}

// i = 1 of 5 degrees each month, and a = 0.6751E-6 x 1728 - 0.771E-4 x 144 + 0.01792 x 12 + 0.49239
// = 0.6974942; of 5.8 degrees 15.0234834.
TEST_F(BalanceHidroTest, TheYearsIndexHasOneOrTwoDecimals) {
    year(Year(12, "5"), rains);
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 2, 13), "12.0");
    EXPECT_EQ(text("txtA"), "0.69749");
    click("bLimpiar");
    year(Year(12, "5.8"), rains);
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 2, 13), "15.02");
}

TEST_F(BalanceHidroTest, TheFirstMonthOutlivesALoad) {
    year(temperatures, rains);
    click("bCalcular");
    EXPECT_EQ(text("txtMesIni"), "Mayo");
    std::vector<float> dry;
    for (const std::string& T : temperatures) {
        dry.push_back(std::stof(T));
        dry.push_back(0);
    }
    writeSingles(file("seco.TP"), dry);
    load(file("seco.TP"));
    EXPECT_EQ(text("txtMesIni"), "");
    click("bCalcular");
    EXPECT_EQ(text("txtMesIni"), "Mayo");
}

TEST_F(BalanceHidroTest, AFileThatWasSavedHandsItsMonthsToTheNextRun) {
    year({"22.6", "23.1", "23.9", "24.4", "24.1"}, Year(5, "8"));
    save(file("cinco.TP"));
    click("bCalcular");
    expectMessage(twelveMonths);
    EXPECT_EQ(cellText("grddis", 2, 5), "10.818");
    EXPECT_EQ(cellText("grddis", 2, 6), "0.0");
    EXPECT_EQ(cellText("grddis", 2, 13), "52.48");
    EXPECT_EQ(cellText("grddis", 6, 5), "8.0");
    EXPECT_EQ(cellText("grddis", 6, 6), "0.0");
}

TEST_F(BalanceHidroTest, FewerMonthsGoOnWithWhatTheArraysHold) {
    click("bCalcular");
    EXPECT_EQ(messages(), (std::vector{twelveMonths, inadequate}));
    EXPECT_EQ(focus(), "grdt");
    year(temperatures, rains);
    click("bCalcular");
    cell("grdt", 1, 1);
    click("mnuEditEliminar");
    click("bCalcular");
    expectMessage(twelveMonths);
    EXPECT_EQ(focus(), "grdt");
    EXPECT_EQ(rowText("grddis", 6), atTenNorth[5]);
    EXPECT_EQ(text("txtMesIni"), "Mayo");
    // Clearing sets the arrays to zero.
    click("bLimpiar");
    year(Year(11, "20"), Year(11, "20"));
    click("bCalcular");
    EXPECT_EQ(messages(), (std::vector{twelveMonths, inadequate}));
}

TEST_F(BalanceHidroTest, ColdAndSurplusMonthsAreInadequate) {
    year(temperatures, rains);
    put(5, 1, "-0.5");
    click("bCalcular");
    expectMessage(inadequate);
    EXPECT_EQ(results(), labels);
    EXPECT_EQ(text("txtMesIni"), "");
    click("bGraficar");
    expectMessage(notCalculated);
    put(5, 1, "24.1");
    year({"20"}, {"20"});
    click("bCalcular");
    expectMessage(inadequate);
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(BalanceHidroTest, DrawsEvapotranspirationAndRain) {
    year(temperatures, rains);
    click("bCalcular");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    const auto& chart = control<Graph>("Graph1");
    EXPECT_TRUE(chart.visible);
    EXPECT_EQ(chart.graphKind(), Graph::Kind::line);
    EXPECT_EQ(chart.style(), 0);
    EXPECT_EQ(chart.points(), 12);
    EXPECT_EQ(*chart.x(), (std::vector<double>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
    ASSERT_EQ(chart.series().size(), 2U);
    EXPECT_EQ(chart.series()[0].legend, "ETo");
    EXPECT_EQ(chart.series()[1].legend, "P");
    EXPECT_EQ(chart.series()[1].y,
              (std::vector<double>{8, 12, 15, 55, 220, 265, 190, 235, 310, 305, 130, 32}));
    const double adjusted[] = {87.0279,  84.1915,  104.8093, 111.0549, 112.4874, 104.1195,
                               103.5897, 103.8614, 95.5150,  92.1020,  84.2365,  82.9983};
    ASSERT_EQ(chart.series()[0].y.size(), 12U);
    for (std::size_t month = 0; month < 12; ++month)
        EXPECT_NEAR(chart.series()[0].y[month], adjusted[month], 5e-5) << month;
}

TEST_F(BalanceHidroTest, LimpiarKeepsTheFlagAndNotTheRain) {
    year(temperatures, rains);
    choose("cobLatitud", "15");
    click("bCalcular");
    click("bGraficar");
    click("bLimpiar");
    EXPECT_EQ(results(), labels);
    EXPECT_EQ(text("txtMesIni"), "");
    EXPECT_EQ(text("txtA"), "");
    EXPECT_EQ(text("cobLatitud"), "15");
    EXPECT_EQ(rowText("grdt", 1), "[?]||");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<Graph>("Graph1").series()[1].y, std::vector<double>(12, 0));
    EXPECT_GT(control<Graph>("Graph1").series()[0].y[0], 80);
}

TEST_F(BalanceHidroTest, AccesarTakesEverythingAwayBeforeItsDialog) {
    year(temperatures, rains);
    click("bCalcular");
    click("bGraficar");
    click("bAccesar");
    EXPECT_EQ(results(), labels);
    EXPECT_EQ(text("txtMesIni"), "");
    EXPECT_EQ(text("txtA"), "");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    click("bGraficar");
    expectMessage(notCalculated);
    click("bCalcular");
    EXPECT_EQ(messages(), (std::vector{twelveMonths, inadequate}));
}

TEST_F(BalanceHidroTest, FilesHoldBothColumns) {
    year({"22.6", "1"}, {"-3.14159", "2"});
    save(file("dos.TP"));
    // 22.6 = 41B4CCCD, -3.14159 = C0490FD0, 1 = 3F800000, 2 = 40000000.
    EXPECT_EQ(bytesOf(file("dos.TP")), (Bytes{0xCD, 0xCC, 0xB4, 0x41, 0xD0, 0x0F, 0x49, 0xC0, 0x00,
                                              0x00, 0x80, 0x3F, 0x00, 0x00, 0x00, 0x40}));
    load(file("dos.TP"));
    EXPECT_EQ(rowText("grdt", 1), "Ene|22.6|-3.14");
    EXPECT_EQ(rowText("grdt", 2), "Feb|1.0|2.0");
    EXPECT_EQ(rowText("grdt", 3), "[->]||");
}

TEST_F(BalanceHidroTest, SavingAThirteenthMonthIsFatal) {
    year(Year(13, "20"), Year(13, "20"));
    save(file("trece.TP"));
    EXPECT_TRUE(fatal(9));
}

TEST_F(BalanceHidroTest, WithoutItsTableFileAllRainIsSurplus) {
    reopen("frmBalanceHidro", file("none"));
    year(temperatures, rains);
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 5), "ETo (mm)|0.0|0.0|0.0|0.0|0.0|0.0|0.0|0.0|0.0|0.0|0.0|0.0|");
    EXPECT_EQ(text("txtMesIni"), "Enero");
}

const std::string title =
    "Resultados\n\nCálculo del balance hídrico por el método de Thornthwaite\n\n\n";
const std::string rule65(65, '-');
const std::string rule165(165, '-');

TEST_F(BalanceHidroTest, ReportsDataAndResults) {
    year(temperatures, rains);
    click("bCalcular");
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    std::string expected = title +
                           "Serie de datos de temperaturas y precipitaciones mensuales\n\n" +
                           rule65 + "\n Mes\t       Temperatura\tPrecipitación\t\n" + rule65 + "\n";
    for (std::size_t month = 0; month < 12; ++month) {
        expected +=
            monthLabels[month] + "\t\t" + temperatures[month] + "\t\t" + rains[month] + ".0\t\t\n";
    }
    expected += rule65 +
                "\n\nResultado del cálculo del balance hídrico, método de Thornthwaite:\n\n\n"
                " Exponente (a) = 2.79561\n"
                " Indice de calor anual (I) = 123.31\n" +
                rule165 +
                "\n                    Ene       Feb       Mar       Abr       May       Jun       "
                "Jul       Ago       Set       Oct       Nov       Dic\n" +
                rule165 + "\n";
    for (std::size_t row = 0; row < 7; ++row) {
        const std::string& cells = atTenNorth[row];
        // Without the column of the year, and a tab more behind the two short labels.
        const std::string months = cells.substr(0, cells.rfind('|'));
        const auto label = months.find('|');
        expected += months.substr(0, label) + (row < 2 ? "\t\t" : "\t");
        for (const char letter : months.substr(label + 1))
            expected += letter == '|' ? '\t' : letter;
        expected += "\t\n";
    }
    EXPECT_EQ(report(), expected + rule165 + "\n");
}

TEST_F(BalanceHidroTest, ReportsBeforeACalculationAndFailsWithoutTwelveRows) {
    year(temperatures, rains);
    click("bReporte");
    EXPECT_NE(report().find(" Exponente (a) = \n Indice de calor anual (I) = \n"),
              std::string::npos);
    EXPECT_NE(report().find("\nT (ºC)" + std::string(14, '\t') + "\ni" + std::string(14, '\t') +
                            "\nETosc(mm)" + std::string(13, '\t') + "\n"),
              std::string::npos);
    click("bLimpiar");
    click("bReporte");
    expectMessage(told("No se puede editar el reporte: Cálculo del balance hídrico por el método "
                       "de Thornthwaite"));
}

} // namespace
} // namespace caudalera
