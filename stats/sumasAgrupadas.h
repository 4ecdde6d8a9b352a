#pragma once

#include "shell/numbers/parametrosComunes.h"
#include "stats/agrupacion.h"

namespace caudalera {

/// The mean of a grouped series and the sums about it, every value taken as the mark of its class:
/// m = sum(M f) / n, sum((M - m)^2 f) and so on, as textbooks of statistics give them for tables of
/// frequencies (Spiegel and Stephens, Statistics, chapters 3 to 5). Failure 11 for n = 0, 6 where a
/// power leaves the double range.
SumasCentrales sumasAgrupadas(const Agrupacion& agrupacion);

} // namespace caudalera
