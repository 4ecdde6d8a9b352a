#include "regression/ajusteMultiple.h"

#include "regression/gaussJordan.h"

#include <utility>

namespace caudalera {

namespace {

/// Coefficient of determination by the raw sums.
Real determinacion(const SumasMultiples& s, std::span<const Real> a) {
    const Real ym = s.xy[0] / s.n();
    const Real correccion = s.n() * (ym * ym);
    Real explicada = a[0] * s.xy[0];
    for (std::size_t j = 1; j < a.size(); ++j)
        explicada += a[j] * s.xy[j];
    return (explicada - correccion) / (s.yy - correccion);
}

} // namespace

std::vector<Real> observacion(const Regresores& x, std::size_t i) {
    std::vector<Real> valores;
    valores.reserve(x.size());
    for (const auto& variable : x)
        valores.push_back(variable[i]);
    return valores;
}

SumasMultiples sumasMultiples(const Regresores& x, std::span<const Real> y) {
    const std::size_t terminos = x.size() + 1;
    SumasMultiples s;
    s.xx.assign(terminos, std::vector<Real>(terminos));
    s.xy.resize(terminos);
    for (std::size_t i = 0; i < y.size(); ++i) {
        std::vector<Real> t = observacion(x, i);
        t.insert(t.begin(), 1);
        for (std::size_t j = 0; j < terminos; ++j) {
            for (std::size_t k = 0; k < terminos; ++k)
                s.xx[j][k] += t[j] * t[k];
            s.xy[j] += t[j] * y[i];
        }
        s.yy += y[i] * y[i];
    }
    return s;
}

std::optional<AjusteMultiple> ajusteMultiple(const Regresores& x, std::span<const Real> y) {
    SumasMultiples s = sumasMultiples(x, y);
    MatrizAumentada sistema = s.xx;
    for (std::size_t j = 0; j < sistema.size(); ++j)
        sistema[j].push_back(s.xy[j]);
    auto solucion = gaussJordan(std::move(sistema));
    if (!solucion)
        return std::nullopt;
    const Real r2 = determinacion(s, *solucion);
    return AjusteMultiple{std::move(s), *std::move(solucion), r2, Sqr(r2)};
}

Real valorLineal(std::span<const Real> a, std::span<const Real> x) {
    Real valor = a[0];
    for (std::size_t j = 0; j < x.size(); ++j)
        valor += a[j + 1] * x[j];
    return valor;
}

Real valorPotencial(std::span<const Real> coeficientes, std::span<const Real> x) {
    Real valor = coeficientes[0];
    for (std::size_t j = 0; j < x.size(); ++j)
        valor *= Pow(x[j], coeficientes[j + 1]);
    return valor;
}

Real errorEstandar(std::span<const Real> y, std::span<const Real> estimado,
                   std::size_t numCoeficientes) {
    Real SSE;
    for (std::size_t i = 0; i < y.size(); ++i) {
        const Real residuo = y[i] - estimado[i];
        SSE += residuo * residuo;
    }
    const Real n = static_cast<double>(y.size());
    return Sqr(SSE / (n - static_cast<double>(numCoeficientes)));
}

Real errorEstandar(const AjusteMultiple& ajuste) {
    const SumasMultiples& s = ajuste.sumas;
    const std::vector<Real>& a = ajuste.coeficientes;
    Real resto = s.yy;
    for (std::size_t j = 0; j < a.size(); ++j)
        resto -= a[j] * s.xy[j];
    return Sqr(resto / (s.n() - static_cast<double>(a.size())));
}

} // namespace caudalera
