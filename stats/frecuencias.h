#pragma once

#include "shell/numbers/Real.h"
#include "stats/agrupacion.h"

#include <vector>

namespace caudalera {

/// Frequency of a class in relation to all the values.
struct Frecuencia {
    /// Share of the values, in %.
    Real relativa;
    /// That share by unit of the values: the ordinate of the histogram whose area is 100 %.
    Real densidad;
    /// Share of the values in this class and those before it, in %.
    Real acumulada;
};

/// Frequencies of the classes, in their order. Failure 11 for classes without width.
std::vector<Frecuencia> frecuencias(const Agrupacion& agrupacion);

} // namespace caudalera
