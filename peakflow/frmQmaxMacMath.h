#pragma once

#include "peakflow/RainfallFlowWindow.h"

namespace caudalera {

/// Peak flow by the method of Mac Math.
class frmQmaxMacMath : public RainfallFlowWindow {
public:
    explicit frmQmaxMacMath(Program& program);

    TextBox txtsp;

protected:
    std::vector<CampoDeQ> camposDeQ() override;
    Real caudal() const override;
    bool grupoCompleto() override;
    Grupo describirGrupo() const override;
    void escribirDatosPrevios(ReportWriter& reporte) const override;
};

} // namespace caudalera
