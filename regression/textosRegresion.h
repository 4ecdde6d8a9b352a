#pragma once

#include "shell/ReportWriter.h"

#include <string>
#include <string_view>

namespace caudalera {

/// Where a calculation or a chart of pairs has fewer than two of them.
inline constexpr const char* mensajeAjusteDosPuntos =
    "Para el ajuste a la ecuación se requiere por lo menos dos puntos";
inline constexpr const char* mensajeGraficoDosPuntos =
    "Para graficar se requiere por lo menos dos puntos";

/// Text of the line Y = a + b * X from its formatted coefficients. A b that reads as negative
/// brings its own sign; two blanks then stand in place of the plus.
std::string textoRecta(const std::string& a, const std::string& b);

/// The part of a report that lists a data grid: its title, the rule, the line of column titles,
/// the rule, the first `filas` rows with two tabs behind every cell, the rule and an empty line.
void escribirTablaDatos(ReportWriter& reporte, std::string_view titulo, std::string_view columnas,
                        const MSFlexGrid& grid, long filas, long guiones);

} // namespace caudalera
