#include "stats/frmParamEsta.h"

#include "shell/text/Text.h"

namespace caudalera {

namespace {

constexpr std::string_view mascaraLista = "#0.0#######";
constexpr std::string_view mascaraComun = "0.##00";
constexpr std::string_view mascaraVarianza = "0.0###";
constexpr std::string_view mascaraLineal = "0.0000";
constexpr long numParametros = 6;

} // namespace

frmParamEsta::frmParamEsta(Program& program)
    : Worksheet(program, "frmParamEsta",
                "Cálculo de parámetros estadísticos, comunes y con momentos lineales", "N°",
                layoutSerieX()) {
    columnas = {&serieX};
    registrarResultados({&txtL1, &txtL2, &txtL3, &txtL4});
    using Column = MSFlexGrid::ColumnAlignment;
    grdParam.columnWidths = {2050, 1750, 1750, 1750};
    grdParam.columnAlignments = {Column::left, Column::center, Column::center, Column::center};
    grdParam.visibleRows = static_cast<int>(numParametros);
    grdorden.columnWidths = {700, 1800};
    reiniciarOrdenados(0);
    mostrarOrdenados(false);
    bOrdenar.onClick = [this] { ordenar(); };
    disponer();
}

void frmParamEsta::disponer() {
    using namespace layout;
    lblOrdenado.heading = true;
    for (TextBox* campo : {&txtL1, &txtL2, &txtL3, &txtL4})
        campo->width = 14;
    layout = row({
        ingreso.columna(grdt),
        column({control(grdParam).stretched(),
                frame(fraCoeficientes, fields({txtL1, txtL2, txtL3, txtL4}))})
            .stretched(),
        column({control(lblOrdenado), control(grdorden).stretched()}),
    });
    mandatoTrasCalcular(bOrdenar);
}

void frmParamEsta::reiniciarResultados() {
    grdParam.reset(numParametros + 1, 4, 1, 0);
    grdParam.setHeaders({"Parámetros", "Muestrales", "Poblacionales", "Momentos Lineales"});
}

void frmParamEsta::borrarResultados() {
    Worksheet::borrarResultados();
    mostrarOrdenados(false);
}

void frmParamEsta::reiniciarOrdenados(long filas) {
    grdorden.reset(filas + 1, 2, 1, 1);
    grdorden.setHeaders({"N°", "X"});
}

void frmParamEsta::mostrarOrdenados(bool visibles) {
    lblOrdenado.visible = visibles;
    grdorden.visible = visibles;
}

void frmParamEsta::ordenarSerie() {
    serieOrdenada = serieX;
    ordenarAscendente(serieOrdenada.primeros(n));
}

void frmParamEsta::ordenar() {
    mostrarOrdenados(true);
    leerCuadricula();
    ordenarSerie();
    reiniciarOrdenados(n);
    for (long i = 1; i <= n; ++i) {
        grdorden.setTextMatrix(i, 0, Str(static_cast<double>(i)));
        grdorden.setTextMatrix(i, 1, formatear(serieOrdenada[i], mascaraLista));
    }
}

void frmParamEsta::calcular() {
    leerCuadricula();
    if (!hayPuntos(n, {"Para el cálculo de los parámetros se requieren por lo menos dos datos",
                       "Error", Icon::error}))
        return;
    const SumasCentrales sumas = sumasCentrales(serieX.primeros(n));
    const ParametrosComunes muestrales = parametrosMuestrales(sumas);
    const ParametrosComunes poblacionales = parametrosPoblacionales(sumas);
    ordenarSerie();
    const MomentosLineales momentos = momentosLineales(serieOrdenada.primeros(n));
    escribirMomentos(momentos);
    escribirParametros(muestrales, poblacionales, momentos);
}

void frmParamEsta::escribirMomentos(const MomentosLineales& momentos) {
    txtL1.setText(formatear(momentos.l1, mascaraLineal));
    txtL2.setText(formatear(momentos.l2, mascaraLineal));
    txtL3.setText(formatear(momentos.l3, mascaraLineal));
    txtL4.setText(formatear(momentos.l4, mascaraLineal));
}

void frmParamEsta::escribirParametros(const ParametrosComunes& muestrales,
                                      const ParametrosComunes& poblacionales,
                                      const MomentosLineales& momentos) {
    const auto textosComunes = [this](const ParametrosComunes& p) -> std::vector<std::string> {
        return {formatear(p.media, mascaraComun),      formatear(p.varianza, mascaraVarianza),
                formatear(p.desviacion, mascaraComun), formatear(p.variacion, mascaraComun),
                formatear(p.sesgo, mascaraComun),      formatear(p.curtosis, mascaraComun)};
    };
    // Here the ratios of the linear moments stand for variation, skew and kurtosis, and the square
    // of the second one for the variance.
    const auto [l1, l2, l3, l4] = momentos;
    const std::vector<std::string> lineales = {
        formatear(l1, mascaraLineal),      formatear(Pow(l2, 2), mascaraVarianza),
        formatear(l2, mascaraLineal),      formatear(l2 / l1, mascaraLineal),
        formatear(l3 / l2, mascaraLineal), formatear(l4 / l2, mascaraLineal)};

    escribirColumna(0, {"Media:                      ", "Varianza:                   ",
                        "Desviación Estándar:        ", "Coeficiente Variación:      ",
                        "Coeficiente de Sesgo:       ", "Coeficiente de Curtosis:    "});
    escribirColumna(1, textosComunes(muestrales));
    escribirColumna(2, textosComunes(poblacionales));
    escribirColumna(3, lineales);
}

void frmParamEsta::escribirColumna(long columna, const std::vector<std::string>& textos) {
    for (std::size_t i = 0; i < textos.size(); ++i)
        grdParam.setTextMatrix(static_cast<long>(i) + 1, columna, textos[i]);
}

void frmParamEsta::escribirReporte(ReportWriter& reporte) {
    constexpr auto LF = ReportWriter::LF;
    constexpr auto TAB = ReportWriter::TAB;
    constexpr std::string_view columnasSerie = " N°\t\t X\t\t";
    constexpr long guionesSerie = 45;
    constexpr long guionesParametros = 145;

    reporte.tablaDeDatos("Serie de datos X:", columnasSerie, grdt, filasDelReporte(), guionesSerie);

    reporte.abrirTabla("Parámetros Estadísticos:",
                       {"     Parámetros       \t                   Muestrales \t"
                        " Poblacionales  \t    Momentos Lineales  "},
                       guionesParametros);
    for (long fila = 1; fila <= numParametros; ++fila) {
        reporte << TAB << grdParam.TextMatrix(fila, 0);
        for (long col = 1; col < grdParam.Cols(); ++col)
            reporte << blancos(fila == 1 ? 5 : 0) << centrado(grdParam.TextMatrix(fila, col), 25);
        reporte << LF;
    }
    reporte.cerrarTabla(guionesParametros);

    reporte << "Coeficientes Lineales:" << LF << LF;
    reporte << "L1 = " << txtL1.text() << LF << "L2 = " << txtL2.text() << LF;
    reporte << "L3 = " << txtL3.text() << LF << "L4 = " << txtL4.text() << LF << LF;

    reporte.tablaDeDatos("Serie de datos ordenados:", columnasSerie, grdorden, grdorden.Rows() - 1,
                         guionesSerie);
}

} // namespace caudalera
