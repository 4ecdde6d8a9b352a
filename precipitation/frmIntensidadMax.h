#pragma once

#include "regression/ajustePotencial.h"
#include "shell/numbers/Serie.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

namespace caudalera {

/// Largest rainfall intensity of a return period and a duration, by the equation
/// Imáx = K * T^m * D^n that fits records of all three.
class frmIntensidadMax : public Worksheet {
public:
    explicit frmIntensidadMax(Program& program);

    DataEntry ingreso{*this, "Ingreso de los tríos de datos T, D, Imáx:"};
    MSFlexGrid grdecua{*this, "grdecua"};
    Frame fraDiseno{*this, "fraDiseno", "I máx de diseño:"};
    Label lblCalculoY{*this, "lblCalculoY", "Cálculo para:"};
    TextBox txtvT{*this, "txtvT", "Período de retorno (T):", "años"};
    TextBox txtvD{*this, "txtvD", "Duración (D):", "min"};
    TextBox txtvI{*this, "txtvI", "Imáx", "mm/hr"};
    Picture Picture1{*this, "Picture1", "intensidad"};

    /// Whether a fit was made, or refused for too few trios, since the start or the last reset.
    bool calculado() const { return calculado_; }

protected:
    void reiniciarResultados() override;
    void borrarResultados() override;
    void limpiar() override;
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;

private:
    void ajustar();
    void escribirEcuacion(const AjustePotencial& ajuste, const CalidadPotencial& calidad);

    static constexpr long capacidad = 500;
    Serie T_{capacidad};
    Serie D_{capacidad};
    Serie Imax_{capacidad};
    float periodoDiseno_ = 0;
    float duracionDiseno_ = 0;
    bool calculado_ = false;
};

} // namespace caudalera
