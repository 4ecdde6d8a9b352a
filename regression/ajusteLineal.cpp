#include "regression/ajusteLineal.h"

#include <cstddef>

namespace caudalera {

AjusteLineal ajusteLineal(std::span<const Real> u, std::span<const Real> v) {
    const Real n = static_cast<double>(u.size());
    Real Su;
    Real Sv;
    Real Suu;
    Real Svv;
    Real Suv;
    for (std::size_t i = 0; i < u.size(); ++i) {
        Su += u[i];
        Sv += v[i];
        Suu += Pow(u[i], 2);
        Svv += Pow(v[i], 2);
        Suv += u[i] * v[i];
    }
    const Real um = Su / n;
    const Real vm = Sv / n;
    const Real Cvv = Svv - n * Pow(vm, 2);
    const Real Cuu = Suu - n * Pow(um, 2);
    const Real Cuv = Suv - (n * um) * vm;
    const Real pendiente = Cuv / Cuu;
    const Real r = Cuv / Sqr(Cvv * Cuu);
    return {vm - pendiente * um, pendiente, r, Pow(r, 2)};
}

} // namespace caudalera
