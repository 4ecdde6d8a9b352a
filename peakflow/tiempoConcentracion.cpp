#include "peakflow/tiempoConcentracion.h"

namespace caudalera {

Real tiempoConcentracion(float L, float H) {
    return 0.0195 * Pow(Pow(Real(L), 3) / Real(H), 0.385);
}

} // namespace caudalera
