#pragma once

#include "regression/RegressionWorksheet.h"
#include "shell/numbers/Serie.h"

#include <string>
#include <vector>

namespace caudalera {

/// The texts and sizes in which the windows of polynomial regression differ.
struct PolynomialRegressionTexts {
    int grado = 2;
    /// Pairs that the arrays hold.
    long capacidad = 0;
    /// Name of the equation in `grdecua`.
    std::string ecuacion;
    std::string pocosPares;
    /// Length of the rules around the equation in the report.
    long guionesEcuacion = 140;
};

/// The template of the windows that fit a polynomial to pairs (X, Y): Y for a given X, and a chart
/// of the pairs beside the fitted values.
class PolynomialRegressionWorksheet : public RegressionWorksheet {
public:
    PolynomialRegressionWorksheet(Program& program, std::string name, std::string caption,
                                  PolynomialRegressionTexts propios);

    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    TextBox txtvxx1{*this, "txtvxx1", "Valor de X:"};
    Button bCalY{*this, "bCalY", "Calcular valor de Y"};
    Graph Graph1{*this, "Graph1"};

protected:
    void calcular() override;
    void leerCuadricula() override;

private:
    std::string textoPolinomio() const;
    void calcularY();
    void graficar();

    PolynomialRegressionTexts propios_;
    /// X, X^2 and so on, as many as the degree.
    std::vector<Serie> potencias_;
    Serie Y_;
    /// Fitted Y.
    Serie Yc_;
    /// Pairs of the last reading of the grid, which is what the chart draws.
    long numPares_ = 0;
    std::vector<Real> coeficientes_;
};

} // namespace caudalera
