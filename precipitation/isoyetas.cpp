#include "precipitation/isoyetas.h"

#include "precipitation/mediaPonderada.h"

#include <cstddef>
#include <vector>

namespace caudalera {

Real isoyetas(std::span<const Real> valores, std::span<const Real> areas) {
    std::vector<Real> centros;
    centros.reserve(areas.size());
    for (std::size_t i = 0; i < areas.size(); ++i)
        centros.push_back((valores[i] + valores[i + 1]) / 2);
    return mediaPonderada(centros, areas);
}

} // namespace caudalera
