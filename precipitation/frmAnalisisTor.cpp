#include "precipitation/frmAnalisisTor.h"

#include "shell/text/Text.h"
#include "shell/worksheet/Messages.h"

#include <string_view>
#include <utility>

namespace caudalera {

namespace {

constexpr std::string_view mascaraIntensidad = "0.0#";
constexpr long filasResultado = 200;
constexpr long filasFijas = 2;
constexpr long minimoPares = 2;

} // namespace

frmAnalisisTor::frmAnalisisTor(Program& program)
    : Worksheet(program, "frmAnalisisTor",
                "Análisis de una tormenta y cálculo de la intensidad maxima", "Par",
                {{"Tiempo parcial (min)", "Lluvia parcial (mm)"}, "Pares valores T,H|*.TH"}) {
    using namespace layout;
    columnas = {&Tparcial_, &Pparcial_};
    registrarResultados({&txtvI, &txtvD});
    grdecua.columnWidths = {700, 1200, 1200, 1200, 1200, 1200};
    grdecua.visibleRows = 7;
    Graph1.xLabels = {&lblTiempo};
    Graph1.yLabels = {&lblIntensidad, &lblPrecipitacion};
    for (Control* control :
         {static_cast<Control*>(&fraTipoGra), static_cast<Control*>(&lblTiempo),
          static_cast<Control*>(&lblIntensidad), static_cast<Control*>(&lblPrecipitacion)})
        control->visible = false;

    bGraficar.onClick = [this] { graficar(); };
    optHistograma.onClick = [this] {
        rotularEje(lblIntensidad);
        graficarHistograma();
    };
    optCurvamasa.onClick = [this] {
        rotularEje(lblPrecipitacion);
        graficarCurvaMasa();
    };
    layout = row({
        ingreso.columna(grdt),
        column({control(grdecua),
                row({frame(fraIntensidad, fields({txtvI, txtvD})),
                     frame(fraTipoGra, list({&optHistograma, &optCurvamasa}))}),
                control(Graph1).stretched()})
            .stretched(),
    });
    mandatoTrasCalcular(bGraficar);
}

void frmAnalisisTor::reiniciarResultados() {
    grdecua.reset(filasResultado, 6, filasFijas, 1);
    grdecua.setHeaders({"N°", "T parcial", "T acum.", "P parcial", "P acum.", "I"});
    grdecua.setHeaders({"", "(min)", "(min)", "(mm)", "(mm)", "(mm/hr)"}, 1);
}

void frmAnalisisTor::borrarResultados() {
    Worksheet::borrarResultados();
    calculado_ = false;
    Graph1.clear();
    fraTipoGra.visible = false;
    lblTiempo.visible = lblIntensidad.visible = lblPrecipitacion.visible = false;
}

void frmAnalisisTor::derivar() {
    n = contarFilas();
    tormenta_ = Tormenta(capacidadDerivada);
    for (long i = 1; i <= n; ++i) {
        leerFila(i);
        tormenta_.agregar(Tparcial_[i], Pparcial_[i]);
    }
}

void frmAnalisisTor::calcular() {
    calculado_ = true;
    derivar();
    if (n < minimoPares) {
        mensaje("Para el cálculo ingrese por lo menos dos pares de datos", "Error");
        irAFilaDeAlta();
        return;
    }
    long fila = filasFijas;
    for (const IntervaloTormenta& intervalo : tormenta_.intervalos()) {
        grdecua.setTextMatrix(fila, 0, textoPlano(fila - filasFijas + 1));
        grdecua.setTextMatrix(fila, 1, textoPlano(intervalo.tiempo.value()));
        grdecua.setTextMatrix(fila, 2, textoPlano(intervalo.tiempoAcumulado.value()));
        grdecua.setTextMatrix(fila, 3, textoPlano(intervalo.lluvia.value()));
        grdecua.setTextMatrix(fila, 4, textoPlano(intervalo.lluviaAcumulada.value()));
        grdecua.setTextMatrix(fila, 5, formatear(intervalo.intensidad, mascaraIntensidad));
        ++fila;
    }
    grdecua.clearRowsFrom(fila);
    // Their numbers stand in the fixed column, which that leaves.
    for (; fila < grdecua.Rows(); ++fila)
        grdecua.setTextMatrix(fila, 0, {});
    txtvI.setText(formatear(tormenta_.intensidadMaxima(), mascaraIntensidad));
    txtvD.setText(textoPlano(tormenta_.duracionMaxima()));
}

void frmAnalisisTor::graficar() {
    tipoDeGrafico.clear();
    optHistograma.set();
    fraTipoGra.visible = true;
    lblTiempo.visible = true;
}

void frmAnalisisTor::rotularEje(const Label& cual) {
    for (Label* rotulo : Graph1.yLabels)
        rotulo->visible = rotulo == &cual;
}

bool frmAnalisisTor::derivarPuntos() {
    derivar();
    if (hayPuntos(n, graficoDeDosPuntos()))
        return true;
    irAFilaDeAlta();
    return false;
}

void frmAnalisisTor::graficarHistograma() {
    if (!derivarPuntos())
        return;
    Chart grafico;
    grafico.kind = Graph::Kind::area;
    // One interval and one series more than are given values.
    grafico.points = 4 * (n + 1);
    grafico.series.resize(2);
    auto& x = grafico.x.emplace();
    auto& y = grafico.series.front().y;
    double inicio = 0;
    for (const IntervaloTormenta& intervalo : tormenta_.intervalos()) {
        const double fin = intervalo.tiempoAcumulado.value();
        const double intensidad = intervalo.intensidad.value();
        x.insert(x.end(), {inicio, inicio, fin, fin});
        y.insert(y.end(), {0, intensidad, intensidad, 0});
        inicio = fin;
    }
    dibujar(Graph1, std::move(grafico));
}

void frmAnalisisTor::graficarCurvaMasa() {
    if (!derivarPuntos())
        return;
    Chart grafico;
    auto& x = grafico.x.emplace(1, 0);
    auto& y = grafico.series.emplace_back().y;
    y.push_back(0);
    for (const IntervaloTormenta& intervalo : tormenta_.intervalos()) {
        x.push_back(intervalo.tiempoAcumulado.value());
        y.push_back(intervalo.lluviaAcumulada.value());
    }
    dibujar(Graph1, std::move(grafico));
}

void frmAnalisisTor::escribirReporte(ReportWriter& reporte) {
    constexpr long guionesDatos = 65;
    constexpr long guionesResultado = 130;
    constexpr std::string_view LF = ReportWriter::LF;
    const long pares = filasDelReporte();
    reporte << "Pares de datos duración, precipitación:" << LF;
    reporte.encabezado({" Par\t\t Tiempo\t\t Precipitación \t\t", " \t\t (min)\t\t (mm)\t\t"},
                       guionesDatos);
    reporte.filas(grdt, 1, pares, "\t\t");
    reporte.regla(guionesDatos);
    reporte << "Resultados parciales e intensidades:" << LF;
    reporte.encabezado({" N°\t T parcial\t T acum \t P parcial\t P acum\t I  ",
                        "     \t (min)\t (min) \t (mm)\t (mm) \t (mm/hr)"},
                       guionesResultado);
    reporte.filas(grdecua, filasFijas, pares + filasFijas - 1, "\t\t");
    reporte.regla(guionesResultado);
    reporte << "I máximo:" << LF;
    reporte << "El Imáx para una duración de " << txtvD.text() << " min, es " << txtvI.text()
            << " mm/hr" << LF;
}

} // namespace caudalera
