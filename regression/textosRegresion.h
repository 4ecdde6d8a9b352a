#pragma once

#include <string>

namespace caudalera {

/// Where a fit has fewer than two pairs.
inline constexpr const char* mensajeAjusteDosPuntos =
    "Para el ajuste a la ecuación se requiere por lo menos dos puntos";

/// Text of the line Y = a + b * X from its formatted coefficients. A b that reads as negative
/// brings its own sign; two blanks then stand in place of the plus.
std::string textoRecta(const std::string& a, const std::string& b);

} // namespace caudalera
