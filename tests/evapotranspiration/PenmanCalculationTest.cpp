// The Penman window's numbers, through its fields.

#include "tests/evapotranspiration/PenmanTest.h"

namespace caudalera {
namespace {

// 12 degrees south, October: phi = -0.2094395, delta = -0.1669, dr = 0.98693.
//   ws = arccos(-tan phi tan delta) = arccos(-0.0358088) = 1.606613;  N = 24 ws / pi = 12.2736
//   Ra = 916.732 / 58.98757 / 0.98693 x (ws sin phi sin delta + cos phi cos delta sin ws) = 16.0529
//   n/N = 7.2 / 12.2736 = 0.58662
//   f(z) = 4.87 / ln(67.8 x 3 - 5.42) + 0.01 = 0.93092;  U2 = 11.1711 km/hr = 3.10308 m/s
//   ea = 6.108 exp(17.27 x 24.3 / 261.6) = 30.3807;  ed = 0.68 ea = 20.6589;  ea - ed = 9.7218
//   slope = 4098 ea / 261.6^2 = 1.81926;  P = 101.3 (1 - 1.625 / 293)^5.296 = 98.3598
//   gamma = 0.016286 P / (2.501 - 0.002361 x 24.3) = 0.65554;  w = 1.81926 / 2.47480 = 0.73511
//   f(u) = 0.27 (1 + 24 x 11.1711 / 100) = 0.99389;  Rs = (0.25 + 0.5 x 0.58662) Ra = 8.7217
//   Rns = 0.75 Rs = 6.5413;  f(t) = 297.46^4 x 4.9e-9 / 2.47 = 15.5315
//   f(ed) = 0.34 - 0.044 sqrt(ed) = 0.14001;  f(n/N) = 0.1 + 0.9 x 0.58662 = 0.62796
//   Rn1 = 15.5315 x 0.14001 x 0.62796 = 1.36555;  Rn = 6.5413 - 1.3656 = 5.1757
//   c, with U = 3.10308, r = 1.8, H = 90, in the order of its terms:
//     0.0592706 + 0.6496494 + 0.3155516 + 0.0985290 + 0.0868111 + 0.0178378 - 0.0077818
//     - 0.0357543 - 0.0126378 = 1.1714756
//   w Rn = 3.80476;  (1 - w) f(u) (ea - ed) = 2.55943;  ETo = c x 6.36419 = 7.4555
TEST_F(PenmanTest, ShowsEveryTermOfAMonthSouthOfTheEquator) {
    fill();
    choose("cobNS", "S");
    choose("cobMes", "Octubre");
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    expectTexts({{"txtRa", "16.05"}, {"txtN", "12.27"},       {"txtRnpNg", "0.59"},
                 {"txtFhv", "0.93"}, {"txtU2", "11.17"},      {"txtea", "30.38"},
                 {"txted", "20.66"}, {"txteaed", "9.72"},     {"txtw", "0.74"},
                 {"txt1w", "0.26"},  {"txtfu", "0.99"},       {"txtft", "15.53"},
                 {"txtfed", "0.14"}, {"txtfnN", "0.63"},      {"txtRn1", "1.37"},
                 {"txtRs", "8.72"},  {"txtRns", "6.54"},      {"txtRn", "5.18"},
                 {"txtC", "1.17"},   {"txtRadiacion", "3.8"}, {"txtAdveccion", "2.56"},
                 {"txtETo", "7.46"}});
}

// On the equator ws = pi / 2 whatever the declination, so N = 12 and Ra = k cos(delta) / dr with
// k = 916.732 / 58.98757 = 15.541105: June, cos(0.4017) = 0.920398, k x 0.920398 / 1.03241 =
// 13.85496; January, cos(0.3656) = 0.933910, k x 0.933910 / 0.97104 = 14.94685.
TEST_F(PenmanTest, GivesTwelveHoursOnTheEquatorInEveryMonth) {
    fill({{"txtLatitud", "0"}});
    for (const std::string& month : control<List>("cobMes").items()) {
        choose("cobMes", month);
        click("bCalcular");
        EXPECT_EQ(text("txtN"), "12.0") << month;
    }
    choose("cobMes", "Junio");
    click("bCalcular");
    EXPECT_EQ(text("txtRa"), "13.85");
    choose("cobMes", "Enero");
    click("bCalcular");
    EXPECT_EQ(text("txtRa"), "14.95");
}

// Published example of the method: FAO Irrigation and Drainage Paper 24, Cairo in July (30 N,
// 95 m, T 28.5, RHmean 55, wind 232 km/day at 2 m, n 11.5): N 13.9, Ra 16.8, ea 38.9, ed 21.4,
// f(u) 0.90, 1 - W 0.23, W 0.77, Rs 11.2, Rns 8.4, Rn 6.6. It reads N, Ra and the terms from
// tables of two or three digits, hence the tolerances.
TEST_F(PenmanTest, ComesToThePublishedTermsOfCairoInJuly) {
    fill({{"txtLatitud", "30"},
          {"txth", "95"},
          {"txtT", "28.5"},
          {"txtHRmed", "55"},
          {"txtHRmax", "80"},
          {"txtUz", "9.6666666667"},
          {"txtHz", "2"},
          {"txtRVdVn", "1.5"},
          {"txtnp", "11.5"}});
    choose("cobMes", "Julio");
    click("bCalcular");
    const auto expectNear = [&](const char* name, double published, double tolerance) {
        EXPECT_NEAR(std::stod(text(name)), published, tolerance) << name;
    };
    expectNear("txtN", 13.9, 0.2);
    expectNear("txtRa", 16.8, 0.1);
    expectNear("txtea", 38.9, 0.05);
    expectNear("txted", 21.4, 0.05);
    expectNear("txteaed", 17.5, 0.05);
    expectNear("txtfu", 0.90, 0.005);
    expectNear("txtw", 0.77, 0.005);
    expectNear("txt1w", 0.23, 0.005);
    expectNear("txtRs", 11.2, 0.05);
    expectNear("txtRns", 8.4, 0.05);
    expectNear("txtRn", 6.6, 0.15);
}

TEST_F(PenmanTest, TheHemisphereTurnsOnlyTheLatitude) {
    fill();
    click("bCalcular");
    const double north = std::stod(text("txtN"));
    choose("cobNS", "S");
    click("bCalcular");
    // Day and night change places: the hours of the two sum up to 24.
    EXPECT_NEAR(north + std::stod(text("txtN")), 24, 0.011);
    enter("txtLatitud", "-12");
    click("bCalcular");
    EXPECT_NEAR(std::stod(text("txtN")), north, 1e-9);
    // Anything but "S" is north.
    choose("cobNS", "s");
    enter("txtLatitud", "12");
    click("bCalcular");
    EXPECT_NEAR(std::stod(text("txtN")), north, 1e-9);
}

// At 40 N in June N = 24 arccos(-tan(40) tan(0.4017)) / pi = 14.78 and Ra = 17.2378: 20 hours are
// more than that, Rs = 0.75 Ra = 12.9283.
TEST_F(PenmanTest, CapsTheRelativeSunshine) {
    fill({{"txtLatitud", "40"}, {"txtnp", "20"}});
    choose("cobMes", "Junio");
    click("bCalcular");
    expectTexts({{"txtN", "14.78"},
                 {"txtRnpNg", "1.0"},
                 {"txtfnN", "1.0"},
                 {"txtRa", "17.24"},
                 {"txtRs", "12.93"}});
}

// 4.87 / ln(130.18) = 1.00022; 4.87 / ln(130.858) + 0.01 = 0.99916 + 0.01.
TEST_F(PenmanTest, CorrectsTheWindByAHundredthAboveTwoMetresOnly) {
    fill({{"txtHz", "2"}});
    click("bCalcular");
    EXPECT_EQ(text("txtFhv"), "1.0");
    enter("txtHz", "2.01");
    click("bCalcular");
    EXPECT_EQ(text("txtFhv"), "1.01");
}

TEST_F(PenmanTest, DryAirGivesTheWholeVapourPressureFunction) {
    fill({{"txtHRmed", "0"}});
    click("bCalcular");
    expectTexts({{"txted", "0.0"}, {"txteaed", "30.38"}, {"txtfed", "0.34"}});
}

TEST_F(PenmanTest, ReadsTheNumericPrefixOfAText) {
    fill({{"txtLatitud", "abc"}, {"txtHRmed", "50,9"}});
    click("bCalcular");
    EXPECT_TRUE(messages().empty());
    // No number is latitude 0; 50,9 is 50: half of 30.3807.
    expectTexts({{"txtN", "12.0"}, {"txted", "15.19"}});
}

TEST_F(PenmanTest, WritesTheSeparatorOfTheLocale) {
    platform.separator = ",";
    fill({{"txtHRmed", "0"}});
    click("bCalcular");
    EXPECT_EQ(text("txtfed"), "0,34");
}

// 67.8 x 0.0799 - 5.42 is below 0; 67.8 x 0.08 - 5.42 = 0.004, and 4.87 / ln(0.004) = -0.88201.
TEST_F(PenmanTest, EndsWhereTheWindHeightHasNoLogarithm) {
    fill({{"txtHz", "0.08"}});
    click("bCalcular");
    EXPECT_EQ(text("txtFhv"), "-0.88");
    EXPECT_FALSE(platform.ending);
    enter("txtHz", "0.0799");
    click("bCalcular");
    EXPECT_TRUE(fatal(5));
    EXPECT_TRUE(messages().empty());
}

// At 70 N in June tan(70) tan(0.4017) = 1.17: the sun does not set.
TEST_F(PenmanTest, EndsInPolarDay) {
    fill({{"txtLatitud", "70"}});
    choose("cobMes", "Junio");
    click("bCalcular");
    EXPECT_TRUE(fatal(5));
}

TEST_F(PenmanTest, EndsInPolarNight) {
    fill({{"txtLatitud", "70"}});
    choose("cobNS", "S");
    choose("cobMes", "Junio");
    click("bCalcular");
    EXPECT_TRUE(fatal(5));
}

TEST_F(PenmanTest, EndsAtTheTemperatureThatDividesByZero) {
    fill({{"txtT", "-237.3"}});
    click("bCalcular");
    EXPECT_TRUE(fatal(11));
}

} // namespace
} // namespace caudalera
