#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// Mean of values with these weights, one a value: sum(value * weight) / sum(weight), in the unit
/// of the values. Failure 11 if the weights add up to 0, 6 past the double range.
Real mediaPonderada(std::span<const Real> valores, std::span<const Real> pesos);

} // namespace caudalera
