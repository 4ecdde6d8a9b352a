#pragma once

#include "shell/window/Graph.h"
#include "stats/GroupedWorksheet.h"
#include "stats/frecuencias.h"

#include <string>
#include <vector>

namespace caudalera {

/// Frequency distribution of a sample: a table of its classes, with a chart of density or of
/// cumulative frequency over the class marks.
class frmDistriFre : public GroupedWorksheet {
public:
    explicit frmDistriFre(Program& program);

    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Frame fraTipoGrafico{*this, "fraTipoGrafico", "Tipo de gráfico:"};
    OptionGroup tipoGrafico;
    Option optDensidad{*this, "optDensidad", "F. Densidad", tipoGrafico};
    Option optAcumulada{*this, "optAcumulada", "F. Acumulada", tipoGrafico};
    Graph Graph1{*this, "Graph1"};
    Label lblMarcaClase{*this, "lblMarcaClase", "Marca de clase"};
    Label lblPorcentaje{*this, "lblPorcentaje", "(%)"};
    Label lblFuncion{*this, "lblFuncion", "fx"};

protected:
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;
    void borrarResultados() override;

    // As the last calculation left them.
    Agrupacion agrupacion;
    std::vector<Frecuencia> frecuenciasDeClase;
    bool calculado = false;

private:
    long numClases() const { return static_cast<long>(agrupacion.clases.size()); }
    void escribirFrecuencias();
    void mostrarGrafico(bool visibles);
    void graficar();
    void dibujarFuncion(std::string rotulo, Real Frecuencia::*funcion);
};

} // namespace caudalera
