#include "shell/numbers/aproximacionNormal.h"

namespace caudalera {

Real normalAcumulada(Real Z) {
    const Real b1 = 0.31938153;
    const Real b2 = -0.356563782;
    const Real b3 = 1.781477937;
    const Real b4 = -1.821255978;
    const Real b5 = 1.330274429;
    const Real f = (1 / Sqr(2 * pi())) * Exp(-Pow(Z, 2) / 2);
    const Real t = 1 / (1 + 0.2316419 * Abs(Z));
    const Real W = f * (b1 * t + b2 * Pow(t, 2) + b3 * Pow(t, 3) + b4 * Pow(t, 4) + b5 * Pow(t, 5));
    return Z < 0 ? W : 1 - W;
}

Real normalInversa(Real p) {
    const Real c0 = 2.515517;
    const Real c1 = 0.802853;
    const Real c2 = 0.010328;
    const Real d1 = 1.432788;
    const Real d2 = 0.189269;
    const Real d3 = 0.001308;
    const bool mitadInferior = p <= 0.5;
    const Real cola = mitadInferior ? p : 1 - p;
    const Real w = Sqr(Log(1 / Pow(cola, 2)));
    const Real z =
        w - (c0 + c1 * w + c2 * Pow(w, 2)) / (1 + d1 * w + d2 * Pow(w, 2) + d3 * Pow(w, 3));
    return mitadInferior ? -z : z;
}

} // namespace caudalera
