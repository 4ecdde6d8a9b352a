#pragma once

#include "fitting/FitWindow.h"
#include "fitting/gamma2.h"

namespace caudalera {

/// Fit of a series to the gamma distribution of two parameters.
class frmDisGamma2par : public FitWindow<Gamma2> {
public:
    explicit frmDisGamma2par(Program& program);

    Label lblOrdinarios{*this, "lblOrdinarios", "Con momentos ordinarios:"};
    TextBox txtgamma{*this, "txtgamma", "De forma (gamma):"};
    TextBox txtbeta{*this, "txtbeta", "De escala (beta):"};
    Label lblLineales{*this, "lblLineales", "Con momentos lineales:"};
    TextBox txtgammal{*this, "txtgammal", "De forma (gammal):"};
    TextBox txtbetal{*this, "txtbetal", "De escala (betal):"};

protected:
    void calcularParametros() override;
    void antesDelAjuste() override;
};

} // namespace caudalera
