#include "fitting/logGumbel.h"

#include "fitting/gumbel.h"
#include "shell/numbers/logaritmos.h"
#include "shell/numbers/momentos.h"

#include <vector>

namespace caudalera {

namespace {

Gumbel deLogaritmos(const LogGumbel& d) {
    return {d.posicion, d.escala};
}

} // namespace

void ajustarOrdinarios(LogGumbel& d, std::span<const Real> ordenada) {
    const std::vector<Real> y = logaritmos(ordenada);
    const Real Y = media(y);
    const Real S = desviacionMuestral(y, Y);
    // The coefficient of variation is shown nowhere; it refuses a geometric mean of 1.
    static_cast<void>(S / Y);
    const Gumbel ajuste = gumbelDeMomentos(Y, S);
    d = {ajuste.posicion, ajuste.escala};
}

void ajustarLineales(LogGumbel& d, std::span<const Real> ordenada) {
    Gumbel ajuste;
    ajustarLineales(ajuste, logaritmos(ordenada));
    d = {ajuste.posicion, ajuste.escala};
}

Real variableReducida(const LogGumbel& d, Real q) {
    return variableReducida(deLogaritmos(d), Log(q));
}

Real acumulada(const LogGumbel& d, Real y) {
    return acumulada(deLogaritmos(d), y);
}

Real inversa(const LogGumbel& d, Real p) {
    return Exp(inversa(deLogaritmos(d), p));
}

} // namespace caudalera
