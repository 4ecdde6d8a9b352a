#include "regression/ajustePotencial.h"

#include "regression/gaussJordan.h"

namespace caudalera {

std::vector<TrioIntensidad> enTrios(std::span<const Real> T, std::span<const Real> D,
                                    std::span<const Real> Imax) {
    std::vector<TrioIntensidad> trios;
    trios.reserve(T.size());
    for (std::size_t i = 0; i < T.size(); ++i)
        trios.push_back({T[i], D[i], Imax[i]});
    return trios;
}

SumasLogaritmicas sumasLogaritmicas(std::span<const TrioIntensidad> trios) {
    SumasLogaritmicas s;
    for (const TrioIntensidad& trio : trios) {
        const Real x1 = Log(trio.T);
        const Real x2 = Log(trio.D);
        const Real y = Log(trio.Imax);
        s.n += 1;
        s.x1 += x1;
        s.x2 += x2;
        s.y += y;
        s.x1x1 += Pow(x1, 2);
        s.x2x2 += Pow(x2, 2);
        s.yy += Pow(y, 2);
        s.x1x2 += x1 * x2;
        s.x1y += x1 * y;
        s.x2y += x2 * y;
    }
    return s;
}

Real AjustePotencial::intensidad(Real T, Real D) const {
    return (K * Pow(T, m)) * Pow(D, n);
}

std::optional<AjustePotencial> ajustePotencial(std::span<const TrioIntensidad> trios) {
    const SumasLogaritmicas s = sumasLogaritmicas(trios);
    const auto solucion = gaussJordan(
        {{s.n, s.x1, s.x2, s.y}, {s.x1, s.x1x1, s.x1x2, s.x1y}, {s.x2, s.x1x2, s.x2x2, s.x2y}});
    if (!solucion)
        return std::nullopt;
    const Real lnK = (*solucion)[0];
    return AjustePotencial{s, lnK, Exp(lnK), (*solucion)[1], (*solucion)[2]};
}

CalidadPotencial calidadPotencial(const AjustePotencial& ajuste,
                                  std::span<const TrioIntensidad> trios) {
    constexpr int coeficientes = 3;
    const SumasLogaritmicas& s = ajuste.sumas;
    const Real correccion = s.n * Pow(s.y / s.n, 2);
    CalidadPotencial calidad;
    calidad.r2 = ((ajuste.lnK * s.y + ajuste.m * s.x1y + ajuste.n * s.x2y) - correccion) /
                 (s.yy - correccion);
    calidad.r = Sqr(calidad.r2);
    Real residuos;
    for (const TrioIntensidad& trio : trios)
        residuos += Pow(trio.Imax - ajuste.intensidad(trio.T, trio.D), 2);
    calidad.Se = Sqr(residuos / (s.n - coeficientes));
    return calidad;
}

std::string textoPotencial(const std::string& K, const std::string& m, const std::string& n) {
    return "Imáx = " + K + "*T^(" + m + ") *D^(" + n + ")";
}

} // namespace caudalera
