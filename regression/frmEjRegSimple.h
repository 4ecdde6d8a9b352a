#pragma once

#include "regression/ajusteLineal.h"
#include "shell/numbers/Serie.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <array>
#include <string>
#include <vector>

namespace caudalera {

/// Simple regression: the linear, exponential and potential equations that fit pairs (X, Y), and
/// Y by the equation that the user picks.
class frmEjRegSimple : public Worksheet {
public:
    explicit frmEjRegSimple(Program& program);

    DataEntry ingreso{*this, "Ingreso de los pares de datos:"};
    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    MSFlexGrid grdecua{*this, "grdecua"};
    Frame fraAplicar{*this, "fraAplicar", "Aplicar ecuación:"};
    TextBox txtvxx{*this, "txtvxx", "Valor de X:"};
    Label lblCalculoY{*this, "lblCalculoY", "Ecuación:"};
    OptionGroup ecuacionElegida;
    Option optLineal{*this, "optLineal", "con ecuación Lineal", ecuacionElegida};
    Option optExponencial{*this, "optExponencial", "con ecuación Exponencial", ecuacionElegida};
    Option optPotencial{*this, "optPotencial", "con ecuación Potencial", ecuacionElegida};
    TextBox txtvyy{*this, "txtvyy", "Valor de Y:"};
    Button bLimpiarDatos{*this, "bLimpiarDatos", "Limpiar datos"};
    Graph Graph1{*this, "Graph1"};

protected:
    void calcular() override;
    void escribirReporte(ReportWriter& reporte) override;
    void reiniciarResultados() override;
    void borrarResultados() override;
    // Here the results go once the file is loaded, so that a load that fails leaves them.
    void antesDeAccesar() override {}
    void trasAccesar() override;

private:
    /// The equations in the order of the rows of `grdecua`.
    enum Ecuacion { lineal, exponencial, potencial, numEcuaciones };
    struct Coeficientes {
        Real a;
        Real b;
    };

    void disponer();
    void ajustar();
    void escribirFila(Ecuacion ecuacion, const AjusteLineal& ajuste);
    std::string textoEcuacion(Ecuacion ecuacion) const;
    void evaluar(Ecuacion ecuacion);
    Real valorDeY(Ecuacion ecuacion, Real x) const;
    void graficar();
    void limpiarDatos();

    static constexpr long capacidad = 250;
    Serie X_{capacidad};
    Serie Y_{capacidad};
    std::array<Coeficientes, numEcuaciones> coeficientes_;
    bool calculado_ = false;
};

} // namespace caudalera
