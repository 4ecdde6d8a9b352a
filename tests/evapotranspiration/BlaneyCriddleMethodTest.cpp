// The Blaney-Criddle method without its window.

#include "evapotranspiration/blaneyCriddle.h"

#include <gtest/gtest.h>

namespace caudalera {
namespace {

constexpr ClaseClimatica classes[] = {ClaseClimatica::baja, ClaseClimatica::media,
                                      ClaseClimatica::alta};

// FAO Irrigation and Drainage Paper 24; the slope of much sun, dry air and medium wind is the
// program's own.
TEST(BlaneyCriddle, HasTheCoefficientsOfAllClasses) {
    // Sunshine, humidity, then wind: a and b of each.
    const CoeficientesBlaney table[3][3][3] = {
        {{{-2.0F, 1.15F}, {-1.8F, 1.28F}, {-1.6F, 1.40F}},
         {{-2.0F, 1.05F}, {-1.85F, 1.15F}, {-1.7F, 1.25F}},
         {{-1.45F, 0.80F}, {-1.55F, 0.88F}, {-1.65F, 0.98F}}},
        {{{-2.3F, 1.35F}, {-2.05F, 1.55F}, {-1.8F, 1.73F}},
         {{-2.2F, 1.20F}, {-2.15F, 1.38F}, {-2.1F, 1.52F}},
         {{-1.8F, 0.97F}, {-1.75F, 1.06F}, {-1.7F, 1.16F}}},
        {{{-2.6F, 1.55F}, {-2.3F, 1.12F}, {-2.0F, 2.03F}},
         {{-2.4F, 1.37F}, {-2.5F, 1.61F}, {-2.55F, 1.82F}},
         {{-2.15F, 1.14F}, {-1.95F, 1.22F}, {-1.7F, 1.31F}}}};
    for (int sun = 0; sun < 3; ++sun) {
        for (int humidity = 0; humidity < 3; ++humidity) {
            for (int wind = 0; wind < 3; ++wind) {
                const auto computed =
                    coeficientesBlaney(classes[sun], classes[humidity], classes[wind]);
                EXPECT_EQ(computed.a, table[sun][humidity][wind].a) << sun << humidity << wind;
                EXPECT_EQ(computed.b, table[sun][humidity][wind].b) << sun << humidity << wind;
            }
        }
    }
}

TEST(BlaneyCriddle, TheLimitsOfAClassAreMedium) {
    EXPECT_EQ(claseDeInsolacion(0.59999), ClaseClimatica::baja);
    EXPECT_EQ(claseDeInsolacion(0.6), ClaseClimatica::media);
    EXPECT_EQ(claseDeInsolacion(0.8), ClaseClimatica::media);
    EXPECT_EQ(claseDeInsolacion(0.80001), ClaseClimatica::alta);
    EXPECT_EQ(claseDeInsolacion(3), ClaseClimatica::alta);
    EXPECT_EQ(claseDeHumedad(19.9999), ClaseClimatica::baja);
    EXPECT_EQ(claseDeHumedad(20), ClaseClimatica::media);
    EXPECT_EQ(claseDeHumedad(50), ClaseClimatica::media);
    EXPECT_EQ(claseDeHumedad(50.0001), ClaseClimatica::alta);
    EXPECT_EQ(claseDeViento(7.1999), ClaseClimatica::baja);
    EXPECT_EQ(claseDeViento(7.2), ClaseClimatica::media);
    EXPECT_EQ(claseDeViento(18), ClaseClimatica::media);
    EXPECT_EQ(claseDeViento(18.0001), ClaseClimatica::alta);
}

// (0.46 x 20 + 8.13) x 0.3 = 5.199; -1.75 + 1.06 x 5.199 = 3.76094 (a and b are singles).
TEST(BlaneyCriddle, IsTheFormula) {
    EXPECT_NEAR(factorBlaney(20, 0.3).value(), 5.199, 1e-14);
    EXPECT_NEAR(evapotranspiracionBlaney({-1.75F, 1.06F}, 5.199).value(), 3.76094, 3e-7);
    EXPECT_NEAR(evapotranspiracionBlaney({-2, 1.25F}, 1).value(), -0.75, 1e-15);
}

// McMahon et al., Hydrology and Earth System Sciences 17 (2013), supplement, S19.93: T = 11.5, p =
// 0.2436, 3.1426 mm/day. They compute the coefficients from n / N = 1.0, a minimum humidity of 25 %
// and a wind of 0.59 m/s: a = 0.0043 x 25 - n / N - 1.41 and b = (3.1426 - a) / f. The method's
// classes have one pair for all of 0.8 to 1 and 20 to 50 %, and come to 2.08 with it.
TEST(BlaneyCriddle, StandsAsideOfAPublishedExampleByItsClassesAlone) {
    const Real f = factorBlaney(11.5, 0.2436);
    EXPECT_NEAR(f.value(), 3.2691, 0.00005);
    const auto classed =
        coeficientesBlaney(claseDeInsolacion(1), claseDeHumedad(25), claseDeViento(3.6 * 0.5903));
    EXPECT_NEAR(evapotranspiracionBlaney(classed, f).value(), 2.08, 0.005);
}

// Schroedter, Verdunstung (1985), example 5.1: 50 N, July, 17.3 degrees, 3.9 mm/day by -1.55 + 0.96
// f, the coefficients of Germany.
TEST(BlaneyCriddle, ComesToThePublishedExampleOfGermany) {
    EXPECT_NEAR(evapotranspiracionBlaney({-1.55F, 0.96F}, factorBlaney(17.3, 0.35)).value(), 3.9,
                0.05);
}

} // namespace
} // namespace caudalera
