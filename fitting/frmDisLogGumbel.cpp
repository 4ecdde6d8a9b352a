#include "fitting/frmDisLogGumbel.h"

#include "shell/worksheet/Messages.h"

namespace caudalera {

namespace {

const FitTexts& textosLogGumbel() {
    static const FitTexts textos = {
        .distribucion = "logGumbel",
        .marcoParametros = "Parámetros distribución logGumbel:",
        .tituloParametros = "Parámetros de la distribución logGumbel:",
        .guionesParametros = 60,
        .encabezados = {"G(Y) Ordinario", "G(Y) Mom Lineal"},
        .titulosReporte = {"G(Y) Ordinario ", "G(Y) Mom Lineal ", "Delta "},
        .mascaraPeriodo = "###0.0",
        .mascaraProbabilidad = "###.#0",
    };
    return textos;
}

} // namespace

frmDisLogGumbel::frmDisLogGumbel(Program& program)
    : GumbelWindow(
          program, "frmDisLogGumbel",
          "Ajuste de una serie de datos a la distribución logGumbel o distribución de Fréchet",
          textosLogGumbel()) {}

bool frmDisLogGumbel::admitirOrdenada() {
    if (conteoDatos < 1 || serieOrdenada[1] > 0)
        return true;
    mensaje("Para esta distribución, los valores de la serie no pueden ser iguales a 0, ¡Corregir "
            "valores¡",
            "Mensaje de error", Icon::information);
    return false;
}

} // namespace caudalera
