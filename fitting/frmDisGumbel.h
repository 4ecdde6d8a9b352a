#pragma once

#include "fitting/GumbelWindow.h"
#include "fitting/gumbel.h"

namespace caudalera {

/// Fit of a series to the Gumbel distribution.
class frmDisGumbel : public GumbelWindow<Gumbel> {
public:
    explicit frmDisGumbel(Program& program);
};

} // namespace caudalera
