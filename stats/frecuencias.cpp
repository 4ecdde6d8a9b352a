#include "stats/frecuencias.h"

namespace caudalera {

std::vector<Frecuencia> frecuencias(const Agrupacion& agrupacion) {
    const Real n = static_cast<double>(agrupacion.n);
    std::vector<Frecuencia> todas;
    Real suma = 0;
    for (const Clase& clase : agrupacion.clases) {
        const Real relativa = (static_cast<double>(clase.frecuencia) / n) * 100;
        suma += relativa;
        todas.push_back({relativa, relativa / Abs(agrupacion.amplitud), suma});
    }
    return todas;
}

} // namespace caudalera
