#include "stats/frmDistriFre.h"

#include "shell/worksheet/Messages.h"

#include <cstddef>
#include <initializer_list>
#include <utility>

namespace caudalera {

namespace {

constexpr std::string_view mascaraFrecuencia = "0.###0";
constexpr std::string_view mascaraAcumulada = "0.#0";

GroupedTexts textos() {
    GroupedTexts textos;
    textos.encabezados = {"LCI",         "MCL",         "LCS",         "FreAbsoluta",
                          "FreRelativa", "FunDensidad", "FunAcumulada"};
    textos.anchos = {1000, 1000, 1000, 1250, 1250, 1250, 1400};
    textos.tituloReporte = "Distribución de Frecuencias:";
    textos.encabezadoReporte = "        LCI          MCL             LCS     FreAbsoluta "
                               "   FreRelativa    FunDensidad    FunAcumulada ";
    textos.guionesReporte = 153;
    return textos;
}

} // namespace

frmDistriFre::frmDistriFre(Program& program)
    : GroupedWorksheet(program, "frmDistriFre",
                       "Cálculo de la distribución de frecuencia de una muestra", textos()) {
    using namespace layout;
    Graph1.xLabels = {&lblMarcaClase};
    Graph1.yLabels = {&lblFuncion, &lblPorcentaje};
    mostrarGrafico(false);
    bGraficar.onClick = [this] { graficar(); };
    optDensidad.onClick = [this] { dibujarFuncion("fx", &Frecuencia::densidad); };
    optAcumulada.onClick = [this] { dibujarFuncion("Fx", &Frecuencia::acumulada); };
    mandatoTrasCalcular(bGraficar);
    disponer(column({control(grddis),
                     frame(fraTipoGrafico, row({control(optDensidad), control(optAcumulada)})),
                     control(Graph1).stretched()})
                 .stretched());
}

void frmDistriFre::borrarResultados() {
    GroupedWorksheet::borrarResultados();
    calculado = false;
    Graph1.clear();
    mostrarGrafico(false);
}

void frmDistriFre::mostrarGrafico(bool visibles) {
    for (Control* rotulo : std::initializer_list<Control*>{&fraTipoGrafico, &lblMarcaClase,
                                                           &lblPorcentaje, &lblFuncion})
        rotulo->visible = visibles;
}

void frmDistriFre::calcular() {
    agrupacion = agruparSerie();
    frecuenciasDeClase = frecuencias(agrupacion);
    escribirClases(agrupacion.clases);
    escribirFrecuencias();
    calculado = true;
}

void frmDistriFre::escribirFrecuencias() {
    long fila = 1;
    for (const Frecuencia& frecuencia : frecuenciasDeClase) {
        grddis.setTextMatrix(fila, 4, formatear(frecuencia.relativa, mascaraFrecuencia));
        grddis.setTextMatrix(fila, 5, formatear(frecuencia.densidad, mascaraFrecuencia));
        grddis.setTextMatrix(fila, 6, formatear(frecuencia.acumulada, mascaraAcumulada));
        ++fila;
    }
}

void frmDistriFre::graficar() {
    mostrarGrafico(true);
    optAcumulada.set();
}

void frmDistriFre::dibujarFuncion(std::string rotulo, Real Frecuencia::*funcion) {
    lblFuncion.caption = std::move(rotulo);
    if (!hayCalculo(calculado,
                    {mensajeGraficoSinEjecutar, "Mensaje de Error", Icon::information}) ||
        !hayPuntos(numClases(), graficoDeDosPuntos(Icon::none)))
        return;
    // The curve begins at the origin.
    std::vector<double> x{0};
    std::vector<double> y{0};
    for (std::size_t i = 0; i < agrupacion.clases.size(); ++i) {
        x.push_back(agrupacion.clases[i].marca.value());
        y.push_back((frecuenciasDeClase[i].*funcion).value());
    }
    Chart grafico;
    grafico.x = std::move(x);
    grafico.series.push_back({{}, std::move(y)});
    dibujar(Graph1, std::move(grafico));
}

void frmDistriFre::escribirReporte(ReportWriter& reporte) {
    reporteDeSerie(reporte);
    reporteDeClases(reporte, numClases());
    reporteDeOrdenados(reporte);
}

} // namespace caudalera
