#include "fitting/frmDisGamma2par.h"

namespace caudalera {

namespace {

const FitTexts& textosGamma2() {
    static const FitTexts textos = {
        .distribucion = "Gamma de 2 parámetros",
        .marcoParametros = "Parámetros distribución Gamma 2 par:",
        .tituloParametros = "Los 2 parámetros de la distribución Gamma:",
        .guionesParametros = 65,
        .columnas = columnasY,
        .mascaraPeriodo = "###0.0",
        .mascaraProbabilidad = "###.#0",
    };
    return textos;
}

} // namespace

frmDisGamma2par::frmDisGamma2par(Program& program)
    : FitWindow(program, "frmDisGamma2par",
                "Ajuste de una serie de datos a la distribución Gamma de 2 parámetros",
                textosGamma2()) {
    ordinarios = {{&conOrdinarios.forma, &txtgamma, "Parámetro de forma (gamma)= "},
                  {&conOrdinarios.escala, &txtbeta, "Parámetro de escala (beta)= "}};
    lineales = {{&conLineales.forma, &txtgammal, "Parámetro de forma (gammal)= "},
                {&conLineales.escala, &txtbetal, "Parámetro de escala (betal)= "}};
    disponer(layout::fields({{nullptr, {&lblOrdinarios}, nullptr},
                             txtgamma,
                             txtbeta,
                             {nullptr, {&lblLineales}, nullptr},
                             txtgammal,
                             txtbetal}));
}

void frmDisGamma2par::calcularParametros() {
    const auto ordenada = serieOrdenada.primeros(conteoDatos);
    Gamma2 ajustada;
    ajustarOrdinarios(ajustada, ordenada, serieDatos.primeros(conteoDatos));
    const MomentosLineales momentos = momentosLineales(ordenada);
    // The sums of both kinds come before any parameter that a failure would leave.
    conOrdinarios = ajustada;
    ajustarLineales(conLineales, momentos);
}

void frmDisGamma2par::antesDelAjuste() {
    if (conOrdinarios.forma <= 0 || conOrdinarios.escala <= 0) {
        lblmensaje.caption =
            "Los datos de la serie no son recomendables utilizarlos con distribución gamma de 3 "
            "parámetros, puesto que esta distribución, no puede tener parametros gamma o beta "
            "negativos";
        lblmensaje.mark = Label::Mark::no;
    }
    if (conLineales.forma == 0 || conLineales.escala == 0) {
        lblmensaje.caption = "Los parámetros de la distribución gamma, calculados por el método de "
                             "los momentos lineales, son incorrectos";
        lblmensaje.mark = Label::Mark::no;
    }
}

} // namespace caudalera
