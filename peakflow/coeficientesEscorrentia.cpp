#include "peakflow/coeficientesEscorrentia.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace caudalera {

namespace {

/// The two loams share their row of the table.
struct Textura {
    std::string_view nombre;
    std::size_t fila;
};
constexpr std::array<Textura, 4> texturas = {{
    {"Franco arenosa", 0},
    {"Franco arcillolimosa", 1},
    {"Franco limosa", 1},
    {"Arcillosa", 2},
}};

/// Rows by texture, columns by slope.
struct Cobertura {
    std::string_view nombre;
    std::array<std::array<double, 3>, 3> C;
};
constexpr std::array<Cobertura, 3> coberturas = {{
    {"Forestal", {{{0.10, 0.25, 0.30}, {0.30, 0.35, 0.50}, {0.40, 0.50, 0.60}}}},
    {"Praderas", {{{0.10, 0.15, 0.20}, {0.30, 0.35, 0.40}, {0.40, 0.55, 0.60}}}},
    {"Terrenos cultivados", {{{0.30, 0.40, 0.50}, {0.50, 0.60, 0.70}, {0.60, 0.70, 0.80}}}},
}};

struct Superficie {
    std::string_view nombre;
    double C;
};
constexpr std::array<Superficie, 18> superficies = {{
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
}};

template <typename Tabla>
std::vector<std::string> nombres(const Tabla& tabla) {
    std::vector<std::string> lista;
    lista.reserve(tabla.size());
    for (const auto& fila : tabla)
        lista.emplace_back(fila.nombre);
    return lista;
}

/// nullptr if there is no row of that name.
template <typename Tabla>
auto buscar(const Tabla& tabla, std::string_view nombre) -> const typename Tabla::value_type* {
    const auto fila = std::find_if(tabla.begin(), tabla.end(),
                                   [&](const auto& una) { return una.nombre == nombre; });
    return fila == tabla.end() ? nullptr : &*fila;
}

std::size_t columnaDePendiente(Real s) {
    if (s >= 0 && s <= 5)
        return 0;
    if (s >= 5 && s <= 10)
        return 1;
    return 2;
}

} // namespace

std::vector<std::string> coberturasDelSuelo() {
    return nombres(coberturas);
}
std::vector<std::string> texturasDelSuelo() {
    return nombres(texturas);
}
std::vector<std::string> superficiesUrbanas() {
    return nombres(superficies);
}

Real coeficienteNoUrbano(std::string_view cobertura, std::string_view textura, Real pendiente) {
    const auto* deCobertura = buscar(coberturas, cobertura);
    const auto* deTextura = buscar(texturas, textura);
    if (!deCobertura || !deTextura)
        return 0;
    return deCobertura->C[deTextura->fila][columnaDePendiente(pendiente)];
}

Real coeficienteUrbano(std::string_view superficie) {
    const auto* fila = buscar(superficies, superficie);
    return fila ? fila->C : 0;
}

} // namespace caudalera
