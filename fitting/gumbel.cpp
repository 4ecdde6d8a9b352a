#include "fitting/gumbel.h"

#include "shell/numbers/momentos.h"

namespace caudalera {

namespace {

/// Mean of the reduced variate: the Euler-Mascheroni constant in ten decimals.
constexpr double mediaReducida = 0.5772156649;

} // namespace

Gumbel gumbelDeMomentos(Real media, Real desviacion) {
    const Real escala = Sqr(6) * desviacion / pi();
    return {media - escala * mediaReducida, escala};
}

Gumbel gumbelDeLineales(Real l1, Real l2) {
    const Real escala = l2 / Log(2);
    return {l1 - escala * mediaReducida, escala};
}

void ajustarOrdinarios(Gumbel& d, std::span<const Real> ordenada) {
    const Real n = static_cast<double>(ordenada.size());
    const Real X = media(ordenada);
    const Real S = desviacionMuestral(ordenada, X);
    // Neither coefficient is shown; they refuse a mean of 0 and equal values.
    static_cast<void>(S / X);
    static_cast<void>(sesgoMuestral(sumaDesvios(ordenada, X, 3) / n, n, S));
    d = gumbelDeMomentos(X, S);
}

void ajustarLineales(Gumbel& d, std::span<const Real> ordenada) {
    const MomentosLineales momentos = momentosLineales(ordenada);
    d = gumbelDeLineales(momentos.l1, momentos.l2);
}

Real variableReducida(const Gumbel& d, Real q) {
    return (q - d.posicion) / d.escala;
}

Real acumulada(const Gumbel& /*d*/, Real y) {
    return Exp(-Exp(-y));
}

Real inversa(const Gumbel& d, Real p) {
    const Real y = -Log(-Log(p));
    return d.posicion + y * d.escala;
}

} // namespace caudalera
