#include "fitting/frmDisLogNormal3.h"

namespace caudalera {

namespace {

const FitTexts& textosLogNormal3() {
    static const FitTexts textos = {
        .momentosLineales = false,
        .distribucion = "logNormal 3 parámetros",
        .marcoParametros = "Parámetros distribución log-normal:",
        .tituloParametros = "Parámetros de la distribución lognormal:",
        .guionesParametros = 55,
        .columnas = {{"Z", "F(Z)"},
                     {"           Z  ", "             F(Z)  ", "            Delta "}},
        .mascaraPeriodo = "###.0",
        .mascaraProbabilidad = "###.#0",
        .excedenciaSinCalculo = "Efectuar cálculos antes de evaluar la probabilidad de excedencia",
    };
    return textos;
}

} // namespace

frmDisLogNormal3::frmDisLogNormal3(Program& program)
    : FitWindow(program, "frmDisLogNormal3",
                "Ajuste de una serie de datos a la distribución lognormal de 3 parámetros",
                textosLogNormal3()) {
    ordinarios = {{&conOrdinarios.posicion, &txtxo, "Parámetro de posición (xo)= "},
                  {&conOrdinarios.escala, &txtux, "Parámetro de escala (µy)= "},
                  {&conOrdinarios.forma, &txtSX, "Parámetro de forma (Sy)= "}};
    columnasDeAjuste = {&reducidaOrdinaria, &acumOrdinaria};
    curvas.pop_back();
    curvas[1].leyenda = "Teo";
    disponer(layout::fields({txtxo, txtux, txtSX}));
}

bool frmDisLogNormal3::admitirSerie() {
    for (const Real x : serieDatos.primeros(conteoDatos)) {
        if (x > 0)
            continue;
        mensaje("Verificar que los datos sean positivos y mayor que 0 ¡ Corregir datos!",
                "Mensaje de Error", Icon::information);
        return false;
    }
    return true;
}

bool frmDisLogNormal3::admitirCaudal(Evaluacion cual, Momentos tipo, Real q) {
    if (q > distribucion(tipo).posicion)
        return true;
    std::string_view texto = "Para este valor, no es posible calcular la probabilidad de no "
                             "excedencia";
    if (cual == Evaluacion::T) {
        texto = "Para este valor, no es posible calcular el período de retorno, además este valor "
                "es muy pequeño";
    } else if (cual == Evaluacion::Pmayor) {
        texto = "Para este valor, no es posible calcular la probabilidad de excedencia";
    }
    mensaje(std::string(texto), "Error", Icon::information);
    return false;
}

} // namespace caudalera
