#include "evapotranspiration/MonthlyWorksheet.h"

#include "shell/worksheet/Messages.h"

#include <utility>

namespace caudalera {

namespace {

constexpr const char* latitudInicial = "10";
constexpr const char* tituloError = "Mensaje de error";

} // namespace

MonthlyWorksheet::MonthlyWorksheet(Program& program, std::string name, std::string text,
                                   SeriesLayout seriesLayout, const MonthlyTexts& textos)
    : Worksheet(program, std::move(name), std::move(text), "Mes", std::move(seriesLayout)),
      ingreso(*this, textos.ingreso), fraLatitud(*this, "fraLatitud", textos.marcoLatitud),
      cobLatitud(*this, "cobLatitud", {textos.latitudes.begin(), textos.latitudes.end()},
                 latitudInicial),
      faltanMeses_(textos.faltanMeses) {
    Graph1.xLabels = {&lblEjeMeses};
    bGraficar.onClick = [this] { graficar(); };
    mandatoTrasCalcular(bGraficar);
}

Layout MonthlyWorksheet::marcoLatitud() {
    using namespace caudalera::layout;
    return frame(fraLatitud, row({control(cobLatitud), control(cobLatitudNS)}));
}

std::string MonthlyWorksheet::etiquetaFila(long fila) const {
    return std::string(mesDeFila(fila));
}

void MonthlyWorksheet::trasAgregarFila() {
    if (contarFilas() == meses)
        setFocus(cobLatitud);
}

void MonthlyWorksheet::leerFila(long fila) {
    etiquetas_[fila] = grdt.TextMatrix(fila, 0);
    Worksheet::leerFila(fila);
}

void MonthlyWorksheet::leerMeses() {
    n = contarFilas();
    if (n < meses) {
        mensaje(faltanMeses_, tituloError, Icon::information);
        trasFaltarMeses();
        return;
    }
    leerCuadricula();
}

void MonthlyWorksheet::calcular() {
    conTrampa([this] { calcularAnno(); },
              [this](const RuntimeFailure&) {
                  mensaje("Ingresar datos adecuadamente ", tituloError, Icon::information);
              });
}

void MonthlyWorksheet::borrarResultados() {
    Worksheet::borrarResultados();
    Graph1.clear();
}

void MonthlyWorksheet::antesDeAccesar() {
    borrarResultados();
    calculado = false;
}

Graph::Series MonthlyWorksheet::curva(std::string leyenda, std::span<const float> valores) {
    return {std::move(leyenda), {valores.begin(), valores.end()}};
}

void MonthlyWorksheet::graficar() {
    if (!hayCalculo(calculado, {mensajeGraficoSinCalculo, "Mensaje de Error", Icon::error}))
        return;
    Chart grafico;
    grafico.x.emplace();
    for (long mes = 0; mes < meses; ++mes)
        grafico.x->push_back(static_cast<double>(mes));
    grafico.series = curvas();
    grafico.yTitle = tituloCurvas();
    dibujar(Graph1, std::move(grafico));
}

} // namespace caudalera
