#pragma once

#include "regression/PolynomialRegressionWorksheet.h"

namespace caudalera {

/// Polynomial regression of the second degree.
class frmRegPoli2Gra : public PolynomialRegressionWorksheet {
public:
    explicit frmRegPoli2Gra(Program& program);
};

} // namespace caudalera
