#pragma once

#include "fitting/FitWindow.h"
#include "fitting/logNormal2.h"

namespace caudalera {

/// Fit of a series to the log-normal distribution of two parameters.
class frmDisLogNormal2 : public FitWindow<LogNormal2> {
public:
    explicit frmDisLogNormal2(Program& program);

    TextBox txtux{*this, "txtux", "De escala (µy):"};
    TextBox txtSX{*this, "txtSX", "De forma (Sy):"};
    TextBox txtmedial{*this, "txtmedial", "De escala (µyl):"};
    TextBox txtsl{*this, "txtsl", "De forma (Syl):"};

protected:
    bool admitirOrdenada() override;
};

} // namespace caudalera
