#include "precipitation/thiessen.h"

#include "precipitation/mediaPonderada.h"

namespace caudalera {

Real thiessen(std::span<const Real> precipitacion, std::span<const Real> areas) {
    return mediaPonderada(precipitacion, areas);
}

} // namespace caudalera
