#pragma once

#include "shell/numbers/Real.h"

#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

// The method of Mac Math. Source: R. E. McMath, "Determination of the size of sewers",
// Transactions of the American Society of Civil Engineers 16 (1887), in metric units, with the
// coefficients that the handbooks of small basins print beside it.

/// What the lists of cover (percent of the area) and texture offer, in their order.
std::vector<std::string> coberturasMacMath();
std::vector<std::string> texturasMacMath();

/// Coefficient C of an area: the sum of a part for its cover, one for its soil's texture and one
/// for its slope (percent). A slope on the boundary of two classes counts in the lower one. What is
/// not in the tables, a slope below 0 too, adds nothing.
Real coeficienteMacMath(std::string_view cobertura, std::string_view textura, Real pendiente);

/// Peak flow (m3/s), 0.0091 C I A^(4/5) S^(1/5), of an intensity I (mm/hr), an area A (hectares)
/// and a slope S of the watercourse (parts per thousand). Failure 5 for an A or an S below 0, 6
/// past the double range.
Real caudalMacMath(Real C, Real I, Real A, Real S);

} // namespace caudalera
