#pragma once

#include "shell/numbers/Real.h"

#include <optional>
#include <vector>

namespace caudalera {

/// What every window says of a system without a solution of its own.
inline constexpr const char* mensajeSistemaSingular =
    "El sistema que se origina tiene infinitas soluciones";

/// N rows of N + 1 numbers: the coefficients of a linear equation and its right side.
using MatrizAumentada = std::vector<std::vector<Real>>;

/// Solution of a system of linear equations by Gauss-Jordan elimination, in the order of the
/// unknowns (index 0 is the first); none if the system is singular. The pivot of a column is the
/// first entry from the diagonal down that is not exactly 0: no search for the largest one and no
/// scaling, so that a system which only rounding keeps from singularity is solved as it stands.
/// Failure 6 for a number past the double range.
/// Source: the textbook elimination to the identity matrix (Stoer and Bulirsch, Introduction to
/// Numerical Analysis, section 4.2).
std::optional<std::vector<Real>> gaussJordan(MatrizAumentada a);

} // namespace caudalera
