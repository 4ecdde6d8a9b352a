#include "evapotranspiration/thornthwaite.h"

#include <cstddef>

namespace caudalera {

Real indiceTermico(Real T) {
    return Pow(T / 5, 1.514);
}

Real exponenteThornthwaite(Real I) {
    return 0.6751 * Pow(10, -6) * Pow(I, 3) - 0.771 * Pow(10, -4) * Pow(I, 2) + 0.01792 * I +
           0.49239;
}

Real evapotranspiracionSinCorregir(Real T, Real I, Real a) {
    return 16 * Pow((T * 10) / I, a);
}

void AnnoThornthwaite::calcular() {
    I = 0;
    for (long mes = 1; mes <= meses; ++mes) {
        i[mes] = indiceTermico(T[mes]);
        I += i[mes];
    }
    a = exponenteThornthwaite(I);
    for (long mes = 1; mes <= meses; ++mes)
        ETo[mes] = toSingle(evapotranspiracionSinCorregir(T[mes], I, a));
    for (long mes = 1; mes <= meses; ++mes)
        ETr[mes] = toSingle(Real(f[mes]) * Real(ETo[mes]));
    for (long mes = 1; mes <= meses; ++mes) {
        const long dias = diasDeMes[static_cast<std::size_t>(mes - 1)];
        ETrDiaria[mes] = toSingle(Real(ETr[mes]) / Real(static_cast<double>(dias)));
    }
}

} // namespace caudalera
