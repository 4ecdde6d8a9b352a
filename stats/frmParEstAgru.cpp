#include "stats/frmParEstAgru.h"

#include "shell/window/Program.h"
#include "stats/sumasAgrupadas.h"
#include "stats/tablaParametros.h"

namespace caudalera {

namespace {

constexpr std::string_view mascaraParametro = "0.0000";
constexpr std::string_view mascaraDispersion = "0.0###";

GroupedTexts textos() {
    GroupedTexts textos;
    textos.encabezados = {"LCI", "MCL", "LCS", "Fab"};
    textos.anchos = {1500, 1500, 1500, 1200};
    textos.tituloReporte = "Frecuencias absolutas:";
    textos.encabezadoReporte = "         LCI               MCL               LCS      "
                               "         Fab      ";
    textos.guionesReporte = 100;
    return textos;
}

} // namespace

frmParEstAgru::frmParEstAgru(Program& program)
    : GroupedWorksheet(program, "frmParEstAgru",
                       "Cálculo de parámetros estadísticos agrupando datos", textos()) {
    using namespace layout;
    prepararTablaParametros(grdParam, {2600, 2000});
    disponer(column({control(grddis).stretched(), control(grdParam).stretched()}).stretched());
}

void frmParEstAgru::reiniciarResultados() {
    reiniciarTablaParametros(grdParam, {"Parámetros", "Resultados"});
    GroupedWorksheet::reiniciarResultados();
}

void frmParEstAgru::calcular() {
    const Agrupacion agrupacion = agruparSerie();
    program().variables.numClases = static_cast<long>(agrupacion.clases.size());
    escribirClases(agrupacion.clases);
    const ParametrosComunes parametros = parametrosMuestrales(sumasAgrupadas(agrupacion));
    escribirParametros(grdParam, {textosParametros(parametros)});
}

std::vector<std::string> frmParEstAgru::textosParametros(const ParametrosComunes& p) const {
    return {formatear(p.media, mascaraParametro),       formatear(p.varianza, mascaraDispersion),
            formatear(p.desviacion, mascaraDispersion), formatear(p.variacion, mascaraParametro),
            formatear(p.sesgo, mascaraParametro),       formatear(p.curtosis, mascaraParametro)};
}

void frmParEstAgru::escribirReporte(ReportWriter& reporte) {
    reporteDeSerie(reporte);
    reporteDeClases(reporte, program().variables.numClases);
    reporteDeParametros(reporte, grdParam, "     Parámetros                      Valores ", 66);
    reporteDeOrdenados(reporte);
}

} // namespace caudalera
