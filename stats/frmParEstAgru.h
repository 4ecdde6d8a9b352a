#pragma once

#include "shell/numbers/parametrosComunes.h"
#include "stats/GroupedWorksheet.h"

namespace caudalera {

/// Parameters of grouped data: of a sample, from the marks and frequencies of its classes.
class frmParEstAgru : public GroupedWorksheet {
public:
    explicit frmParEstAgru(Program& program);

    MSFlexGrid grdParam{*this, "grdParam"};

protected:
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;
    void reiniciarResultados() override;

private:
    std::vector<std::string> textosParametros(const ParametrosComunes& p) const;
};

} // namespace caudalera
