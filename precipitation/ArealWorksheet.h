#pragma once

#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <string>

namespace caudalera {

/// The texts in which the windows of mean rainfall differ.
struct ArealTexts {
    /// Header of the column of row labels.
    std::string encabezadoFilas;
    std::string tituloDatos;
    std::string marcoResultado;
    std::string sinDatos;
    std::string dibujo;
    /// In the report: title and heading row of the data, and title of the result.
    std::string reporteDatos;
    std::string reporteColumnas;
    std::string reporteResultado;
};

/// The template of the windows that find the mean rainfall over a basin from point data. A window
/// supplies its texts, its grid and its method.
class ArealWorksheet : public Worksheet {
public:
    ArealWorksheet(Program& program, std::string name, std::string caption,
                   SeriesLayout seriesLayout, ArealTexts textos);

private:
    // Before the controls, which are built from them.
    ArealTexts textos_;

public:
    DataEntry ingreso{*this, textos_.tituloDatos};
    Frame fraResultado{*this, "fraResultado", textos_.marcoResultado};
    TextBox txtPprom{*this, "txtPprom", "Precipitación promedio: ", "mm"};
    Picture Picture1{*this, "Picture1", textos_.dibujo};

protected:
    /// Rows of data that the arrays hold.
    static constexpr long capacidad = 550;
    static constexpr const char* tituloError = "Mensaje de error";

    /// Mean rainfall (mm) of the rows as they were last read.
    virtual Real precipitacionMedia() const = 0;
    /// Sets the layout, with this as the column of the data.
    void disponer(Layout datos);

    void reiniciarResultados() override {}
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;
    /// Lines of the report's table behind the rows of the grid.
    virtual void escribirUltimaFila(ReportWriter& /*reporte*/) const {}
};

} // namespace caudalera
