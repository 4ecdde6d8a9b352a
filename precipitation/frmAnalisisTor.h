#pragma once

#include "precipitation/tormenta.h"
#include "shell/numbers/Serie.h"
#include "shell/window/Graph.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

namespace caudalera {

/// Analysis of a storm: accumulated time and rainfall, intensities and the largest of them, with
/// the hyetograph and the mass curve.
class frmAnalisisTor : public Worksheet {
public:
    explicit frmAnalisisTor(Program& program);

    DataEntry ingreso{*this, "Ingreso de los pares de datos tiempo y lluvia parcial:"};
    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    MSFlexGrid grdecua{*this, "grdecua"};
    Frame fraIntensidad{*this, "fraIntensidad", "Intensidad máxima:"};
    TextBox txtvI{*this, "txtvI", "I máxima:", "mm/hr"};
    TextBox txtvD{*this, "txtvD", "Duración:", "min"};
    Frame fraTipoGra{*this, "fraTipoGra", "Tipo de gráfico:"};
    OptionGroup tipoDeGrafico;
    Option optHistograma{*this, "optHistograma", "Histograma", tipoDeGrafico};
    Option optCurvamasa{*this, "optCurvamasa", "Curva masa", tipoDeGrafico};
    Graph Graph1{*this, "Graph1"};
    Label lblIntensidad{*this, "lblIntensidad", "Intensidad (mm/hr)"};
    Label lblPrecipitacion{*this, "lblPrecipitacion", "Precipitación (mm)"};
    Label lblTiempo{*this, "lblTiempo", "Tiempo acumulado (min)"};

    /// Whether a calculation was made, or refused for too few pairs, since the start or the last
    /// reset.
    bool calculado() const { return calculado_; }

protected:
    void reiniciarResultados() override;
    void borrarResultados() override;
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;

private:
    /// Derives the storm from the pairs in the grid.
    void derivar();
    void graficar();
    /// The same for a drawing; false, behind its message, if there are fewer than two pairs.
    bool derivarPuntos();
    void graficarHistograma();
    void graficarCurvaMasa();
    /// Names the vertical axis by one of its captions.
    void rotularEje(const Label& cual);

    static constexpr long capacidad = 550;
    static constexpr long capacidadDerivada = 500;
    Serie Tparcial_{capacidad};
    Serie Pparcial_{capacidad};
    Tormenta tormenta_{capacidadDerivada};
    bool calculado_ = false;
};

} // namespace caudalera
