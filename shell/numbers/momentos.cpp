#include "shell/numbers/momentos.h"

#include <cstddef>
#include <utility>

namespace caudalera {

namespace {

Real cuenta(std::span<const Real> x) {
    return static_cast<double>(x.size());
}

} // namespace

void ordenarAscendente(std::span<Real> x) {
    for (std::size_t i = 0; i + 1 < x.size(); ++i) {
        std::size_t k = i;
        for (std::size_t j = i; j < x.size(); ++j) {
            if (x[j] < x[k])
                k = j;
        }
        std::swap(x[i], x[k]);
    }
}

Real media(std::span<const Real> x) {
    Real suma = 0;
    for (const Real valor : x)
        suma += valor;
    return suma / cuenta(x);
}

Real sumaDesvios(std::span<const Real> x, Real centro, int exponente) {
    Real suma = 0;
    for (const Real valor : x)
        suma += Pow(valor - centro, exponente);
    return suma;
}

Real desviacionMuestral(std::span<const Real> x, Real media) {
    return Sqr(sumaDesvios(x, media, 2) / (cuenta(x) - 1));
}

Real sesgoMuestral(Real m3, Real n, Real S) {
    return (Pow(n, 2) * m3) / ((n - 1) * (n - 2) * Pow(S, 3));
}

MomentosLineales momentosLineales(std::span<const Real> ordenada) {
    const Real total = cuenta(ordenada);
    Real s1 = 0;
    Real s2 = 0;
    Real s3 = 0;
    Real s4 = 0;
    Real i = 0;
    for (const Real x : ordenada) {
        i += 1;
        const Real c1 = i - 1;
        const Real c2 = c1 * (i - 2) / 2;
        const Real c3 = c2 * (i - 3) / 3;
        const Real d1 = total - i;
        const Real d2 = d1 * (total - i - 1) / 2;
        const Real d3 = d2 * (total - i - 2) / 3;
        s1 += x;
        s2 += (c1 - d1) * x;
        s3 += (c2 - 2 * c1 * d1 + d2) * x;
        s4 += (c3 - 3 * c2 * d1 + 3 * c1 * d2 - d3) * x;
    }
    const Real C1 = total;
    const Real C2 = C1 * (total - 1) / 2;
    const Real C3 = C2 * (total - 2) / 3;
    const Real C4 = C3 * (total - 3) / 4;
    return {s1 / C1, (s2 / C2) / 2, (s3 / C3) / 3, (s4 / C4) / 4};
}

} // namespace caudalera
