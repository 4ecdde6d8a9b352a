#include "regression/RegressionWorksheet.h"

#include "regression/gaussJordan.h"
#include "regression/textosRegresion.h"
#include "shell/text/Text.h"

#include <algorithm>

namespace caudalera {

namespace {

constexpr std::string_view mascaraCoeficiente = "#####0.##00";
constexpr std::string_view mascaraConSigno = "+#####0.##00";

} // namespace

RegressionWorksheet::RegressionWorksheet(Program& program, std::string name, std::string text,
                                         std::string encabezadoFilas, SeriesLayout seriesLayout,
                                         RegressionTexts textos)
    : Worksheet(program, std::move(name), std::move(text), std::move(encabezadoFilas),
                std::move(seriesLayout)),
      textos_(std::move(textos)) {
    using Column = MSFlexGrid::ColumnAlignment;
    grdecua.columnWidths = textos_.anchos;
    grdecua.columnAlignments.assign(textos_.encabezados.size(), Column::center);
    grdecua.columnAlignments[0] = grdecua.columnAlignments[1] = Column::left;
    grdecua.visibleRows = static_cast<int>(textos_.ecuaciones.size());
}

void RegressionWorksheet::disponer(const std::vector<TextBox*>& valores,
                                   std::vector<Layout> mandatos, Graph* grafico) {
    using namespace layout;
    valores_ = valores;
    grafico_ = grafico;
    registrarEntradas(valores_);
    registrarResultados({&txtvyy});

    std::vector<Layout::FieldLine> campos;
    for (TextBox* campo : valores_)
        campos.emplace_back(*campo);
    campos.emplace_back(txtvyy);
    for (TextBox* campo : valores_)
        campo->width = 14;
    txtvyy.width = 14;
    mandatos.insert(mandatos.begin(), column({control(lblCalculoY), fields(std::move(campos))}));
    Layout aplicar = frame(fraAplicar, row(std::move(mandatos)));
    layout = row({
        ingreso.columna(grdt),
        (grafico_ ? column({control(grdecua), std::move(aplicar), control(*grafico_).stretched()})
                  : column({control(grdecua).stretched(), std::move(aplicar)}))
            .stretched(),
    });
}

void RegressionWorksheet::reiniciarResultados() {
    grdecua.reset(static_cast<long>(textos_.ecuaciones.size()) + 1,
                  static_cast<long>(textos_.encabezados.size()), 1, 0);
    grdecua.setHeaders(textos_.encabezados);
}

void RegressionWorksheet::borrarResultados() {
    Worksheet::borrarResultados();
    lblCalculoY.caption = textos_.rotuloTrasReiniciar;
    calculado = false;
    if (grafico_)
        grafico_->clear();
}

void RegressionWorksheet::trasAccesar() {
    borrarResultados();
    ecuacionElegida.clear();
}

void RegressionWorksheet::limpiarDatos() {
    vaciarCampos();
    ecuacionElegida.clear();
    setFocus(valores_.front());
}

void RegressionWorksheet::rechazar(const Message& message) {
    mensaje(message);
    setFocus(grdt);
    calculado = true;
}

void RegressionWorksheet::avisarSistemaSingular() const {
    mensaje(sinTitulo(mensajeSistemaSingular, Icon::error));
}

void RegressionWorksheet::escribirEcuacion(std::size_t indice, std::string ecuacion,
                                           const std::vector<std::string>& valores) {
    const long fila = static_cast<long>(indice) + 1;
    grdecua.setTextMatrix(fila, 0, textos_.ecuaciones[indice]);
    grdecua.setTextMatrix(fila, 1, std::move(ecuacion));
    for (std::size_t i = 0; i < valores.size(); ++i)
        grdecua.setTextMatrix(fila, static_cast<long>(i) + 2, valores[i]);
}

std::string RegressionWorksheet::coeficiente(Real valor) const {
    return formatear(valor, mascaraCoeficiente);
}

std::string RegressionWorksheet::conSigno(Real valor) const {
    return formatear(valor, valor < 0 ? mascaraCoeficiente : mascaraConSigno);
}

bool RegressionWorksheet::faltaAlgunValor() const {
    return std::any_of(valores_.begin(), valores_.end(),
                       [](const TextBox* campo) { return campo->text().empty(); });
}

std::vector<Real> RegressionWorksheet::valoresDados() const {
    std::vector<Real> dados;
    for (const TextBox* campo : valores_)
        dados.emplace_back(Val(campo->text()));
    return dados;
}

void RegressionWorksheet::escribirReporte(ReportWriter& reporte) {
    constexpr auto LF = ReportWriter::LF;
    constexpr auto TAB = ReportWriter::TAB;
    constexpr long columnaR = 2;

    const RegressionTexts::Tabla& datos = textos_.reporteDatos;
    reporte.tablaDeDatos(datos.titulo, datos.columnas, grdt, filasDelReporte(), datos.guiones);

    const RegressionTexts::Tabla& ecuaciones = textos_.reporteEcuaciones;
    reporte.abrirTabla(ecuaciones.titulo, {ecuaciones.columnas}, ecuaciones.guiones);
    // The filling differs between the rows so that the columns stand under one another.
    reporte.filas(grdecua, 1, 1, "  \t");
    for (long fila = 2; fila < grdecua.Rows(); ++fila) {
        for (long col = 0; col < grdecua.Cols(); ++col)
            reporte << grdecua.TextMatrix(fila, col) << blancos(col == columnaR ? 5 : 0) << TAB;
        reporte << LF;
    }
    reporte.cerrarTabla(ecuaciones.guiones);

    reporte << textos_.reporteEvaluacion << LF << LF;
    reporteDeEvaluacion(reporte);
}

void RegressionWorksheet::reporteDeEvaluacion(ReportWriter& reporte) {
    constexpr auto LF = ReportWriter::LF;
    reporte << lblCalculoY.caption << ":" << LF;
    for (std::size_t i = 0; i < valores_.size(); ++i) {
        const std::string numero = valores_.size() > 1 ? std::to_string(i + 1) : "";
        // The last of several is joined to the one before it.
        const bool penultimo = i + 2 == valores_.size();
        reporte << "Para X" << numero << " = " << valores_[i]->text() << (penultimo ? " y" : "")
                << LF;
    }
    reporte << "El valor de Y es: Y = " << txtvyy.text() << LF;
}

} // namespace caudalera
