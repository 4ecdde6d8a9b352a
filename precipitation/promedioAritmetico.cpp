#include "precipitation/promedioAritmetico.h"

#include "shell/numbers/momentos.h"

namespace caudalera {

Real promedioAritmetico(std::span<const Real> precipitacion) {
    return media(precipitacion);
}

} // namespace caudalera
