#include "peakflow/caudalGumbel.h"

#include "shell/numbers/momentos.h"

#include <array>

namespace caudalera {

namespace {

Real enReal(long N) {
    return static_cast<double>(N);
}

/// SN = a N^b up to a number of years.
struct RangoDeSN {
    long hasta;
    double a, b;
};
constexpr std::array<RangoDeSN, 5> rangos = {{
    {29, 0.67103805, 0.15259465},
    {90, 0.89525917, 0.06563269},
    {149, 1.079054, 0.0245535},
    {399, 1.1035064, 0.0209186},
    {1500, 1.1566111, 0.0134812},
}};
/// Of longer series: pi / sqrt(6), the standard deviation of the distribution itself, as printed.
constexpr double SNdeLargas = 1.28255;

} // namespace

Real mediaReducida(long N) {
    Real armonico = 0;
    for (long k = 1; k <= N; ++k)
        armonico += 1 / enReal(k);
    return (armonico - Log(enReal(N))) - 0.79980388 * Pow(enReal(N), -0.77617387);
}

Real desviacionReducida(long N) {
    for (const auto& [hasta, a, b] : rangos) {
        if (N <= hasta)
            return a * Pow(enReal(N), b);
    }
    return SNdeLargas;
}

CaudalGumbel caudalGumbel(std::span<const Real> ordenada, Real T) {
    const auto N = static_cast<long>(ordenada.size());
    CaudalGumbel c;
    c.Qm = media(ordenada);
    c.SQ = desviacionMuestral(ordenada, c.Qm);
    c.YN = mediaReducida(N);
    c.SN = desviacionReducida(N);
    c.diseno.Qmax = c.Qm - (c.SQ / c.SN) * (c.YN - Log(T));
    c.diseno.deltaQ = (1.14 * c.SQ) / c.SN;
    return c;
}

} // namespace caudalera
