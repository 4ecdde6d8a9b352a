#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// The log-normal distribution of a variable q > 0: its natural logarithm is normal, F(q) =
/// P(Z <= (Log(q) - escala) / forma), Z standard (Chow, Maidment and Mays, Applied Hydrology, 1988,
/// table 11.5.1). The cumulative function and its inverse are approximations; see
/// aproximacionNormal.h.
struct LogNormal2 {
    /// Mean and standard deviation of the logarithms; Exp(escala) is the median of q, in the unit
    /// of the series.
    Real escala;
    Real forma;
};

// Parameters from a series in ascending order, set one after another, so that a failure leaves
// those before it. Failure 5 for a value of 0 or less, which leaves all of them.

/// Ordinary moments of the logarithms: mean and standard deviation with divisor n - 1. Failure 11
/// for fewer than two values and for the mean 0, which has no coefficient of variation.
void ajustarOrdinarios(LogNormal2& d, std::span<const Real> ordenada);
/// Linear moments of the logarithms: l1, and the square root of pi times l2 (Hosking 1990, table
/// 1). Failure 11 for fewer than four values.
void ajustarLineales(LogNormal2& d, std::span<const Real> ordenada);

/// Reduced variate Z of a value; failure 5 for a value of 0 or less, 11 for the shape 0.
Real variableReducida(const LogNormal2& d, Real q);
/// Probability of non-exceedance of a reduced variate.
Real acumulada(const LogNormal2& d, Real Z);
/// Value of a probability of non-exceedance; failures as `normalInversa`, and 6 for a value past
/// the double range.
Real inversa(const LogNormal2& d, Real p);

} // namespace caudalera
