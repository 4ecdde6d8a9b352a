#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// The Gumbel distribution of the natural logarithm of a variable q, which makes q itself one of
/// Fréchet, the extreme-value distribution of type II: G(y) = exp(-exp(-y)) with
/// y = (ln q - posicion) / escala.
struct LogGumbel {
    /// Mode and scale of the logarithms, in the unit of the logarithm.
    Real posicion;
    Real escala;
};

// Parameters from a series in ascending order: those of Gumbel from its natural logarithms. All
// that can fail comes before the first parameter, so that a failure leaves both as they were. A
// value of 0 or less is failure 5.

/// Ordinary moments. Failure 11 for fewer than two values and for the geometric mean 1, whose
/// logarithm has no coefficient of variation.
void ajustarOrdinarios(LogGumbel& d, std::span<const Real> ordenada);
/// Linear moments. Failure 11 for fewer than four values.
void ajustarLineales(LogGumbel& d, std::span<const Real> ordenada);

/// Reduced variate y of a value; failure 5 for a value of 0 or less, 11 for the scale 0.
Real variableReducida(const LogGumbel& d, Real q);
/// Probability of non-exceedance of a reduced variate; failure 6 below some -709.78.
Real acumulada(const LogGumbel& d, Real y);
/// Value of a probability of non-exceedance; failure 5 unless p is between 0 and 1, both excluded,
/// and 6 where the value leaves the double range.
Real inversa(const LogGumbel& d, Real p);

} // namespace caudalera
