#include "peakflow/caudalNash.h"

namespace caudalera {

namespace {

Real logaritmoDecimal(Real x) {
    return Log(x) / Log(10);
}

} // namespace

Real variableNash(Real T) {
    return logaritmoDecimal(logaritmoDecimal(T / (T - 1)));
}

std::vector<PuntoNash> puntosNash(std::span<const Real> descendente) {
    const Real N = static_cast<double>(descendente.size());
    std::vector<PuntoNash> puntos;
    puntos.reserve(descendente.size());
    Real m = 0;
    for (const Real Q : descendente) {
        m += 1;
        const Real T = (N + 1) / m;
        puntos.push_back({Q, T, variableNash(T)});
    }
    return puntos;
}

SumasNash sumasNash(std::span<const PuntoNash> puntos) {
    SumasNash s;
    for (const auto& [Q, T, X] : puntos) {
        s.N += 1;
        s.Q += Q;
        s.Q2 += Pow(Q, 2);
        s.X += X;
        s.X2 += Pow(X, 2);
        s.QX += Q * X;
    }
    s.Qm = s.Q / s.N;
    s.Xm = s.X / s.N;
    s.Sxx = s.N * s.X2 - Pow(s.X, 2);
    s.Sqq = s.N * s.Q2 - Pow(s.Q, 2);
    s.Sxq = s.N * s.QX - s.Q * s.X;
    return s;
}

RectaNash rectaNash(const SumasNash& s) {
    const Real b = (s.QX - s.N * s.Xm * s.Qm) / (s.X2 - s.N * Pow(s.Xm, 2));
    return {s.Qm - b * s.Xm, b};
}

CaudalDeDiseno caudalNash(const SumasNash& s, const RectaNash& recta, Real X) {
    const Real deLaMedia = s.Sqq / (Pow(s.N, 2) * (s.N - 1));
    const Real deLaPendiente =
        (Pow(X - s.Xm, 2) * (s.Sqq - Pow(s.Sxq, 2) / s.Sxx)) / ((s.N - 2) * s.Sxx);
    return {recta.a + recta.b * X, 2 * Sqr(deLaMedia + deLaPendiente)};
}

} // namespace caudalera
