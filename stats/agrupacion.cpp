#include "stats/agrupacion.h"

#include <cstddef>

namespace caudalera {

namespace {

/// Where the first class begins, and the width of all.
struct Division {
    Real inicio;
    Real amplitud;
};

/// `maximo` is not below `minimo`, and neither is there a width below 0 before the correction.
Division dividir(Real minimo, Real maximo, Real k) {
    const Real amplitud = (maximo - minimo) / (k - 1);
    if (maximo >= 0 && maximo - amplitud / 2 < 0)
        return {minimo - maximo, (minimo + maximo + amplitud / 2) / k};
    return {minimo - amplitud / 2, amplitud};
}

} // namespace

long numeroClases(long n) {
    const Real K = 1.33 * Log(static_cast<double>(n)) + 1.0;
    return static_cast<long>(Int((K * 10 + 5) / 10).value());
}

Agrupacion agrupar(std::span<const Real> ordenada) {
    const long n = static_cast<long>(ordenada.size());
    const long k = numeroClases(n);
    const Division division = dividir(ordenada.front(), ordenada.back(), static_cast<double>(k));
    Agrupacion agrupacion{n, division.amplitud, {}};
    std::size_t siguiente = 0;
    for (long i = 0; i < k; ++i) {
        Clase clase;
        clase.limiteInferior = division.inicio + static_cast<double>(i) * division.amplitud;
        clase.marca = clase.limiteInferior + division.amplitud / 2;
        clase.limiteSuperior = clase.limiteInferior + division.amplitud;
        while (siguiente < ordenada.size() && ordenada[siguiente] <= clase.limiteSuperior) {
            ++clase.frecuencia;
            ++siguiente;
        }
        agrupacion.clases.push_back(clase);
    }
    return agrupacion;
}

} // namespace caudalera
