#pragma once

#include "peakflow/RainfallFlowWindow.h"

namespace caudalera {

/// Peak flow by the rational method.
class frmQmaxRacional : public RainfallFlowWindow {
public:
    explicit frmQmaxRacional(Program& program);

    List cboZUrbana;

protected:
    std::vector<CampoDeQ> camposDeQ() override;
    Real caudal() const override;
    bool grupoCompleto() override;
    Grupo describirGrupo() const override;
    void vaciarEntradaDeGrupo() override;
};

} // namespace caudalera
