#include "stats/SeriesWorksheet.h"

#include "shell/numbers/momentos.h"
#include "shell/text/Text.h"

#include <vector>

namespace caudalera {

namespace {

constexpr std::string_view mascaraLista = "#0.0#######";
constexpr std::string_view columnasReporte = " N°\t\t X\t\t";
constexpr long guionesReporte = 45;

} // namespace

SeriesWorksheet::SeriesWorksheet(Program& program, std::string name, std::string text)
    : Worksheet(program, std::move(name), std::move(text), "N°", layoutSerieX()) {
    columnas = {&serieX};
    grdorden.columnWidths = {700, 1800};
    reiniciarOrdenados(0);
    mostrarOrdenados(false);
    bOrdenar.onClick = [this] { ordenar(); };
}

void SeriesWorksheet::disponer(Layout resultados) {
    using namespace layout;
    lblOrdenado.heading = true;
    layout = row({
        ingreso.columna(grdt),
        std::move(resultados),
        column({control(lblOrdenado), control(grdorden).stretched()}),
    });
    mandatoTrasCalcular(bOrdenar);
}

void SeriesWorksheet::leerOrdenada() {
    leerCuadricula();
    serieOrdenada = serieX;
    ordenarAscendente(serieOrdenada.primeros(n));
}

void SeriesWorksheet::borrarResultados() {
    Worksheet::borrarResultados();
    mostrarOrdenados(false);
}

std::vector<const Control*> SeriesWorksheet::resultados() const {
    auto calculados = Worksheet::resultados();
    std::erase(calculados, &grdorden);
    return calculados;
}

void SeriesWorksheet::reiniciarOrdenados(long filas) {
    grdorden.reset(filas + 1, 2, 1, 1);
    grdorden.setHeaders({"N°", "X"});
}

void SeriesWorksheet::mostrarOrdenados(bool visibles) {
    lblOrdenado.visible = visibles;
    grdorden.visible = visibles;
}

void SeriesWorksheet::ordenar() {
    mostrarOrdenados(true);
    leerOrdenada();
    reiniciarOrdenados(n);
    for (long i = 1; i <= n; ++i) {
        grdorden.setTextMatrix(i, 0, Str(static_cast<double>(i)));
        grdorden.setTextMatrix(i, 1, formatear(serieOrdenada[i], mascaraLista));
    }
}

void SeriesWorksheet::reporteDeSerie(ReportWriter& reporte) const {
    reporte.tablaDeDatos("Serie de datos X:", columnasReporte, grdt, filasDelReporte(),
                         guionesReporte);
}

void SeriesWorksheet::reporteDeOrdenados(ReportWriter& reporte) const {
    reporte.tablaDeDatos("Serie de datos ordenados:", columnasReporte, grdorden,
                         grdorden.Rows() - 1, guionesReporte);
}

} // namespace caudalera
