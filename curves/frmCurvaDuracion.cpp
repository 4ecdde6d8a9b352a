#include "curves/frmCurvaDuracion.h"

#include "shell/numbers/momentos.h"
#include "shell/text/Text.h"
#include "shell/window/Program.h"
#include "shell/worksheet/Messages.h"

#include <string>
#include <utility>

namespace caudalera {

namespace {

constexpr auto LF = ReportWriter::LF;
constexpr auto TAB = ReportWriter::TAB;

constexpr std::string_view mascaraCaudal = "#####0.0###";
constexpr std::string_view mascaraProbabilidad = "#####0.0#";
/// Rows of the result grid, the header among them; a longer series does not fit.
constexpr long filasDeResultados = 500;

SeriesLayout layoutCaudales() {
    return {{"Caudal Q (m3/s)"}, "Valores de caudales Q|*.CD"};
}

} // namespace

frmCurvaDuracion::frmCurvaDuracion(Program& program)
    : Worksheet(program, "frmCurvaDuracion",
                "Análisis de frecuencia de caudales, a través de la curva de duración", "Día",
                layoutCaudales()) {
    columnas = {&caudales};
    registrarResultados({&txtxq});
    registrarEntradas({&txtxp});
    OptNormal.preset(true);
    bGraficar.onClick = [this] { graficar(); };
    bQ.onClick = [this] { evaluarQ(); };
    txtxp.command = &bQ;
    disponer();
}

void frmCurvaDuracion::disponer() {
    using namespace layout;
    grddis.columnWidths.assign(numColumnas, 1450);
    grddis.columnWidths[numero] = 800;
    grddis.columnAlignments.assign(numColumnas, MSFlexGrid::ColumnAlignment::center);
    grddis.visibleRows = 8;
    for (TextBox* campo : {&txtxp, &txtxq})
        campo->width = 14;
    layout = row({
        ingreso.columna(grdt),
        column({control(grddis),
                row({frame(fraCaudal, row({fields({txtxp, txtxq}), buttons({&bQ})})),
                     frame(fraGrafico, list({&OptNormal, &OptAdimensional}))}),
                control(Graph1).stretched()})
            .stretched(),
    });
    mandatoTrasCalcular(bGraficar);
}

void frmCurvaDuracion::reiniciarResultados() {
    grddis.reset(filasDeResultados, numColumnas, 1, 0);
    grddis.setHeaders(
        {"Nº", "Q ordenado (m3/s)", "Q considerado", "Q adimensional", "Probabilidad Q >="});
}

void frmCurvaDuracion::borrarResultados() {
    Worksheet::borrarResultados();
    calculado = false;
    OptNormal.preset(true);
    Graph1.clear();
}

void frmCurvaDuracion::calcular() {
    leerCuadricula();
    const Real caudalMedio = media(caudales.primeros(n));
    caudalesOrdenados = caudales;
    ordenarDescendente(caudalesOrdenados.primeros(n));
    escribirOrdenados();
    curva = curvaDuracion(caudalesOrdenados.primeros(n), caudalMedio);
    escribirCurva();
    calculado = true;
}

void frmCurvaDuracion::escribirOrdenados() {
    for (long i = 1; i <= n; ++i) {
        grddis.setTextMatrix(i, numero, textoPlano(i));
        grddis.setTextMatrix(i, ordenado, formatear(caudalesOrdenados[i], mascaraCaudal));
    }
    grddis.clearRowsFrom(n + 1);
}

void frmCurvaDuracion::escribirCurva() {
    long fila = 0;
    for (const PuntoDuracion& punto : curva) {
        ++fila;
        grddis.setTextMatrix(fila, considerado, formatear(punto.caudal, mascaraCaudal));
        grddis.setTextMatrix(fila, adimensional, formatear(punto.adimensional, mascaraCaudal));
        grddis.setTextMatrix(fila, probabilidad,
                             formatear(punto.probabilidad, mascaraProbabilidad));
    }
    while (++fila <= n) {
        for (const Columna columna : {considerado, adimensional, probabilidad})
            grddis.setTextMatrix(fila, columna, {});
    }
}

void frmCurvaDuracion::evaluarQ() {
    const Message inadecuada{"Ingresar un valor adecuado para la probabilidad",
                             "Error de ingreso de dato", Icon::information};
    if (!exigir(txtxp, inadecuada))
        return;
    const Real P = Val(txtxp.text());
    if (P <= 0 || P > 100) {
        rechazar(txtxp, inadecuada);
        return;
    }
    const auto caudal = caudalDeDuracion(curva, P);
    txtxq.setText(caudal ? Str(caudal->value()) : std::string());
}

void frmCurvaDuracion::graficar() {
    constexpr const char* titulo = "Mensaje de Error";
    if (!hayCalculo(calculado, {mensajeGraficoSinCalculo, titulo, Icon::information}) ||
        !hayPuntos(numConsiderados(), {"Para graficar se requiere por lo menos dos puntos", titulo,
                                       Icon::information}))
        return;
    Chart grafico;
    grafico.x.emplace();
    Graph::Series serie;
    for (const PuntoDuracion& punto : curva) {
        grafico.x->push_back(punto.probabilidad.value());
        const Real y = OptAdimensional.checked() ? punto.adimensional : punto.caudal;
        serie.y.push_back(y.value());
    }
    grafico.series.push_back(std::move(serie));
    grafico.xTitle = grddis.TextMatrix(0, probabilidad) + " (" + txtxp.unit()->caption + ")";
    grafico.yTitle = OptAdimensional.checked()
                         ? grddis.TextMatrix(0, adimensional)
                         : grddis.TextMatrix(0, considerado) + " (" + txtxq.unit()->caption + ")";
    dibujar(Graph1, std::move(grafico));
}

void frmCurvaDuracion::escribirReporte(ReportWriter& reporte) {
    constexpr long guionesDeCaudales = 50;
    constexpr long guionesDeDiseno = 30;
    reporte.tablaDeDatos("Serie de caudales Q:", " Día\t\t Caudal (m3/s)\t\t", grdt,
                         program().variables.contadorLineas, guionesDeCaudales);
    reporteDeOrdenados(reporte);
    reporteDeCurva(reporte);
    reporte.encabezado({"Caudal de diseño:"}, guionesDeDiseno);
    reporte << "El caudal de diseño: Q = " << txtxq.text() << " m3/s, tiene una probalidad del "
            << txtxp.text() << " % de ser igualado o excedido" << LF;
}

void frmCurvaDuracion::reporteDeOrdenados(ReportWriter& reporte) const {
    constexpr long guiones = 50;
    reporte.abrirTabla(
        "Caudales ordenados descendentemente:", {"", " Nº\t\t Caudal (m3/s)\t\t", ""}, guiones);
    for (long fila = 1; fila <= program().variables.contadorLineas; ++fila) {
        for (const Columna columna : {numero, ordenado})
            reporte << grddis.TextMatrix(fila, columna) << TAB << TAB;
        reporte << LF;
    }
    reporte.cerrarTabla(guiones);
}

void frmCurvaDuracion::reporteDeCurva(ReportWriter& reporte) const {
    constexpr long guiones = 80;
    constexpr long ancho = 18;
    reporte.abrirTabla("Resultados de los cálculos de la curva de duración:",
                       {"     Q considerado     Q adimensional      Probabilidad Q >="}, guiones);
    for (long fila = 1; fila <= numConsiderados(); ++fila) {
        for (const Columna columna : {considerado, adimensional, probabilidad}) {
            reporte << (fila == 1 ? " " : "") << centrado(grddis.TextMatrix(fila, columna), ancho);
        }
        reporte << LF;
    }
    reporte.cerrarTabla(guiones);
}

} // namespace caudalera
