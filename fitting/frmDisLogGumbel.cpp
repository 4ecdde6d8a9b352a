#include "fitting/frmDisLogGumbel.h"

namespace caudalera {

namespace {

const FitTexts& textosLogGumbel() {
    static const FitTexts textos = {
        .distribucion = "logGumbel",
        .marcoParametros = "Parámetros distribución logGumbel:",
        .tituloParametros = "Parámetros de la distribución logGumbel:",
        .guionesParametros = 60,
        .columnas = columnasY,
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
    return admitirPositivos(Icon::information);
}

} // namespace caudalera
