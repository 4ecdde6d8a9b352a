// The Blaney-Criddle window: its calculation.

#include "tests/evapotranspiration/BlaneyCriddleTest.h"

#include <filesystem>
#include <string>
#include <vector>

namespace caudalera {
namespace {

TEST_F(BlaneyCriddleTest, ComputesTheYearFromEstimatedClasses) {
    values(temperatures);
    estimate();
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(yearOf("grddis"), estimatedAtTenNorth);
}

// 50 N, n = 9.6: n / N is 1.13 in January, 0.81 in March, 0.70 in April, 0.62 in May, 0.59 in June,
// 0.60 in July, 0.66 in August, 0.76 in September, 0.89 in October. Humid and windy: a and b are
// -1.7, 1.31 (clear), -1.7, 1.16 and -1.65, 0.98 (June). Kc = 1.1.
TEST_F(BlaneyCriddleTest, MeasuredSunshineHasAClassEachMonth) {
    values(temperatures);
    choose("cobLatitud", "50");
    measure("9.6", "51", "18.1");
    choose("cobKc", "Arroz (1.10)");
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(yearOf("grddis"),
              (Year{"Ene|22.6|0.19|2.911|3.202|99.27", "Feb|23.1|0.23|3.951|4.346|121.7",
                    "Mar|23.9|0.27|5.064|5.571|172.69", "Abr|24.4|0.31|5.26|5.786|173.57",
                    "May|24.1|0.34|5.879|6.467|200.47", "Jun|23.6|0.36|5.048|5.553|166.59",
                    "Jul|23.4|0.35|5.971|6.568|203.61", "Ago|23.5|0.32|5.331|5.864|181.77",
                    "Set|23.2|0.28|4.407|4.848|145.43", "Oct|22.9|0.24|4.168|4.585|142.13",
                    "Nov|22.5|0.2|3.142|3.456|103.68", "Dic|22.3|0.18|2.636|2.899|89.88"}));
}

// 60 S has daytime of its own and the sunshine of 50 S. Dry and calm; beans stand for 0.65.
TEST_F(BlaneyCriddleTest, BeyondFiftyDegreesTheSunshineIsThatOfFifty) {
    values(temperatures);
    choose("cobLatitud", "60");
    choose("cobLatitudNS", "S");
    measure("9.6", "19", "7");
    choose("cobKc", "Frijoles (0.85)");
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(yearOf("grddis"),
              (Year{"Ene|22.6|0.4|7.704|5.008|155.24", "Feb|23.1|0.34|6.309|4.101|114.82",
                    "Mar|23.9|0.28|4.929|3.204|99.32", "Abr|24.4|0.22|4.0|2.6|77.99",
                    "May|24.1|0.17|2.463|1.601|49.64", "Jun|23.6|0.13|1.226|0.797|23.9",
                    "Jul|23.4|0.15|1.793|1.165|36.13", "Ago|23.5|0.2|3.271|2.126|65.92",
                    "Set|23.2|0.26|4.977|3.235|97.06", "Oct|22.9|0.32|5.763|3.746|116.12",
                    "Nov|22.5|0.38|7.18|4.667|140.01", "Dic|22.3|0.41|6.67|4.335|134.4"}));
}

// One month's ETo tells the coefficients: January at 10 N has f = 4.816760.
TEST_F(BlaneyCriddleTest, EachChoiceHasItsClass) {
    values(temperatures);
    estimate();
    const auto january = [this](const std::string& list, const std::string& item) {
        choose(list, item);
        click("bCalcular");
        return cellText("grddis", 1, 3);
    };
    // Humidity medium, wind medium: -2.5 + 1.61 f, -2.15 + 1.38 f, -1.85 + 1.15 f.
    EXPECT_EQ(january("cobInsolacion", "Despejado (0.85-0.95)"), "5.255");
    EXPECT_EQ(january("cobInsolacion", "Nublado parcial (0.65-0.85)"), "4.497");
    EXPECT_EQ(january("cobInsolacion", "Nublado (0.30-0.60)"), "3.689");
    EXPECT_EQ(january("cobInsolacion", "Cubierto (0.15-0.25)"), "3.689");
    // Little sun, wind medium: -1.8 + 1.28 f, -1.55 + 0.88 f.
    EXPECT_EQ(january("cobHumedad", "Baja (< 20)"), "4.365");
    EXPECT_EQ(january("cobHumedad", "Alta (>50)"), "2.689");
    // Little sun, humid: -1.45 + 0.80 f, -1.65 + 0.98 f.
    EXPECT_EQ(january("cobViento", "Débil (< 7.2)"), "2.403");
    EXPECT_EQ(january("cobViento", "Fuerte ( >18)"), "3.07");
    // Much sun, dry air, medium wind: -2.3 + 1.12 f.
    choose("cobInsolacion", "Despejado (0.85-0.95)");
    choose("cobHumedad", "Baja (< 20)");
    EXPECT_EQ(january("cobViento", "Moderado (7.2-18)"), "3.095");
}

// At 10 N, n = 7.2 and N = 12 in March: 0.6 exactly, medium, as are 20 % and 7.2 km/hr, 50 % and 18
// km/hr. f = 5.163480: -2.15 + 1.38 f = 4.9756; with 19.9 % -2.05 + 1.55 f, with 50.1 % -1.75 +
// 1.06 f, with 7.1 km/hr -2.2 + 1.20 f, with 18.1 km/hr -2.1 + 1.52 f, with n = 7.1 -1.85 + 1.15 f.
TEST_F(BlaneyCriddleTest, TheLimitsOfMeasuredClassesAreMedium) {
    values(temperatures);
    choose("cobKc", "Alfalfa (0.85)");
    const auto march = [this](const char* n, const char* HRmin, const char* U) {
        measure(n, HRmin, U);
        click("bCalcular");
        return cellText("grddis", 3, 3);
    };
    EXPECT_EQ(march("7.2", "20", "7.2"), "4.976");
    EXPECT_EQ(march("7.2", "50", "18"), "4.976");
    EXPECT_EQ(march("7.2", "19.9", "18"), "5.953");
    EXPECT_EQ(march("7.2", "50.1", "18"), "3.723");
    EXPECT_EQ(march("7.2", "50", "7.1"), "3.996");
    EXPECT_EQ(march("7.2", "50", "18.1"), "5.748");
    EXPECT_EQ(march("7.1", "50", "18"), "4.088");
}

TEST_F(BlaneyCriddleTest, TakesTheCoefficientFromTheListOrTheField) {
    values(temperatures);
    estimate();
    // January's ETo is 5.254983.
    const auto january = [this](const std::string& crop) {
        choose("cobKc", crop);
        click("bCalcular");
        return cellText("grddis", 1, 4);
    };
    EXPECT_EQ(january("Frijoles (0.85)"), "3.416");
    EXPECT_EQ(january("Tabaco (0.70)"), "3.941");
    EXPECT_EQ(january("Tomate (0.70)"), "3.678");
    click("optKcTabla");
    enter("txtKcTabla", "2");
    click("bCalcular");
    EXPECT_EQ(cellText("grddis", 1, 4), "10.51");
    EXPECT_TRUE(messages().empty());
}

// At -10 degrees f = (8.13 - 4.6) 0.26 = 0.9178: -2.5 + 1.61 f = -1.02234.
TEST_F(BlaneyCriddleTest, ASmallFactorGivesANegativeEvapotranspiration) {
    values(Year(12, "-10"));
    estimate();
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 1), "Ene|-10.0|0.26|-1.022|-0.869|-26.94");
}

TEST_F(BlaneyCriddleTest, ALatitudeOfNoTableKeepsTheYearsLight) {
    values(temperatures);
    estimate();
    choose("cobLatitud", "55");
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 1), "Ene|22.6|0.0|-2.5|-2.125|-65.88");
    choose("cobLatitud", "10");
    click("bCalcular");
    choose("cobLatitud", "55");
    click("bCalcular");
    EXPECT_EQ(yearOf("grddis"), estimatedAtTenNorth);
}

TEST_F(BlaneyCriddleTest, WritesTheSeparatorOfTheLocale) {
    values(temperatures);
    estimate();
    platform.separator = ",";
    click("bCalcular");
    EXPECT_EQ(rowText("grddis", 1), "Ene|22,6|0,26|5,255|4,467|138,47");
}

TEST_F(BlaneyCriddleTest, DrawsTheDailyValuesOverTheMonths) {
    click("bGraficar");
    expectMessage(notCalculated);
    EXPECT_FALSE(control<Graph>("Graph1").visible);
    values(temperatures);
    estimate();
    click("bCalcular");
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
    ASSERT_EQ(chart.series()[0].y.size(), 12U);
    for (std::size_t month = 0; month < 12; ++month) {
        EXPECT_NEAR(chart.series()[0].y[month],
                    std::stod(cellText("grddis", static_cast<long>(month) + 1, 4)), 0.000501);
    }
    EXPECT_NEAR(chart.series()[0].y[0], 4.466736, 1e-6);
}

// A table of sunshine that ends in May stops the calculation in June; the months before it have
// their new values, as the chart shows.
TEST_F(BlaneyCriddleTest, AMonthWithoutSunshineHoursIsInadequate) {
    const std::filesystem::path folder = std::filesystem::path(file("a")).parent_path();
    writeSingles(file("PBlaneyCriddle.BP"), std::vector<float>(444, 0.25F));
    writeSingles(file("InsolacionMaxN.NN"), std::vector<float>(137, 12));
    reopen("frmBlaneyCriddle", folder);
    values(temperatures);
    estimate();
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    click("bGraficar");
    const auto estimated = control<Graph>("Graph1").series()[0].y;
    const Year written = yearOf("grddis");
    measure("7.2", "30", "10");
    click("bCalcular");
    expectMessage(inadequate);
    EXPECT_EQ(yearOf("grddis"), written);
    click("bGraficar");
    const auto& drawn = control<Graph>("Graph1").series()[0].y;
    EXPECT_TRUE(messages().empty());
    for (std::size_t month = 0; month < 12; ++month)
        EXPECT_EQ(drawn[month] == estimated[month], month >= 5) << month;
    // March: (0.46 x 23.9 + 8.13) / 4 = 4.781; 0.85 (-2.15 + 1.38 x 4.781) = 3.780613.
    EXPECT_NEAR(drawn[2], 3.780613, 1e-6);
}

TEST_F(BlaneyCriddleTest, WithoutTheTableOfSunshineOnlyMeasuredDataAreInadequate) {
    reopen("frmBlaneyCriddle", file("none"));
    values(temperatures);
    measure("7.2", "30", "10");
    choose("cobKc", "Alfalfa (0.85)");
    click("bCalcular");
    expectMessage(inadequate);
    EXPECT_EQ(yearOf("grddis"), noResults);
    click("bGraficar");
    expectMessage(notCalculated);
    click("OptEstimado");
    estimate();
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(rowText("grddis", 1), "Ene|22.6|0.0|-2.5|-2.125|-65.88");
}

TEST_F(BlaneyCriddleTest, ReadsItsTableFilesAnewWhenItIsOpened) {
    const std::filesystem::path folder = std::filesystem::path(file("a")).parent_path();
    writeSingles(file("PBlaneyCriddle.BP"), std::vector<float>(600, 0.25F));
    writeSingles(file("InsolacionMaxN.NN"), std::vector<float>(600, 12));
    reopen("frmBlaneyCriddle", folder);
    values(temperatures);
    measure("9.6", "30", "10");
    choose("cobKc", "Alfalfa (0.85)");
    writeSingles(file("PBlaneyCriddle.BP"), std::vector<float>(444, 0.5F));
    writeSingles(file("InsolacionMaxN.NN"), std::vector<float>(324, 8));
    click("bCalcular");
    // f = 18.526 / 4 = 4.6315, 0.8 is medium: -2.15 + 1.38 f.
    EXPECT_EQ(rowText("grddis", 1).substr(0, 19), "Ene|22.6|0.25|4.241");
    reopen("frmBlaneyCriddle", folder);
    values(temperatures);
    measure("9.6", "30", "10");
    choose("cobKc", "Alfalfa (0.85)");
    click("bCalcular");
    // f = 9.263, clear: -2.5 + 1.61 f.
    EXPECT_EQ(rowText("grddis", 1).substr(0, 19), "Ene|22.6|0.5|12.413");
}

} // namespace
} // namespace caudalera
