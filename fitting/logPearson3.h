#pragma once

#include "fitting/gamma3.h"

namespace caudalera {

/// The log-Pearson type III distribution of a variable q: the natural logarithm of q has a gamma
/// distribution of three parameters, those held here, in units of the logarithm (Rao and Hamed
/// 2000, chapter 6).
struct LogPearson3 : Gamma3 {};

// Parameters from a series in ascending order, as those of Gamma3 from its logarithms; failure 5
// for a value of 0 or less, before anything is set.
void ajustarOrdinarios(LogPearson3& d, std::span<const Real> ordenada);
void ajustarLineales(LogPearson3& d, std::span<const Real> ordenada);

/// Reduced variate (Log(q) - posicion) / escala of a value; failure 5 for one of 0 or less, 11 for
/// the scale 0.
Real variableReducida(const LogPearson3& d, Real q);
/// Probability of non-exceedance of a reduced variate; failures as `gammaIncompleta`.
Real acumulada(const LogPearson3& d, Real y);
/// Value of a probability of non-exceedance, with the passes that its search makes; failures as
/// `gammaInversa`, and 6 past the double range.
Real inversa(const LogPearson3& d, Real p, Integer16& pasadas);

} // namespace caudalera
