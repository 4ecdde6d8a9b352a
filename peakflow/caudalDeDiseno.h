#pragma once

#include "shell/numbers/Real.h"

namespace caudalera {

/// The flow of a return period with its margin, in the unit of the annual peaks that it comes from.
struct CaudalDeDiseno {
    Real Qmax;
    Real deltaQ;

    Real inferior() const { return Qmax - deltaQ; }
    /// The design flow is this upper bound.
    Real superior() const { return Qmax + deltaQ; }
};

} // namespace caudalera
