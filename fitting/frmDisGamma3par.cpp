#include "fitting/frmDisGamma3par.h"

namespace caudalera {

namespace {

const FitTexts& textosDeLaVentana() {
    static const FitTexts textos = textosGamma3(
        "Gamma de 3 parámetros",
        "Parámetros distribución Gamma 3 par:", "Los 3 parámetros de la distribución Gamma:");
    return textos;
}

} // namespace

frmDisGamma3par::frmDisGamma3par(Program& program)
    : Gamma3Window(program, "frmDisGamma3par",
                   "Ajuste de una serie de datos a la distribución Gamma de 3 parámetros",
                   textosDeLaVentana(), "gamma de 3 parámetros") {}

} // namespace caudalera
