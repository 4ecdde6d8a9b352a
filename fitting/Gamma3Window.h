#pragma once

#include "fitting/FitWindow.h"
#include "fitting/gamma3.h"
#include "fitting/logPearson3.h"

namespace caudalera {

/// The window of the gamma distribution of three parameters, of the series or of its logarithms.
/// A kind of moments whose parameters are invalid has a cumulative value of 0 for every value of
/// the series and answers no question.
template <typename Distribucion>
class Gamma3Window : public FitWindow<Distribucion> {
public:
    /// `enElVeredicto`: name of the distribution where the verdict tells of invalid parameters.
    Gamma3Window(Program& program, std::string name, std::string rotulo, const FitTexts& textos,
                 std::string_view enElVeredicto);

    Label lblOrdinarios{*this, "lblOrdinarios", "Momentos ordinarios:"};
    TextBox txtxo{*this, "txtxo", "De posición (x0):"};
    TextBox txtgamma{*this, "txtgamma", "De forma (gamma):"};
    TextBox txtbeta{*this, "txtbeta", "De escala (beta):"};
    Label lblLineales{*this, "lblLineales", "Momentos lineales:"};
    TextBox txtxol{*this, "txtxol", "De posición (x0l):"};
    TextBox txtgammal{*this, "txtgammal", "De forma (gammal):"};
    TextBox txtbetal{*this, "txtbetal", "De escala (betal):"};

protected:
    using typename FitWorksheet::Evaluacion;
    using typename FitWorksheet::Momentos;

    void trasLeer() override;
    void trasReducir(Momentos tipo, std::span<const Real> reducidas) override;
    Real probabilidad(Momentos tipo, Real reducida) override;
    void trasElAjuste() override;
    bool admitirEvaluacion(Momentos tipo) override;
    bool admitirCaudal(Evaluacion cual, Momentos tipo, Real q) override;

private:
    std::string_view enElVeredicto_;
};

/// Texts and masks of these windows, most of which they have in common.
FitTexts textosGamma3(std::string_view distribucion, std::string_view marcoParametros,
                      std::string_view tituloParametros);

extern template class Gamma3Window<Gamma3>;
extern template class Gamma3Window<LogPearson3>;

} // namespace caudalera
