#pragma once

#include "shell/numbers/Real.h"

#include <span>

namespace caudalera {

/// Sorts ascending by selection: a strict comparison, and an exchange on every outer pass, so that
/// equal values keep the places that the exchanges give them.
void ordenarAscendente(std::span<Real> x);

/// Mean, in the unit of the values; failure 11 without any.
Real media(std::span<const Real> x);

/// Sum of the powers (x - centro)^exponente.
Real sumaDesvios(std::span<const Real> x, Real centro, int exponente);

/// Standard deviation of a sample about its mean, with divisor n - 1; failure 11 for fewer than two
/// values.
Real desviacionMuestral(std::span<const Real> x, Real media);

/// Skew coefficient of a sample of n values, n^2 m3 / ((n - 1)(n - 2) S^3), from their third
/// central moment with divisor n and their standard deviation; failure 11 for n of 1 or 2 and for S
/// = 0. Source: Chow, Maidment and Mays, Applied Hydrology (1988), table 11.3.1.
Real sesgoMuestral(Real m3, Real n, Real S);

/// The first four linear moments, in the unit of the values.
struct MomentosLineales {
    Real l1;
    Real l2;
    Real l3;
    Real l4;
};

/// Sample linear moments (Hosking 1990) of values in ascending order, by the direct estimators of
/// Wang (1996): every value is weighted by the numbers of ways to draw values below and above it.
/// Failure 11 for fewer than four values.
MomentosLineales momentosLineales(std::span<const Real> ordenada);

} // namespace caudalera
