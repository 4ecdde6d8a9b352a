#pragma once

#include "regression/SimpleRegressionWorksheet.h"
#include "regression/ajusteLineal.h"

#include <array>
#include <string>

namespace caudalera {

/// Simple regression: the linear, exponential and potential equations that fit pairs (X, Y), and
/// Y by the equation that the user picks.
class frmEjRegSimple : public SimpleRegressionWorksheet {
public:
    explicit frmEjRegSimple(Program& program);

    Option optLineal{*this, "optLineal", "con ecuación Lineal", ecuacionElegida};
    Option optExponencial{*this, "optExponencial", "con ecuación Exponencial", ecuacionElegida};
    Option optPotencial{*this, "optPotencial", "con ecuación Potencial", ecuacionElegida};

protected:
    void calcular() override;

private:
    /// The equations in the order of the rows of `grdecua`.
    enum Ecuacion { lineal, exponencial, potencial, numEcuaciones };
    struct Coeficientes {
        Real a;
        Real b;
    };

    void ajustar();
    void escribirFila(Ecuacion ecuacion, const AjusteLineal& ajuste);
    std::string textoEcuacion(Ecuacion ecuacion) const;
    void evaluar(Ecuacion ecuacion);
    Real valorDeY(Ecuacion ecuacion, Real x) const;

    std::array<Coeficientes, numEcuaciones> coeficientes_;
};

} // namespace caudalera
