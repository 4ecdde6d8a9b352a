#pragma once

#include "regression/RegressionWorksheet.h"
#include "regression/ajusteMultiple.h"
#include "shell/numbers/Serie.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace caudalera {

/// The texts in which the windows of multiple regression differ.
struct MultipleRegressionTexts {
    /// Header of the column of row labels.
    std::string encabezadoFilas;
    std::string opcionLineal;
    std::string opcionPotencial;
    std::string pocasFilas;
    std::string sinPotencial;
    std::string faltanValores;
};

/// The template of the windows that fit a linear and a potential equation of several variables to
/// rows X1 to Xk and Y.
class MultipleRegressionWorksheet : public RegressionWorksheet {
public:
    /// The layout's fields but the last one are the variables.
    MultipleRegressionWorksheet(Program& program, std::string name, std::string caption,
                                SeriesLayout seriesLayout, RegressionTexts textos,
                                MultipleRegressionTexts propios);

private:
    // Before the controls, which are built from them.
    MultipleRegressionTexts propios_;

public:
    TextBox txtvxx1{*this, "txtvxx1", "Valor de X1:"};
    TextBox txtvxx2{*this, "txtvxx2", "Valor de X2:"};
    Option optLineal{*this, "optLineal", propios_.opcionLineal, ecuacionElegida};
    Option optPotencial{*this, "optPotencial", propios_.opcionPotencial, ecuacionElegida};
    Button bLimpiarDatos{*this, "bLimpiarDatos", "Limpiar datos"};

protected:
    /// Sets the layout and the way of ENTER through the fields of the variables.
    void disponerVariables(const std::vector<TextBox*>& valores);

    /// Texts of the equations with the coefficients a0 to ak, and a, b1 to bk.
    virtual std::string textoLineal(std::span<const Real> a) const = 0;
    virtual std::string textoPotencial(std::span<const Real> b) const = 0;

    void calcular() override;
    void limpiar() override;

private:
    /// The equations in the order of the rows of `grdecua`.
    enum Ecuacion { lineal, potencial, numEcuaciones };

    void ajustar();
    void escribirFila(Ecuacion ecuacion, const AjusteMultiple& ajuste, Real Se);
    /// Y by an equation with these coefficients.
    static Real valorDeY(Ecuacion ecuacion, std::span<const Real> coeficientes,
                         std::span<const Real> x);
    /// Standard error of an equation on the scale of Y.
    static Real errorDe(Ecuacion ecuacion, std::span<const Real> coeficientes, const Regresores& x,
                        std::span<const Real> y);
    void evaluar(Ecuacion ecuacion);

    static constexpr long capacidad = 500;
    std::vector<Serie> X_;
    Serie Y_{capacidad};
    std::array<std::vector<Real>, numEcuaciones> coeficientes_;
};

/// The texts that these windows have in common, with those of their data and of the evaluation left
/// open.
RegressionTexts textosDeRegresionMultiple();

} // namespace caudalera
