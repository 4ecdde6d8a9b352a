#include "fitting/Gamma3Window.h"

#include "fitting/funcionGamma.h"

#include <algorithm>

namespace caudalera {

FitTexts textosGamma3(std::string_view distribucion, std::string_view marcoParametros,
                      std::string_view tituloParametros) {
    return {
        .distribucion = distribucion,
        .marcoParametros = marcoParametros,
        .tituloParametros = tituloParametros,
        .guionesParametros = 65,
        .columnas = columnasY,
        .mascaraPeriodo = "###0.0",
        .mascaraProbabilidad = "###.0#",
        .mascaraTeorico = "#####0.0####",
        .mascaraTabular = "###0.0###",
    };
}

template <typename Distribucion>
Gamma3Window<Distribucion>::Gamma3Window(Program& program, std::string name, std::string rotulo,
                                         const FitTexts& textos, std::string_view enElVeredicto)
    : FitWindow<Distribucion>(program, std::move(name), std::move(rotulo), textos),
      enElVeredicto_(enElVeredicto) {
    Gamma3& ordinaria = this->conOrdinarios;
    this->ordinarios = {{&ordinaria.posicion, &txtxo, "Parámetro de localización (Xo)= "},
                        {&ordinaria.forma, &txtgamma, "Parámetro de forma (gamma)= "},
                        {&ordinaria.escala, &txtbeta, "Parámetro de escala (beta)= "}};
    Gamma3& lineal = this->conLineales;
    this->lineales = {{&lineal.posicion, &txtxol, "Parámetro de localización (Xol)= "},
                      {&lineal.forma, &txtgammal, "Parámetro de forma (gammal)= "},
                      {&lineal.escala, &txtbetal, "Parámetro de escala (betal)= "}};
    this->disponer(layout::fields({{nullptr, {&lblOrdinarios}, nullptr},
                                   txtxo,
                                   txtgamma,
                                   txtbeta,
                                   {nullptr, {&lblLineales}, nullptr},
                                   txtxol,
                                   txtgammal,
                                   txtbetal}));
}

template <typename Distribucion>
void Gamma3Window<Distribucion>::trasLeer() {
    this->conOrdinarios.invalida = false;
    this->conLineales.invalida = false;
}

template <typename Distribucion>
void Gamma3Window<Distribucion>::trasReducir(Momentos tipo, std::span<const Real> reducidas) {
    if (std::ranges::any_of(reducidas, [](Real y) { return y < 0; }))
        this->distribucion(tipo).invalida = true;
}

template <typename Distribucion>
Real Gamma3Window<Distribucion>::probabilidad(Momentos tipo, Real reducida) {
    if (this->distribucion(tipo).invalida)
        return 0;
    return FitWindow<Distribucion>::probabilidad(tipo, reducida);
}

template <typename Distribucion>
void Gamma3Window<Distribucion>::trasElAjuste() {
    const Momentos tipo = this->tipoElegido();
    if (!this->distribucion(tipo).invalida)
        return;
    this->lblmensaje.caption =
        std::string("Los parámetros: Xo, gamma y ß calculada por momentos ") +
        (tipo == Momentos::lineales ? "lineales" : "ordinarios") +
        ", son incorrectos, por lo que los datos no se ajustan a la distribución " +
        std::string(enElVeredicto_);
    this->lblmensaje.mark = Label::Mark::no;
}

template <typename Distribucion>
bool Gamma3Window<Distribucion>::admitirEvaluacion(Momentos tipo) {
    if (!this->distribucion(tipo).invalida)
        return true;
    // The words are the same for the logarithms' distribution.
    this->mensaje(std::string("Los datos no se ajustan a la distribución Gamma de 3 parámetros, "
                              "con momentos ") +
                      (tipo == Momentos::lineales ? "lineales" : "ordinarios"),
                  "Mensaje de Error", Icon::error);
    return false;
}

template <typename Distribucion>
bool Gamma3Window<Distribucion>::admitirCaudal(Evaluacion cual, Momentos tipo, Real q) {
    const Distribucion& d = this->distribucion(tipo);
    const Real y = variableReducida(d, q);
    // A shape without a gamma function fails before the value is looked at.
    static_cast<void>(funcionGamma(d.forma));
    if (cual == Evaluacion::T || y >= 0)
        return true;
    this->mensaje(std::string("Para los parámetros: Xo y ß la variable reducida y, por momentos ") +
                      (tipo == Momentos::lineales ? "lineales" : "ordinarios") +
                      ", es negativa, por lo que por lo que no se puede calcular su probabilidad",
                  "Mensaje de Error", Icon::information);
    return false;
}

template class Gamma3Window<Gamma3>;
template class Gamma3Window<LogPearson3>;

} // namespace caudalera
