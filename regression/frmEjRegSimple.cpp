#include "regression/frmEjRegSimple.h"

#include "regression/textosRegresion.h"
#include "shell/numbers/logaritmos.h"

#include <string_view>

namespace caudalera {

namespace {

constexpr std::string_view mascaraCoeficiente = "#0.0######";
constexpr std::array nombresEcuaciones = {"Lineal", "Exponencial", "Potencial"};

RegressionTexts textos() {
    RegressionTexts textos = textosDePares();
    textos.marcoAplicar = "Aplicar ecuación:";
    textos.rotulo = textos.rotuloTrasReiniciar = rotuloEcuacion;
    textos.ecuaciones.assign(nombresEcuaciones.begin(), nombresEcuaciones.end());
    return textos;
}

} // namespace

frmEjRegSimple::frmEjRegSimple(Program& program)
    : SimpleRegressionWorksheet(program, "frmEjRegSimple",
                                "Cálculos con ecuaciones de Regresión Simple", textos(), 250) {
    optLineal.onClick = [this] { evaluar(lineal); };
    optExponencial.onClick = [this] { evaluar(exponencial); };
    optPotencial.onClick = [this] { evaluar(potencial); };
    txtvxx.onChange = [this] {
        ecuacionElegida.clear();
        txtvyy.setText({});
    };
    txtvxx.onEnter = [this] { optLineal.set(); };
    disponerPares(layout::list({&optLineal, &optExponencial, &optPotencial}));
}

void frmEjRegSimple::calcular() {
    conTrampa([this] { ajustar(); },
              [this](const RuntimeFailure&) {
                  mensaje("Ingresó valores para X ó Y iguales a 0 ó negativos. Estos valores no "
                          "permiten la correlación exponencial ni potencial. ¡Hacer la corrección "
                          "correspondiente!");
              });
}

void frmEjRegSimple::ajustar() {
    if (!leerPares())
        return;
    const auto x = X.primeros(n);
    const auto y = Y.primeros(n);
    const auto lnY = logaritmos(y);
    const AjusteLineal recta = ajusteLineal(x, y);
    const AjusteLineal curvaExponencial = ajusteLineal(x, lnY);
    const AjusteLineal curvaPotencial = ajusteLineal(logaritmos(x), lnY);
    // Nothing is kept or shown before all three have succeeded.
    coeficientes_ = {
        Coeficientes{recta.intercepto, recta.pendiente},
        Coeficientes{Exp(curvaExponencial.intercepto), Exp(curvaExponencial.pendiente)},
        Coeficientes{Exp(curvaPotencial.intercepto), curvaPotencial.pendiente}};
    escribirFila(lineal, recta);
    escribirFila(exponencial, curvaExponencial);
    escribirFila(potencial, curvaPotencial);
    calculado = true;
}

void frmEjRegSimple::escribirFila(Ecuacion ecuacion, const AjusteLineal& ajuste) {
    escribirEcuacion(
        ecuacion, textoEcuacion(ecuacion),
        {formatear(ajuste.r, mascaraCorrelacion), formatear(ajuste.r2, mascaraCorrelacion)});
}

std::string frmEjRegSimple::textoEcuacion(Ecuacion ecuacion) const {
    const std::string a = formatear(coeficientes_[ecuacion].a, mascaraCoeficiente);
    const std::string b = formatear(coeficientes_[ecuacion].b, mascaraCoeficiente);
    if (ecuacion == lineal)
        return textoRecta(a, b);
    if (ecuacion == exponencial)
        return "Y = " + a + " * ( " + b + " ) " + " ^ X";
    return "Y = " + a + " *  X ^ (" + b + ")";
}

void frmEjRegSimple::evaluar(Ecuacion ecuacion) {
    if (!hayCalculo(calculado, sinTitulo(mensajeEvaluarSinCalculo)) ||
        !exigir(txtvxx, sinTitulo(mensajeFaltaX)))
        return;
    lblCalculoY.caption = std::string("Ecuación ") + nombresEcuaciones[ecuacion];
    txtvyy.setText(formatear(valorDeY(ecuacion, valoresDados().front()), mascaraEvaluacion));
}

Real frmEjRegSimple::valorDeY(Ecuacion ecuacion, Real x) const {
    const auto [a, b] = coeficientes_[ecuacion];
    if (ecuacion == lineal)
        return a + b * x;
    if (ecuacion == exponencial)
        return a * Pow(b, x);
    return a * Pow(x, b);
}

} // namespace caudalera
