#pragma once

#include "regression/MultipleRegressionWorksheet.h"

namespace caudalera {

/// Multiple regression of Y on X1, X2 and X3.
class frmRegMul3Var : public MultipleRegressionWorksheet {
public:
    explicit frmRegMul3Var(Program& program);

    TextBox txtvxx3{*this, "txtvxx3", "Valor de X3:"};

protected:
    std::string textoLineal(std::span<const Real> a) const override;
    std::string textoPotencial(std::span<const Real> b) const override;
};

} // namespace caudalera
