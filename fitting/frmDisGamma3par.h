#pragma once

#include "fitting/Gamma3Window.h"

namespace caudalera {

/// Fit of a series to the gamma distribution of three parameters.
class frmDisGamma3par : public Gamma3Window<Gamma3> {
public:
    explicit frmDisGamma3par(Program& program);
};

} // namespace caudalera
