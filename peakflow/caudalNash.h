#pragma once

#include "peakflow/caudalDeDiseno.h"
#include "shell/numbers/Real.h"

#include <span>
#include <vector>

namespace caudalera {

// Nash's method for the flow of a return period from annual peaks: a straight line Q = a + b X
// through the ranked peaks. Source: J. E. Nash and J. Amorocho, "The accuracy of the prediction of
// floods of high return period", Water Resources Research 2 (1966).

/// X of a return period T (years), log10(log10(T / (T - 1))); it falls as T rises. Failure 11 for a
/// T of 1, 5 for a smaller one, and for one so large that T / (T - 1) is 1.
Real variableNash(Real T);

/// A peak with the return period of its rank, in years, and its X.
struct PuntoNash {
    Real Q, T, X;
};

/// Of peaks in descending order: T = (N + 1) / m of the rank m, counted from 1.
std::vector<PuntoNash> puntosNash(std::span<const Real> descendente);

/// What the line and its variance are made of.
struct SumasNash {
    Real N;
    Real Q, X, QX, Q2, X2;
    /// Means of Q and X.
    Real Qm, Xm;
    /// N times the sums of squares and products about the means.
    Real Sxx, Sqq, Sxq;
};

/// Failure 11 without any point.
SumasNash sumasNash(std::span<const PuntoNash> puntos);

/// Q = a + b X.
struct RectaNash {
    Real a, b;
};

/// Least squares; failure 11 for a single point.
RectaNash rectaNash(const SumasNash& s);

/// Flow on the line at X, with twice its standard error as the margin: that of the mean flow and
/// that of the slope at the distance from the mean of X. Failure 11 for fewer than three points.
CaudalDeDiseno caudalNash(const SumasNash& s, const RectaNash& recta, Real X);

} // namespace caudalera
