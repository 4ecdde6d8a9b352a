#include "fitting/frmDisGumbel.h"

namespace caudalera {

namespace {

const FitTexts& textosGumbel() {
    static const FitTexts textos = {
        .distribucion = "Gumbel",
        .marcoParametros = "Parámetros distribución Gumbel:",
        .tituloParametros = "Parámetros de la distribución Gumbel:",
        .guionesParametros = 55,
        .columnas = columnasY,
        .mascaraPeriodo = "###0.0",
        .mascaraProbabilidad = "###.#0",
    };
    return textos;
}

} // namespace

frmDisGumbel::frmDisGumbel(Program& program)
    : GumbelWindow(program, "frmDisGumbel", "Ajuste de una serie de datos a la distribución Gumbel",
                   textosGumbel()) {}

} // namespace caudalera
