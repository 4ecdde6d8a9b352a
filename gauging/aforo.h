#pragma once

#include "shell/numbers/Real.h"

#include <span>
#include <vector>

namespace caudalera {

/// Velocity of the water in m/s by the equation of a current meter, v = a (NR / t) + b, from NR
/// revolutions in t seconds. Failure 11 for a time of 0. Source: ISO 2537, the straight line of a
/// meter's rating.
Real velocidadMolinete(Real a, Real NR, Real t, Real b);

/// A river cross-section as a gauging with a current meter divides it: from the near margin on,
/// stretches with their length, and the depth and the mean velocity of the vertical at the far end
/// of each (m, m/s).
struct SeccionAforada {
    struct Vertical {
        Real h;
        Real v;
    };
    Vertical margen;
    /// As many of each as there are stretches.
    std::span<const Real> L;
    std::span<const Real> h;
    std::span<const Real> v;
};

/// What flows through a stretch (m2, m/s, m3/s), and through the section.
struct TramoAforado {
    Real area;
    Real velocidad;
    Real caudal;
};
struct Aforo {
    std::vector<TramoAforado> tramos;
    Real caudalTotal;
};

/// Discharge by the mean-section method: every stretch takes the mean of the depths and of the
/// velocities at its ends. Source: ISO 748, Measurement of liquid flow in open channels using
/// current-meters.
Aforo aforar(const SeccionAforada& seccion);

/// A point of the section: the distance from the near margin and the height over the water line,
/// which is 0 or less (m).
struct PuntoPerfil {
    Real x;
    Real y;
};

/// The profile of the section from the water line at the near margin, where the depth is
/// `profundidadMargen`, down to the bed and along it, and back to the water line at the far end. A
/// depth of 0 at either margin needs no point of its own.
std::vector<PuntoPerfil> perfilSeccion(Real profundidadMargen, const SeccionAforada& seccion);

} // namespace caudalera
