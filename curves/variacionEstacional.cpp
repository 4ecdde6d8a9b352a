#include "curves/variacionEstacional.h"

#include "shell/numbers/aproximacionNormal.h"
#include "shell/numbers/logaritmos.h"
#include "shell/numbers/momentos.h"

#include <algorithm>

namespace caudalera {

std::optional<ValoresPorMes> separarMeses(std::span<const Real> serie) {
    ValoresPorMes meses;
    if (serie.empty() || serie.size() % meses.size() != 0)
        return std::nullopt;
    for (std::size_t i = 0; i < serie.size(); ++i)
        meses[i % meses.size()].push_back(serie[i]);
    return meses;
}

bool admitenLogaritmo(const ValoresPorMes& meses) {
    return std::all_of(meses.begin(), meses.end(), [](const std::vector<Real>& valores) {
        return std::all_of(valores.begin(), valores.end(), [](Real x) { return x > 0; });
    });
}

LeyMensual leyMensual(std::vector<Real> valores) {
    // The order of the sums is that of the sorted values.
    ordenarAscendente(valores);
    const auto logs = logaritmos(valores);
    const Real mediaLog = media(logs);
    return {mediaLog, desviacionMuestral(logs, mediaLog)};
}

Real valorDeExcedencia(const LeyMensual& ley, Real P) {
    // The inverse takes its argument as a probability of non-exceedance.
    const Real z = -normalInversa(P);
    return Exp(ley.mediaLog + z * ley.desvLog);
}

} // namespace caudalera
