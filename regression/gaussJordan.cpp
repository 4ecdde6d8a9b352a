#include "regression/gaussJordan.h"

#include <algorithm>
#include <cstddef>

namespace caudalera {

namespace {

using Fila = std::vector<Real>;

void multiplicar(Fila& fila, Real factor) {
    for (Real& elemento : fila)
        elemento *= factor;
}

void sumarMultiplo(Fila& fila, const Fila& otra, Real factor) {
    for (std::size_t j = 0; j < fila.size(); ++j)
        fila[j] += otra[j] * factor;
}

} // namespace

std::optional<std::vector<Real>> gaussJordan(MatrizAumentada a) {
    for (std::size_t k = 0; k < a.size(); ++k) {
        const auto desde = a.begin() + static_cast<std::ptrdiff_t>(k);
        const auto pivote =
            std::find_if(desde, a.end(), [k](const Fila& fila) { return fila[k] != 0; });
        if (pivote == a.end())
            return std::nullopt;
        std::iter_swap(desde, pivote);
        multiplicar(a[k], Real(1) / a[k][k]);
        for (std::size_t i = 0; i < a.size(); ++i) {
            if (i != k)
                sumarMultiplo(a[i], a[k], -a[i][k]);
        }
    }
    std::vector<Real> solucion;
    solucion.reserve(a.size());
    for (const Fila& fila : a)
        solucion.push_back(fila.back());
    return solucion;
}

} // namespace caudalera
