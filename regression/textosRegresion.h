#pragma once

#include "shell/window/Platform.h"

#include <string>
#include <string_view>
#include <utility>

namespace caudalera {

// Texts and masks that several windows of regression show.

inline constexpr std::string_view mascaraCorrelacion = "#0.0####";
inline constexpr std::string_view mascaraEvaluacion = "#0.0000";

/// `lblCalculoY` after a reset, where it names the equation that was applied.
inline constexpr const char* rotuloEcuacion = "Ecuación:";

/// Of the windows in which the user picks an equation, and of those with a command for it.
inline constexpr const char* mensajeEvaluarSinCalculo =
    "Antes de hallar valor de Y, efectuar los cálculos de correlación";
inline constexpr const char* mensajeCalcularYSinCalculo =
    "Antes de hallar el valor de Y, efectuar los calculos de la correlación";
inline constexpr const char* mensajeFaltaX = "Ingresar un valor adecuado para X";

/// A message without a title of its own.
inline Message sinTitulo(std::string texto, Icon icono = Icon::none) {
    return {std::move(texto), {}, icono};
}

/// Text of the line Y = a + b * X from its formatted coefficients. A b that reads as negative
/// brings its own sign; two blanks then stand in place of the plus.
std::string textoRecta(const std::string& a, const std::string& b);

} // namespace caudalera
