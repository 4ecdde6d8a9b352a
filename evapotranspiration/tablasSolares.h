#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace caudalera {

/// Month names as the lists of the single-month windows offer them, January first.
inline constexpr std::array<std::string_view, 12> nombresMeses = {
    "Enero", "Febrero", "Marzo",     "Abril",   "Mayo",      "Junio",
    "Julio", "Agosto",  "Setiembre", "Octubre", "Noviembre", "Diciembre"};

/// Number of a month, 1 to 12, by its exact name; none for any other text.
std::optional<long> numeroDeMes(std::string_view nombre);

// One value a month, in single precision; failure 9 for a month that is not 1 to 12. The values
// are the method's, not an ephemeris's: the declination of March is positive, although the sun
// stands south of the equator until the 20th, and the distance factor divides the radiation.

/// Solar declination in radians.
float declinacionSolar(long mes);
/// Inverse of the factor of the relative distance between earth and sun: radiation is divided by
/// it.
float factorDistancia(long mes);

} // namespace caudalera
