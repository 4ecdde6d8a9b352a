#include "fitting/logNormal3.h"

#include "shell/numbers/aproximacionNormal.h"
#include "shell/numbers/momentos.h"

#include <vector>

namespace caudalera {

namespace {

Real mediana(std::span<const Real> ordenada) {
    const std::size_t mitad = ordenada.size() / 2;
    return ordenada.size() % 2 == 0 ? (ordenada[mitad - 1] + ordenada[mitad]) / 2 : ordenada[mitad];
}

} // namespace

void ajustarOrdinarios(LogNormal3& d, std::span<const Real> ordenada) {
    if (ordenada.empty())
        throw RuntimeFailure(Failure::index);
    const Real menor = ordenada.front();
    const Real mayor = ordenada.back();
    const Real xm = mediana(ordenada);
    const Real asimetria = menor + mayor - 2 * xm;
    d.posicion = (menor * mayor - Pow(xm, 2)) / asimetria;

    std::vector<Real> y;
    y.reserve(ordenada.size());
    for (const Real x : ordenada)
        y.push_back(Log(asimetria > 0 ? x - d.posicion : d.posicion - x));
    d.escala = media(y);
    const Real n = static_cast<double>(y.size());
    d.forma = Sqr(sumaDesvios(y, d.escala, 2) / n);
}

Real variableReducida(const LogNormal3& d, Real q) {
    return (Log(q - d.posicion) - d.escala) / d.forma;
}

Real acumulada(const LogNormal3& /*d*/, Real Z) {
    return normalAcumulada(Z);
}

Real inversa(const LogNormal3& d, Real p) {
    return Exp(d.escala + d.forma * normalInversa(p)) + d.posicion;
}

} // namespace caudalera
