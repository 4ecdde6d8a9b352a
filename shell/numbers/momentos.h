#pragma once

#include "shell/numbers/BoundedArray.h"
#include "shell/numbers/Real.h"

namespace caudalera {

/// A series of values as most windows hold it: index 1 to 500, of which the first n are in use.
using Serie = BoundedArray<Real, 1, 500>;
/// The same with an element 0 in front, where a chart has its origin.
using SerieConOrigen = BoundedArray<Real, 0, 500>;

/// Sorts the first n values ascending by selection: a strict comparison, and an exchange on every
/// outer pass.
void ordenarAscendente(Serie& x, long n);

/// Mean of the first n values, in their unit; failure 11 without any.
Real media(const Serie& x, long n);

/// Sum of the powers (x - centro)^exponente of the first n values.
Real sumaDesvios(const Serie& x, long n, Real centro, int exponente);

/// The first four linear moments, in the unit of the values.
struct MomentosLineales {
    Real l1;
    Real l2;
    Real l3;
    Real l4;
};

/// Sample linear moments (Hosking 1990) of n values in ascending order, by the direct estimators of
/// Wang (1996): every value is weighted by the numbers of ways to draw values below and above it.
/// Failure 11 for n below 4.
MomentosLineales momentosLineales(const Serie& ordenada, long n);

} // namespace caudalera
