#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// The log-normal distribution of a variable q with a lower bound: the natural logarithm of its
/// excess over the bound is normal, F(q) = P(Z <= (Log(q - posicion) - escala) / forma), Z
/// standard. The cumulative function and its inverse are approximations; see aproximacionNormal.h.
struct LogNormal3 {
    /// The bound xo, in the unit of the series.
    Real posicion;
    /// Mean and standard deviation of the logarithms of q - xo; Exp(escala) is the median of q -
    /// xo.
    Real escala;
    Real forma;
};

/// Parameters from a series in ascending order, set one after another, so that a failure leaves
/// those before it. The bound is the one that puts the median at the geometric mean of the extremes
/// (Stedinger 1980, Water Resources Research 16(3), 481-490); then come mean and standard deviation
/// of the logarithms, here with divisor n. Where twice the median is not below the sum of the
/// extremes, the bound is an upper one and the logarithms are those of xo - x, although everything
/// below takes q - xo.
/// Failure 9 for no value, 11 where twice the median is the sum of the extremes (so for one and two
/// values), 5 where the median is the nearer extreme.
void ajustarOrdinarios(LogNormal3& d, std::span<const Real> ordenada);

/// Reduced variate Z of a value; failure 5 for a value not above the bound, 11 for the shape 0.
Real variableReducida(const LogNormal3& d, Real q);
/// Probability of non-exceedance of a reduced variate.
Real acumulada(const LogNormal3& d, Real Z);
/// Value of a probability of non-exceedance; failures as `normalInversa`, and 6 for a value past
/// the double range.
Real inversa(const LogNormal3& d, Real p);

} // namespace caudalera
