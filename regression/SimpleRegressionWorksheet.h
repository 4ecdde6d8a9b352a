#pragma once

#include "regression/RegressionWorksheet.h"
#include "shell/numbers/Serie.h"

#include <string>
#include <vector>

namespace caudalera {

/// The texts that the windows of pairs have in common.
RegressionTexts textosDePares();

/// The template of the windows that fit equations of two coefficients to pairs (X, Y), with a chart
/// of the pairs.
class SimpleRegressionWorksheet : public RegressionWorksheet {
public:
    /// `capacidad`: pairs that the arrays hold.
    SimpleRegressionWorksheet(Program& program, std::string name, std::string caption,
                              RegressionTexts textos, long capacidad);

    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    TextBox txtvxx{*this, "txtvxx", "Valor de X:"};
    Button bLimpiarDatos{*this, "bLimpiarDatos", "Limpiar datos"};
    Graph Graph1{*this, "Graph1"};

protected:
    /// Sets the layout and the commands, with what evaluates the equations.
    void disponerPares(Layout evaluaciones);
    /// Reads the grid; false, behind its message, if there are fewer than two pairs.
    bool leerPares();

    Serie X;
    Serie Y;

private:
    void graficar();
};

} // namespace caudalera
