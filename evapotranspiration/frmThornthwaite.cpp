#include "evapotranspiration/frmThornthwaite.h"

#include <utility>

namespace caudalera {

namespace {

constexpr auto LF = ReportWriter::LF;

} // namespace

frmThornthwaite::frmThornthwaite(Program& program)
    : ThornthwaiteWorksheet(
          program, "frmThornthwaite",
          "Cálculo de la evapotranspiración potencial por el método de Thornthwaite",
          {.fields = {"Temperatura (ºC)"},
           .saveFilter = "Temperaturas mensuales TM|*.TM",
           .mask = "0.0#"},
          {.ingreso = "Ingreso de datos de temperaturas:",
           .marcoLatitud = "Ingreso del dato de la  latitud:",
           .latitudes = {},
           .faltanMeses = "Ingresar las temperaturas promedios mensuales, para los 12 meses"}) {
    columnas = {&anno.T};
    registrarResultados({&txti, &txtA});
    disponer();
}

void frmThornthwaite::disponer() {
    using namespace layout;
    grddis.columnWidths = {800, 900, 1200, 1300, 1200, 1500, 1400};
    grddis.visibleRows = static_cast<int>(meses);
    layout = row({
        ingreso.columna(grdt),
        column({marcoLatitud(), fields({txti, txtA})}),
        column({control(grddis), control(Graph1).stretched()}).stretched(),
    });
}

void frmThornthwaite::reiniciarResultados() {
    grddis.reset(meses + 1, 7, 1, 0);
    grddis.setHeaders(
        {"Mes", "T", "Indice i", "ETo (mm)", "Factor f", "ETr mensual", "ETr diaria"});
}

void frmThornthwaite::calcularAnno() {
    calcularEvapotranspiracion();
    escribirResultados();
    calculado = true;
}

void frmThornthwaite::escribirResultados() {
    txti.setText(formatear(anno.I, "0.0###"));
    txtA.setText(textoExponente());
    for (long mes = 1; mes <= meses; ++mes) {
        grddis.setTextMatrix(mes, 0, etiquetaMes(mes));
        grddis.setTextMatrix(mes, 1, formatear(anno.T[mes], "0.0#"));
        grddis.setTextMatrix(mes, 2, formatear(anno.i[mes], "0.0##"));
        grddis.setTextMatrix(mes, 3, formatear(anno.ETo[mes], "0.0##"));
        grddis.setTextMatrix(mes, 4, formatear(anno.f[mes], "0.0#"));
        grddis.setTextMatrix(mes, 5, formatear(anno.ETr[mes], "0.0##"));
        grddis.setTextMatrix(mes, 6, formatear(anno.ETrDiaria[mes], "0.0#"));
    }
}

std::string frmThornthwaite::tituloCurvas() const {
    return grddis.TextMatrix(0, 6) + " (mm)";
}

std::vector<Graph::Series> frmThornthwaite::curvas() const {
    return {curva({}, anno.ETrDiaria.primeros(meses))};
}

void frmThornthwaite::escribirReporte(ReportWriter& reporte) {
    constexpr long guiones = 155;
    reporte.tablaDeDatos("Serie de datos de temperaturas mensuales", " Mes\t       Temperatura\t",
                         grdt, meses, 40);
    reporte << "Resultado del cálculo de la evapotranspiración potencial, método de Thornthwaite:"
            << LF << LF;
    reporte << " Indice térmico anual (I) = " << txti.text() << LF;
    reporte << " Exponente (a) = " << txtA.text() << LF;
    reporte.encabezado({"Mes  "
                        "          Temperatura   "
                        "          Indice   "
                        "          ETo   "
                        "          Factor f "
                        "          ETr mensual   "
                        "    ETr diaria (mm) "},
                       guiones);
    reporte.filas(grddis, 1, meses, "\t\t");
    reporte.regla(guiones);
}

} // namespace caudalera
