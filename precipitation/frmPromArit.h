#pragma once

#include "precipitation/ArealWorksheet.h"
#include "shell/numbers/Serie.h"

namespace caudalera {

/// Mean rainfall over a basin as the plain mean of its stations.
class frmPromArit : public ArealWorksheet {
public:
    explicit frmPromArit(Program& program);

protected:
    Real precipitacionMedia() const override;

private:
    Serie precipitacion_{capacidad};
};

} // namespace caudalera
