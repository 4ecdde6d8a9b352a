#pragma once

#include "shell/report/ReportWriter.h"
#include "shell/window/MSFlexGrid.h"

#include <string>
#include <vector>

namespace caudalera {

// The result grid of the six common parameters: a header, a parameter a row, its name in column 0.

inline constexpr long numParametros = 6;

/// What a window of parameters gives its grid when it is built: left-aligned names.
void prepararTablaParametros(MSFlexGrid& tabla, std::vector<int> anchos);

/// Builds the table empty, with a header a column.
void reiniciarTablaParametros(MSFlexGrid& tabla, const std::vector<std::string>& encabezados);

/// Writes the names and, column by column, the texts of the parameters from mean to kurtosis.
void escribirParametros(MSFlexGrid& tabla, const std::vector<std::vector<std::string>>& columnas);

/// The table as the reports show it, below a line of headings.
void reporteDeParametros(ReportWriter& reporte, const MSFlexGrid& tabla,
                         std::string_view encabezado, long guiones);

} // namespace caudalera
