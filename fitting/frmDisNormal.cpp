#include "fitting/frmDisNormal.h"

#include "fitting/normal.h"

namespace caudalera {

namespace {

const FitTexts& textosNormal() {
    static const FitTexts texts = {
        .distribucion = "Normal",
        .marcoParametros = "Parámetros distribución normal:",
        .tituloParametros = "Parámetros de la distribución normal:",
        .guionesParametros = 55,
        .encabezados = {"F(Z) Ordinario", "F(Z) Mom Lineal"},
        .titulosReporte = {"F(Z) Ordinario ", "F(Z) Mom Lineal ", "Delta "},
        .leyendas = {"Exp", "Ord", "ML"},
        .mascaraPeriodo = "###.0",
        .mascaraProbabilidad = "###.#0",
        .excedenciaSinCalculo = "Efectuar cálculos antes de evaluar la probabilidad de excedencia",
    };
    return texts;
}

} // namespace

frmDisNormal::frmDisNormal(Program& program)
    : FitWorksheet(program, "frmDisNormal", "Ajuste de una serie de datos a la distribución normal",
                   textosNormal()) {
    ordinarios = {{&Xm, &txtux, "Parámetro de localización (Xm)= "},
                  {&S, &txtSX, "Parámetro de escala (S)= "}};
    lineales = {{&Xl, &txtmedial, "Media lineal (Xl)= "},
                {&Sl, &txtsl, "Desviación estándar lineal (Sl)= "}};
    disponer(layout::fields({txtux, txtSX, txtmedial, txtsl}));
}

void frmDisNormal::calcularParametros() {
    const Real datos = static_cast<double>(conteoDatos);
    Xm = media(serieOrdenada, conteoDatos);
    S = Sqr(sumaDesvios(serieOrdenada, conteoDatos, Xm, 2) / (datos - 1));
    // The coefficient of variation is shown nowhere; it refuses a mean of 0.
    static_cast<void>(S / Xm);
    const MomentosLineales momentos = momentosLineales(serieOrdenada, conteoDatos);
    Xl = momentos.l1;
    Sl = Sqr(pi()) * momentos.l2;
}

Real frmDisNormal::variableReducida(Momentos tipo, Real q) const {
    return tipo == Momentos::lineales ? (q - Xl) / Sl : (q - Xm) / S;
}

void frmDisNormal::calcularAcumuladas() {
    Serie Zordinaria;
    Serie Zlineal;
    for (long m = 1; m <= conteoDatos; ++m) {
        Zordinaria[m] = variableReducida(Momentos::ordinarios, serieOrdenada[m]);
        Zlineal[m] = variableReducida(Momentos::lineales, serieOrdenada[m]);
    }
    for (long m = 1; m <= conteoDatos; ++m) {
        acumOrdinaria[m] = normalAcumulada(Zordinaria[m]);
        acumLineal[m] = normalAcumulada(Zlineal[m]);
    }
}

Real frmDisNormal::acumulada(Momentos tipo, Real q) {
    return normalAcumulada(variableReducida(tipo, q));
}

Real frmDisNormal::inversa(Momentos tipo, Real p) {
    const Real z = normalInversa(p);
    return tipo == Momentos::lineales ? Xl + Sl * z : Xm + S * z;
}

} // namespace caudalera
