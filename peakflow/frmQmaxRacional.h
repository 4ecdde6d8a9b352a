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
    /// Q = C I A / 360, the intensity in mm/hr and the area in hectares. Source: Mulvany (1851),
    /// in metric units.
    Real caudal() const override;
    bool grupoCompleto() override;
    Grupo describirGrupo() const override;
    void vaciarEntradaDeGrupo() override;
};

} // namespace caudalera
