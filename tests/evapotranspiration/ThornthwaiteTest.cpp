// The Thornthwaite window: its form and its calculation.

#include "tests/evapotranspiration/MonthlyTest.h"

#include <filesystem>
#include <limits>
#include <string>
#include <vector>

namespace caudalera {
namespace {

class ThornthwaiteTest : public MonthlyTest {
protected:
    ThornthwaiteTest() { open("frmThornthwaite"); }
    const Message twelveMonths =
        told("Ingresar las temperaturas promedios mensuales, para los 12 meses");
};

// Each step by another program with the same singles. I = 123.31161, a = 0.6751E-6 I^3 - 0.771E-4
// I^2 + 0.01792 I + 0.49239 = 1.265857 - 1.172365 + 2.209744 + 0.49239 = 2.795614 (to six digits);
// January: 16 (226 / 123.31161)^a = 87.0279, factor 1.0 at 10 N, over 31 days 2.80735.
const Year atTenNorth = {
    "Ene|22.6|9.815|87.028|1.0|87.028|2.81",     "Feb|23.1|10.145|92.518|0.91|84.191|3.01",
    "Mar|23.9|10.682|101.757|1.03|104.809|3.38", "Abr|24.4|11.022|107.82|1.03|111.055|3.7",
    "May|24.1|10.818|104.155|1.08|112.487|3.63", "Jun|23.6|10.48|98.226|1.06|104.12|3.47",
    "Jul|23.4|10.346|95.916|1.08|103.59|3.34",   "Ago|23.5|10.413|97.067|1.07|103.861|3.35",
    "Set|23.2|10.212|93.642|1.02|95.515|3.18",   "Oct|22.9|10.013|90.296|1.02|92.102|2.97",
    "Nov|22.5|9.749|85.956|0.98|84.237|2.81",    "Dic|22.3|9.618|83.837|0.99|82.998|2.68"};

TEST_F(ThornthwaiteTest, HasItsTextsAndStartsAtTenNorth) {
    EXPECT_EQ(window("frmThornthwaite").caption,
              "Cálculo de la evapotranspiración potencial por el método de Thornthwaite");
    EXPECT_EQ(rowText("grdt", 0), "Mes|Temperatura (ºC)");
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de datos de temperaturas:");
    EXPECT_EQ(text("lblNota"), "Nota:");
    EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
    EXPECT_EQ(text("fraLatitud"), "Ingreso del dato de la  latitud:");
    EXPECT_EQ(control<List>("cobLatitud").items(),
              (Year{"0", "5", "10", "15", "20", "25", "30", "35", "40", "45", "50"}));
    EXPECT_EQ(control<List>("cobLatitudNS").items(), (Year{"N", "S"}));
    EXPECT_EQ(text("cobLatitud"), "10");
    EXPECT_EQ(text("cobLatitudNS"), "N");
    EXPECT_EQ(control<TextBox>("txti").label()->caption, "Indice térmico anual (I):");
    EXPECT_EQ(control<TextBox>("txtA").label()->caption, "exponente (a):");
    EXPECT_TRUE(control<TextBox>("txti").result);
    EXPECT_TRUE(control<TextBox>("txtA").result);
    const auto& grddis = control<MSFlexGrid>("grddis");
    EXPECT_EQ(grddis.Rows(), 13);
    EXPECT_EQ(grddis.Cols(), 7);
    EXPECT_EQ(grddis.FixedRows(), 1);
    EXPECT_EQ(grddis.FixedCols(), 0);
    EXPECT_EQ(rowText("grddis", 0), "Mes|T|Indice i|ETo (mm)|Factor f|ETr mensual|ETr diaria");
    EXPECT_EQ(yearOf("grddis"), Year(12, "||||||"));
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_EQ(text("lblEjeMeses"), "Eje de Meses: 0 = Ene, 1 = Feb, ... ,11= Dic");
    EXPECT_EQ(text("bGraficar"), "&Graficar");
    EXPECT_EQ(control<Button>("bGraficar").toolTip, "Mostrar gráfico");
    EXPECT_EQ(focus(), "grdt");
}

TEST_F(ThornthwaiteTest, LabelsTheRowsByMonth) {
    values(Year(14, "20"));
    EXPECT_EQ(columnOf("grdt", 0), monthLabels);
    EXPECT_EQ(cellText("grdt", 13, 0), "Ene");
    EXPECT_EQ(cellText("grdt", 14, 0), "Feb");
    EXPECT_EQ(cellText("grdt", 15, 0), "[->]");
    cell("grdt", 2, 1);
    click("mnuEditInsertar");
    EXPECT_EQ(columnOf("grdt", 0), monthLabels);
    EXPECT_EQ(cellText("grdt", 15, 0), "Mar");
    cell("grdt", 1, 1);
    click("mnuEditEliminar");
    click("mnuEditEliminar");
    EXPECT_EQ(columnOf("grdt", 0), monthLabels);
    EXPECT_EQ(cellText("grdt", 14, 0), "[?]");
}

TEST_F(ThornthwaiteTest, TheTwelfthValueLeadsToTheLatitude) {
    values(Year(11, "20"));
    EXPECT_EQ(focus(), "grdt");
    values({"20"});
    EXPECT_EQ(focus(), "cobLatitud");
    values({"20"});
    EXPECT_EQ(focus(), "grdt");
    // A value that is typed anew completes no row.
    click("mnuEditEliminar");
    values(Year(12, "20"));
    cell("grdt", 12, 1);
    type("grdt", "21");
    key("txtt", Key::Kind::enter);
    EXPECT_EQ(focus(), "grdt");
}

TEST_F(ThornthwaiteTest, ComputesTheYear) {
    values(temperatures);
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(text("txti"), "123.3116");
    EXPECT_EQ(text("txtA"), "2.79561");
    EXPECT_EQ(yearOf("grddis"), atTenNorth);
}

TEST_F(ThornthwaiteTest, TakesTheFactorsOfTheLatitude) {
    values(temperatures);
    choose("cobLatitud", "20");
    choose("cobLatitudNS", "S");
    click("bCalcular");
    EXPECT_EQ(columnOf("grddis", 4), (Year{"1.14", "1.0", "1.05", "0.97", "0.96", "0.91", "0.95",
                                           "0.99", "1.0", "1.08", "1.09", "1.15"}));
    // 87.0279 x 1.14 and 83.8366 x 1.15.
    EXPECT_EQ(cellText("grddis", 1, 5), "99.212");
    EXPECT_EQ(cellText("grddis", 12, 5), "96.412");
}

// Temperatures are singles: 20.005 is shown by its seven digits, 20.01. January in 40 digits:
// i = 8.159869, ETosc = 62.72834, with 1.31 82.17412, a day 2.650778.
TEST_F(ThornthwaiteTest, ShowsTemperaturesAndFactorsWithTwoDecimals) {
    Year T = temperatures;
    T[0] = "20.005";
    values(T);
    choose("cobLatitud", "45");
    choose("cobLatitudNS", "S");
    click("bCalcular");
    EXPECT_EQ(rowText("grddis", 1), "Ene|20.01|8.16|62.728|1.31|82.174|2.65");
    EXPECT_EQ(columnOf("grddis", 4), (Year{"1.31", "1.09", "1.07", "0.92", "0.83", "0.73", "0.8",
                                           "0.91", "0.99", "1.17", "1.24", "1.34"}));
}

// Twelve times 5.8: i = 12 (5.8 / 5)^1.514 = 15.0234834, a = 0.746498144.
TEST_F(ThornthwaiteTest, TheExponentHasAtLeastOneDecimal) {
    values(Year(12, "5.8"));
    click("bCalcular");
    EXPECT_EQ(text("txti"), "15.0235");
    EXPECT_EQ(text("txtA"), "0.7465");
}

TEST_F(ThornthwaiteTest, TheFactorsAreTakenBeforeASurplusMonthIsFound) {
    Year thirteen = temperatures;
    thirteen.push_back("20");
    values(thirteen);
    choose("cobLatitud", "20");
    choose("cobLatitudNS", "S");
    click("bCalcular");
    expectMessage(inadequate);
    cell("grdt", 13, 1);
    click("mnuEditEliminar");
    choose("cobLatitud", "12");
    click("bCalcular");
    EXPECT_EQ(rowText("grddis", 1), "Ene|22.6|9.815|87.028|1.14|99.212|3.2");
}

TEST_F(ThornthwaiteTest, TheEquatorIsNorthAndSouth) {
    values(temperatures);
    choose("cobLatitud", "0");
    click("bCalcular");
    const Year north = yearOf("grddis");
    EXPECT_EQ(cellText("grddis", 2, 4), "0.94");
    choose("cobLatitudNS", "S");
    click("bCalcular");
    EXPECT_EQ(yearOf("grddis"), north);
}

TEST_F(ThornthwaiteTest, ALatitudeOfNoTableKeepsTheFactors) {
    values(temperatures);
    choose("cobLatitud", "12");
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 1), "Ene|22.6|9.815|87.028|0.0|0.0|0.0");
    choose("cobLatitud", "10");
    click("bCalcular");
    choose("cobLatitud", "12");
    click("bCalcular");
    EXPECT_EQ(yearOf("grddis"), atTenNorth);
}

TEST_F(ThornthwaiteTest, AMonthOfZeroDegreesHasNoEvapotranspiration) {
    Year cold = temperatures;
    cold[0] = "0";
    values(cold);
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 1), "Ene|0.0|0.0|0.0|1.0|0.0|0.0");
}

TEST_F(ThornthwaiteTest, WritesTheSeparatorOfTheLocale) {
    values(temperatures);
    platform.separator = ",";
    click("bCalcular");
    EXPECT_EQ(text("txti"), "123,3116");
    EXPECT_EQ(rowText("grddis", 2), "Feb|23,1|10,145|92,518|0,91|84,191|3,01");
}

TEST_F(ThornthwaiteTest, AnEmptyGridHasBothMessages) {
    click("bCalcular");
    EXPECT_EQ(messages(), (std::vector{twelveMonths, inadequate}));
    EXPECT_EQ(yearOf("grddis"), Year(12, "||||||"));
    EXPECT_EQ(text("txti"), "");
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(ThornthwaiteTest, ElevenMonthsGoOnWithTheTemperaturesOfTheLastRun) {
    values(temperatures);
    click("bCalcular");
    click("bLimpiar");
    values(Year(11, "10"));
    click("bCalcular");
    expectMessage(twelveMonths);
    EXPECT_EQ(text("txti"), "123.3116");
    EXPECT_EQ(yearOf("grddis"), atTenNorth);
}

// Saving reads into the same arrays, labels and all. Of five months alone I = 52.48200.
TEST_F(ThornthwaiteTest, AFileThatWasSavedHandsItsMonthsToTheNextRun) {
    values(Year(temperatures.begin(), temperatures.begin() + 5));
    save(file("cinco.TM"));
    EXPECT_TRUE(messages().empty());
    click("bCalcular");
    expectMessage(twelveMonths);
    EXPECT_EQ(text("txti"), "52.482");
    EXPECT_EQ(cellText("grddis", 5, 0), "May");
    EXPECT_EQ(cellText("grddis", 5, 1), "24.1");
    EXPECT_EQ(rowText("grddis", 6), "|0.0|0.0|0.0|1.06|0.0|0.0");
}

TEST_F(ThornthwaiteTest, AThirteenthMonthIsInadequateAndTwelveOfThemAreRead) {
    values(Year(13, "20"));
    click("bCalcular");
    expectMessage(inadequate);
    EXPECT_EQ(text("txti"), "");
    click("bGraficar");
    expectMessage(notCalculated);
    for (int surplus = 0; surplus < 2; ++surplus) {
        cell("grdt", 1, 1);
        click("mnuEditEliminar");
    }
    click("bCalcular");
    expectMessage(twelveMonths);
    EXPECT_EQ(cellText("grddis", 12, 0), "Dic");
    EXPECT_EQ(cellText("grddis", 12, 1), "20.0");
}

TEST_F(ThornthwaiteTest, AMonthBelowZeroIsInadequate) {
    values(temperatures);
    click("bCalcular");
    put(3, 1, "-1");
    click("bCalcular");
    expectMessage(inadequate);
    EXPECT_EQ(yearOf("grddis"), atTenNorth) << "what was written stays";
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_NEAR(control<Graph>("Graph1").series()[0].y[2], 3.380944, 1e-6);
}

TEST_F(ThornthwaiteTest, APowerPastTheDoublesIsInadequate) {
    Year hot(12, "0");
    hot[0] = "1000";
    values(hot);
    click("bCalcular");
    expectMessage(inadequate);
}

TEST_F(ThornthwaiteTest, DrawsTheDailyValuesOverTheMonths) {
    click("bGraficar");
    expectMessage(notCalculated);
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    values(temperatures);
    click("bCalcular");
    click("bGraficar");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    const auto& chart = control<Graph>("Graph1");
    EXPECT_TRUE(chart.visible);
    EXPECT_EQ(chart.graphKind(), Graph::Kind::line);
    EXPECT_EQ(chart.style(), 0);
    EXPECT_EQ(chart.points(), 12);
    EXPECT_EQ(*chart.x(), (std::vector<double>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
    ASSERT_EQ(chart.series().size(), 1U);
    EXPECT_EQ(chart.series()[0].legend, "");
    const double daily[] = {2.807352, 3.006839, 3.380944, 3.701829, 3.628627, 3.470649,
                            3.341605, 3.350369, 3.183833, 2.971034, 2.807884, 2.677364};
    ASSERT_EQ(chart.series()[0].y.size(), 12U);
    for (std::size_t month = 0; month < 12; ++month)
        EXPECT_NEAR(chart.series()[0].y[month], daily[month], 1e-6) << month;
}

TEST_F(ThornthwaiteTest, LimpiarKeepsWhatWasComputedAndTheLatitude) {
    values(temperatures);
    choose("cobLatitud", "20");
    choose("cobLatitudNS", "S");
    click("bCalcular");
    click("bGraficar");
    const auto drawn = control<Graph>("Graph1").series()[0].y;
    click("bLimpiar");
    EXPECT_EQ(rowText("grdt", 1), "[?]|");
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    EXPECT_EQ(yearOf("grddis"), Year(12, "||||||"));
    EXPECT_EQ(text("txti"), "");
    EXPECT_EQ(text("txtA"), "");
    EXPECT_EQ(text("cobLatitud"), "20");
    EXPECT_EQ(text("cobLatitudNS"), "S");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_TRUE(control<Graph>("Graph1").series().empty());
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(control<Graph>("Graph1").series()[0].y, drawn);
}

TEST_F(ThornthwaiteTest, AccesarTakesTheResultsAndTheFlagAwayBeforeItsDialog) {
    values(temperatures);
    click("bCalcular");
    click("bGraficar");
    click("bAccesar");
    EXPECT_EQ(yearOf("grddis"), Year(12, "||||||"));
    EXPECT_EQ(text("txti"), "");
    EXPECT_EQ(text("txtA"), "");
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    EXPECT_EQ(control<MSFlexGrid>("grdt").Rows(), 2);
    click("bGraficar");
    expectMessage(notCalculated);
}

TEST_F(ThornthwaiteTest, FilesHoldTheTemperatures) {
    values({"22.6", "-3.14159"});
    save(file("dos.TM"));
    // 22.6 and -3.14159 as singles: 41B4CCCD, C0490FD0.
    EXPECT_EQ(bytesOf(file("dos.TM")), (Bytes{0xCD, 0xCC, 0xB4, 0x41, 0xD0, 0x0F, 0x49, 0xC0}));
    writeSingles(file("tres.TM"), {22.6F, -3.14159F, 7});
    load(file("tres.TM"));
    EXPECT_EQ(rowText("grdt", 1), "Ene|22.6");
    EXPECT_EQ(rowText("grdt", 2), "Feb|-3.14");
    EXPECT_EQ(rowText("grdt", 3), "Mar|7.0");
    EXPECT_EQ(rowText("grdt", 4), "[->]|");
    EXPECT_TRUE(messages().empty());
}

TEST_F(ThornthwaiteTest, LoadedTemperaturesHaveTwoDecimalsAtMost) {
    writeSingles(file("cuatro.TM"), {20.005F, 1.005F, -0.004F, 0.045F});
    load(file("cuatro.TM"));
    EXPECT_EQ(rowText("grdt", 1), "Ene|20.01");
    EXPECT_EQ(rowText("grdt", 2), "Feb|1.01");
    EXPECT_EQ(rowText("grdt", 3), "Mar|0.0");
    EXPECT_EQ(rowText("grdt", 4), "Abr|0.05");
}

// The grid is read before the file is opened: 13 months are one too many, and a value past the
// singles comes before that, silently.
TEST_F(ThornthwaiteTest, ACancelledSaveReadsTheGridAllTheSame) {
    Year thirteen(13, "20");
    thirteen[0] = "1e39";
    values(thirteen);
    click("bCrear");
    EXPECT_FALSE(platform.ending);
    EXPECT_TRUE(messages().empty());
    put(1, 1, "20");
    click("bCrear");
    EXPECT_TRUE(fatal(9));
}

TEST_F(ThornthwaiteTest, SavingAThirteenthMonthIsFatal) {
    values(Year(13, "20"));
    save(file("trece.TM"));
    EXPECT_TRUE(fatal(9));
    EXPECT_FALSE(std::filesystem::exists(file("trece.TM")));
}

TEST_F(ThornthwaiteTest, ReadsTheTableFileAnewWhenItIsOpened) {
    const std::string name = "FThornthwite.TF";
    const std::filesystem::path folder = std::filesystem::path(file("a")).parent_path();
    writeSingles(file(name), std::vector<float>(252, 2));
    reopen("frmThornthwaite", folder);
    values(temperatures);
    writeSingles(file(name), std::vector<float>(252, 3));
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 1, 4), "2.0");
    reopen("frmThornthwaite", folder);
    values(temperatures);
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 1, 4), "3.0");
    EXPECT_EQ(cellText("grddis", 1, 5), "261.084");
}

TEST_F(ThornthwaiteTest, WithoutItsTableFileAllIsZeroAndNothingIsSaid) {
    reopen("frmThornthwaite", file("none"));
    values(temperatures);
    click("bCalcular");
    click("bGraficar");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 1), "Ene|22.6|9.815|87.028|0.0|0.0|0.0");
}

TEST_F(ThornthwaiteTest, AFactorThatIsNoNumberIsInadequate) {
    std::vector<float> factors(252, 1);
    factors[96] = std::numeric_limits<float>::quiet_NaN();
    writeSingles(file("FThornthwite.TF"), factors);
    reopen("frmThornthwaite", std::filesystem::path(file("a")).parent_path());
    values(temperatures);
    click("bCalcular");
    expectMessage(inadequate);
    choose("cobLatitud", "5");
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
}

const std::string title = "Resultados\n\nCálculo de la evapotranspiración potencial por el método "
                          "de Thornthwaite\n\n\n";
const std::string rule40(40, '-');
const std::string rule155(155, '-');

TEST_F(ThornthwaiteTest, ReportsDataAndResults) {
    values(temperatures);
    click("bCalcular");
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    std::string expected = title + "Serie de datos de temperaturas mensuales\n\n" + rule40 +
                           "\n Mes\t       Temperatura\t\n" + rule40 + "\n";
    for (std::size_t month = 0; month < 12; ++month)
        expected += monthLabels[month] + "\t\t" + temperatures[month] + "\t\t\n";
    expected +=
        rule40 +
        "\n\nResultado del cálculo de la evapotranspiración potencial, método de "
        "Thornthwaite:\n\n"
        " Indice térmico anual (I) = 123.3116\n"
        " Exponente (a) = 2.79561\n" +
        rule155 + "\n" +
        "Mes            Temperatura             Indice             ETo             Factor f "
        "          ETr mensual       ETr diaria (mm) \n" +
        rule155 + "\n";
    for (const std::string& row : atTenNorth) {
        for (const char letter : row)
            expected += letter == '|' ? "\t\t" : std::string(1, letter);
        expected += "\t\t\n";
    }
    EXPECT_EQ(report(), expected + rule155 + "\n");
}

TEST_F(ThornthwaiteTest, ReportsTheAppendRowAsItsTwelfthAndFailsWithFewer) {
    values(Year(11, "20"));
    cell("grdt", 1, 1);
    click("bReporte");
    EXPECT_TRUE(messages().empty());
    EXPECT_NE(report().find("Nov\t\t20.0\t\t\n[?]\t\t\t\t\n" + rule40 + "\n\nResultado del"),
              std::string::npos);
    EXPECT_NE(report().find(" Indice térmico anual (I) = \n Exponente (a) = \n"),
              std::string::npos);
    click("mnuEditEliminar");
    click("bReporte");
    expectMessage(told("No se puede editar el reporte: Cálculo de la evapotranspiración potencial "
                       "por el método de Thornthwaite"));
    EXPECT_TRUE(report().ends_with("Oct\t\t20.0\t\t\n[?]\t\t\t\t\n"));
}

} // namespace
} // namespace caudalera
