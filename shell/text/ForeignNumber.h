#pragma once

#include <string>
#include <string_view>

namespace caudalera {

/// The sign that parts the decimals; the other one of the two may then stand before groups of three
/// digits.
enum class DecimalSign { point, comma };

/// A number as other programs write it, with a decimal point and nothing that groups its digits;
/// empty if the whole text is no number by this sign. An exponent is one of those that the numeric
/// reading knows. Groups have three digits, the first one up to three and no zero in front.
std::string foreignNumber(std::string_view text, DecimalSign sign);

} // namespace caudalera
