// Runoff coefficients of the rational method against its printed tables.

#include "peakflow/coeficientesEscorrentia.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace caudalera {
namespace {

constexpr double flat = 2;
constexpr double rolling = 7;
constexpr double hilly = 20;

// Schwab, Frevert, Edminster and Barnes, Soil and Water Conservation Engineering, runoff
// coefficients of woodland, pasture and cultivated land by soil (open sandy loam, clay and silt
// loam, tight clay) and topography. The method's table rounds the book's 0.16, 0.22, 0.36, 0.42,
// 0.52, 0.72 and 0.82.
TEST(RunoffCoefficients, OfLandAreThoseOfTheHandbook) {
    struct Row {
        const char* cover;
        const char* texture;
        double flat, rolling, hilly;
    };
    for (const Row& row : {Row{"Forestal", "Franco arenosa", 0.10, 0.25, 0.30},
                           Row{"Forestal", "Franco limosa", 0.30, 0.35, 0.50},
                           Row{"Forestal", "Arcillosa", 0.40, 0.50, 0.60},
                           Row{"Praderas", "Franco arenosa", 0.10, 0.16, 0.22},
                           Row{"Praderas", "Franco limosa", 0.30, 0.36, 0.42},
                           Row{"Praderas", "Arcillosa", 0.40, 0.55, 0.60},
                           Row{"Terrenos cultivados", "Franco arenosa", 0.30, 0.40, 0.52},
                           Row{"Terrenos cultivados", "Franco limosa", 0.50, 0.60, 0.72},
                           Row{"Terrenos cultivados", "Arcillosa", 0.60, 0.70, 0.82}}) {
        SCOPED_TRACE(std::string(row.cover) + ", " + row.texture);
        const auto C = [&](double slope) {
            return coeficienteNoUrbano(row.cover, row.texture, slope).value();
        };
        EXPECT_NEAR(C(flat), row.flat, 0.0201);
        EXPECT_NEAR(C(rolling), row.rolling, 0.0201);
        EXPECT_NEAR(C(hilly), row.hilly, 0.0201);
    }
}

// Every coefficient is a multiple of 0.05, so that with the handbook's value within 0.02 there is
// one that it can be.
TEST(RunoffCoefficients, OfLandAreMultiplesOfFiveHundredths) {
    for (const std::string& cover : coberturasDelSuelo()) {
        for (const std::string& texture : texturasDelSuelo()) {
            for (const double slope : {flat, rolling, hilly}) {
                const double twentieths = 20 * coeficienteNoUrbano(cover, texture, slope).value();
                EXPECT_NEAR(twentieths, std::round(twentieths), 1e-12) << cover << ", " << texture;
            }
        }
    }
}

TEST(RunoffCoefficients, BothLoamsAreOneSoil) {
    for (const std::string& cover : coberturasDelSuelo()) {
        for (const double slope : {flat, rolling, hilly})
            EXPECT_EQ(coeficienteNoUrbano(cover, "Franco arcillolimosa", slope),
                      coeficienteNoUrbano(cover, "Franco limosa", slope));
    }
}

TEST(RunoffCoefficients, RiseWithTheSlopeAndTheHeavinessOfTheSoil) {
    for (const std::string& cover : coberturasDelSuelo()) {
        Real lighter[] = {0, 0, 0};
        for (const char* texture : {"Franco arenosa", "Franco limosa", "Arcillosa"}) {
            Real flatter = 0;
            std::size_t column = 0;
            for (const double slope : {flat, rolling, hilly}) {
                const Real C = coeficienteNoUrbano(cover, texture, slope);
                EXPECT_GT(C, flatter) << cover << ", " << texture << ", " << slope;
                EXPECT_GT(C, lighter[column]) << cover << ", " << texture << ", " << slope;
                flatter = lighter[column++] = C;
            }
        }
    }
}

TEST(RunoffCoefficients, ABoundaryBelongsToTheLowerSlope) {
    const auto C = [](double slope) {
        return coeficienteNoUrbano("Forestal", "Franco arenosa", slope).value();
    };
    EXPECT_EQ(C(0), 0.10);
    EXPECT_EQ(C(5), 0.10);
    EXPECT_EQ(C(5.0001), 0.25);
    EXPECT_EQ(C(5.01), 0.25);
    EXPECT_EQ(C(10), 0.25);
    EXPECT_EQ(C(10.0001), 0.30);
    EXPECT_EQ(C(10.5), 0.30);
    EXPECT_EQ(C(1e6), 0.30);
}

TEST(RunoffCoefficients, ANegativeSlopeTakesTheThirdColumn) {
    EXPECT_EQ(coeficienteNoUrbano("Forestal", "Franco arenosa", -0.01), 0.30);
    EXPECT_EQ(coeficienteNoUrbano("Praderas", "Franco arenosa", -7), 0.20);
}

// ASCE, Design and Construction of Sanitary and Storm Sewers: a range for each surface, of which
// the method takes the upper end.
TEST(RunoffCoefficients, UrbanOnesAreTheUpperEndsOfTheRanges) {
    struct Row {
        const char* surface;
        double low, high;
    };
    const Row rows[] = {
        {"áreas comerciales céntricas", 0.70, 0.95},       // downtown
        {"áreas comerciales con vecindarios", 0.50, 0.70}, // neighbourhood
        {"residenciales familiares simples", 0.30, 0.50},  // single-family
        {"multifamiliares separadas", 0.40, 0.60},         // multi-units, detached
        {"multifamiliares concentradas", 0.60, 0.75},      // multi-units, attached
        {"áreas semi-urbanas", 0.25, 0.40},                // suburban
        {"casas de habitación", 0.50, 0.70},               // apartments
        {"áreas industriales densas", 0.60, 0.90},         // heavy industry
        {"áreas industriales espaciadas", 0.50, 0.80},     // light industry
        {"parques, cementerios", 0.10, 0.25},              // parks, cemeteries
        {"campos de juego", 0.20, 0.35},                   // playgrounds
        {"patios de ferrocarril", 0.20, 0.40},             // railroad yards
        {"zonas suburbanas", 0.10, 0.30},                  // unimproved
        {"calles asfaltadas", 0.70, 0.95},                 // asphalt
        {"calles de concreto hidráulico", 0.80, 0.95},     // concrete
        {"calles adoquinadas", 0.70, 0.85},                // brick
        {"estacionamientos", 0.75, 0.85},                  // drives and walks
        {"techados", 0.75, 0.95},                          // roofs
    };
    const auto list = superficiesUrbanas();
    ASSERT_EQ(list.size(), std::size(rows));
    for (std::size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(list[i], rows[i].surface);
        EXPECT_GT(coeficienteUrbano(list[i]), rows[i].low) << list[i];
        EXPECT_EQ(coeficienteUrbano(list[i]), rows[i].high) << list[i];
    }
}

TEST(RunoffCoefficients, UrbanOnesSumUpToTheirTotal) {
    Real total = 0;
    for (const std::string& surface : superficiesUrbanas())
        total += coeficienteUrbano(surface);
    EXPECT_NEAR(total.value(), 12.15, 1e-12);
}

TEST(RunoffCoefficients, ATextThatIsInNoTableHasNone) {
    EXPECT_EQ(coeficienteNoUrbano("forestal", "Arcillosa", 1), 0);
    EXPECT_EQ(coeficienteNoUrbano("Forestal", "Arcilla", 1), 0);
    EXPECT_EQ(coeficienteNoUrbano("", "", 1), 0);
    EXPECT_EQ(coeficienteUrbano("Zonas urbanas"), 0);
    EXPECT_EQ(coeficienteUrbano("techado"), 0);
    EXPECT_EQ(coeficienteUrbano(""), 0);
}

} // namespace
} // namespace caudalera
