#include "regression/frmRegMul3Var.h"

namespace caudalera {

namespace {

RegressionTexts textos() {
    RegressionTexts textos = textosDeRegresionMultiple();
    textos.tituloDatos = "Ingreso de los cuartetos de datos:";
    textos.anchos[1] = 6000;
    textos.reporteDatos = {
        "Cuarteto de valores X1, X2, X3 e Y:", " Cuar\t\t X1\t\t X2\t\t X3\t\t Y\t\t", 102};
    textos.reporteEcuaciones.guiones = 152;
    textos.reporteEvaluacion = "Cálculo de Y para un valor de X1, X2 y X3:";
    return textos;
}

} // namespace

frmRegMul3Var::frmRegMul3Var(Program& program)
    : MultipleRegressionWorksheet(
          program, "frmRegMul3Var",
          "Cálculos con ecuaciones de regresión múltiple, con 3 variables independientes",
          {{"X1", "X2", "X3", "Y"}, "Cuartetos valores XS,Y|*.XSY"}, textos(),
          {.encabezadoFilas = "Cuarteto",
           .opcionLineal = "correlación lineal múltiple",
           .opcionPotencial = "correlación potencial múltiple",
           .pocasFilas =
               "Para calcular el valor de Se, se requiere por lo menos cinco cuartetos de datos",
           .sinPotencial =
               "Ingresó valores para X1, X2, X3 ó Y iguales a 0 ó negativos. Estos valores no "
               "permiten la correlación potencial. ¡Hacer la corrección correspondiente!",
           .faltanValores = "Ingresar un valor adecuado para X1 , X2 y X3"}) {
    disponerVariables({&txtvxx1, &txtvxx2, &txtvxx3});
}

std::string frmRegMul3Var::textoLineal(std::span<const Real> a) const {
    return "Y = " + coeficiente(a[0]) + " " + conSigno(a[1]) + " * X1 " + conSigno(a[2]) + " * X2" +
           conSigno(a[3]) + " * X3        ";
}

// Here the exponents bring their plus, those of two variables do not.
std::string frmRegMul3Var::textoPotencial(std::span<const Real> b) const {
    return "Y = " + coeficiente(b[0]) + " *X1^(" + conSigno(b[1]) + ") *X2^(" + conSigno(b[2]) +
           ")* X3^(" + conSigno(b[3]) + ")";
}

} // namespace caudalera
