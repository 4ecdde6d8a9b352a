#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// Empirical probability of non-exceedance of rank m of n from the smallest value, by the plotting
/// position of Weibull: m / (n + 1).
Real posicionWeibull(long m, long n);

/// Theoretical delta of the test: the largest of the differences, which are absolute; 0 of none.
Real deltaTeorico(std::span<const Real> delta);

/// Tabular delta of the test for n values, the large-sample form c / Sqr(n), with the coefficient c
/// of the significance level: 1.07 (20 %), 1.22 (10 %), 1.36 (5 %), 1.63 (1 %). Failure 11 for
/// n = 0.
Real deltaTabular(Real coeficiente, long n);

/// The data fit only if the theoretical delta is strictly below the tabular one.
bool seAjusta(Real teorico, Real tabular);

} // namespace caudalera
