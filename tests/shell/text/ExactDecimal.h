#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

/// Exact decimal arithmetic on digit strings: the second route for the number texts. A double is a
/// whole number times a power of two, so its decimal expansion ends and can be written out whole;
/// everything else is rounding of that string by hand.
namespace caudalera::testing {

struct ExactDecimal {
    bool negative = false;
    std::string integer;  ///< digits in front of the point, maybe none, maybe leading zeros
    std::string fraction; ///< digits behind the point

    bool isZero() const { return (integer + fraction).find_first_not_of('0') == std::string::npos; }
};

/// Whole number in base 10^9, lowest limb first.
inline void multiply(std::vector<std::uint32_t>& limbs, std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::uint32_t& limb : limbs) {
        carry += std::uint64_t{limb} * factor;
        limb = static_cast<std::uint32_t>(carry % 1'000'000'000U);
        carry /= 1'000'000'000U;
    }
    if (carry != 0)
        limbs.push_back(static_cast<std::uint32_t>(carry));
}

inline std::string digitsOf(const std::vector<std::uint32_t>& limbs) {
    std::string digits;
    for (auto limb = limbs.rbegin(); limb != limbs.rend(); ++limb) {
        const std::string part = std::to_string(*limb);
        digits += std::string(9 - part.size(), '0') + part;
    }
    return digits;
}

/// The exact decimal expansion of a finite double.
inline ExactDecimal expand(double value) {
    int power = 0;
    auto whole = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(value), &power), 53));
    power -= 53;
    std::vector<std::uint32_t> limbs;
    for (; whole != 0; whole /= 1'000'000'000U)
        limbs.push_back(static_cast<std::uint32_t>(whole % 1'000'000'000U));
    // whole x 2^-k is whole x 5^k with the point moved k places to the left.
    for (int k = std::abs(power); k > 0; --k)
        multiply(limbs, power > 0 ? 2 : 5);
    ExactDecimal result{std::signbit(value), digitsOf(limbs), ""};
    if (power < 0) {
        const auto places = static_cast<std::size_t>(-power);
        if (result.integer.size() < places)
            result.integer.insert(0, places - result.integer.size(), '0');
        result.fraction = result.integer.substr(result.integer.size() - places);
        result.integer.resize(result.integer.size() - places);
    }
    return result;
}

/// Keeps the first `kept` digits of the number, counted from the front of its integer digits, and
/// adds one at the last of them if `up`.
inline ExactDecimal cut(const ExactDecimal& number, std::size_t kept, bool up) {
    std::string digits = "0" + number.integer + number.fraction;
    const std::size_t end = kept + 1;
    for (std::size_t i = end; i < digits.size(); ++i)
        digits[i] = '0';
    if (up) {
        std::size_t i = end - 1;
        while (digits[i] == '9')
            digits[i--] = '0';
        ++digits[i];
    }
    return {number.negative, digits.substr(0, number.integer.size() + 1),
            digits.substr(number.integer.size() + 1)};
}

/// Rounds to `count` significant digits, halves to the even digit.
inline ExactDecimal roundSignificant(const ExactDecimal& number, std::size_t count) {
    const std::string digits = number.integer + number.fraction;
    const std::size_t first = digits.find_first_not_of('0');
    if (first == std::string::npos || first + count >= digits.size())
        return number;
    const std::size_t kept = first + count;
    const std::string rest = digits.substr(kept);
    const std::string half = "5" + std::string(rest.size() - 1, '0');
    const bool odd = (digits[kept - 1] - '0') % 2 == 1;
    return cut(number, kept, rest > half || (rest == half && odd));
}

/// Rounds to `places` digits behind the point, halves away from zero; exactly as many stand there.
inline ExactDecimal roundPlaces(ExactDecimal number, std::size_t places) {
    number.fraction += std::string(places + 1, '0');
    const bool up = number.fraction[places] >= '5';
    ExactDecimal result = cut(number, number.integer.size() + places, up);
    result.fraction.resize(places);
    return result;
}

} // namespace caudalera::testing
