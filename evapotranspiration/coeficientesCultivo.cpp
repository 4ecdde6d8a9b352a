#include "evapotranspiration/coeficientesCultivo.h"

#include "shell/text/Text.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace caudalera {

namespace {

struct Cultivo {
    std::string_view nombre;
    /// As its item shows it.
    std::string_view Kc;
};

struct CultivoPorEtapas {
    std::string_view nombre;
    std::array<std::string_view, 3> Kc;
};

constexpr std::array<Cultivo, 19> blaneyCriddle = {{
    {"Alfalfa", "0.85"},        {"Algodón", "0.70"},
    {"Arroz", "1.10"},          {"Banano", "0.90"},
    {"Cacao", "0.75"},          {"Café", "0.75"},
    {"Caña de azúcar", "0.85"}, {"Cereales menores", "0.80"},
    {"Frijoles", "0.85"},       {"Frutales, cítricos", "0.60"},
    {"Maiz", "0.75"},           {"Papa", "0.70"},
    {"Pastos", "0.75"},         {"Remolacha azucarera", "0.70"},
    {"Sorgo", "0.70"},          {"Tabaco", "0.70"},
    {"Tomate", "0.70"},         {"Vegetales pequeños", "0.60"},
    {"Viñas", "0.55"},
}};

constexpr std::array<CultivoPorEtapas, 47> hargreaves = {{
    {"Alcachofa", {"0.95", "1.0", "0.95"}},
    {"Alfalfa", {"0.45", "1.2", "1.15"}},
    {"Algodón", {"0.40", "1.15", "0.50"}},
    {"Apio", {"0.30", "1.10", "1.0"}},
    {"Arroz", {"1.10", "1.20", "1.10"}},
    {"Avena", {"0.30", "1.10", "0.20"}},
    {"Banano", {"0.60", "1.10", "1.0"}},
    {"Berenjena", {"0.40", "1.0", "0.85"}},
    {"Calabaza", {"0.30", "0.95", "0.75"}},
    {"Caña de azúcar", {"0.50", "1.15", "0.55"}},
    {"Cártamo", {"0.40", "1.10", "0.25"}},
    {"Cebada", {"0.30", "1.05", "0.20"}},
    {"Cebolla", {"0.50", "1.0", "0.90"}},
    {"Cereales pequeños", {"0.40", "1.20", "0.35"}},
    {"Chile verde, pimiento", {"0.40", "1.10", "0.85"}},
    {"Cítricos", {"0.65", "0.70", "0.65"}},
    {"Espárrago", {"0.30", "0.95", "0.25"}},
    {"Espinaca", {"0.30", "1.0", "0.95"}},
    {"Frijoles", {"0.40", "1.05", "0.85"}},
    {"Frutales, hoja caduca", {"0.50", "1.10", "0.80"}},
    {"Frutales, hoja verde", {"0.80", "1.15", "1.05"}},
    {"Girasol", {"0.40", "1.10", "0.45"}},
    {"Guisantes", {"0.45", "1.10", "1.0"}},
    {"Kiwi", {"0.30", "1.05", "1.05"}},
    {"Lechuga", {"0.30", "1.0", "0.45"}},
    {"Legumbres", {"0.40", "1.15", "0.30"}},
    {"Lentejas", {"0.30", "1.15", "0.30"}},
    {"Linaza", {"0.40", "1.05", "0.25"}},
    {"Maíz", {"0.45", "1.10", "1.0"}},
    {"Maní", {"0.50", "0.95", "0.55"}},
    {"Melones", {"0.40", "1.05", "0.80"}},
    {"Mijo", {"0.35", "1.05", "0.30"}},
    {"Olivos", {"0.60", "0.80", "0.80"}},
    {"Papas", {"0.50", "1.15", "0.75"}},
    {"Pepino", {"0.40", "0.95", "0.75"}},
    {"Pistacho", {"0.10", "1.05", "0.35"}},
    {"Rábano", {"0.30", "0.85", "0.80"}},
    {"Remolacha", {"0.40", "1.10", "0.30"}},
    {"Repollo", {"0.50", "1.10", "0.85"}},
    {"Sandía", {"0.40", "1.05", "0.70"}},
    {"Sorgo", {"0.40", "1.15", "0.50"}},
    {"Soya", {"0.40", "1.05", "0.50"}},
    {"Tabaco", {"0.40", "1.10", "0.80"}},
    {"Tomate", {"0.50", "1.15", "0.80"}},
    {"Trigo", {"0.40", "1.15", "0.30"}},
    {"Uvas de mesa", {"0.45", "0.80", "0.45"}},
    {"Zanahoria", {"0.45", "1.05", "0.75"}},
}};

std::string textoDelCultivo(std::string_view nombre, std::string_view Kc) {
    std::string texto(nombre);
    texto.append(" (").append(Kc).append(")");
    return texto;
}

std::vector<Eleccion<double>> listaBlaneyCriddle() {
    std::vector<Eleccion<double>> lista;
    for (const auto& [nombre, Kc] : blaneyCriddle) {
        double valor = Val(Kc);
        if (nombre == "Frijoles")
            valor = 0.65;
        if (nombre == "Tabaco")
            valor = 0.75;
        lista.push_back({textoDelCultivo(nombre, Kc), valor});
    }
    return lista;
}

std::vector<Eleccion<double>> listaHargreaves(std::size_t etapa) {
    std::vector<Eleccion<double>> lista;
    for (const auto& [nombre, Kc] : hargreaves) {
        std::string texto = textoDelCultivo(nombre, Kc[etapa]);
        // The item of wheat ends with a blank.
        if (nombre == "Trigo")
            texto += ' ';
        lista.push_back({std::move(texto), Val(Kc[etapa])});
    }
    return lista;
}

} // namespace

const std::vector<Eleccion<double>>& cultivosBlaneyCriddle() {
    static const auto lista = listaBlaneyCriddle();
    return lista;
}

const std::vector<Eleccion<double>>& cultivosHargreaves(EtapaCultivo etapa) {
    static const std::array listas = {listaHargreaves(0), listaHargreaves(1), listaHargreaves(2)};
    return listas[static_cast<std::size_t>(etapa)];
}

} // namespace caudalera
