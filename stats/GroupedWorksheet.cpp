#include "stats/GroupedWorksheet.h"

#include "shell/text/Text.h"

#include <utility>

namespace caudalera {

namespace {

constexpr std::string_view mascaraLimite = "0.0#";
constexpr std::string_view mascaraConteo = "##0";
constexpr long filasClases = 15;
/// Classes of the longest series that a window holds.
constexpr int maximoClases = 9;

} // namespace

GroupedWorksheet::GroupedWorksheet(Program& program, std::string name, std::string text,
                                   GroupedTexts textos)
    : SeriesWorksheet(program, std::move(name), std::move(text)), textos_(std::move(textos)) {
    grddis.columnWidths = textos_.anchos;
    grddis.columnAlignments.assign(textos_.encabezados.size(), MSFlexGrid::ColumnAlignment::center);
    grddis.visibleRows = maximoClases;
}

void GroupedWorksheet::reiniciarResultados() {
    grddis.reset(filasClases, static_cast<long>(textos_.encabezados.size()), 1, 0);
    grddis.setHeaders(textos_.encabezados);
}

Agrupacion GroupedWorksheet::agruparSerie() {
    leerOrdenada();
    return agrupar(serieOrdenada.primeros(n));
}

void GroupedWorksheet::escribirClases(const std::vector<Clase>& clases) {
    long fila = 1;
    for (const Clase& clase : clases) {
        grddis.setTextMatrix(fila, 0, formatear(clase.limiteInferior, mascaraLimite));
        grddis.setTextMatrix(fila, 1, formatear(clase.marca, mascaraLimite));
        grddis.setTextMatrix(fila, 2, formatear(clase.limiteSuperior, mascaraLimite));
        grddis.setTextMatrix(fila, 3,
                             formatear(static_cast<double>(clase.frecuencia), mascaraConteo));
        ++fila;
    }
    grddis.clearRowsFrom(fila);
}

void GroupedWorksheet::reporteDeClases(ReportWriter& reporte, long numClases) const {
    constexpr long anchoCelda = 25;
    reporte.abrirTabla(textos_.tituloReporte, {textos_.encabezadoReporte}, textos_.guionesReporte);
    for (long fila = 1; fila <= numClases; ++fila) {
        for (long col = 0; col < grddis.Cols(); ++col)
            reporte << centrado(grddis.TextMatrix(fila, col), anchoCelda);
        reporte << ReportWriter::LF;
    }
    reporte.cerrarTabla(textos_.guionesReporte);
}

} // namespace caudalera
