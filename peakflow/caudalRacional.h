#pragma once

#include "shell/numbers/Real.h"

namespace caudalera {

/// Peak flow (m3/s) of a small basin, C I A / 360, of a runoff coefficient C, a rainfall intensity
/// I (mm/hr) and an area A (hectares). Failure 6 past the double range. Source: T. J. Mulvany, "On
/// the use of self-registering rain and flood gauges", Transactions of the Institution of Civil
/// Engineers of Ireland 4 (1851), in metric units.
Real caudalRacional(Real C, Real I, Real A);

} // namespace caudalera
