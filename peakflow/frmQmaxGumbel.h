#pragma once

#include "peakflow/AnnualPeaksWindow.h"

namespace caudalera {

/// Design flow by Gumbel's method.
class frmQmaxGumbel : public AnnualPeaksWindow {
public:
    explicit frmQmaxGumbel(Program& program);

protected:
    void disenar(Real T) override;
};

} // namespace caudalera
