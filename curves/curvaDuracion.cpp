#include "curves/curvaDuracion.h"

#include <cstddef>
#include <utility>

namespace caudalera {

namespace {

/// The flow for P, of which `j` is the last point, counted from 1, that does not lie behind it.
Real caudalTras(std::span<const PuntoDuracion> curva, std::size_t j, Real P) {
    if (P == 100)
        return curva.back().caudal;
    if (j == 0)
        throw RuntimeFailure(Failure::index);
    const PuntoDuracion& antes = curva[j - 1];
    if (antes.probabilidad == P)
        return antes.caudal;
    if (j == curva.size())
        throw RuntimeFailure(Failure::index);
    const PuntoDuracion& despues = curva[j];
    return antes.caudal + ((despues.caudal - antes.caudal) * (P - antes.probabilidad)) /
                              (despues.probabilidad - antes.probabilidad);
}

} // namespace

void ordenarDescendente(std::span<Real> x) {
    for (std::size_t i = 0; i + 1 < x.size(); ++i) {
        std::size_t k = i + 1;
        for (std::size_t j = i; j < x.size(); ++j) {
            if (x[j] > x[k])
                k = j;
        }
        std::swap(x[i], x[k]);
    }
}

std::vector<PuntoDuracion> curvaDuracion(std::span<const Real> descendentes, Real caudalMedio) {
    const Real n = static_cast<double>(descendentes.size());
    std::vector<PuntoDuracion> curva;
    Real i = 0;
    for (const Real caudal : descendentes) {
        i += 1;
        if (!curva.empty() && curva.back().caudal == caudal)
            curva.pop_back();
        curva.push_back({caudal, caudal / caudalMedio, (i / n) * 100});
    }
    return curva;
}

std::optional<Real> caudalDeDuracion(std::span<const PuntoDuracion> curva, Real P) {
    std::optional<Real> caudal;
    std::size_t j = 0;
    // Each point gives its answer, of which the last one counts; a failure of any ends the search.
    for (std::size_t i = 1; i <= curva.size(); ++i) {
        if (P >= curva[i - 1].probabilidad)
            j = i;
        caudal = caudalTras(curva, j, P);
    }
    return caudal;
}

} // namespace caudalera
