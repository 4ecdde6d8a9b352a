#pragma once

#include "regression/PolynomialRegressionWorksheet.h"

namespace caudalera {

/// Polynomial regression of the third degree.
class frmRegPoli3Gra : public PolynomialRegressionWorksheet {
public:
    explicit frmRegPoli3Gra(Program& program);
};

} // namespace caudalera
