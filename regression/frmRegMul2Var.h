#pragma once

#include "regression/MultipleRegressionWorksheet.h"

namespace caudalera {

/// Multiple regression of Y on X1 and X2.
class frmRegMul2Var : public MultipleRegressionWorksheet {
public:
    explicit frmRegMul2Var(Program& program);

protected:
    std::string textoLineal(std::span<const Real> a) const override;
    std::string textoPotencial(std::span<const Real> b) const override;
};

} // namespace caudalera
