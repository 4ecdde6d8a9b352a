#pragma once

#include "shell/numbers/Real.h"

namespace caudalera {

/// The provinces that have an equation of their own.
enum class Provincia { alajuela, cartago, liberia, limon, puntarenas, sanJose };

/// Constants of a province's equation of the largest intensity.
struct ConstantesProvincia {
    double a, b, c, d;
};

ConstantesProvincia constantesProvincia(Provincia provincia);

/// Largest rainfall intensity (mm/hr) of a province for a duration D (minutes) and a return period
/// T (years): (a - b ln D) ln T + (c - d ln D). In Alajuela b multiplies ln(ln D), so that a
/// duration of 1 minute or less has no value there. Failure 5 for a D or a T of 0 or less.
/// Source: regional intensity-duration-frequency equations, one fit a province.
Real intensidadProvincial(Provincia provincia, Real D, Real T);

} // namespace caudalera
