#include "fitting/logPearson3.h"

#include "shell/numbers/logaritmos.h"

namespace caudalera {

namespace {

/// What the same routine of the logarithms' distribution works on.
Gamma3& delLogaritmo(LogPearson3& d) {
    return d;
}
const Gamma3& delLogaritmo(const LogPearson3& d) {
    return d;
}

} // namespace

void ajustarOrdinarios(LogPearson3& d, std::span<const Real> ordenada) {
    ajustarOrdinarios(delLogaritmo(d), logaritmos(ordenada));
}

void ajustarLineales(LogPearson3& d, std::span<const Real> ordenada) {
    ajustarLineales(delLogaritmo(d), logaritmos(ordenada));
}

Real variableReducida(const LogPearson3& d, Real q) {
    return variableReducida(delLogaritmo(d), Log(q));
}

Real acumulada(const LogPearson3& d, Real y) {
    return acumulada(delLogaritmo(d), y);
}

Real inversa(const LogPearson3& d, Real p, Integer16& pasadas) {
    return Exp(inversa(delLogaritmo(d), p, pasadas));
}

} // namespace caudalera
