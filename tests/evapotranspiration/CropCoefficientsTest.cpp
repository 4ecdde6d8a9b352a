// The crop coefficients: every item of every list, letter for letter, and what it stands for.

#include "evapotranspiration/coeficientesCultivo.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace caudalera {
namespace {

struct Crop {
    std::string item;
    double Kc;
};
using Crops = std::vector<Crop>;

void expectCrops(const std::vector<Eleccion<double>>& list, const Crops& crops) {
    ASSERT_EQ(list.size(), crops.size());
    for (std::size_t i = 0; i < crops.size(); ++i) {
        EXPECT_EQ(list[i].texto, crops[i].item);
        EXPECT_EQ(list[i].valor, crops[i].Kc) << crops[i].item;
        EXPECT_EQ(valorElegido(list, crops[i].item), crops[i].Kc);
    }
    EXPECT_EQ(valorElegido(list, ""), std::nullopt);
    EXPECT_EQ(valorElegido(list, crops[0].item + " "), std::nullopt);
}

// Beans and tobacco stand for other coefficients than they show.
TEST(CropCoefficients, OfTheBlaneyCriddleMethod) {
    expectCrops(cultivosBlaneyCriddle(),
                {
                    {"Alfalfa (0.85)", 0.85},        {"Algodón (0.70)", 0.70},
                    {"Arroz (1.10)", 1.10},          {"Banano (0.90)", 0.90},
                    {"Cacao (0.75)", 0.75},          {"Café (0.75)", 0.75},
                    {"Caña de azúcar (0.85)", 0.85}, {"Cereales menores (0.80)", 0.80},
                    {"Frijoles (0.85)", 0.65},       {"Frutales, cítricos (0.60)", 0.60},
                    {"Maiz (0.75)", 0.75},           {"Papa (0.70)", 0.70},
                    {"Pastos (0.75)", 0.75},         {"Remolacha azucarera (0.70)", 0.70},
                    {"Sorgo (0.70)", 0.70},          {"Tabaco (0.70)", 0.75},
                    {"Tomate (0.70)", 0.70},         {"Vegetales pequeños (0.60)", 0.60},
                    {"Viñas (0.55)", 0.55},
                });
}

TEST(CropCoefficients, OfTheHargreavesMethodInTheFirstStage) {
    expectCrops(cultivosHargreaves(EtapaCultivo::inicio),
                {
                    {"Alcachofa (0.95)", 0.95},
                    {"Alfalfa (0.45)", 0.45},
                    {"Algodón (0.40)", 0.40},
                    {"Apio (0.30)", 0.30},
                    {"Arroz (1.10)", 1.10},
                    {"Avena (0.30)", 0.30},
                    {"Banano (0.60)", 0.60},
                    {"Berenjena (0.40)", 0.40},
                    {"Calabaza (0.30)", 0.30},
                    {"Caña de azúcar (0.50)", 0.50},
                    {"Cártamo (0.40)", 0.40},
                    {"Cebada (0.30)", 0.30},
                    {"Cebolla (0.50)", 0.50},
                    {"Cereales pequeños (0.40)", 0.40},
                    {"Chile verde, pimiento (0.40)", 0.40},
                    {"Cítricos (0.65)", 0.65},
                    {"Espárrago (0.30)", 0.30},
                    {"Espinaca (0.30)", 0.30},
                    {"Frijoles (0.40)", 0.40},
                    {"Frutales, hoja caduca (0.50)", 0.50},
                    {"Frutales, hoja verde (0.80)", 0.80},
                    {"Girasol (0.40)", 0.40},
                    {"Guisantes (0.45)", 0.45},
                    {"Kiwi (0.30)", 0.30},
                    {"Lechuga (0.30)", 0.30},
                    {"Legumbres (0.40)", 0.40},
                    {"Lentejas (0.30)", 0.30},
                    {"Linaza (0.40)", 0.40},
                    {"Maíz (0.45)", 0.45},
                    {"Maní (0.50)", 0.50},
                    {"Melones (0.40)", 0.40},
                    {"Mijo (0.35)", 0.35},
                    {"Olivos (0.60)", 0.60},
                    {"Papas (0.50)", 0.50},
                    {"Pepino (0.40)", 0.40},
                    {"Pistacho (0.10)", 0.10},
                    {"Rábano (0.30)", 0.30},
                    {"Remolacha (0.40)", 0.40},
                    {"Repollo (0.50)", 0.50},
                    {"Sandía (0.40)", 0.40},
                    {"Sorgo (0.40)", 0.40},
                    {"Soya (0.40)", 0.40},
                    {"Tabaco (0.40)", 0.40},
                    {"Tomate (0.50)", 0.50},
                    {"Trigo (0.40) ", 0.40},
                    {"Uvas de mesa (0.45)", 0.45},
                    {"Zanahoria (0.45)", 0.45},
                });
}

TEST(CropCoefficients, OfTheHargreavesMethodInTheMiddleOfTheSeason) {
    expectCrops(cultivosHargreaves(EtapaCultivo::mediados),
                {
                    {"Alcachofa (1.0)", 1.0},
                    {"Alfalfa (1.2)", 1.2},
                    {"Algodón (1.15)", 1.15},
                    {"Apio (1.10)", 1.10},
                    {"Arroz (1.20)", 1.20},
                    {"Avena (1.10)", 1.10},
                    {"Banano (1.10)", 1.10},
                    {"Berenjena (1.0)", 1.0},
                    {"Calabaza (0.95)", 0.95},
                    {"Caña de azúcar (1.15)", 1.15},
                    {"Cártamo (1.10)", 1.10},
                    {"Cebada (1.05)", 1.05},
                    {"Cebolla (1.0)", 1.0},
                    {"Cereales pequeños (1.20)", 1.20},
                    {"Chile verde, pimiento (1.10)", 1.10},
                    {"Cítricos (0.70)", 0.70},
                    {"Espárrago (0.95)", 0.95},
                    {"Espinaca (1.0)", 1.0},
                    {"Frijoles (1.05)", 1.05},
                    {"Frutales, hoja caduca (1.10)", 1.10},
                    {"Frutales, hoja verde (1.15)", 1.15},
                    {"Girasol (1.10)", 1.10},
                    {"Guisantes (1.10)", 1.10},
                    {"Kiwi (1.05)", 1.05},
                    {"Lechuga (1.0)", 1.0},
                    {"Legumbres (1.15)", 1.15},
                    {"Lentejas (1.15)", 1.15},
                    {"Linaza (1.05)", 1.05},
                    {"Maíz (1.10)", 1.10},
                    {"Maní (0.95)", 0.95},
                    {"Melones (1.05)", 1.05},
                    {"Mijo (1.05)", 1.05},
                    {"Olivos (0.80)", 0.80},
                    {"Papas (1.15)", 1.15},
                    {"Pepino (0.95)", 0.95},
                    {"Pistacho (1.05)", 1.05},
                    {"Rábano (0.85)", 0.85},
                    {"Remolacha (1.10)", 1.10},
                    {"Repollo (1.10)", 1.10},
                    {"Sandía (1.05)", 1.05},
                    {"Sorgo (1.15)", 1.15},
                    {"Soya (1.05)", 1.05},
                    {"Tabaco (1.10)", 1.10},
                    {"Tomate (1.15)", 1.15},
                    {"Trigo (1.15) ", 1.15},
                    {"Uvas de mesa (0.80)", 0.80},
                    {"Zanahoria (1.05)", 1.05},
                });
}

TEST(CropCoefficients, OfTheHargreavesMethodInTheEndOfTheSeason) {
    expectCrops(cultivosHargreaves(EtapaCultivo::fin), {
                                                           {"Alcachofa (0.95)", 0.95},
                                                           {"Alfalfa (1.15)", 1.15},
                                                           {"Algodón (0.50)", 0.50},
                                                           {"Apio (1.0)", 1.0},
                                                           {"Arroz (1.10)", 1.10},
                                                           {"Avena (0.20)", 0.20},
                                                           {"Banano (1.0)", 1.0},
                                                           {"Berenjena (0.85)", 0.85},
                                                           {"Calabaza (0.75)", 0.75},
                                                           {"Caña de azúcar (0.55)", 0.55},
                                                           {"Cártamo (0.25)", 0.25},
                                                           {"Cebada (0.20)", 0.20},
                                                           {"Cebolla (0.90)", 0.90},
                                                           {"Cereales pequeños (0.35)", 0.35},
                                                           {"Chile verde, pimiento (0.85)", 0.85},
                                                           {"Cítricos (0.65)", 0.65},
                                                           {"Espárrago (0.25)", 0.25},
                                                           {"Espinaca (0.95)", 0.95},
                                                           {"Frijoles (0.85)", 0.85},
                                                           {"Frutales, hoja caduca (0.80)", 0.80},
                                                           {"Frutales, hoja verde (1.05)", 1.05},
                                                           {"Girasol (0.45)", 0.45},
                                                           {"Guisantes (1.0)", 1.0},
                                                           {"Kiwi (1.05)", 1.05},
                                                           {"Lechuga (0.45)", 0.45},
                                                           {"Legumbres (0.30)", 0.30},
                                                           {"Lentejas (0.30)", 0.30},
                                                           {"Linaza (0.25)", 0.25},
                                                           {"Maíz (1.0)", 1.0},
                                                           {"Maní (0.55)", 0.55},
                                                           {"Melones (0.80)", 0.80},
                                                           {"Mijo (0.30)", 0.30},
                                                           {"Olivos (0.80)", 0.80},
                                                           {"Papas (0.75)", 0.75},
                                                           {"Pepino (0.75)", 0.75},
                                                           {"Pistacho (0.35)", 0.35},
                                                           {"Rábano (0.80)", 0.80},
                                                           {"Remolacha (0.30)", 0.30},
                                                           {"Repollo (0.85)", 0.85},
                                                           {"Sandía (0.70)", 0.70},
                                                           {"Sorgo (0.50)", 0.50},
                                                           {"Soya (0.50)", 0.50},
                                                           {"Tabaco (0.80)", 0.80},
                                                           {"Tomate (0.80)", 0.80},
                                                           {"Trigo (0.30) ", 0.30},
                                                           {"Uvas de mesa (0.45)", 0.45},
                                                           {"Zanahoria (0.75)", 0.75},
                                                       });
}

} // namespace
} // namespace caudalera
