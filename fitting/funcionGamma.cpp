#include "fitting/funcionGamma.h"

namespace caudalera {

Real funcionGamma(Real a) {
    Real z = a + 10;
    Real L = (z - 0.5) * Log(z) - z + Log(2 * pi()) / 2;
    // The series has 1260 in the place of 1286. With 1286, which all results stand on, the function
    // is low by 1.6E-10 of itself at a = 0, and by less for a larger a.
    L = L + (1.0 / 12) / z + (-1.0 / 360) / Pow(z, 3) + (1.0 / 1286) / Pow(z, 5) +
        (-1.0 / 1680) / Pow(z, 7);
    Real G = Exp(L);
    for (Real k = Int(z), ultimo = Int(a) + 1; k >= ultimo; k -= 1) {
        z -= 1;
        G /= z;
    }
    return G;
}

Real gammaIncompleta(Real a, Real x, Real G) {
    Real s = 0;
    Real d = 1;
    Real i = 0;
    Real termino;
    do {
        i += 1;
        const Real e = a + i - 1;
        d *= e;
        // Neither x^e nor d is ever multiplied whole: in thirds and quarters the products of both
        // stay within the double range, as far as d itself does.
        const Real raizD = Pow(d, 0.25);
        const Real r = Pow(x, e / 3) / raizD;
        const Real v = Exp(-x) / raizD;
        termino = r * v * r * r;
        s += termino;
    } while (termino / s >= 0.0000001);
    return s / G;
}

namespace {

/// The next x of the search, from one with P(a, x) = F: the steps are shares of x.
Real siguiente(Real x, Real p, Real F) {
    if (p < 0.8)
        return x * Pow(p / F, 1.0 / 3);
    Real paso = 0.002;
    if (p < 0.9) {
        paso = 0.1;
    } else if (p < 0.995) {
        paso = 0.01;
    }
    return x - paso * x * Log((1 - p) / (1 - F));
}

} // namespace

Real gammaInversa(Real a, Real p, Integer16& pasadas) {
    constexpr long maximoPasadas = 1200;
    Real x = a;
    const Real G = funcionGamma(a);
    for (pasadas = 0; pasadas < maximoPasadas;) {
        ++pasadas;
        const Real F = gammaIncompleta(a, x, G);
        x = siguiente(x, p, F);
        if (Abs(p - F) < 0.00005)
            break;
    }
    return x;
}

} // namespace caudalera
