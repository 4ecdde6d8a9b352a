#pragma once

#include "shell/numbers/Real.h"
#include "shell/text/MonthData.h"

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace caudalera {

/// The values of each calendar month, January first, one a year in the order of the years.
using ValoresPorMes = std::array<std::vector<Real>, mesesCortos.size()>;

/// Sorts a monthly series that begins in January by calendar month; nothing if it is empty or its
/// last year is not whole.
std::optional<ValoresPorMes> separarMeses(std::span<const Real> serie);

/// Whether every value has a logarithm.
bool admitenLogaritmo(const ValoresPorMes& meses);

/// The log-normal law of a month: mean and standard deviation of the logarithms of its values.
struct LeyMensual {
    Real mediaLog;
    Real desvLog;
};

/// The law that fits the values of a month over the years, the deviation with divisor Y - 1.
/// Failure 5 for a value that is not greater than 0, 11 for fewer than two. Source: Chow, Maidment
/// and Mays, Applied Hydrology (1988), table 11.5.1.
LeyMensual leyMensual(std::vector<Real> valores);

/// The value that is equalled or exceeded with the probability P between 0 and 1, in the unit of
/// the month's values: e to the power mean + z s, where z is the normal variate that P exceeds.
Real valorDeExcedencia(const LeyMensual& ley, Real P);

} // namespace caudalera
