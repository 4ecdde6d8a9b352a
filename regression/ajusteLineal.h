#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// The straight line v = intercepto + pendiente * u that fits a set of pairs.
struct AjusteLineal {
    Real intercepto;
    Real pendiente;
    /// Correlation coefficient between u and v, with its sign.
    Real r;
    Real r2;
};

/// Least squares line through the pairs (u, v), which are as many in both arrays. Curves of two
/// parameters are fitted by the logarithms of their variables. Failure 11 if there are no pairs,
/// if all u or all v are equal, 5 if rounding leaves a sum of squares below 0, 6 past the double
/// range.
/// Source: Draper and Smith, Applied Regression Analysis, chapter 1 (normal equations of the
/// straight line), with the sums about the mean taken from the raw sums, as in
/// Cuu = sum(u^2) - n * mean(u)^2, and r = Cuv / sqrt(Cvv * Cuu).
AjusteLineal ajusteLineal(std::span<const Real> u, std::span<const Real> v);

} // namespace caudalera
