#pragma once

#include "fitting/Gamma3Window.h"

namespace caudalera {

/// Fit of a series to the log-Pearson type III distribution.
class frmDisLogPearson3 : public Gamma3Window<LogPearson3> {
public:
    explicit frmDisLogPearson3(Program& program);
};

} // namespace caudalera
