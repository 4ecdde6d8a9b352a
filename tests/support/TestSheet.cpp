#include "tests/support/TestSheet.h"

#include <algorithm>

namespace caudalera {

TestSheet::TestSheet(Program& program, const std::string& name, RowLabels labels)
    : Worksheet(program, name, rotulo, "Nº", labels),
      registroFinal(seriesLayout(name).fields.size()),
      series_(seriesLayout(name).fields.size() + 1) {}

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
    n = contarFilas();
    for (long i = 1; i <= n; ++i) {
        for (long col = 1; col < grdt.Cols(); ++col)
            series_[static_cast<std::size_t>(col)][i] = valorCelda(i, col);
    }
}

Real TestSheet::elementoSerie(long columna, long i) const {
    return valor(columna, i);
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

/// The name is the template's argument, so that each entry is a plain function.
template <std::size_t Size>
struct Name {
    char text[Size]{};
    constexpr Name(const char (&name)[Size]) { std::copy_n(name, Size, text); }
};

template <Name name, Worksheet::RowLabels labels = Worksheet::RowLabels::numbers>
WindowEntry entry() {
    static constexpr Name stored = name;
    return {stored.text, [](Program& program) -> std::unique_ptr<Window> {
                return std::make_unique<TestSheet>(program, stored.text, labels);
            }};
}

} // namespace

const std::vector<WindowEntry>& ventanasDePrueba() {
    constexpr auto months = Worksheet::RowLabels::months;
    static const std::vector<WindowEntry> entries = withProgramWindows({
        entry<"frmParamEsta">(),
        entry<"frmRegreLineal">(),
        entry<"frmRegMul2Var">(),
        entry<"frmRegMul3Var">(),
        entry<"frmVariacionEsta", months>(),
        entry<"frmQmaxNash">(),
        entry<"frmIsoyeta">(),
        entry<"frmAforoCorren">(),
        entry<"frmThornthwaite", months>(),
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
