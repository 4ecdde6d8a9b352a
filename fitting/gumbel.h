#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// The extreme-value distribution of type I (Gumbel 1958, Statistics of Extremes) of a variable q:
/// G(y) = exp(-exp(-y)) with y = (q - posicion) / escala.
struct Gumbel {
    /// Mode and scale, in the unit of the series.
    Real posicion;
    Real escala;
};

// Parameters from a series in ascending order. All that can fail comes before the first parameter,
// so that a failure leaves both as they were.

/// Ordinary moments: escala = sqrt(6) S / pi, posicion = mean - 0.5772156649 escala, with S of
/// divisor n - 1 (Chow, Maidment and Mays, Applied Hydrology 1988, section 12.2). Failure 11 for
/// fewer than three values, for the mean 0, which has no coefficient of variation, and for equal
/// values, which have no skew; 6 where a sum of cubes leaves the double range.
void ajustarOrdinarios(Gumbel& d, std::span<const Real> ordenada);
/// Linear moments: escala = l2 / ln 2, posicion = l1 - 0.5772156649 escala (Hosking 1990, table 2).
/// Failure 11 for fewer than four values.
void ajustarLineales(Gumbel& d, std::span<const Real> ordenada);

/// Reduced variate y of a value; failure 11 for the scale 0.
Real variableReducida(const Gumbel& d, Real q);
/// Probability of non-exceedance of a reduced variate, 1 to the last bit above some 37.4; failure 6
/// below some -709.78, where exp(-y) leaves the double range.
Real acumulada(const Gumbel& d, Real y);
/// Value of a probability of non-exceedance; failure 5 unless p is between 0 and 1, both excluded.
Real inversa(const Gumbel& d, Real p);

// What is left of the two fits when the moments are at hand already.

/// From a mean and a standard deviation.
Gumbel gumbelDeMomentos(Real media, Real desviacion);
/// From the first two linear moments.
Gumbel gumbelDeLineales(Real l1, Real l2);

} // namespace caudalera
