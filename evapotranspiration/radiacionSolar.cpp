#include "evapotranspiration/radiacionSolar.h"

namespace caudalera {

Real latitudEnRadianes(Real grados, std::string_view hemisferio) {
    const Real radianes = grados * pi() / 180;
    return hemisferio == "S" ? -radianes : radianes;
}

RadiacionSolar radiacionSolar(Real latitud, Real declinacion, Real dr) {
    const Real x = -Tan(latitud) * Tan(declinacion);
    // The arc cosine of x.
    const Real ws = Atn(-x / Sqr(-x * x + 1)) + 2 * Atn(1);
    const Real N = 24 * ws / pi();
    const Real calorias =
        916.732 *
        (ws * Sin(latitud) * Sin(declinacion) + Cos(latitud) * Cos(declinacion) * Sin(ws)) / dr;
    return {N, calorias / 58.98757};
}

} // namespace caudalera
