#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// Mean rainfall over a basin (mm) from its isohyets (mm) in their order across it and the areas,
/// in any unit, of the bands between neighbours, one less than isohyets: a band has the mean of its
/// two isohyets. Their values need not ascend. Failure 11 if the areas add up to 0, 6 past the
/// double range.
/// Source: Chow, Maidment and Mays, Applied Hydrology (1988), section 3.4, "isohyetal method".
Real isoyetas(std::span<const Real> valores, std::span<const Real> areas);

} // namespace caudalera
