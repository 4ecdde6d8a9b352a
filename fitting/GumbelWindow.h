#pragma once

#include "fitting/FitWindow.h"

namespace caudalera {

/// What the windows of the Gumbel distribution and of that of the logarithms share: the fields of
/// the parameters, their lines in the report, and parameters that change all four or not at all.
template <typename Distribucion>
class GumbelWindow : public FitWindow<Distribucion> {
public:
    TextBox txtmodau{*this, "txtmodau", "De posición (µ):"};
    TextBox txtalfa{*this, "txtalfa", "De escala (alfa):"};
    TextBox txtmodaul{*this, "txtmodaul", "De posición (µl):"};
    TextBox txtalfal{*this, "txtalfal", "De escala (alfal):"};

protected:
    GumbelWindow(Program& program, std::string name, std::string titulo, const FitTexts& textos)
        : FitWindow<Distribucion>(program, std::move(name), std::move(titulo), textos) {
        auto& ordinario = this->conOrdinarios;
        auto& lineal = this->conLineales;
        this->ordinarios = {
            {&ordinario.posicion, &txtmodau, "Parámetro de posición (µ)= "},
            {&ordinario.escala, &txtalfa, "Parámetro de escala (alfa)= "},
        };
        this->lineales = {
            {&lineal.posicion, &txtmodaul, "Parámetro de posición (µl)= "},
            {&lineal.escala, &txtalfal, "Parámetro de escala (alfal)= "},
        };
        this->disponer(layout::fields({txtmodau, txtalfa, txtmodaul, txtalfal}));
    }

    /// The sums of both kinds of moments come before any parameter.
    void calcularParametros() override {
        const auto ordenada = this->serieOrdenada.primeros(this->conteoDatos);
        Distribucion ordinario;
        Distribucion lineal;
        ajustarOrdinarios(ordinario, ordenada);
        ajustarLineales(lineal, ordenada);
        this->conOrdinarios = ordinario;
        this->conLineales = lineal;
    }
};

} // namespace caudalera
