#include "precipitation/frmIntensidadMax.h"

#include "regression/gaussJordan.h"
#include "shell/text/Text.h"

#include <string>
#include <string_view>

namespace caudalera {

frmIntensidadMax::frmIntensidadMax(Program& program)
    : Worksheet(program, "frmIntensidadMax",
                "Cálculo de la intensidad máxima de diseño para una duración y período de retorno "
                "dado",
                "Trío", layoutTriosTDI("Imáx (mm/hr)")) {
    using namespace layout;
    using Column = MSFlexGrid::ColumnAlignment;
    columnas = {&T_, &D_, &Imax_};
    registrarResultados({&txtvI});
    grdecua.columnWidths = {5200, 1200, 1200, 1300};
    grdecua.columnAlignments = {Column::left, Column::center, Column::center, Column::center};
    grdecua.visibleRows = 1;
    layout = row({
        ingreso.columna(grdt),
        column({control(grdecua),
                frame(fraDiseno, column({control(lblCalculoY), fields({txtvT, txtvD, txtvI})})),
                control(Picture1).stretched()})
            .stretched(),
    });
}

void frmIntensidadMax::reiniciarResultados() {
    grdecua.reset(2, 4, 1, 0);
    grdecua.setHeaders({"Ecuación", "R", "R^2", "Se"});
}

void frmIntensidadMax::borrarResultados() {
    Worksheet::borrarResultados();
    calculado_ = false;
}

void frmIntensidadMax::limpiar() {
    Worksheet::limpiar();
    txtvT.setText({});
    txtvD.setText({});
}

void frmIntensidadMax::calcular() {
    conTrampa([this] { ajustar(); },
              [this](const RuntimeFailure&) {
                  mensaje("Ingresó valores para T, D ó Imax iguales a 0 ó negativos. Estos valores "
                          "no permiten la correlación potencial. ¡Hacer la corrección "
                          "correspondiente!");
              });
}

void frmIntensidadMax::ajustar() {
    constexpr const char* tituloError = "Error";
    leerCuadricula();
    if (n < minimoTrios) {
        mensaje(mensajeCuatroTrios, "Error: número inadecuado de datos");
        irAFilaDeAlta();
        calculado_ = true;
        return;
    }
    if (!exigir(txtvT, {"Ingresar un valor adecuado para el período de retorno T", tituloError}))
        return;
    periodoDiseno_ = toSingle(Val(txtvT.text()));
    if (!exigir(txtvD, {"Ingresar un valor adecuado para la duración D", tituloError}))
        return;
    duracionDiseno_ = toSingle(Val(txtvD.text()));

    const auto trios = enTrios(T_.primeros(n), D_.primeros(n), Imax_.primeros(n));
    const auto ajuste = ajustePotencial(trios);
    if (!ajuste) {
        mensaje(mensajeSistemaSingular, {}, Icon::error);
        return;
    }
    // Shown before the quality is known, which may have no value.
    txtvI.setText(
        formatear(ajuste->intensidad(Real(periodoDiseno_), Real(duracionDiseno_)), "0.#0"));
    escribirEcuacion(*ajuste, calidadPotencial(*ajuste, trios));
    calculado_ = true;
}

void frmIntensidadMax::escribirEcuacion(const AjustePotencial& ajuste,
                                        const CalidadPotencial& calidad) {
    const auto texto = [this](Real valor) { return formatear(valor, mascaraPotencial); };
    grdecua.setTextMatrix(1, 0, textoPotencial(texto(ajuste.K), texto(ajuste.m), texto(ajuste.n)));
    grdecua.setTextMatrix(1, 1, texto(calidad.r));
    grdecua.setTextMatrix(1, 2, texto(calidad.r2));
    grdecua.setTextMatrix(1, 3, texto(calidad.Se));
}

void frmIntensidadMax::escribirReporte(ReportWriter& reporte) {
    constexpr long guionesDatos = 90;
    constexpr long guionesEcuacion = 110;
    constexpr std::string_view LF = ReportWriter::LF;
    reporte << "Trios de valores T, D e Imax:" << LF;
    reporte.encabezado({" Trío\t\t T (años)\t Duración (min)\t Imáx (mm/hr)"}, guionesDatos);
    reporte.filas(grdt, 1, filasDelReporte(), "\t\t");
    reporte.cerrarTabla(guionesDatos);
    reporte << "Ecuación de ajuste de correlación potencial múltiple:" << LF;
    reporte.encabezado({" Ecuación           \t\t\t\t R   \t R^2 \t Se  "}, guionesEcuacion);
    reporte.filas(grdecua, 1, 1, "\t\t");
    reporte.cerrarTabla(guionesEcuacion);
    reporte << "Cálculo de Imáx para un valor de T y D:" << LF;
    reporte << "Para T = " << txtvT.text() << " años  y" << LF;
    reporte << "Para D = " << txtvD.text() << " min" << LF;
    reporte << "El valor de Imáx es: Imáx = " << txtvI.text() << " mm/hr" << LF;
}

} // namespace caudalera
