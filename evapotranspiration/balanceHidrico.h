#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace caudalera {

/// Number, 1 to 12, of the first month whose precipitation is above its evapotranspiration, by the
/// differences of the months from January on; none if there is no such month.
std::optional<long> primerMesConExceso(std::span<const float> diferencias);

/// Name of a month as the balance shows it; December for any number that is no month's.
std::string_view nombreDelMes(long mes);

} // namespace caudalera
