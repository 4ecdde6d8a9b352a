// Single terms of the Penman method.

#include "evapotranspiration/penman.h"

#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>

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

// FAO Irrigation and Drainage Paper 24, table of the weighting factor W (two decimals): at altitude
// 0 0.55 at 10 degrees, 0.78 at 30, 0.85 at 40; at 20 degrees 0.71 at 1000 m and 0.73 at 2000 m.
TEST(PenmanTerms, WeightingFactorIsThatOfTheTable) {
    const double table[][3] = {
        {10, 0, 0.55}, {30, 0, 0.78}, {40, 0, 0.85}, {20, 1000, 0.71}, {20, 2000, 0.73}};
    for (const auto& [T, h, w] : table)
        EXPECT_NEAR(factorDePonderacion(T, h, presionDeVaporSaturado(T)).value(), w, 0.0055)
            << T << " " << h;
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

} // namespace
} // namespace caudalera
