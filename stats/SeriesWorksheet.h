#pragma once

#include "shell/numbers/Serie.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

namespace caudalera {

/// The template of the windows that describe one series X: its data, and on request the list that
/// shows them sorted.
class SeriesWorksheet : public Worksheet {
public:
    SeriesWorksheet(Program& program, std::string name, std::string caption);

    DataEntry ingreso{*this, "Ingreso de datos:"};
    Button bOrdenar{*this, "bOrdenar", "&Ordenar", "Mostrar serie ordenada"};
    Label lblOrdenado{*this, "lblOrdenado", "Datos ordenados:"};
    MSFlexGrid grdorden{*this, "grdorden"};

protected:
    /// Sets the layout (the data, the window's own results, the sorted list) and the commands.
    void disponer(Layout resultados);
    /// Reads the grid and sorts a copy of the series.
    void leerOrdenada();
    void borrarResultados() override;
    /// Without the sorted list, which has its own command.
    std::vector<const Control*> resultados() const override;

    void reporteDeSerie(ReportWriter& reporte) const;
    /// What the sorted list holds, whether it is shown or not.
    void reporteDeOrdenados(ReportWriter& reporte) const;

    static constexpr long capacidad = 500;
    Serie serieX{capacidad};
    Serie serieOrdenada{capacidad};

private:
    void ordenar();
    void reiniciarOrdenados(long filas);
    void mostrarOrdenados(bool visibles);
};

} // namespace caudalera
