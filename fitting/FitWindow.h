#pragma once

#include "fitting/FitWorksheet.h"

namespace caudalera {

/// A distribution that can be fitted by linear moments too.
template <typename Distribucion>
concept ConMomentosLineales = requires(Distribucion& d, std::span<const Real> ordenada) {
    ajustarLineales(d, ordenada);
};

/// The window of a distribution: binds the parameters of each kind of moments to the routines of
/// the distribution, which stand in a file of their own under the same names for all of them.
template <typename Distribucion>
class FitWindow : public FitWorksheet {
public:
    using FitWorksheet::FitWorksheet;

protected:
    Distribucion conOrdinarios;
    Distribucion conLineales;

    Distribucion& distribucion(Momentos tipo) {
        return tipo == Momentos::lineales ? conLineales : conOrdinarios;
    }

    void calcularParametros() override {
        const auto ordenada = serieOrdenada.primeros(conteoDatos);
        ajustarOrdinarios(conOrdinarios, ordenada);
        if constexpr (ConMomentosLineales<Distribucion>)
            ajustarLineales(conLineales, ordenada);
    }
    Real reducir(Momentos tipo, Real q) override { return variableReducida(distribucion(tipo), q); }
    Real probabilidad(Momentos tipo, Real reducida) override {
        return acumulada(distribucion(tipo), reducida);
    }
    /// An inverse that is sought by trial counts its passes where the rows of data are counted.
    Real cuantil(Momentos tipo, Real p) override {
        if constexpr (requires { inversa(distribucion(tipo), p, conteoDatos); }) {
            return inversa(distribucion(tipo), p, conteoDatos);
        } else {
            return inversa(distribucion(tipo), p);
        }
    }
};

} // namespace caudalera
