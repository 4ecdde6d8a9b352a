#pragma once

#include "evapotranspiration/ThornthwaiteWorksheet.h"

namespace caudalera {

/// Potential evapotranspiration of the months of a year by Thornthwaite's method.
class frmThornthwaite : public ThornthwaiteWorksheet {
public:
    explicit frmThornthwaite(Program& program);

    TextBox txti{*this, "txti", "Indice térmico anual (I):"};
    TextBox txtA{*this, "txtA", "exponente (a):"};

protected:
    void calcularAnno() override;
    std::vector<Graph::Series> curvas() const override;
    std::string tituloCurvas() const override;
    void reiniciarResultados() override;
    void escribirReporte(ReportWriter& reporte) override;

private:
    void disponer();
    void escribirResultados();
};

} // namespace caudalera
