#include "fitting/smirnovKolmogorov.h"

#include <algorithm>

namespace caudalera {

Real posicionWeibull(long m, long n) {
    return Real(static_cast<double>(m)) / (Real(static_cast<double>(n)) + 1);
}

Real deltaTeorico(std::span<const Real> delta) {
    Real mayor = 0;
    for (const Real cada : delta)
        mayor = std::max(mayor, cada);
    return mayor;
}

Real deltaTabular(Real coeficiente, long n) {
    return coeficiente / Sqr(static_cast<double>(n));
}

bool seAjusta(Real teorico, Real tabular) {
    return teorico < tabular;
}

} // namespace caudalera
