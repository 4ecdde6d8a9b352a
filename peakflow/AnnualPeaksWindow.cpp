#include "peakflow/AnnualPeaksWindow.h"

#include "shell/numbers/momentos.h"
#include "shell/text/Text.h"

#include <cmath>
#include <utility>

namespace caudalera {

namespace {

constexpr const char* mascaraResultado = "#####0.0###";

/// Columns of `grddis` behind those of the parameters.
enum Columna { columnaQmax = 5, columnaDelta, columnaIntervalo, columnaDiseno };

SeriesLayout layoutCaudalesQ() {
    return {{"X"}, "Valores de Q|*.Q", "Valores Q|*.Q", true};
}

/// A year as a 16-bit count holds it; failure 6 past it.
Integer16 annoDe(Real valor) {
    return redondeoAlPar(valor.value());
}

} // namespace

AnnualPeaksWindow::AnnualPeaksWindow(Program& program, std::string name, std::string text,
                                     AnnualPeaksTexts textos)
    : Worksheet(program, std::move(name), std::move(text), "N°", layoutCaudalesQ()),
      textos_(std::move(textos)) {
    columnas = {&Q_};
    registrarCamposDeSerie({&txtanno});
    lblResultados.heading = true;
    grddis.columnWidths = {1700, 1300, 1300, 1250, 1250, 1300, 1300, 2400, 1300};
    grddis.columnAlignments.assign(textos_.encabezados.size(), MSFlexGrid::ColumnAlignment::center);
    grddis.visibleRows = 1;
    txtanno.onLostFocus = [this] { tomarAnno(); };
    encadenar({&txtanno, &grdt});
    encadenar({&txtTdato, &bCalcular});
}

void AnnualPeaksWindow::disponer(std::vector<Layout> resultados) {
    using namespace layout;
    resultados.push_back(control(lblResultados));
    resultados.push_back(control(grddis));
    layout = row({
        column({fields({txtanno}), ingreso.columna(grdt).stretched()}),
        column(std::move(resultados)).stretched(),
    });
}

void AnnualPeaksWindow::reiniciarResultados() {
    grddis.reset(2, static_cast<long>(textos_.encabezados.size()), 1, 0);
    grddis.setHeaders({textos_.encabezados.begin(), textos_.encabezados.end()});
}

void AnnualPeaksWindow::limpiar() {
    Worksheet::limpiar();
    txtanno.setText({});
    txtTdato.setText({});
    anno_ = 0;
    setFocus(txtanno);
}

void AnnualPeaksWindow::tomarAnno() {
    anno_ = annoDe(Val(txtanno.text()));
    renumerarFilas();
}

std::string AnnualPeaksWindow::etiquetaFila(long fila) const {
    return Str(long{Integer16(anno_ + fila - 1)});
}

std::vector<Real> AnnualPeaksWindow::ultimoRegistro() const {
    return {static_cast<double>(anno_)};
}

void AnnualPeaksWindow::recibirUltimoRegistro(std::span<const float> registro) {
    anno_ = annoDe(Real::checked(registro.front()));
    txtanno.setText(textoPlano(long{anno_}));
}

void AnnualPeaksWindow::calcular() {
    conTrampa(
        [this] {
            if (!exigir(txtTdato, {"Ingresar el valor correspondiente del período de retorno",
                                   "Error por no ingresar T"}))
                return;
            disenar(Val(txtTdato.text()));
        },
        [this](const RuntimeFailure&) {
            mensaje("Ingresar datos adecuadamente ", "Mensaje de error");
        });
}

std::vector<Real> AnnualPeaksWindow::leerOrdenados() {
    leerCuadricula();
    const auto leidos = std::as_const(Q_).primeros(n);
    std::vector<Real> ordenados(leidos.begin(), leidos.end());
    ordenarAscendente(ordenados);
    return ordenados;
}

void AnnualPeaksWindow::escribirDiseno(const std::array<Real, 4>& parametros,
                                       const CaudalDeDiseno& diseno) {
    const std::string intervalo = textoIntervalo(diseno);
    const auto valor = [this](long col, Real x) {
        grddis.setTextMatrix(1, col, formatear(x, mascaraResultado));
    };
    grddis.setTextMatrix(1, 0, textoPlano(long{n}));
    long col = 1;
    for (const Real parametro : parametros)
        valor(col++, parametro);
    valor(columnaQmax, diseno.Qmax);
    valor(columnaDelta, diseno.deltaQ);
    grddis.setTextMatrix(1, columnaIntervalo, intervalo);
    valor(columnaDiseno, diseno.superior());
}

std::string AnnualPeaksWindow::textoIntervalo(const CaudalDeDiseno& diseno) const {
    return textoPartido(diseno.inferior()) + " - " + textoPartido(diseno.superior());
}

/// The integer part and the rest, which is read back from its own text, each as a number of its
/// own: 123.45 is " 123 .45".
std::string AnnualPeaksWindow::textoPartido(Real cota) const {
    const Real entera = std::trunc(cota.value());
    const Real resto = Val(formatear(cota - entera, "#.0#"));
    return Str(entera.value()) + Str(resto.value());
}

void AnnualPeaksWindow::escribirReporte(ReportWriter& reporte) {
    constexpr std::string_view LF = ReportWriter::LF;
    constexpr long guionesSerie = 40;
    reporte << "Serie de datos Q:" << LF;
    reporte.encabezado({" Año\t\t Q\t\t"}, guionesSerie);
    reporte.filas(grdt, 1, filasDelReporte(), "\t\t");
    reporte.cerrarTabla(guionesSerie);
    reporte << "Resultados de los cálculos:" << LF;
    reporte.regla(textos_.guionesReporte);
    for (std::size_t i = 0; i < textos_.lineasReporte.size(); ++i)
        reporte << textos_.lineasReporte[i] << grddis.TextMatrix(1, static_cast<long>(i)) << LF;
    reporte << textos_.cierreReporte << txtTdato.text()
            << " años es: " << grddis.TextMatrix(1, columnaDiseno) << " m3/s" << LF;
    reporte.regla(textos_.guionesReporte);
}

} // namespace caudalera
