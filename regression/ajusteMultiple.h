#pragma once

#include "shell/numbers/Real.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace caudalera {

/// The independent variables x1 to xk of a regression (its regressors), each with its values in all
/// observations.
using Regresores = std::vector<std::span<const Real>>;

/// Sums over a set of observations of x1 to xk and y, each taken in the observations' order. A
/// variable x0, which is 1 everywhere, stands in front of the others, so that xx[0][0] is their
/// number.
struct SumasMultiples {
    /// Sums of xi * xj.
    std::vector<std::vector<Real>> xx;
    /// Sums of xi * y.
    std::vector<Real> xy;
    Real yy;

    Real n() const { return xx[0][0]; }
};

/// Failure 6 past the double range.
SumasMultiples sumasMultiples(const Regresores& x, std::span<const Real> y);

/// The equation y = a0 + a1*x1 + ... + ak*xk that fits a set of observations.
struct AjusteMultiple {
    SumasMultiples sumas;
    /// a0 to ak.
    std::vector<Real> coeficientes;
    /// Share of the variance of y that the equation explains, and its positive root.
    Real r2;
    Real r;
};

/// Least squares by the normal equations; none if their system is singular, as it is without
/// observations. y has as many values as each of the variables. Failure 11 if all y are equal, 5 if
/// rounding leaves R2 below 0, 6 past the double range.
/// Source: Draper and Smith, Applied Regression Analysis, chapter 2, with the sums about the mean
/// taken from the raw sums: R2 = (a0*sum(y) + a1*sum(x1*y) + ... - n*mean(y)^2) / (sum(y^2) -
/// n*mean(y)^2).
std::optional<AjusteMultiple> ajusteMultiple(const Regresores& x, std::span<const Real> y);

/// a0 + a1*x1 + ... + ak*xk, in the unit of y.
Real valorLineal(std::span<const Real> a, std::span<const Real> x);

/// a * x1^b1 * ... * xk^bk from its coefficients a, b1 to bk, in the unit of y. Failure 5 for 0 to
/// a negative power and a fractional power of a negative, 6 past the double range.
Real valorPotencial(std::span<const Real> coeficientes, std::span<const Real> x);

/// Values of the variables in observation i, which counts from 0.
std::vector<Real> observacion(const Regresores& x, std::size_t i);

/// Standard error of estimate of an equation with so many coefficients, from the residuals:
/// Se = sqrt(sum((y - estimado)^2) / (n - numCoeficientes)). Failure 11 for as many observations as
/// coefficients, 5 for fewer.
Real errorEstandar(std::span<const Real> y, std::span<const Real> estimado,
                   std::size_t numCoeficientes);

/// The same of a fit without its residuals: Se = sqrt((sum(y^2) - a0*sum(y) - a1*sum(x1*y) - ...) /
/// (n - k - 1)). Loses its digits where the residuals are small beside y; failure 5 where rounding
/// leaves the difference below 0.
Real errorEstandar(const AjusteMultiple& ajuste);

} // namespace caudalera
