#include "evapotranspiration/hargreaves.h"

namespace caudalera {

Real evapotranspiracionHargreaves(Real Ra, Real Tmin, Real Tmax) {
    const Real Tm = (Tmin + Tmax) / 2;
    return 0.0023 * Ra * Sqr(Tmax - Tmin) * (Tm + 17.8);
}

} // namespace caudalera
