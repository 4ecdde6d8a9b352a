#pragma once

#include "precipitation/ArealWorksheet.h"
#include "shell/numbers/Serie.h"

namespace caudalera {

/// Mean rainfall over a basin from its stations, weighted by the areas of their polygons.
class frmThiessen : public ArealWorksheet {
public:
    explicit frmThiessen(Program& program);

protected:
    Real precipitacionMedia() const override;

private:
    Serie precipitacion_{capacidad};
    Serie area_{capacidad};
};

} // namespace caudalera
