#include "regression/MultipleRegressionWorksheet.h"

#include "regression/textosRegresion.h"
#include "shell/numbers/logaritmos.h"

#include <utility>

namespace caudalera {

RegressionTexts textosDeRegresionMultiple() {
    RegressionTexts textos;
    textos.marcoAplicar = "Aplicar ecuación:";
    textos.rotulo = "Cálculo para:";
    textos.rotuloTrasReiniciar = rotuloEcuacion;
    textos.encabezados = {"Correlación", "Ecuación", "R", "R^2", "Se"};
    textos.ecuaciones = {"Lineal Múltiple", "Potencial Múltiple"};
    textos.anchos = {1900, 4800, 1000, 1000, 1300};
    textos.reporteEcuaciones = {
        "Ecuaciones de ajuste de correlación múltiple:",
        " Correlación        \t\t Ecuación           \t\t R   \t\t R^2 \t Se  \t\t", 140};
    return textos;
}

MultipleRegressionWorksheet::MultipleRegressionWorksheet(Program& program, std::string name,
                                                         std::string text,
                                                         SeriesLayout seriesLayout,
                                                         RegressionTexts textos,
                                                         MultipleRegressionTexts propios)
    : RegressionWorksheet(program, std::move(name), std::move(text), propios.encabezadoFilas,
                          std::move(seriesLayout), std::move(textos)),
      propios_(std::move(propios)), X_(this->seriesLayout().fields.size() - 1, Serie(capacidad)) {
    for (Serie& variable : X_)
        columnas.emplace_back(&variable);
    columnas.emplace_back(&Y_);
    // Nothing has been fitted: every equation is 0.
    coeficientes_.fill(std::vector<Real>(columnas.size()));
    bLimpiar.caption = "Limpiar Pan&talla";
    bLimpiarDatos.onClick = [this] { limpiarDatos(); };
    optLineal.onClick = [this] { evaluar(lineal); };
    optPotencial.onClick = [this] { evaluar(potencial); };
}

void MultipleRegressionWorksheet::disponerVariables(const std::vector<TextBox*>& valores) {
    encadenar({valores.begin(), valores.end()});
    valores.back()->onEnter = [this] { optLineal.set(); };
    disponer(valores, {layout::list({&optLineal, &optPotencial}),
                       layout::column({layout::buttons({&bLimpiarDatos})})});
}

void MultipleRegressionWorksheet::limpiar() {
    RegressionWorksheet::limpiar();
    ecuacionElegida.clear();
}

void MultipleRegressionWorksheet::calcular() {
    conTrampa([this] { ajustar(); },
              [this](const RuntimeFailure&) { mensaje(propios_.sinPotencial); });
}

void MultipleRegressionWorksheet::ajustar() {
    leerCuadricula();
    // One coefficient a column.
    if (n <= static_cast<long>(columnas.size())) {
        rechazar(sinTitulo(propios_.pocasFilas, Icon::error));
        return;
    }
    Regresores x;
    for (const Serie& variable : X_)
        x.push_back(variable.primeros(n));
    const auto y = std::as_const(Y_).primeros(n);
    const auto plano = ajusteMultiple(x, y);
    if (!plano) {
        avisarSistemaSingular();
        return;
    }
    const Real SeLineal = errorDe(lineal, plano->coeficientes, x, y);

    std::vector<std::vector<Real>> logaritmosDeX;
    for (const auto& variable : x)
        logaritmosDeX.push_back(logaritmos(variable));
    const auto superficie =
        ajusteMultiple({logaritmosDeX.begin(), logaritmosDeX.end()}, logaritmos(y));
    if (!superficie) {
        avisarSistemaSingular();
        return;
    }
    auto potencias = superficie->coeficientes;
    potencias[0] = Exp(potencias[0]);
    // R is that of the logarithms, Se that of Y itself.
    const Real SePotencial = errorDe(potencial, potencias, x, y);

    // Nothing is kept or shown before both have succeeded.
    coeficientes_ = {plano->coeficientes, potencias};
    escribirFila(lineal, *plano, SeLineal);
    escribirFila(potencial, *superficie, SePotencial);
    calculado = true;
}

Real MultipleRegressionWorksheet::valorDeY(Ecuacion ecuacion, std::span<const Real> coeficientes,
                                           std::span<const Real> x) {
    return ecuacion == lineal ? valorLineal(coeficientes, x) : valorPotencial(coeficientes, x);
}

Real MultipleRegressionWorksheet::errorDe(Ecuacion ecuacion, std::span<const Real> coeficientes,
                                          const Regresores& x, std::span<const Real> y) {
    std::vector<Real> Yc;
    Yc.reserve(y.size());
    for (std::size_t i = 0; i < y.size(); ++i)
        Yc.push_back(valorDeY(ecuacion, coeficientes, observacion(x, i)));
    return errorEstandar(y, Yc, coeficientes.size());
}

void MultipleRegressionWorksheet::escribirFila(Ecuacion ecuacion, const AjusteMultiple& ajuste,
                                               Real Se) {
    const auto& coeficientes = coeficientes_[ecuacion];
    escribirEcuacion(ecuacion,
                     ecuacion == lineal ? textoLineal(coeficientes) : textoPotencial(coeficientes),
                     {coeficiente(ajuste.r), coeficiente(ajuste.r2), coeficiente(Se)});
}

void MultipleRegressionWorksheet::evaluar(Ecuacion ecuacion) {
    if (!hayCalculo(calculado, sinTitulo(mensajeEvaluarSinCalculo)))
        return;
    if (faltaAlgunValor()) {
        mensaje(sinTitulo(propios_.faltanValores));
        setFocus(txtvxx1);
        return;
    }
    lblCalculoY.caption =
        ecuacion == lineal ? "Correlación lineal múltiple" : "Correlación potencial múltiple";
    txtvyy.setText(
        formatear(valorDeY(ecuacion, coeficientes_[ecuacion], valoresDados()), mascaraEvaluacion));
}

} // namespace caudalera
