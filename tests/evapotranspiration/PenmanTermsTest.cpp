// Single terms of the Penman method.

#include "evapotranspiration/penman.h"

#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace caudalera {
namespace {

// FAO Irrigation and Drainage Paper 56, annex 2, table 2.3: saturation vapour pressure in kPa,
// three decimals; a mbar is a tenth of a kPa. The constant 6.108 is that of the paper.
TEST(PenmanTerms, VapourPressureIsThatOfTheTable) {
    const double table[][2] = {{1, 0.657},    {10, 1.228}, {15, 1.705}, {20, 2.338},
                               {24.5, 3.075}, {30, 4.243}, {40, 7.376}};
    for (const auto& [T, kPa] : table)
        EXPECT_NEAR(presionDeVaporSaturado(T).value(), 10 * kPa, 0.0051) << T;
}

// The values below, where no table is named, are the formulas of the sources in 40 decimal digits.

TEST(PenmanTerms, VapourPressureIsThatOfTheFormula) {
    const double exact[][2] = {{-10, 2.8571098216674128},
                               {0, 6.108},
                               {10, 12.279626193393785},
                               {25, 31.677777175068475},
                               {42.5, 84.167797588218453}};
    for (const auto& [T, mbar] : exact)
        EXPECT_NEAR(presionDeVaporSaturado(T).value(), mbar, 1e-13 * mbar) << T;
}

TEST(PenmanTerms, WindAtTwoMetresIsLogarithmicAndShiftedAboveTwo) {
    const VientoPenman atTwo = vientoADosMetros(36, 2);
    EXPECT_NEAR(atTwo.fz.value(), 4.87 / std::log(130.18), 1e-14);
    const VientoPenman above = vientoADosMetros(36, 10);
    // FAO Irrigation and Drainage Paper 56, annex 2, table 2.9: 0.748 at 10 m, without the shift.
    EXPECT_NEAR(above.fz.value(), 0.748 + 0.01, 0.0005);
    EXPECT_NEAR(above.U2.value(), 36 * above.fz.value(), 1e-12);
    // 36 km/hr are 10 m/s and 864 km/day.
    EXPECT_NEAR(above.U.value(), 10 * above.fz.value(), 1e-12);
    EXPECT_NEAR(above.Ukm.value(), 864 * above.fz.value(), 1e-10);
}

TEST(PenmanTerms, WindIsShiftedFromTwoMetresOnExactly) {
    EXPECT_NEAR(vientoADosMetros(36, 1.9999).fz.value(), 4.87 / std::log(67.8 * 1.9999 - 5.42),
                1e-14);
    EXPECT_NEAR(vientoADosMetros(36, 2.0001).fz.value(),
                4.87 / std::log(67.8 * 2.0001 - 5.42) + 0.01, 1e-14);
}

// FAO Irrigation and Drainage Paper 24, table of the weighting factor W (two decimals): at altitude
// 0 0.55 at 10 degrees, 0.78 at 30, 0.85 at 40; at 20 degrees 0.71 at 1000 m and 0.73 at 2000 m.
TEST(PenmanTerms, WeightingFactorIsThatOfTheTable) {
    const double table[][3] = {
        {10, 0, 0.55}, {30, 0, 0.78}, {40, 0, 0.85}, {20, 1000, 0.71}, {20, 2000, 0.73}};
    for (const auto& [T, h, w] : table)
        EXPECT_NEAR(factorDePonderacion(T, h, presionDeVaporSaturado(T)).value(), w, 0.0055)
            << T << " " << h;
}

TEST(PenmanTerms, WeightingFactorIsThatOfTheFormula) {
    EXPECT_NEAR(factorDePonderacion(12.5, 850, 14).value(), 0.60372062512097889, 1e-14);
    EXPECT_NEAR(factorDePonderacion(25, 0, 30).value(), 0.72564620908516609, 1e-14);
    EXPECT_NEAR(factorDePonderacion(31, 2400, 45).value(), 0.83435510965934618, 1e-14);
}

// At altitudes where the barometric formula's base is negative.
TEST(PenmanTerms, WeightingFactorFailsAboveTheAtmosphere) {
    EXPECT_EQ(testing::failureNumber([] { factorDePonderacion(20, 50000, 23.38); }), 5);
}

// Without wind only 0.892 + (0.000402 - 0.0000161) H Rs is left: 0.892 + 0.0003859 x 500.
TEST(PenmanTerms, AdjustmentFactorWithoutWind) {
    EXPECT_NEAR(factorDeAjuste(0, 3, 50, 10).value(), 1.08495, 1e-12);
}

// U = 2, r = 3, H = 50, Rs = 10, term by term: 0.0438; -0.1562 + 0.892 = 0.7358; 0.201; 0.0588;
// 0.0594; 0.00472; -0.00774; -0.00876; -0.00805.
TEST(PenmanTerms, AdjustmentFactorByHand) {
    EXPECT_NEAR(factorDeAjuste(2, 3, 50, 10).value(), 1.07897, 1e-12);
}

TEST(PenmanTerms, AdjustmentFactorFarFromTheMiddle) {
    EXPECT_NEAR(factorDeAjuste(1.3, 0.9, 35, 4.5).value(), 0.875801987235, 1e-14);
    EXPECT_NEAR(factorDeAjuste(6.5, 2.2, 97, 13.5).value(), 1.48407415899, 1e-14);
}

struct Exact {
    const char* name;
    Real computed;
    double value;
};

void expectExact(const std::vector<Exact>& terms) {
    for (const auto& [name, computed, value] : terms)
        EXPECT_NEAR(computed.value(), value, 1e-13 * value) << name;
}

// South of the equator, cloudy, wind measured above 2 m.
TEST(PenmanTerms, AllOfACloudyMonth) {
    const TerminosPenman terms = penman({.latitud = -0.3,
                                         .declinacion = 0.25,
                                         .dr = 1.02,
                                         .h = 640,
                                         .T = 21.5,
                                         .HRmed = 62,
                                         .HRmax = 88,
                                         .Uz = 14,
                                         .hz = 3,
                                         .VdVn = 1.7,
                                         .n = 6.5});
    expectExact({{"Ra", terms.Ra, 12.397549580215230},
                 {"N", terms.N, 11.395958291033535},
                 {"nN", terms.nN, 0.57037765793810174},
                 {"fz", terms.fz, 0.93092418916754019},
                 {"U2", terms.U2, 13.032938648345563},
                 {"ea", terms.ea, 25.644197206554635},
                 {"ed", terms.ed, 15.899402268063874},
                 {"deficit", terms.deficit, 9.7447949384907613},
                 {"w", terms.w, 0.71539654294269912},
                 {"unoMenosW", terms.unoMenosW, 0.28460345705730088},
                 {"fu", terms.fu, 1.1145344244127925},
                 {"ft", terms.ft, 14.954912103220952},
                 {"fed", terms.fed, 0.16455415994965381},
                 {"fnN", terms.fnN, 0.61333989214429157},
                 {"Rs", terms.Rs, 6.6350300419211369},
                 {"Rns", terms.Rns, 4.9762725314408527},
                 {"Rn1", terms.Rn1, 1.5093638461353771},
                 {"Rn", terms.Rn, 3.4669086853054756},
                 {"c", terms.c, 1.0411987256431183},
                 {"terRadiacion", terms.terRadiacion, 2.4802144881655552},
                 {"terAdveccion", terms.terAdveccion, 3.0910523670896562},
                 {"ETo", terms.ETo, 5.8007959499094691}});
}

// North of it, without a cloud (15 hours of the 13.3 that there are), wind measured at 2 m.
TEST(PenmanTerms, AllOfACloudlessMonth) {
    const TerminosPenman terms = penman({.latitud = 0.5,
                                         .declinacion = 0.3,
                                         .dr = 0.98,
                                         .h = 95,
                                         .T = 28.5,
                                         .HRmed = 55,
                                         .HRmax = 80,
                                         .Uz = 9.5,
                                         .hz = 2,
                                         .VdVn = 2.5,
                                         .n = 15});
    EXPECT_EQ(terms.nN, 1);
    expectExact({{"Ra", terms.Ra, 17.014925188844356},
                 {"N", terms.N, 13.297222446956175},
                 {"fz", terms.fz, 1.0002222037487032},
                 {"U2", terms.U2, 9.5021109356126808},
                 {"w", terms.w, 0.77101802889066194},
                 {"fu", terms.fu, 0.88573678862770172},
                 {"ft", terms.ft, 16.427445446019354},
                 {"fed", terms.fed, 0.13644310562385713},
                 {"fnN", terms.fnN, 1.0},
                 {"Rs", terms.Rs, 12.761193891633267},
                 {"Rns", terms.Rns, 9.5708954187249504},
                 {"Rn1", terms.Rn1, 2.2414116741213694},
                 {"c", terms.c, 1.3543366385099600},
                 {"terRadiacion", terms.terRadiacion, 5.6511641095504009},
                 {"terAdveccion", terms.terAdveccion, 3.5515838846845201},
                 {"ETo", terms.ETo, 12.463618783566400}});
}

// On the equator there are twelve hours: 12.0006 of them are all the same n/N = 1.
TEST(PenmanTerms, RelativeSunshineEndsAtOneExactly) {
    DatosPenman equator{.latitud = 0,
                        .declinacion = 0.25,
                        .dr = 1,
                        .h = 0,
                        .T = 20,
                        .HRmed = 50,
                        .HRmax = 80,
                        .Uz = 10,
                        .hz = 2,
                        .VdVn = 1,
                        .n = 12.0006};
    EXPECT_EQ(penman(equator).nN, 1);
    equator.n = 11.9994;
    EXPECT_NEAR(penman(equator).nN.value(), 0.99995, 1e-12);
}

} // namespace
} // namespace caudalera
