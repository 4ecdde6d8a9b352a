#pragma once

#include "shell/numbers/Real.h"

#include <string_view>

namespace caudalera {

/// What the sun gives a place above the atmosphere on a day.
struct RadiacionSolar {
    /// Maximum possible sunshine, hours a day.
    Real N;
    /// Extraterrestrial radiation, mm of evaporated water a day.
    Real Ra;
};

/// Latitude in radians from degrees; negative for the hemisphere "S".
Real latitudEnRadianes(Real grados, std::string_view hemisferio);

/// N and Ra for a latitude and a solar declination (radians) and the inverse of the distance
/// factor, which divides. At the sunset hour angle's limits (polar day and night) the calculation
/// fails: 5 past them, 11 where |tan(latitud) * tan(declinacion)| is exactly 1.
/// Source: Duffie and Beckman, Solar Engineering of Thermal Processes, section 1.10 (sunset hour
/// angle and daily extraterrestrial radiation). 916.732 is the solar constant of 2 cal/cm2/min
/// times 1440 min / pi; 58.98757 cal/cm2 evaporate 1 mm of water.
RadiacionSolar radiacionSolar(Real latitud, Real declinacion, Real dr);

} // namespace caudalera
