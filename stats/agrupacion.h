#pragma once

#include "shell/numbers/Real.h"

#include <span>
#include <vector>

namespace caudalera {

/// A class of a grouped series, open below and closed above. Limits and mark are in the unit of the
/// values.
struct Clase {
    Real limiteInferior;
    Real marca;
    Real limiteSuperior;
    /// Values that the class counts.
    long frecuencia = 0;
};

/// A series divided into classes of one width.
struct Agrupacion {
    /// Values of the series, those that no class counts included.
    long n = 0;
    /// Width of the classes; negative where they descend.
    Real amplitud;
    std::vector<Clase> clases;
};

/// Number of classes for n values: 1.33 ln n + 1, rounded to the nearest integer with halves
/// upward. The rule has the form of Sturges's (H. A. Sturges, "The choice of a class interval",
/// Journal of the American Statistical Association 21, 1926), whose factor is 1 / ln 2 = 1.44; with
/// the smaller one the classes are fewer. Failure 5 for n below 1.
long numeroClases(long n);

/// Groups a series in ascending order. The marks of the first and the last class are the smallest
/// and the largest value, so that the first class begins half a width below the smallest one and
/// the last ends half a width above the largest. A largest value that is not negative and smaller
/// than half a width, which only series with negative values have, moves all classes below the
/// smallest value, where they count nothing. Failure 5 without values, 11 for a single one, 6 past
/// the double range.
Agrupacion agrupar(std::span<const Real> ordenada);

} // namespace caudalera
