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

// With D = 1 and T = 1 both logarithms are 0 and c alone is left.
TEST(ProvincialIntensity, TheConstantsOfEachProvince) {
    struct Row {
        Provincia province;
        double a, b, c, d;
    };
    for (const Row& row : {Row{Provincia::alajuela, 42.614, 24.6041, 209.844, 38.7305},
                           Row{Provincia::cartago, 42.2027, 8.0731, 156.892, 28.4612},
                           Row{Provincia::liberia, 44.1334, 7.49972, 200.556, 35.9234},
                           Row{Provincia::limon, 21.7857, 3.13747, 155.052, 25.8865},
                           Row{Provincia::puntarenas, 43.0524, 5.32126, 175.645, 29.5811},
                           Row{Provincia::sanJose, 20.3018, 2.79158, 166.097, 29.6018}}) {
        const auto constants = constantesProvincia(row.province);
        EXPECT_EQ(constants.a, row.a);
        EXPECT_EQ(constants.b, row.b);
        EXPECT_EQ(constants.c, row.c);
        EXPECT_EQ(constants.d, row.d);
        if (row.province != Provincia::alajuela) {
            EXPECT_EQ(intensidadProvincial(row.province, 1, 1), row.c);
        }
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
