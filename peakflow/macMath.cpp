#include "peakflow/macMath.h"

#include <algorithm>
#include <array>

namespace caudalera {

namespace {

struct Parte {
    std::string_view nombre;
    double C;
};

constexpr std::array<Parte, 5> coberturas = {{
    {"0 - 20", 0.30},
    {"20 - 50", 0.22},
    {"50 - 80", 0.16},
    {"80 - 100", 0.12},
    {"100", 0.08},
}};

constexpr std::array<Parte, 5> texturas = {{
    {"Arenosa", 0.08},
    {"Ligera", 0.12},
    {"Media", 0.16},
    {"Fina", 0.22},
    {"Rocosa", 0.30},
}};

/// The part of the slopes up to a boundary, the two middle classes with the same.
struct ClaseDePendiente {
    double hasta;
    double C;
};
constexpr std::array<ClaseDePendiente, 4> pendientes = {{
    {0.2, 0.04},
    {0.5, 0.06},
    {2, 0.06},
    {5, 0.10},
}};
constexpr double parteDeFuertes = 0.15;

std::vector<std::string> nombres(const std::array<Parte, 5>& tabla) {
    std::vector<std::string> lista;
    lista.reserve(tabla.size());
    for (const Parte& parte : tabla)
        lista.emplace_back(parte.nombre);
    return lista;
}

double parteDe(const std::array<Parte, 5>& tabla, std::string_view nombre) {
    const auto parte = std::find_if(tabla.begin(), tabla.end(),
                                    [&](const Parte& una) { return una.nombre == nombre; });
    return parte == tabla.end() ? 0 : parte->C;
}

double parteDePendiente(Real s) {
    if (s < 0)
        return 0;
    for (const auto& [hasta, C] : pendientes) {
        if (s <= hasta)
            return C;
    }
    return parteDeFuertes;
}

} // namespace

std::vector<std::string> coberturasMacMath() {
    return nombres(coberturas);
}
std::vector<std::string> texturasMacMath() {
    return nombres(texturas);
}

Real coeficienteMacMath(std::string_view cobertura, std::string_view textura, Real pendiente) {
    return parteDe(coberturas, cobertura) + parteDe(texturas, textura) +
           parteDePendiente(pendiente);
}

Real caudalMacMath(Real C, Real I, Real A, Real S) {
    return ((0.0091 * C) * I) * Pow(A, Real(4) / 5) * Pow(S, Real(1) / 5);
}

} // namespace caudalera
