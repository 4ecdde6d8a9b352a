// The equations of the largest intensity, province by province.

#include "peakflow/intensidadProvincial.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

namespace caudalera {
namespace {

int failureOf(Provincia provincia, double D, double T) {
    return testing::failureNumber([&] { intensidadProvincial(provincia, D, T); });
}

// Worked out in 40 decimal digits: ln 30 = 3.401197381662155, ln 50 = 3.912023005428146. The
// factors a - b ln D are 14.7444934181, 18.6253719728, 11.1145452510, 24.9537444209, 10.8070854133,
// the terms c - d ln D 60.0898410811, 78.3734259796, 67.0069039796, 75.0338401333, 65.4154353475.
TEST(ProvincialIntensity, FiveProvincesTakeTheLogarithmOfTheDuration) {
    EXPECT_NEAR(intensidadProvincial(Provincia::cartago, 30, 50).value(), 117.770638536040871,
                1e-11);
    EXPECT_NEAR(intensidadProvincial(Provincia::liberia, 30, 50).value(), 151.236309621850680,
                1e-11);
    EXPECT_NEAR(intensidadProvincial(Provincia::limon, 30, 50).value(), 110.487260696216345, 1e-11);
    EXPECT_NEAR(intensidadProvincial(Provincia::puntarenas, 30, 50).value(), 172.653462379278254,
                1e-11);
    EXPECT_NEAR(intensidadProvincial(Provincia::sanJose, 30, 50).value(), 107.693002105968033,
                1e-11);
}

// ln ln 30 = 1.224127540701542, so 42.614 - 24.6041 * 1.224127540701542 = 12.495443575825193 and
// 209.844 - 38.7305 * 3.401197381662155 = 78.113924809533891; the sum with ln 50 as above.
TEST(ProvincialIntensity, AlajuelaTakesTheLogarithmOfTheLogarithm) {
    EXPECT_NEAR(intensidadProvincial(Provincia::alajuela, 30, 50).value(), 126.996387541191384,
                1e-11);
}

// Between 1 and e minutes ln ln D is negative: ln ln 2 = -0.366512920581664 makes the factor of
// ln 5 51.631720549283327, more than its constant 42.614.
TEST(ProvincialIntensity, AlajuelaRisesBelowTheDurationE) {
    EXPECT_NEAR(intensidadProvincial(Provincia::alajuela, 2, 5).value(), 266.096111659542439,
                1e-11);
}

constexpr Provincia provinces[] = {Provincia::alajuela, Provincia::cartago,    Provincia::liberia,
                                   Provincia::limon,    Provincia::puntarenas, Provincia::sanJose};

// The totals of the columns of constants, added up in decimals.
TEST(ProvincialIntensity, TheConstantsSumUpToTheirTotals) {
    double a = 0;
    double b = 0;
    double c = 0;
    double d = 0;
    for (const Provincia province : provinces) {
        const ConstantesProvincia constants = constantesProvincia(province);
        a += constants.a;
        b += constants.b;
        c += constants.c;
        d += constants.d;
    }
    EXPECT_NEAR(a, 214.0900, 1e-9);
    EXPECT_NEAR(b, 51.42723, 1e-9);
    EXPECT_NEAR(c, 1064.086, 1e-9);
    EXPECT_NEAR(d, 188.1845, 1e-9);
}

// With D = 1 and T = 1 both logarithms are 0 and c alone is left.
TEST(ProvincialIntensity, OfOneMinuteAndOneYearIsItsConstant) {
    for (const Provincia province : provinces) {
        if (province != Provincia::alajuela) {
            EXPECT_EQ(intensidadProvincial(province, 1, 1), constantesProvincia(province).c);
        }
    }
}

// A rain that lasts longer is less intense, one that comes more seldom is more so.
TEST(ProvincialIntensity, FallsWithTheDurationAndRisesWithThePeriod) {
    for (const Provincia province : provinces) {
        const auto I = [&](double D, double T) { return intensidadProvincial(province, D, T); };
        for (double D = 5; D < 120; D += 5)
            EXPECT_GT(I(D, 10), I(D + 5, 10)) << D;
        for (double T = 2; T < 200; T += 6)
            EXPECT_LT(I(60, T), I(60, T + 6)) << T;
        EXPECT_GT(I(120, 10), 0);
    }
}

TEST(ProvincialIntensity, ALogarithmOfZeroOrLessIsAFailure) {
    EXPECT_EQ(failureOf(Provincia::sanJose, 0, 10), 5);
    EXPECT_EQ(failureOf(Provincia::sanJose, -1, 10), 5);
    EXPECT_EQ(failureOf(Provincia::sanJose, 10, 0), 5);
    EXPECT_EQ(failureOf(Provincia::sanJose, 1, 10), 0);
    EXPECT_EQ(failureOf(Provincia::alajuela, 1, 10), 5);
    EXPECT_EQ(failureOf(Provincia::alajuela, 0.5, 10), 5);
    EXPECT_EQ(failureOf(Provincia::alajuela, 1.01, 10), 0);
}

} // namespace
} // namespace caudalera
