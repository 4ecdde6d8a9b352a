#pragma once

#include "evapotranspiration/ThornthwaiteWorksheet.h"
#include "shell/numbers/Integer16.h"

namespace caudalera {

/// Water balance of the months of a year: precipitation against the evapotranspiration by
/// Thornthwaite's method.
class frmBalanceHidro : public ThornthwaiteWorksheet {
public:
    explicit frmBalanceHidro(Program& program);

    TextBox txtMesIni{*this, "txtMesIni", "Mes de inicio que P > ETo:"};
    TextBox txtA{*this, "txtA", "exponente (a):"};

protected:
    void calcularAnno() override;
    void trasFaltarMeses() override { setFocus(grdt); }
    std::vector<Graph::Series> curvas() const override;
    std::string tituloCurvas() const override;
    void reiniciarResultados() override;
    void borrarResultados() override;
    void escribirReporte(ReportWriter& reporte) override;

private:
    void disponer();
    void calcularDiferencias();
    void escribirResultados();
    void limpiarMatrices();

    /// Precipitation, and what it is above the evapotranspiration, mm.
    Serie P{meses};
    SerieSimple diferencia{meses};
    /// Of the last run that found one.
    Integer16 primerMes_;
};

} // namespace caudalera
