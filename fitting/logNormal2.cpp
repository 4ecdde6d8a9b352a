#include "fitting/logNormal2.h"

#include "shell/numbers/aproximacionNormal.h"
#include "shell/numbers/logaritmos.h"
#include "shell/numbers/momentos.h"

#include <vector>

namespace caudalera {

void ajustarOrdinarios(LogNormal2& d, std::span<const Real> ordenada) {
    const std::vector<Real> y = logaritmos(ordenada);
    d.escala = media(y);
    d.forma = desviacionMuestral(y, d.escala);
    // The coefficient of variation is shown nowhere; it refuses a mean of 0.
    static_cast<void>(d.forma / d.escala);
}

void ajustarLineales(LogNormal2& d, std::span<const Real> ordenada) {
    const MomentosLineales momentos = momentosLineales(logaritmos(ordenada));
    d.escala = momentos.l1;
    d.forma = Sqr(pi()) * momentos.l2;
}

Real variableReducida(const LogNormal2& d, Real q) {
    return (Log(q) - d.escala) / d.forma;
}

Real acumulada(const LogNormal2& /*d*/, Real Z) {
    return normalAcumulada(Z);
}

Real inversa(const LogNormal2& d, Real p) {
    return Exp(d.escala + d.forma * normalInversa(p));
}

} // namespace caudalera
