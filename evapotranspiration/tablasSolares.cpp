#include "evapotranspiration/tablasSolares.h"

#include "shell/numbers/RuntimeFailure.h"

#include <algorithm>
#include <cstddef>

namespace caudalera {

namespace {

using TablaMensual = std::array<float, 12>;

constexpr TablaMensual declinaciones = {-0.3656F, -0.2365F, 0.04682F, 0.1607F,  0.3247F,  0.4017F,
                                        0.3699F,  0.236F,   0.03995F, -0.1669F, -0.3291F, -0.4021F};
constexpr TablaMensual distancias = {0.97104F, 0.98136F, 0.99653F, 1.01313F, 1.02625F, 1.03241F,
                                     1.02987F, 1.01916F, 1.00347F, 0.98693F, 0.97369F, 0.96812F};

float valorDelMes(const TablaMensual& tabla, long mes) {
    if (mes < 1 || mes > static_cast<long>(tabla.size()))
        throw RuntimeFailure(Failure::index);
    return tabla[static_cast<std::size_t>(mes - 1)];
}

} // namespace

std::optional<long> numeroDeMes(std::string_view nombre) {
    const auto hallado = std::find(nombresMeses.begin(), nombresMeses.end(), nombre);
    if (hallado == nombresMeses.end())
        return std::nullopt;
    return static_cast<long>(hallado - nombresMeses.begin()) + 1;
}

float declinacionSolar(long mes) {
    return valorDelMes(declinaciones, mes);
}

float factorDistancia(long mes) {
    return valorDelMes(distancias, mes);
}

} // namespace caudalera
