#pragma once

#include "shell/numbers/momentos.h"
#include "shell/numbers/parametrosComunes.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

namespace caudalera {

/// Parameters of ungrouped data: of a sample, of a population and from linear moments.
class frmParamEsta : public Worksheet {
public:
    explicit frmParamEsta(Program& program);

    DataEntry ingreso{*this, "Ingreso de datos:"};
    Button bOrdenar{*this, "bOrdenar", "&Ordenar", "Mostrar serie ordenada"};
    MSFlexGrid grdParam{*this, "grdParam"};
    Frame fraCoeficientes{*this, "fraCoeficientes", "Coeficientes Lineales:"};
    TextBox txtL1{*this, "txtL1", "L1:"};
    TextBox txtL2{*this, "txtL2", "L2:"};
    TextBox txtL3{*this, "txtL3", "L3:"};
    TextBox txtL4{*this, "txtL4", "L4:"};
    Label lblOrdenado{*this, "lblOrdenado", "Datos ordenados:"};
    MSFlexGrid grdorden{*this, "grdorden"};

protected:
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;
    void reiniciarResultados() override;
    void borrarResultados() override;

private:
    void disponer();
    void reiniciarOrdenados(long filas);
    void ordenar();
    void mostrarOrdenados(bool visibles);
    void ordenarSerie();
    void escribirMomentos(const MomentosLineales& momentos);
    void escribirParametros(const ParametrosComunes& muestrales,
                            const ParametrosComunes& poblacionales,
                            const MomentosLineales& momentos);
    void escribirColumna(long columna, const std::vector<std::string>& textos);

    static constexpr long capacidad = 500;
    Serie serieX{capacidad};
    Serie serieOrdenada{capacidad};
};

} // namespace caudalera
