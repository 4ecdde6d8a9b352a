#include "stats/tablaParametros.h"

#include "shell/text/Text.h"

#include <cstddef>
#include <utility>

namespace caudalera {

namespace {

void escribirColumna(MSFlexGrid& tabla, long columna, const std::vector<std::string>& textos) {
    for (std::size_t i = 0; i < textos.size(); ++i)
        tabla.setTextMatrix(static_cast<long>(i) + 1, columna, textos[i]);
}

} // namespace

void prepararTablaParametros(MSFlexGrid& tabla, std::vector<int> anchos) {
    using Column = MSFlexGrid::ColumnAlignment;
    tabla.columnAlignments.assign(anchos.size(), Column::center);
    tabla.columnAlignments.front() = Column::left;
    tabla.columnWidths = std::move(anchos);
    tabla.visibleRows = static_cast<int>(numParametros);
}

void reiniciarTablaParametros(MSFlexGrid& tabla, const std::vector<std::string>& encabezados) {
    tabla.reset(numParametros + 1, static_cast<long>(encabezados.size()), 1, 0);
    tabla.setHeaders(encabezados);
}

void escribirParametros(MSFlexGrid& tabla, const std::vector<std::vector<std::string>>& columnas) {
    escribirColumna(tabla, 0,
                    {"Media:                      ", "Varianza:                   ",
                     "Desviación Estándar:        ", "Coeficiente Variación:      ",
                     "Coeficiente de Sesgo:       ", "Coeficiente de Curtosis:    "});
    for (std::size_t i = 0; i < columnas.size(); ++i)
        escribirColumna(tabla, static_cast<long>(i) + 1, columnas[i]);
}

void reporteDeParametros(ReportWriter& reporte, const MSFlexGrid& tabla,
                         std::string_view encabezado, long guiones) {
    reporte.abrirTabla("Parámetros Estadísticos:", {encabezado}, guiones);
    for (long fila = 1; fila <= numParametros; ++fila) {
        reporte << ReportWriter::TAB << tabla.TextMatrix(fila, 0);
        for (long col = 1; col < tabla.Cols(); ++col)
            reporte << blancos(fila == 1 ? 5 : 0) << centrado(tabla.TextMatrix(fila, col), 25);
        reporte << ReportWriter::LF;
    }
    reporte.cerrarTabla(guiones);
}

} // namespace caudalera
