#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// Mean rainfall over a basin (mm) as the plain mean of the rainfall at its stations (mm). Failure
/// 11 without any.
/// Source: Chow, Maidment and Mays, Applied Hydrology (1988), section 3.4, "arithmetic-mean
/// method".
Real promedioAritmetico(std::span<const Real> precipitacion);

} // namespace caudalera
