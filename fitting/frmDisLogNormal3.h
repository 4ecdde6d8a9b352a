#pragma once

#include "fitting/FitWindow.h"
#include "fitting/logNormal3.h"

namespace caudalera {

/// Fit of a series to the log-normal distribution of three parameters, by ordinary moments only.
class frmDisLogNormal3 : public FitWindow<LogNormal3> {
public:
    explicit frmDisLogNormal3(Program& program);

    TextBox txtxo{*this, "txtxo", "De posición (xo):"};
    TextBox txtux{*this, "txtux", "De escala (µy):"};
    TextBox txtSX{*this, "txtSX", "De forma (Sy):"};

protected:
    bool admitirSerie() override;
    /// The fit stands before the empirical probabilities: where it fails, those of an earlier
    /// series stay.
    void trasOrdenar() override { FitWindow::calcularParametros(); }
    void calcularParametros() override {}
    bool admitirCaudal(Evaluacion cual, Momentos tipo, Real q) override;
};

} // namespace caudalera
