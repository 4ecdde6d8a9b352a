#pragma once

#include "fitting/GumbelWindow.h"
#include "fitting/logGumbel.h"

namespace caudalera {

/// Fit of the natural logarithms of a series to the Gumbel distribution.
class frmDisLogGumbel : public GumbelWindow<LogGumbel> {
public:
    explicit frmDisLogGumbel(Program& program);

protected:
    bool admitirOrdenada() override;
};

} // namespace caudalera
