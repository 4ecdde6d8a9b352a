#pragma once

#include "shell/numbers/Real.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

/// Fewer records than this are not fitted, which a window tells by the text.
inline constexpr long minimoTrios = 4;
inline constexpr const char* mensajeCuatroTrios =
    "Para el ajuste a la ecuación se requiere por lo menos cuatro tríos de datos";

/// One record of rainfall: the largest intensity (mm/hr) of a duration D (minutes) that comes back
/// once in T years.
struct TrioIntensidad {
    Real T;
    Real D;
    Real Imax;
};

/// The records of these columns, which are of one length.
std::vector<TrioIntensidad> enTrios(std::span<const Real> T, std::span<const Real> D,
                                    std::span<const Real> Imax);

/// Sums over the records of x1 = ln T, x2 = ln D and y = ln Imax, taken in the records' order.
struct SumasLogaritmicas {
    Real n;
    Real x1, x2, y;
    Real x1x1, x2x2, yy;
    Real x1x2, x1y, x2y;
};

/// Failure 5 for a value of 0 or less.
SumasLogaritmicas sumasLogaritmicas(std::span<const TrioIntensidad> trios);

/// The equation Imax = K * T^m * D^n that fits a set of records.
struct AjustePotencial {
    SumasLogaritmicas sumas;
    /// ln K, the constant of the equation between the logarithms.
    Real lnK;
    Real K, m, n;

    /// Intensity (mm/hr) for a return period T (years) and a duration D (minutes), as (K*T^m)*D^n.
    /// Failure 5 for 0 to a negative power and a fractional power of a negative, 6 past the range.
    Real intensidad(Real T, Real D) const;
};

/// Least squares of the logarithms: ln Imax = ln K + m ln T + n ln D, from its normal equations.
/// None if their system is singular. Failure 5 if a value is 0 or less, 6 for a K past the double
/// range. Source: Chow, Maidment and Mays, Applied Hydrology (1988), section 14.2, for the form of
/// the equation; Draper and Smith, Applied Regression Analysis, for the normal equations.
std::optional<AjustePotencial> ajustePotencial(std::span<const TrioIntensidad> trios);

/// How good a fit is, as R, R2 and Se of an equation are told.
struct CalidadPotencial {
    /// Share of the variance of ln Imax that the equation explains, and its positive root.
    Real r2;
    Real r;
    /// Standard error of estimate of Imax itself (mm/hr), not of its logarithm, with n - 3 degrees
    /// of freedom.
    Real Se;
};

/// Of the equation that was fitted to these records. Failure 11 if all Imax are equal and for three
/// records, 5 if rounding leaves R2 below 0 and for fewer than three, 6 past the double range.
/// Source: Draper and Smith, Applied Regression Analysis, chapter 2: R2 = (lnK sum(y) + m sum(x1 y)
/// + n sum(x2 y) - N mean(y)^2) / (sum(y^2) - N mean(y)^2) over N records, and
/// Se = sqrt(sum((Imax - estimate)^2) / (N - 3)).
CalidadPotencial calidadPotencial(const AjustePotencial& ajuste,
                                  std::span<const TrioIntensidad> trios);

/// What the coefficients of the equation are shown by, and the text of the equation from them.
inline constexpr std::string_view mascaraPotencial = "#####0.##00";
std::string textoPotencial(const std::string& K, const std::string& m, const std::string& n);

} // namespace caudalera
