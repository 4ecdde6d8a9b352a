#pragma once

#include "precipitation/ArealWorksheet.h"
#include "shell/numbers/Serie.h"

namespace caudalera {

/// Mean rainfall over a basin from its isohyets and the areas of the bands between them. A row of
/// the grid is an isohyet and the band behind it; a field of its own closes the last band.
class frmIsoyeta : public ArealWorksheet {
public:
    explicit frmIsoyeta(Program& program);

    Label lblIsoyetaInicial{*this, "lblIsoyetaInicial", "(isoyeta inicial)"};
    TextBox txtUltimaIsoyeta{*this, "txtUltimaIsoyeta", "Valor de la última isoyeta (mm):"};
    Label lblIsoyetaFinal{*this, "lblIsoyetaFinal", "(isoyeta final)"};

protected:
    Real precipitacionMedia() const override;
    void calcular() override;
    void limpiar() override;
    /// The last isohyet follows those of the rows.
    void leerCuadricula() override;
    std::vector<Real> ultimoRegistro() const override;
    void recibirUltimoRegistro(std::span<const float> registro) override;
    void escribirUltimaFila(ReportWriter& reporte) const override;

private:
    Serie isoyeta_{capacidad};
    Serie area_{capacidad};
};

} // namespace caudalera
