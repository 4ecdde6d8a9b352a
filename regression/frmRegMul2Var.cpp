#include "regression/frmRegMul2Var.h"

namespace caudalera {

namespace {

RegressionTexts textos() {
    RegressionTexts textos = textosDeRegresionMultiple();
    textos.tituloDatos = "Ingreso de los tríos de datos:";
    textos.reporteDatos = {"Trios de valores X1, X2 e Y:", " Trío\t\t X1\t\t X2\t\t Y\t\t", 85};
    textos.reporteEvaluacion = "Cálculo de Y para un valor de X1 y X2:";
    return textos;
}

} // namespace

frmRegMul2Var::frmRegMul2Var(Program& program)
    : MultipleRegressionWorksheet(
          program, "frmRegMul2Var",
          "Cálculos con ecuaciones de Regresión Múltiple, con 2 variables independientes",
          {{"X1", "X2", "Y"}, "Trio valores X,Y,Z|*.XYZ"}, textos(),
          {.encabezadoFilas = "Trío",
           .opcionLineal = "con correlación lineal múltiple",
           .opcionPotencial = "con correlación potencial múltiple",
           .pocasFilas = "Para el ajuste a la ecuación se requiere por lo menos cuatro puntos",
           .sinPotencial =
               "Ingresó valores para X1, X2 ó Y iguales a 0 ó negativos. Estos valores no permiten "
               "la correlación potencial. ¡Hacer la corrección correspondiente!",
           .faltanValores = "Ingresar un valor adecuado para X1 y X2"}) {
    disponerVariables({&txtvxx1, &txtvxx2});
}

std::string frmRegMul2Var::textoLineal(std::span<const Real> a) const {
    return "Y = " + coeficiente(a[0]) + " " + conSigno(a[1]) + " *X1 " + conSigno(a[2]) + " *X2";
}

std::string frmRegMul2Var::textoPotencial(std::span<const Real> b) const {
    return "Y= " + coeficiente(b[0]) + "*X1^(" + coeficiente(b[1]) + ") *X2^(" + coeficiente(b[2]) +
           ")";
}

} // namespace caudalera
