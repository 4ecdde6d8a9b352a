#include "precipitation/ArealWorksheet.h"

#include <string_view>
#include <utility>

namespace caudalera {

ArealWorksheet::ArealWorksheet(Program& program, std::string name, std::string text,
                               SeriesLayout seriesLayout, ArealTexts textos)
    : Worksheet(program, std::move(name), std::move(text), textos.encabezadoFilas,
                std::move(seriesLayout)),
      textos_(std::move(textos)) {
    registrarResultados({&txtPprom});
}

void ArealWorksheet::disponer(Layout datos) {
    using namespace caudalera::layout;
    layout = row({
        std::move(datos),
        column({frame(fraResultado, fields({txtPprom})), control(Picture1).stretched()})
            .stretched(),
    });
}

void ArealWorksheet::calcular() {
    leerCuadricula();
    if (n == 0) {
        mensaje(textos_.sinDatos, tituloError);
        setFocus(grdt);
        return;
    }
    txtPprom.setText(formatear(precipitacionMedia(), "#0.0##"));
}

void ArealWorksheet::escribirReporte(ReportWriter& reporte) {
    constexpr long guionesDatos = 65;
    constexpr long guionesResultado = 60;
    constexpr std::string_view LF = ReportWriter::LF;
    reporte << textos_.reporteDatos << LF;
    reporte.encabezado({textos_.reporteColumnas}, guionesDatos);
    reporte.filas(grdt, 1, filasDelReporte(), "\t\t");
    escribirUltimaFila(reporte);
    reporte.cerrarTabla(guionesDatos);
    reporte << textos_.reporteResultado << LF;
    reporte.regla(guionesResultado);
    reporte << " Precipitación promedio =  " << txtPprom.text() << " mm" << LF;
    reporte.regla(guionesResultado);
}

} // namespace caudalera
