#pragma once

#include "stats/SeriesWorksheet.h"
#include "stats/agrupacion.h"

#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

/// The texts and sizes in which the windows of grouped data differ.
struct GroupedTexts {
    /// Headers and column widths of `grddis`.
    std::vector<std::string> encabezados;
    std::vector<int> anchos;
    std::string_view tituloReporte;
    std::string_view encabezadoReporte;
    long guionesReporte = 0;
};

/// The template of the windows that divide their series into classes: limits, mark and frequency of
/// each, on the screen and in the report.
class GroupedWorksheet : public SeriesWorksheet {
public:
    GroupedWorksheet(Program& program, std::string name, std::string caption, GroupedTexts textos);

    MSFlexGrid grddis{*this, "grddis"};

protected:
    void reiniciarResultados() override;
    /// Reads the grid and groups the series.
    Agrupacion agruparSerie();
    /// The classes into the first columns of `grddis`.
    void escribirClases(const std::vector<Clase>& clases);
    /// The first rows of `grddis` in the report.
    void reporteDeClases(ReportWriter& reporte, long numClases) const;

private:
    GroupedTexts textos_;
};

} // namespace caudalera
