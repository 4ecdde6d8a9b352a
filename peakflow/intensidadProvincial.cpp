#include "peakflow/intensidadProvincial.h"

#include <array>
#include <cstddef>

namespace caudalera {

namespace {

/// In the order of the enumeration.
constexpr std::array<ConstantesProvincia, 6> constantes = {{
    {42.614, 24.6041, 209.844, 38.7305},
    {42.2027, 8.0731, 156.892, 28.4612},
    {44.1334, 7.49972, 200.556, 35.9234},
    {21.7857, 3.13747, 155.052, 25.8865},
    {43.0524, 5.32126, 175.645, 29.5811},
    {20.3018, 2.79158, 166.097, 29.6018},
}};

} // namespace

ConstantesProvincia constantesProvincia(Provincia provincia) {
    return constantes[static_cast<std::size_t>(provincia)];
}

Real intensidadProvincial(Provincia provincia, Real D, Real T) {
    const auto [a, b, c, d] = constantesProvincia(provincia);
    const Real lnD = Log(D);
    const Real terminoT = provincia == Provincia::alajuela ? Log(lnD) : lnD;
    return (a - b * terminoT) * Log(T) + (c - d * lnD);
}

} // namespace caudalera
