#include "fitting/gamma3.h"

#include "fitting/funcionGamma.h"
#include "shell/numbers/momentos.h"

namespace caudalera {

void ajustarOrdinarios(Gamma3& d, std::span<const Real> ordenada) {
    const Real X = media(ordenada);
    const Real S = desviacionMuestral(ordenada, X);
    const auto n = static_cast<double>(ordenada.size());
    const Real Cs = sesgoMuestral(sumaDesvios(ordenada, X, 3) / n, n, S);
    // The coefficient of variation is shown nowhere; it refuses a mean of 0.
    static_cast<void>(S / X);
    d.invalida = Cs < 0;
    d.forma = 4 / Pow(Cs, 2);
    d.escala = Cs * S / 2;
    d.posicion = X - 2 * S / Cs;
}

namespace {

/// Shape of a linear skew of absolute value a < 1.
Real formaDelSesgoLineal(Real a) {
    if (a >= 1.0 / 3) {
        const Real u = 1 - a;
        return u * (0.36067 + u * (-0.59567 + u * 0.25361)) /
               (1 + u * (-2.78861 + u * (2.56096 + u * -0.77045)));
    }
    const Real u = 3 * pi() * Pow(a, 2);
    return (1 + 0.2906 * u) / (u * (1 + u * (0.1882 + u * 0.0442)));
}

} // namespace

void ajustarLineales(Gamma3& d, std::span<const Real> ordenada) {
    const auto [l1, l2, l3, l4] = momentosLineales(ordenada);
    const Real a = Abs(l3 / l2);
    d.invalida = !(l2 > 0 && a < 1);
    if (d.invalida) {
        d.forma = 0;
        d.escala = 0;
        d.posicion = 0;
        return;
    }
    d.forma = formaDelSesgoLineal(a);
    d.escala = Sqr(pi()) * l2 * funcionGamma(d.forma) / funcionGamma(d.forma + 0.5);
    d.posicion = l1 - d.escala * d.forma;
}

Real variableReducida(const Gamma3& d, Real q) {
    return (q - d.posicion) / d.escala;
}

Real acumulada(const Gamma3& d, Real y) {
    return gammaIncompleta(d.forma, y, funcionGamma(d.forma));
}

Real inversa(const Gamma3& d, Real p, Integer16& pasadas) {
    return d.escala * gammaInversa(d.forma, p, pasadas) + d.posicion;
}

} // namespace caudalera
