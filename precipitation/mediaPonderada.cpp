#include "precipitation/mediaPonderada.h"

#include <cstddef>

namespace caudalera {

Real mediaPonderada(std::span<const Real> valores, std::span<const Real> pesos) {
    Real suma;
    Real total;
    for (std::size_t i = 0; i < valores.size(); ++i) {
        total += pesos[i];
        suma += valores[i] * pesos[i];
    }
    return suma / total;
}

} // namespace caudalera
