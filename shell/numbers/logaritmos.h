#pragma once

#include "shell/numbers/Real.h"

#include <span>
#include <vector>

namespace caudalera {

/// Natural logarithms of a series, in its order; failure 5 for a value of 0 or less.
std::vector<Real> logaritmos(std::span<const Real> valores);

} // namespace caudalera
