#pragma once

#include "fitting/FitWorksheet.h"

namespace caudalera {

/// Fit of a series to the normal distribution.
class frmDisNormal : public FitWorksheet {
public:
    explicit frmDisNormal(Program& program);

    TextBox txtux{*this, "txtux", "De localización (Xm):"};
    TextBox txtSX{*this, "txtSX", "De escala (S):"};
    TextBox txtmedial{*this, "txtmedial", "Media  lineal (Xl):"};
    TextBox txtsl{*this, "txtsl", "Des. Estandar (S l):"};

protected:
    void calcularParametros() override;
    void calcularAcumuladas() override;
    Real acumulada(Momentos tipo, Real q) override;
    Real inversa(Momentos tipo, Real p) override;

private:
    Real variableReducida(Momentos tipo, Real q) const;

    Real Xm;
    Real S;
    Real Xl;
    Real Sl;
};

} // namespace caudalera
