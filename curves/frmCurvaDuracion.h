#pragma once

#include "curves/curvaDuracion.h"
#include "shell/numbers/Serie.h"
#include "shell/window/Graph.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <vector>

namespace caudalera {

/// Flow duration curve of a series of daily flows, and the design flow of a probability.
class frmCurvaDuracion : public Worksheet {
public:
    explicit frmCurvaDuracion(Program& program);

    DataEntry ingreso{*this, "Ingreso de caudales:"};
    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    MSFlexGrid grddis{*this, "grddis"};
    Frame fraCaudal{*this, "fraCaudal", "Caudal de diseño:"};
    TextBox txtxp{*this, "txtxp", "Probabilidad de ser excedido o igualado (P):", "%"};
    TextBox txtxq{*this, "txtxq", "Caudal (Q):", "m3/s"};
    Button bQ{*this, "bQ", "Q=f(P)", "Caudal de diseño"};
    Frame fraGrafico{*this, "fraGrafico", "Gráfico curva duración:"};
    OptionGroup tipoDeCurva;
    Option OptNormal{*this, "OptNormal", "Curva duración normal", tipoDeCurva};
    Option OptAdimensional{*this, "OptAdimensional", "Curva duración adimensional", tipoDeCurva};
    Graph Graph1{*this, "Graph1"};

protected:
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;
    void reiniciarResultados() override;
    void borrarResultados() override;

private:
    enum Columna { numero, ordenado, considerado, adimensional, probabilidad, numColumnas };

    void disponer();
    void escribirOrdenados();
    void escribirCurva();
    void evaluarQ();
    void graficar();
    long numConsiderados() const { return static_cast<long>(curva.size()); }
    void reporteDeOrdenados(ReportWriter& reporte) const;
    void reporteDeCurva(ReportWriter& reporte) const;

    static constexpr long capacidad = 700;
    Serie caudales{capacidad};
    Serie caudalesOrdenados{capacidad};
    /// The merged curve of the last calculation, which answers until the next one.
    std::vector<PuntoDuracion> curva;
    bool calculado = false;
};

} // namespace caudalera
