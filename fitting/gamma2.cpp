#include "fitting/gamma2.h"

#include "fitting/funcionGamma.h"

namespace caudalera {

namespace {

Real mediaDeLogaritmos(std::span<const Real> serie) {
    Real suma = 0;
    for (const Real valor : serie)
        suma += Log(valor);
    return suma / static_cast<double>(serie.size());
}

} // namespace

void ajustarOrdinarios(Gamma2& d, std::span<const Real> ordenada, std::span<const Real> serie) {
    const Real X = media(ordenada);
    const Real S = desviacionMuestral(ordenada, X);
    const auto n = static_cast<double>(ordenada.size());
    // Skew and coefficient of variation are shown nowhere; they refuse short series, equal values
    // and a mean of 0.
    static_cast<void>(sesgoMuestral(sumaDesvios(ordenada, X, 3) / n, n, S));
    static_cast<void>(S / X);
    const Real w = Log(X) - mediaDeLogaritmos(serie);
    if (w <= 0.5772) {
        d.forma = (0.5000876 + 0.1648852 * w - 0.0544274 * Pow(w, 2)) / w;
    } else {
        d.forma = (8.898919 + 9.05995 * w + 0.9775373 * Pow(w, 2)) /
                  (w * (17.79728 + 11.968477 * w + Pow(w, 2)));
    }
    d.escala = X / d.forma;
}

void ajustarOrdinarios(Gamma2& d, std::span<const Real> ordenada) {
    ajustarOrdinarios(d, ordenada, ordenada);
}

void ajustarLineales(Gamma2& d, const MomentosLineales& momentos) {
    const auto& [l1, l2, l3, l4] = momentos;
    if (l1 <= l2 || l2 <= 0) {
        d.forma = 0;
    } else if (const Real c = l2 / l1; c >= 0.5) {
        const Real u = 1 - c;
        d.forma = u * (0.7213 + u * -0.5947) / (1 + u * (-2.1817 + u * 1.2113));
    } else {
        // The approximation is made for pi c^2. With 6, which all results stand on, the shape is
        // another; see the header.
        const Real u = 6 * Pow(c, 2);
        d.forma = (1 + -0.308 * u) / (u * (1 + u * (-0.05812 + u * 0.01765)));
    }
    d.escala = l1 / d.forma;
}

void ajustarLineales(Gamma2& d, std::span<const Real> ordenada) {
    ajustarLineales(d, momentosLineales(ordenada));
}

Real variableReducida(const Gamma2& d, Real q) {
    return q / d.escala;
}

Real acumulada(const Gamma2& d, Real y) {
    return gammaIncompleta(d.forma, y, funcionGamma(d.forma));
}

Real inversa(const Gamma2& d, Real p, Integer16& pasadas) {
    return d.escala * gammaInversa(d.forma, p, pasadas);
}

} // namespace caudalera
