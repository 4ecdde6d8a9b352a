#pragma once

#include "shell/numbers/Real.h"

namespace caudalera {

/// Reference evapotranspiration (mm/day) of a month from its extraterrestrial radiation Ra (mm of
/// evaporated water a day) and its mean extreme temperatures (degrees Celsius). Failure 5 if Tmax
/// is below Tmin.
/// Source: G. H. Hargreaves and Z. A. Samani, Reference crop evapotranspiration from temperature,
/// Applied Engineering in Agriculture 1(2), 1985.
Real evapotranspiracionHargreaves(Real Ra, Real Tmin, Real Tmax);

} // namespace caudalera
