#include "regression/frmRegreLineal.h"

#include "regression/ajusteLineal.h"
#include "regression/textosRegresion.h"
#include "shell/text/Text.h"

namespace caudalera {

namespace {

constexpr std::string_view mascaraCoeficiente = "#0.0####";

RegressionTexts textos() {
    RegressionTexts textos = textosDePares();
    textos.marcoAplicar = "Aplicar ecuación lineal:";
    textos.rotulo = textos.rotuloTrasReiniciar = "Ingresar el valor conocido:";
    textos.ecuaciones = {"Lineal"};
    return textos;
}

} // namespace

frmRegreLineal::frmRegreLineal(Program& program)
    : SimpleRegressionWorksheet(
          program, "frmRegreLineal",
          "Cálculos con ecuaciones de regresión lineal simple, admite valores negativos o 0",
          textos(), 550) {
    bCalY.onClick = [this] { calcularY(); };
    bCalX.onClick = [this] { calcularX(); };
    txtvxx.command = &bCalY;
    txtvyy.command = &bCalX;
    disponerPares(layout::column({layout::buttons({&bCalY}), layout::buttons({&bCalX})}));
    // Either of them may be the one that is known.
    txtvyy.result = false;
}

void frmRegreLineal::calcular() {
    if (!leerPares())
        return;
    const AjusteLineal recta = ajusteLineal(X.primeros(n), Y.primeros(n));
    a_ = recta.intercepto;
    b_ = recta.pendiente;
    escribirEcuacion(
        0, textoRecta(formatear(a_, mascaraCoeficiente), formatear(b_, mascaraCoeficiente)),
        {formatear(recta.r, mascaraCorrelacion), formatear(recta.r2, mascaraCorrelacion)});
    calculado = true;
}

void frmRegreLineal::calcularY() {
    if (!hayCalculo(calculado, sinTitulo(mensajeCalcularYSinCalculo)))
        return;
    txtvyy.setText({});
    if (!exigir(txtvxx, sinTitulo(mensajeFaltaX)))
        return;
    const Real x = Val(txtvxx.text());
    txtvyy.setText(formatear(a_ + b_ * x, mascaraEvaluacion));
}

void frmRegreLineal::calcularX() {
    if (!hayCalculo(calculado, sinTitulo("Antes de hallar el valor de X, efectuar los calculos de "
                                         "la correlación")))
        return;
    txtvxx.setText({});
    if (!exigir(txtvyy, sinTitulo("Ingresar un valor adecuado para Y")))
        return;
    // Whatever fails, the slope is blamed.
    conTrampa(
        [this] {
            const Real y = Val(txtvyy.text());
            txtvxx.setText(formatear((y - a_) / b_, mascaraEvaluacion));
        },
        [this](const RuntimeFailure&) { mensaje("El coeficiente b tiene un valor de 0"); });
}

void frmRegreLineal::reporteDeEvaluacion(ReportWriter& reporte) {
    reporte << "Para X = " << txtvxx.text() << ", el valor de Y es: Y = " << txtvyy.text()
            << ReportWriter::LF;
}

} // namespace caudalera
