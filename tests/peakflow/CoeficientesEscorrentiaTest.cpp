// Runoff coefficients of the rational method against its printed tables.

#include "peakflow/coeficientesEscorrentia.h"

#include <gtest/gtest.h>

namespace caudalera {
namespace {

struct LandRow {
    const char* cover;
    const char* texture;
    double flat, middle, steep;
};
constexpr LandRow land[] = {
    {"Forestal", "Franco arenosa", 0.10, 0.25, 0.30},
    {"Forestal", "Franco arcillolimosa", 0.30, 0.35, 0.50},
    {"Forestal", "Franco limosa", 0.30, 0.35, 0.50},
    {"Forestal", "Arcillosa", 0.40, 0.50, 0.60},
    {"Praderas", "Franco arenosa", 0.10, 0.15, 0.20},
    {"Praderas", "Franco arcillolimosa", 0.30, 0.35, 0.40},
    {"Praderas", "Franco limosa", 0.30, 0.35, 0.40},
    {"Praderas", "Arcillosa", 0.40, 0.55, 0.60},
    {"Terrenos cultivados", "Franco arenosa", 0.30, 0.40, 0.50},
    {"Terrenos cultivados", "Franco arcillolimosa", 0.50, 0.60, 0.70},
    {"Terrenos cultivados", "Franco limosa", 0.50, 0.60, 0.70},
    {"Terrenos cultivados", "Arcillosa", 0.60, 0.70, 0.80},
};

struct UrbanRow {
    const char* surface;
    double C;
};
constexpr UrbanRow urban[] = {
    {"áreas comerciales céntricas", 0.95},
    {"áreas comerciales con vecindarios", 0.70},
    {"residenciales familiares simples", 0.50},
    {"multifamiliares separadas", 0.60},
    {"multifamiliares concentradas", 0.75},
    {"áreas semi-urbanas", 0.40},
    {"casas de habitación", 0.70},
    {"áreas industriales densas", 0.90},
    {"áreas industriales espaciadas", 0.80},
    {"parques, cementerios", 0.25},
    {"campos de juego", 0.35},
    {"patios de ferrocarril", 0.40},
    {"zonas suburbanas", 0.30},
    {"calles asfaltadas", 0.95},
    {"calles de concreto hidráulico", 0.95},
    {"calles adoquinadas", 0.85},
    {"estacionamientos", 0.85},
    {"techados", 0.95},
};

TEST(RunoffCoefficients, EveryCellOfTheTableOfLand) {
    for (const auto& [cover, texture, flat, middle, steep] : land) {
        SCOPED_TRACE(std::string(cover) + ", " + texture);
        EXPECT_EQ(coeficienteNoUrbano(cover, texture, 2), flat);
        EXPECT_EQ(coeficienteNoUrbano(cover, texture, 7), middle);
        EXPECT_EQ(coeficienteNoUrbano(cover, texture, 20), steep);
    }
}

TEST(RunoffCoefficients, ABoundaryBelongsToTheLowerSlope) {
    const auto C = [](double slope) {
        return coeficienteNoUrbano("Forestal", "Franco arenosa", slope).value();
    };
    EXPECT_EQ(C(0), 0.10);
    EXPECT_EQ(C(5), 0.10);
    EXPECT_EQ(C(5.01), 0.25);
    EXPECT_EQ(C(10), 0.25);
    EXPECT_EQ(C(10.5), 0.30);
    EXPECT_EQ(C(1e6), 0.30);
}

TEST(RunoffCoefficients, ANegativeSlopeTakesTheThirdColumn) {
    EXPECT_EQ(coeficienteNoUrbano("Forestal", "Franco arenosa", -0.01), 0.30);
    EXPECT_EQ(coeficienteNoUrbano("Praderas", "Franco arenosa", -7), 0.20);
}

TEST(RunoffCoefficients, EveryUrbanSurfaceInTheOrderOfTheList) {
    const auto list = superficiesUrbanas();
    ASSERT_EQ(list.size(), std::size(urban));
    for (std::size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(list[i], urban[i].surface);
        EXPECT_EQ(coeficienteUrbano(urban[i].surface), urban[i].C) << urban[i].surface;
    }
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
