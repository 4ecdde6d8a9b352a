#pragma once

#include "shell/numbers/Real.h"

#include <optional>
#include <span>
#include <vector>

namespace caudalera {

/// A flow of a duration curve, in m3/s and as a multiple of the mean flow, and the percentage of
/// days on which it is equalled or exceeded.
struct PuntoDuracion {
    Real caudal;
    Real adimensional;
    Real probabilidad;
};

/// Sorts descending by selection.
void ordenarDescendente(std::span<Real> x);

/// The duration curve of flows in descending order and of their mean: flow i of n has the
/// probability 100 i / n, and equal flows are one point, at the last of their positions. Failure 11
/// for a mean of 0. Source: Searcy, Flow-duration curves, U.S. Geological Survey Water-Supply Paper
/// 1542-A (1959), the total-period method.
std::vector<PuntoDuracion> curvaDuracion(std::span<const Real> descendentes, Real caudalMedio);

/// The flow that is equalled or exceeded with the probability P, in %, by linear interpolation
/// between the points of a curve; P of 100 gives the last flow. Nothing on a curve without points,
/// failure 9 for P below its first probability or above its last.
std::optional<Real> caudalDeDuracion(std::span<const PuntoDuracion> curva, Real P);

} // namespace caudalera
