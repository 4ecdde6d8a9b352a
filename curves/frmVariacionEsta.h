#pragma once

#include "curves/variacionEstacional.h"
#include "shell/numbers/Serie.h"
#include "shell/window/Graph.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <array>
#include <string>

namespace caudalera {

/// Seasonal variation curve: what each calendar month brings with probabilities from 70 % to 95 %,
/// from a monthly series of whole years.
class frmVariacionEsta : public Worksheet {
public:
    explicit frmVariacionEsta(Program& program);

    DataEntry ingreso{*this, "Ingreso de datos:"};
    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    TextBox txtnanos{*this, "txtnanos", "Número de años:"};
    Label lblProbabilidad{*this, "lblProbabilidad",
                          "Probabilidad de ocurrencia de eventos mensuales"};
    MSFlexGrid grddis{*this, "grddis"};
    Label lblEjeMeses{*this, "lblEjeMeses", rotuloEjeMeses};
    Graph Graph1{*this, "Graph1"};

protected:
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;
    void reiniciarResultados() override;
    void borrarResultados() override;
    std::string etiquetaFila(long fila) const override;

private:
    /// 70, 75, 80, 85, 90 and 95 %.
    static constexpr std::size_t numCurvas = 6;
    /// A value for each month.
    using Curva = std::array<Real, mesesCortos.size()>;

    void disponer();
    /// Reads the grid and sorts it by month; false, behind its message, if the years are not whole.
    bool leerMeses();
    void calcularCurvas();
    void escribirCurvas();
    void graficar();
    void reporteDeLaSerie(ReportWriter& reporte) const;
    void reporteDeCurvas(ReportWriter& reporte) const;

    static constexpr long capacidad = 500;
    Serie serieMensual{capacidad};
    ValoresPorMes valoresMes;
    Integer16 numAnos;
    std::array<Curva, numCurvas> curvas;
    bool calculado = false;
};

} // namespace caudalera
