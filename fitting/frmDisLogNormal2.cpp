#include "fitting/frmDisLogNormal2.h"

namespace caudalera {

namespace {

const FitTexts& textosLogNormal2() {
    static const FitTexts textos = {
        .distribucion = "logNormal 2 parámetros",
        .marcoParametros = "Parámetros distribución log-normal:",
        .tituloParametros = "Parámetros de la distribución logNormal:",
        .guionesParametros = 60,
        .columnas = columnasZ,
        .mascaraPeriodo = "###.0",
        .mascaraProbabilidad = "###.#0",
        .excedenciaSinCalculo = "Efectuar cálculos antes de evaluar la probabilidad de excedencia",
    };
    return textos;
}

} // namespace

frmDisLogNormal2::frmDisLogNormal2(Program& program)
    : FitWindow(program, "frmDisLogNormal2",
                "Ajuste de una serie de datos a la distribución lognormal de 2 parámetros",
                textosLogNormal2()) {
    ordinarios = {{&conOrdinarios.escala, &txtux, "Parámetro de escala (µy)= "},
                  {&conOrdinarios.forma, &txtSX, "Parámetro de forma (Sy)= "}};
    lineales = {{&conLineales.escala, &txtmedial, "Parámetro de escala (µyl)= "},
                {&conLineales.forma, &txtsl, "Parámetro de forma (Syl)= "}};
    disponer(layout::fields({txtux, txtSX, txtmedial, txtsl}));
}

bool frmDisLogNormal2::admitirOrdenada() {
    return admitirPositivos(Icon::error);
}

} // namespace caudalera
