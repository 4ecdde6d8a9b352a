#pragma once

#include "regression/SimpleRegressionWorksheet.h"

namespace caudalera {

/// Linear regression: the straight line that fits pairs (X, Y) of any sign, Y for a given X and X
/// for a given Y.
class frmRegreLineal : public SimpleRegressionWorksheet {
public:
    explicit frmRegreLineal(Program& program);

    Button bCalY{*this, "bCalY", "Calcular valor de Y"};
    Button bCalX{*this, "bCalX", "Calcular valor de X"};

protected:
    void calcular() override;
    void reporteDeEvaluacion(ReportWriter& reporte) override;

private:
    void calcularY();
    void calcularX();

    Real a_;
    Real b_;
};

} // namespace caudalera
