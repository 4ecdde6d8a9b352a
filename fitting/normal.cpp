#include "fitting/normal.h"

#include "shell/numbers/aproximacionNormal.h"
#include "shell/numbers/momentos.h"

namespace caudalera {

void ajustarOrdinarios(Normal& d, std::span<const Real> ordenada) {
    d.posicion = media(ordenada);
    d.escala = desviacionMuestral(ordenada, d.posicion);
    // The coefficient of variation is shown nowhere; it refuses a mean of 0.
    static_cast<void>(d.escala / d.posicion);
}

void ajustarLineales(Normal& d, std::span<const Real> ordenada) {
    const MomentosLineales momentos = momentosLineales(ordenada);
    d.posicion = momentos.l1;
    d.escala = Sqr(pi()) * momentos.l2;
}

Real variableReducida(const Normal& d, Real q) {
    return (q - d.posicion) / d.escala;
}

Real acumulada(const Normal& /*d*/, Real Z) {
    return normalAcumulada(Z);
}

Real inversa(const Normal& d, Real p) {
    return d.posicion + d.escala * normalInversa(p);
}

} // namespace caudalera
