#pragma once

#include "peakflow/AnnualPeaksWindow.h"
#include "peakflow/caudalNash.h"

#include <span>

namespace caudalera {

/// Design flow by Nash's method.
class frmQmaxNash : public AnnualPeaksWindow {
public:
    explicit frmQmaxNash(Program& program);

    Frame fraSumatorias{*this, "fraSumatorias", "Sumatorias:"};
    TextBox txtSQ{*this, "txtSQ", "Q:"};
    TextBox txtSX{*this, "txtSX", "X:"};
    TextBox txtSQX{*this, "txtSQX", "Q*X:"};
    TextBox txtSQ2{*this, "txtSQ2", "Q^2:"};
    TextBox txtSX2{*this, "txtSX2", "X^2:"};
    MSFlexGrid grdTablaQX{*this, "grdTablaQX"};

protected:
    void disenar(Real T) override;
    void reiniciarResultados() override;

private:
    void escribirSumas(const SumasNash& s);
    /// Failure 9 past the rows that the table has.
    void escribirTabla(std::span<const PuntoNash> puntos);
};

} // namespace caudalera
