#include "fitting/frmDisNormal.h"

namespace caudalera {

namespace {

const FitTexts& textosNormal() {
    static const FitTexts textos = {
        .distribucion = "Normal",
        .marcoParametros = "Parámetros distribución normal:",
        .tituloParametros = "Parámetros de la distribución normal:",
        .guionesParametros = 55,
        .columnas = columnasZ,
        .mascaraPeriodo = "###.0",
        .mascaraProbabilidad = "###.#0",
        .excedenciaSinCalculo = "Efectuar cálculos antes de evaluar la probabilidad de excedencia",
    };
    return textos;
}

} // namespace

frmDisNormal::frmDisNormal(Program& program)
    : FitWindow(program, "frmDisNormal", "Ajuste de una serie de datos a la distribución normal",
                textosNormal()) {
    ordinarios = {{&conOrdinarios.posicion, &txtux, "Parámetro de localización (Xm)= "},
                  {&conOrdinarios.escala, &txtSX, "Parámetro de escala (S)= "}};
    lineales = {{&conLineales.posicion, &txtmedial, "Media lineal (Xl)= "},
                {&conLineales.escala, &txtsl, "Desviación estándar lineal (Sl)= "}};
    disponer(layout::fields({txtux, txtSX, txtmedial, txtsl}));
}

} // namespace caudalera
