#pragma once

#include "evapotranspiration/SingleMonthWindow.h"
#include "evapotranspiration/penman.h"

namespace caudalera {

/// Reference evapotranspiration of one month at one site by the modified Penman method, with every
/// term on the way.
class frmPenman : public SingleMonthWindow {
public:
    explicit frmPenman(Program& program);

    TextBox txth{*this, "txth", "Altitud (h):", "m.s.n.m"};
    List cobMes = listaDeMeses(*this);
    TextBox txtT{*this, "txtT", "Tmedia (T):", "ºC"};
    TextBox txtHRmed{*this, "txtHRmed", "HRmedia", "%"};
    TextBox txtHRmax{*this, "txtHRmax", "HRmáxima", "%"};
    TextBox txtUz{*this, "txtUz", "Velocidad viento:", "km/hr"};
    TextBox txtHz{*this, "txtHz", "Altura medición viento (z):", "m"};
    TextBox txtRVdVn{*this, "txtRVdVn", "Relación Vdía/Vnoche"};
    TextBox txtnp{*this, "txtnp", "Horas de insolación real (n):", "hr/día"};

    Frame fraParciales{*this, "fraParciales", "Resultados parciales:"};
    TextBox txtRa{*this, "txtRa", "Ra:", "mm/día"};
    TextBox txtN{*this, "txtN", "N:", "hr/día"};
    TextBox txtRnpNg{*this, "txtRnpNg", "n/N:"};
    TextBox txtFhv{*this, "txtFhv", "f(z)2m:"};
    TextBox txtU2{*this, "txtU2", "Vviento2m:", "km/hr"};
    TextBox txtea{*this, "txtea", "ea:", "mbar"};
    TextBox txted{*this, "txted", "ed:", "mbar"};
    TextBox txteaed{*this, "txteaed", "ea-ed:", "mbar"};
    TextBox txtw{*this, "txtw", "w:"};
    TextBox txt1w{*this, "txt1w", "1-w:"};
    TextBox txtfu{*this, "txtfu", "f(u):"};
    TextBox txtft{*this, "txtft", "f(t):"};
    TextBox txtfed{*this, "txtfed", "f(ed):"};
    TextBox txtfnN{*this, "txtfnN", "f(n/N):"};
    TextBox txtRn1{*this, "txtRn1", "Rn1:", "mm/día"};
    TextBox txtRs{*this, "txtRs", "Rs:", "mm/día"};
    TextBox txtRns{*this, "txtRns", "Rns:", "mm/día"};
    TextBox txtRn{*this, "txtRn", "Rn:", "mm/día"};

    Frame fraFinales{*this, "fraFinales", "Resultados finales:"};
    TextBox txtC{*this, "txtC", "C:"};
    TextBox txtRadiacion{*this, "txtRadiacion", "Término Radiación:", "mm/día"};
    TextBox txtAdveccion{*this, "txtAdveccion", "Término Advección:", "mm/día"};
    TextBox txtETo{*this, "txtETo", "ETo:", "mm/día"};

protected:
    List& meses() override { return cobMes; }
    void calcular() override;
    void limpiar() override;
    void escribirReporte(ReportWriter& reporte) override;

private:
    void disponer();
    DatosPenman leerDatos();
    void mostrar(const TerminosPenman& terminos);
    void escribirDatos(ReportWriter& reporte) const;
    void escribirParciales(ReportWriter& reporte) const;
    void escribirFinales(ReportWriter& reporte) const;

    /// What a run leaves to the next one, which keeps it where its field is empty.
    Real temperatura_;
};

} // namespace caudalera
