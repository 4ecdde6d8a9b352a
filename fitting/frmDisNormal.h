#pragma once

#include "fitting/FitWindow.h"
#include "fitting/normal.h"

namespace caudalera {

/// Fit of a series to the normal distribution.
class frmDisNormal : public FitWindow<Normal> {
public:
    explicit frmDisNormal(Program& program);

    TextBox txtux{*this, "txtux", "De localización (Xm):"};
    TextBox txtSX{*this, "txtSX", "De escala (S):"};
    TextBox txtmedial{*this, "txtmedial", "Media  lineal (Xl):"};
    TextBox txtsl{*this, "txtsl", "Des. Estandar (S l):"};
};

} // namespace caudalera
