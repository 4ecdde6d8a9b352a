#include "shell/numbers/Series.h"

namespace caudalera {

void ordenarAscendente(Serie& x, long n) {
    for (long i = 1; i <= n - 1; ++i) {
        long k = i;
        for (long j = i; j <= n; ++j) {
            if (x[j] < x[k])
                k = j;
        }
        const Real temporal = x[i];
        x[i] = x[k];
        x[k] = temporal;
    }
}

Real media(const Serie& x, long n) {
    Real suma = 0;
    for (long i = 1; i <= n; ++i)
        suma += x[i];
    return suma / Real(static_cast<double>(n));
}

Real sumaDesvios(const Serie& x, long n, Real centro, int exponente) {
    Real suma = 0;
    for (long i = 1; i <= n; ++i)
        suma += Pow(x[i] - centro, exponente);
    return suma;
}

MomentosLineales momentosLineales(const Serie& ordenada, long n) {
    const Real total = static_cast<double>(n);
    Real s1 = 0;
    Real s2 = 0;
    Real s3 = 0;
    Real s4 = 0;
    for (long m = 1; m <= n; ++m) {
        const Real x = ordenada[m];
        const Real i = static_cast<double>(m);
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
