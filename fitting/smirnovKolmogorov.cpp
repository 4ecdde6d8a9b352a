#include "fitting/smirnovKolmogorov.h"

namespace caudalera {

Real posicionWeibull(long m, long n) {
    return Real(static_cast<double>(m)) / (Real(static_cast<double>(n)) + 1);
}

Real deltaTeorico(const Serie& delta, long n) {
    Real mayor = delta[1];
    for (long m = 1; m <= n; ++m) {
        if (delta[m] >= mayor)
            mayor = delta[m];
    }
    return mayor;
}

Real deltaTabular(Real coeficiente, long n) {
    return coeficiente / Sqr(static_cast<double>(n));
}

bool seAjusta(Real teorico, Real tabular) {
    return teorico < tabular;
}

} // namespace caudalera
