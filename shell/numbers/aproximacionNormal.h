#pragma once

#include "shell/numbers/Real.h"

namespace caudalera {

/// Normal cumulative function, the polynomial approximation 26.2.17 of Abramowitz and Stegun,
/// Handbook of Mathematical Functions (absolute error below 7.5E-8). At Z = 0 it gives the
/// polynomial's value, not exactly 0.5. Failure 6 where the square of Z leaves the double range.
Real normalAcumulada(Real Z);

/// Inverse of the normal cumulative function, the rational approximation 26.2.23 of the same source
/// (absolute error below 4.5E-4 for p between 0 and 1). It answers for other p as far as its terms
/// go. Failure 11 for p of 0 and 1, 5 for p below -1 and p above 2, 6 where a square leaves the
/// double range.
Real normalInversa(Real p);

} // namespace caudalera
