#pragma once

#include "shell/numbers/Real.h"

namespace caudalera {

/// Time of concentration of a basin in minutes, 0.0195 (L³/H)^0.385, for the length L of the
/// longest watercourse and the drop H along it, both in metres. Failure 11 for an H of 0, 5 for a
/// quotient below 0. Source: Kirpich, "Time of concentration of small agricultural watersheds",
/// Civil Engineering 10 (1940), in metric units.
Real tiempoConcentracion(float L, float H);

} // namespace caudalera
