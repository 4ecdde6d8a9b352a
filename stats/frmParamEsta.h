#pragma once

#include "shell/numbers/momentos.h"
#include "shell/numbers/parametrosComunes.h"
#include "stats/SeriesWorksheet.h"

namespace caudalera {

/// Parameters of ungrouped data: of a sample, of a population and from linear moments.
class frmParamEsta : public SeriesWorksheet {
public:
    explicit frmParamEsta(Program& program);

    MSFlexGrid grdParam{*this, "grdParam"};
    Frame fraCoeficientes{*this, "fraCoeficientes", "Coeficientes Lineales:"};
    TextBox txtL1{*this, "txtL1", "L1:"};
    TextBox txtL2{*this, "txtL2", "L2:"};
    TextBox txtL3{*this, "txtL3", "L3:"};
    TextBox txtL4{*this, "txtL4", "L4:"};

protected:
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;
    void reiniciarResultados() override;

private:
    void escribirMomentos(const MomentosLineales& momentos);
    std::vector<std::string> textosComunes(const ParametrosComunes& p) const;
    std::vector<std::string> textosLineales(const MomentosLineales& momentos) const;
};

} // namespace caudalera
