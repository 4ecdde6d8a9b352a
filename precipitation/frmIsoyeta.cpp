#include "precipitation/frmIsoyeta.h"

#include "precipitation/isoyetas.h"
#include "shell/text/Text.h"

#include <string_view>

namespace caudalera {

frmIsoyeta::frmIsoyeta(Program& program)
    : ArealWorksheet(program, "frmIsoyeta",
                     "Cálculo de la precipitación promedio por el método de las isoyetas",
                     {.fields = {"Valor de isoyeta (mm)", "Área entre isoyetas"},
                      .saveFilter = "Pares valores I, A|*.IA",
                      .lastRecord = true},
                     {.encabezadoFilas = "Isoyeta",
                      .tituloDatos = "Ingreso de los pares de datos de las estaciones:",
                      .marcoResultado = "Resultado método de isoyetas:",
                      .sinDatos = "Ingresar datos antes de realizar cálculos",
                      .dibujo = "isoyetas",
                      .reporteDatos = "Datos Isoyeta, Área:",
                      .reporteColumnas = " Isoyeta\t Valor de isoyeta (mm)\t Área entre isoyetas",
                      .reporteResultado = "Resultado del método de isoyetas:"}) {
    using namespace caudalera::layout;
    columnas = {&isoyeta_, &area_};
    registrarCamposDeSerie({&txtUltimaIsoyeta});
    encadenar({&txtUltimaIsoyeta, &bCalcular});
    disponer(
        column({control(ingreso.lblIngreso), control(lblIsoyetaInicial), control(grdt).stretched(),
                fields({{txtUltimaIsoyeta.label(), {&txtUltimaIsoyeta}, &lblIsoyetaFinal}}),
                control(ingreso.lblNota), control(ingreso.lblNotaEnter)}));
}

void frmIsoyeta::calcular() {
    if (!exigir(txtUltimaIsoyeta,
                {"Ingresar un valor adecuado para la última isoyeta", tituloError}))
        return;
    ArealWorksheet::calcular();
}

void frmIsoyeta::limpiar() {
    ArealWorksheet::limpiar();
    txtUltimaIsoyeta.setText({});
}

void frmIsoyeta::leerCuadricula() {
    ArealWorksheet::leerCuadricula();
    isoyeta_[n + 1] = Val(txtUltimaIsoyeta.text());
}

Real frmIsoyeta::precipitacionMedia() const {
    return isoyetas(isoyeta_.primeros(n + 1), area_.primeros(n));
}

std::vector<Real> frmIsoyeta::ultimoRegistro() const {
    return {Val(txtUltimaIsoyeta.text()), 0};
}

void frmIsoyeta::recibirUltimoRegistro(std::span<const float> registro) {
    txtUltimaIsoyeta.setText(textoPlano(registro[0]));
}

void frmIsoyeta::escribirUltimaFila(ReportWriter& reporte) const {
    constexpr std::string_view tras = "\t\t";
    reporte << etiquetaFila(filasDelReporte() + 1) << tras << txtUltimaIsoyeta.text() << tras
            << ReportWriter::LF;
}

} // namespace caudalera
