#include "evapotranspiration/blaneyCriddle.h"

#include <array>
#include <cstddef>

namespace caudalera {

namespace {

constexpr std::size_t clases = 3;
template <typename T>
using PorClase = std::array<T, clases>;

/// By sunshine, humidity and wind.
constexpr PorClase<PorClase<PorClase<CoeficientesBlaney>>> coeficientes = {{
    {{
        {{{-2.0F, 1.15F}, {-1.8F, 1.28F}, {-1.6F, 1.40F}}},
        {{{-2.0F, 1.05F}, {-1.85F, 1.15F}, {-1.7F, 1.25F}}},
        {{{-1.45F, 0.80F}, {-1.55F, 0.88F}, {-1.65F, 0.98F}}},
    }},
    {{
        {{{-2.3F, 1.35F}, {-2.05F, 1.55F}, {-1.8F, 1.73F}}},
        {{{-2.2F, 1.20F}, {-2.15F, 1.38F}, {-2.1F, 1.52F}}},
        {{{-1.8F, 0.97F}, {-1.75F, 1.06F}, {-1.7F, 1.16F}}},
    }},
    {{
        {{{-2.6F, 1.55F}, {-2.3F, 1.12F}, {-2.0F, 2.03F}}},
        {{{-2.4F, 1.37F}, {-2.5F, 1.61F}, {-2.55F, 1.82F}}},
        {{{-2.15F, 1.14F}, {-1.95F, 1.22F}, {-1.7F, 1.31F}}},
    }},
}};

/// Both limits are medium.
ClaseClimatica claseEntre(Real valor, Real desde, Real hasta) {
    if (valor < desde)
        return ClaseClimatica::baja;
    return valor > hasta ? ClaseClimatica::alta : ClaseClimatica::media;
}

} // namespace

ClaseClimatica claseDeInsolacion(Real nN) {
    return claseEntre(nN, 0.6, 0.8);
}

ClaseClimatica claseDeHumedad(Real HRmin) {
    return claseEntre(HRmin, 20, 50);
}

ClaseClimatica claseDeViento(Real U) {
    return claseEntre(U, 7.2, 18);
}

CoeficientesBlaney coeficientesBlaney(ClaseClimatica insolacion, ClaseClimatica humedad,
                                      ClaseClimatica viento) {
    return coeficientes[static_cast<std::size_t>(insolacion)][static_cast<std::size_t>(humedad)]
                       [static_cast<std::size_t>(viento)];
}

Real factorBlaney(Real T, Real P) {
    return (T * 0.46 + 8.13) * P;
}

Real evapotranspiracionBlaney(const CoeficientesBlaney& coef, Real f) {
    return Real(coef.a) + Real(coef.b) * f;
}

} // namespace caudalera
