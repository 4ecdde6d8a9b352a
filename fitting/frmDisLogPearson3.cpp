#include "fitting/frmDisLogPearson3.h"

namespace caudalera {

namespace {

const FitTexts& textosDeLaVentana() {
    static const FitTexts textos = [] {
        FitTexts propios =
            textosGamma3("Log-Pearson tipo 3", "Parámetros distribución LogPearson3:",
                         "Los 3 parámetros de la distribución Log-Pearson tipo 3:");
        propios.falloCalculo =
            "Sus datos no se ajustan a la distribución log-Pearson tipo 3. Guarde sus datos y "
            "pruebe ajustar con otra distribución ";
        return propios;
    }();
    return textos;
}

} // namespace

frmDisLogPearson3::frmDisLogPearson3(Program& program)
    : Gamma3Window(program, "frmDisLogPearson3",
                   "Ajuste de una serie de datos a la distribución Log-Pearson tipo III",
                   textosDeLaVentana(), "Log-Pearson tipo 3") {
    // The word of the theoretical curve elsewhere, as this window's users know it.
    curvas[0].leyenda = "Teo";
}

} // namespace caudalera
