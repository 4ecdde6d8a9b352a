#include "tests/support/TestSheet.h"

#include "shell/text/MonthData.h"

#include <algorithm>
#include <utility>

namespace caudalera {

TestSheet::TestSheet(Program& program, const std::string& name, SeriesLayout filas,
                     Etiquetas etiquetas)
    : Worksheet(program, name, rotulo, "Nº", std::move(filas)),
      registroFinal(seriesLayout().fields.size()),
      series_(seriesLayout().fields.size(), Serie(capacidad)), etiquetas_(etiquetas) {
    for (Serie& serie : series_)
        columnas.emplace_back(&serie);
    registrarCamposDeSerie({&txtultimo});
}

std::string TestSheet::etiquetaFila(long fila) const {
    return etiquetas_ == Etiquetas::meses ? std::string(mesDeFila(fila))
                                          : Worksheet::etiquetaFila(fila);
}

void TestSheet::calcular() {
    pasos.emplace_back("calcular");
    leerCuadricula();
    Real suma = 0;
    for (long i = 1; i <= n; ++i)
        suma += valor(1, i);
    txtres.setText(formatear(suma / Real(static_cast<double>(n)), "0.##00"));
    grdres.setTextMatrix(1, 0, txtres.text());
}

void TestSheet::limpiar() {
    reiniciarCuadricula();
    reiniciarResultados();
    txtres.setText({});
    Graph1.clear();
}

void TestSheet::escribirReporte(ReportWriter& reporte) {
    for (const auto& pieza : piezas)
        reporte << pieza;
    if (filaDelInforme > 0)
        reporte.filas(grdt, filaDelInforme, filaDelInforme, ReportWriter::TAB);
}

void TestSheet::reiniciarResultados() {
    pasos.push_back("reiniciarResultados con " + std::to_string(grdt.Rows()) + " filas");
    grdres.reset(2, 1, 1, 0);
    grdres.setHeaders({"Media"});
}

void TestSheet::leerCuadricula() {
    pasos.emplace_back("leerCuadricula");
    if (falloAlLeer)
        throw RuntimeFailure(*falloAlLeer);
    Worksheet::leerCuadricula();
}

void TestSheet::trasAccesar() {
    pasos.emplace_back("trasAccesar");
    if (falloTrasAccesar)
        throw RuntimeFailure(*falloTrasAccesar);
}

void TestSheet::recibirUltimoRegistro(std::span<const float> registro) {
    txtultimo.setText(formatear(registro.front(), "#0.0#######"));
}

namespace {

SeriesLayout uno() {
    return {{"X"}, "Valores uno|*.U", "Abrir uno|*.U"};
}
SeriesLayout dos() {
    return {{"X", "Y"}, "Valores dos|*.D"};
}
SeriesLayout tres() {
    return {{"X1", "X2", "Y"}, "Valores tres|*.T"};
}
SeriesLayout cuatro() {
    return {{"X1", "X2", "X3", "Y"}, "Valores cuatro|*.C"};
}
SeriesLayout conUltimo(SeriesLayout layout) {
    layout.lastRecord = true;
    return layout;
}
SeriesLayout conMascara() {
    SeriesLayout layout = uno();
    layout.mask = "0.0#";
    return layout;
}

using Etiquetas = TestSheet::Etiquetas;

std::unique_ptr<Window> hoja(Program& program, const char* name, SeriesLayout layout,
                             Etiquetas etiquetas = Etiquetas::numeros) {
    return std::make_unique<TestSheet>(program, name, std::move(layout), etiquetas);
}

} // namespace

const std::vector<WindowEntry>& ventanasDePrueba() {
    static const std::vector<WindowEntry> entries = withProgramWindows({
        {"hojaUno", [](Program& p) { return hoja(p, "hojaUno", uno()); }},
        {"hojaDos", [](Program& p) { return hoja(p, "hojaDos", dos()); }},
        {"hojaTres", [](Program& p) { return hoja(p, "hojaTres", tres()); }},
        {"hojaCuatro", [](Program& p) { return hoja(p, "hojaCuatro", cuatro()); }},
        {"hojaMeses", [](Program& p) { return hoja(p, "hojaMeses", uno(), Etiquetas::meses); }},
        {"hojaMascara",
         [](Program& p) { return hoja(p, "hojaMascara", conMascara(), Etiquetas::meses); }},
        {"hojaUltimoUno", [](Program& p) { return hoja(p, "hojaUltimoUno", conUltimo(uno())); }},
        {"hojaUltimoDos", [](Program& p) { return hoja(p, "hojaUltimoDos", conUltimo(dos())); }},
        {"hojaUltimoTres", [](Program& p) { return hoja(p, "hojaUltimoTres", conUltimo(tres())); }},
    });
    return entries;
}

std::string SheetTest::marks() {
    const auto& grid = control<MSFlexGrid>("grdt");
    std::string joined = grid.TextMatrix(1, 0);
    for (long row = 2; row < grid.Rows(); ++row)
        joined += "|" + grid.TextMatrix(row, 0);
    return joined;
}

std::string SheetTest::data() {
    const auto& grid = control<MSFlexGrid>("grdt");
    std::string joined;
    for (long row = 1; row < grid.Rows() - 1; ++row) {
        joined += row > 1 ? "/" : "";
        for (long col = 1; col < grid.Cols(); ++col)
            joined += (col > 1 ? "|" : "") + grid.TextMatrix(row, col);
    }
    return joined;
}

} // namespace caudalera
