#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// The six common parameters of a series.
struct ParametrosComunes {
    Real media;
    Real varianza;
    Real desviacion;
    Real variacion;
    Real sesgo;
    Real curtosis;
};

/// The mean of a series and the sums about it that its common parameters are made of.
struct SumasCentrales {
    Real n;
    Real media;
    Real cuadrados;
    /// Third and fourth central moments, with divisor n.
    Real M3;
    Real M4;
};

/// Failure 11 without values, 6 where a power leaves the double range.
SumasCentrales sumasCentrales(std::span<const Real> x);

/// Sample parameters: variance with divisor n - 1, skew with (n - 1)(n - 2), kurtosis (3 for a
/// normal distribution in the limit) with (n - 1)(n - 2)(n - 3). Failure 11 for n below 4, for
/// equal values and for the mean 0.
ParametrosComunes parametrosMuestrales(const SumasCentrales& sumas);

/// Population parameters, all with divisor n. Failure 11 for equal values and for the mean 0.
ParametrosComunes parametrosPoblacionales(const SumasCentrales& sumas);

} // namespace caudalera
