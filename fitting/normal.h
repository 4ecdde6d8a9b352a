#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// The normal distribution of a variable q: F(q) = P(Z <= (q - posicion) / escala), Z standard.
/// The cumulative function and its inverse are approximations; see aproximacionNormal.h.
struct Normal {
    /// Mean and standard deviation, in the unit of the series.
    Real posicion;
    Real escala;
};

// Parameters from a series in ascending order, set one after another, so that a failure leaves
// those before it.

/// Ordinary moments (Rao and Hamed 2000, chapter 5): mean and standard deviation with divisor
/// n - 1. Failure 11 for fewer than two values and for the mean 0, which has no coefficient of
/// variation.
void ajustarOrdinarios(Normal& d, std::span<const Real> ordenada);
/// Linear moments: l1, and the square root of pi times l2 (Hosking 1990, table 1). Failure 11 for
/// fewer than four values.
void ajustarLineales(Normal& d, std::span<const Real> ordenada);

/// Reduced variate Z of a value; failure 11 for the scale 0.
Real variableReducida(const Normal& d, Real q);
/// Probability of non-exceedance of a reduced variate.
Real acumulada(const Normal& d, Real Z);
/// Value of a probability of non-exceedance; failures as `normalInversa`.
Real inversa(const Normal& d, Real p);

} // namespace caudalera
