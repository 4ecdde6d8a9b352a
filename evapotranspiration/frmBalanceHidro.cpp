#include "evapotranspiration/frmBalanceHidro.h"

#include "evapotranspiration/balanceHidrico.h"

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace caudalera {

namespace {

constexpr auto LF = ReportWriter::LF;
constexpr auto TAB = ReportWriter::TAB;

/// Rows of `grddis`.
enum Fila : long { filaT = 1, filaI, filaETosc, filaFactor, filaETo, filaP, filaDiferencia };
constexpr std::array rotulosDeFila = {"T (ºC)",   "i",      "ETosc(mm)", "facCorrec",
                                      "ETo (mm)", "P (mm)", "P-e (mm)"};
constexpr long filas = 15;
/// Column of `grddis` behind those of the months.
constexpr long columnaAnno = 13;

} // namespace

frmBalanceHidro::frmBalanceHidro(Program& program)
    : ThornthwaiteWorksheet(
          program, "frmBalanceHidro", "Cálculo del balance hídrico por el método de Thornthwaite",
          {.fields = {"Temperatura (ºC)", "Precipitación (mm)"},
           .saveFilter = "Temperaturas y precipitación TP|*.TP",
           .mask = "0.0#"},
          {.ingreso = "Ingreso de datos de temperaturas y precipitación:",
           .marcoLatitud = "Ingresar dato de latitud:",
           .latitudes = {},
           .faltanMeses = "Ingresar las temperaturas y precipitaciones promedios mensuales, para "
                          "los 12 meses"}) {
    columnas = {&anno.T, &P};
    registrarResultados({&txtMesIni, &txtA});
    disponer();
}

void frmBalanceHidro::disponer() {
    using namespace layout;
    grddis.columnWidths.assign(columnaAnno + 1, 1000);
    grddis.columnWidths.front() = 1350;
    grddis.columnWidths.back() = 900;
    grddis.visibleRows = static_cast<int>(rotulosDeFila.size());
    layout = row({
        ingreso.columna(grdt),
        column({row({marcoLatitud(), fields({txtMesIni, txtA})}), control(grddis),
                control(Graph1).stretched()})
            .stretched(),
    });
}

void frmBalanceHidro::reiniciarResultados() {
    grddis.reset(filas, columnaAnno + 1, 1, 1);
    std::vector<std::string> encabezados = {" "};
    encabezados.insert(encabezados.end(), mesesCortos.begin(), mesesCortos.end());
    encabezados.emplace_back("Año");
    grddis.setHeaders(encabezados);
    long fila = filaT;
    for (const char* rotulo : rotulosDeFila)
        grddis.setTextMatrix(fila++, 0, rotulo);
}

void frmBalanceHidro::borrarResultados() {
    ThornthwaiteWorksheet::borrarResultados();
    limpiarMatrices();
}

void frmBalanceHidro::limpiarMatrices() {
    for (long mes = 1; mes <= meses; ++mes) {
        anno.T[mes] = 0;
        P[mes] = 0;
    }
}

void frmBalanceHidro::calcularAnno() {
    calcularEvapotranspiracion();
    calcularDiferencias();
    escribirResultados();
    calculado = true;
}

void frmBalanceHidro::calcularDiferencias() {
    for (long mes = 1; mes <= meses; ++mes)
        diferencia[mes] = toSingle(P[mes] - Real(anno.ETr[mes]));
    primerMes_ = primerMesConExceso(std::as_const(diferencia).primeros(meses)).value_or(primerMes_);
}

void frmBalanceHidro::escribirResultados() {
    txtMesIni.setText(std::string(nombreDelMes(primerMes_)));
    txtA.setText(textoExponente());
    grddis.setTextMatrix(filaI, columnaAnno, formatear(anno.I, "0.0#"));
    for (long mes = 1; mes <= meses; ++mes) {
        grddis.setTextMatrix(filaT, mes, formatear(anno.T[mes], "0.0#"));
        grddis.setTextMatrix(filaI, mes, formatear(anno.i[mes], "0.0##"));
        grddis.setTextMatrix(filaETosc, mes, formatear(anno.ETo[mes], "0.0##"));
        grddis.setTextMatrix(filaFactor, mes, formatear(anno.f[mes], "0.0#"));
        grddis.setTextMatrix(filaETo, mes, formatear(anno.ETr[mes], "0.0##"));
        grddis.setTextMatrix(filaP, mes, formatear(P[mes], "0.0#"));
        grddis.setTextMatrix(filaDiferencia, mes, formatear(diferencia[mes], "0.0#"));
    }
}

std::string frmBalanceHidro::tituloCurvas() const {
    return "ETo, P (mm)";
}

std::vector<Graph::Series> frmBalanceHidro::curvas() const {
    Graph::Series evapotranspiracion = curva("ETo", anno.ETr.primeros(meses));
    evapotranspiracion.meaning = "Evapotranspiración potencial";
    Graph::Series precipitacion{"P", {}, "Precipitación"};
    for (const Real valor : P.primeros(meses))
        precipitacion.y.push_back(valor.value());
    return {std::move(evapotranspiracion), std::move(precipitacion)};
}

void frmBalanceHidro::escribirReporte(ReportWriter& reporte) {
    constexpr long guiones = 165;
    reporte.tablaDeDatos("Serie de datos de temperaturas y precipitaciones mensuales",
                         " Mes\t       Temperatura\tPrecipitación\t", grdt, meses, 65);
    reporte << "Resultado del cálculo del balance hídrico, método de Thornthwaite:" << LF << LF
            << LF;
    reporte << " Exponente (a) = " << txtA.text() << LF;
    reporte << " Indice de calor anual (I) = " << grddis.TextMatrix(filaI, columnaAnno) << LF;
    std::string encabezado = "             ";
    for (const std::string_view mes : mesesCortos)
        encabezado.append("       ").append(mes);
    reporte.encabezado({encabezado}, guiones);
    for (long fila = filaT; fila <= filaDiferencia; ++fila) {
        // Labels too short for a tab of their own.
        reporte << grddis.TextMatrix(fila, 0) << (fila <= filaI ? "\t\t" : "\t");
        for (long mes = 1; mes <= meses; ++mes)
            reporte << grddis.TextMatrix(fila, mes) << TAB;
        reporte << LF;
    }
    reporte.regla(guiones);
}

} // namespace caudalera
