#include "fitting/FitWorksheet.h"
#include "shell/text/Text.h"
#include "shell/window/Program.h"

namespace caudalera {

namespace {

constexpr auto LF = ReportWriter::LF;

} // namespace

void FitWorksheet::escribirReporte(ReportWriter& reporte) {
    reporteDeSerie(reporte);
    reporteDelAjuste(reporte);
    reporteDeParametros(reporte);

    reporte << LF << LF << LF;
    reporte.encabezado({"Caudal de diseño:"}, 30);
    reporte << "El caudal de diseño para un periodo de retorno de " << txtxt.text() << " años, es "
            << txtxq.text() << LF;
}

void FitWorksheet::reporteDeSerie(ReportWriter& reporte) const {
    reporte.tablaDeDatos("Serie de datos X:", " N°\t\t X\t\t", grdt,
                         program().variables.contadorLineas, 40);
    reporte << LF << LF;
}

void FitWorksheet::reporteDelAjuste(ReportWriter& reporte) const {
    constexpr long anchoCelda = 18;
    constexpr long guionesAjuste = 130;
    constexpr long guionesMensaje = 55;
    std::string encabezado = "        m  \t        X  \t           P(X)        ";
    for (const auto titulo : textos_.columnas.titulosReporte)
        encabezado.append(titulo).append("   ");
    reporte.abrirTabla("Cálculos del ajuste Smirnov Kolmogorov:", {encabezado}, guionesAjuste);
    for (long fila = 1; fila <= program().variables.contadorLineas; ++fila) {
        for (long col = 0; col < grddis.Cols(); ++col)
            reporte << (fila == 1 ? " " : "") << centrado(grddis.TextMatrix(fila, col), anchoCelda);
        reporte << LF;
    }
    reporte.cerrarTabla(guionesAjuste);
    reporte.encabezado({lblAjuste.caption}, guionesMensaje);
    reporte << lblmensaje.caption << LF << LF;
    reporte.cerrarTabla(guionesMensaje);
}

void FitWorksheet::reporteDeParametros(ReportWriter& reporte) const {
    const auto lineas = [&](const std::vector<Parametro>& parametros) {
        for (const Parametro& parametro : parametros)
            reporte << parametro.linea << parametro.campo->text() << LF;
    };
    reporte << textos_.tituloParametros << LF;
    reporte.regla(textos_.guionesParametros);
    if (!textos_.momentosLineales) {
        lineas(ordinarios);
        return;
    }
    reporte << "Con momentos ordinarios:" << LF;
    lineas(ordinarios);
    reporte << LF << "Con momentos lineales:" << LF;
    lineas(lineales);
}

} // namespace caudalera
