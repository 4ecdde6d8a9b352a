#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// Mean rainfall over a basin (mm) from the rainfall at its stations (mm) and the area of the
/// basin, in any unit, that is nearer to each of them than to any other: its polygon. Failure 11 if
/// the areas add up to 0, 6 past the double range.
/// Source: A. H. Thiessen, "Precipitation averages for large areas", Monthly Weather Review 39,
/// 1911.
Real thiessen(std::span<const Real> precipitacion, std::span<const Real> areas);

} // namespace caudalera
