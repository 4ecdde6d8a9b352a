// Numeric reading of a text.

#include "shell/numbers/RuntimeFailure.h"
#include "shell/text/Text.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace caudalera {

namespace {

constexpr char endOfText = '\0';

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The characters of a text without the blanks, tabs and line ends.
class SolidCharacters {
public:
    explicit SolidCharacters(std::string_view text) : text_(text) { skipBlanks(); }

    char current() const { return position_ < text_.size() ? text_[position_] : endOfText; }
    void advance() {
        ++position_;
        skipBlanks();
    }
    /// Steps over a sign; true for a minus.
    bool takeSign() {
        const bool negative = current() == '-';
        if (negative || current() == '+')
            advance();
        return negative;
    }

private:
    void skipBlanks() {
        while (position_ < text_.size() &&
               std::string_view(" \t\r\n").find(text_[position_]) != std::string_view::npos)
            ++position_;
    }

    std::string_view text_;
    std::size_t position_ = 0;
};

/// A number read as 0.d1d2d3... x 10^point, d1 not zero.
struct Mantissa {
    std::string digits;
    long long point = 0;
};

Mantissa readMantissa(SolidCharacters& characters) {
    Mantissa mantissa;
    bool behindPoint = false;
    for (;; characters.advance()) {
        const char c = characters.current();
        if (c == '.' && !behindPoint) {
            behindPoint = true;
            continue;
        }
        if (!isDigit(c))
            return mantissa;
        if (c == '0' && mantissa.digits.empty()) {
            if (behindPoint)
                --mantissa.point;
            continue;
        }
        mantissa.digits += c;
        if (!behindPoint)
            ++mantissa.point;
    }
}

/// Exponent that follows a mantissa; 0 where no digit stands behind the letter. It is held far
/// past the double range, but inside the integer's, however many digits it has.
long long readExponent(SolidCharacters& characters) {
    constexpr long long enough = 1'000'000'000'000;
    if (std::string_view("EeDd").find(characters.current()) == std::string_view::npos)
        return 0;
    characters.advance();
    const bool negative = characters.takeSign();
    long long exponent = 0;
    for (; isDigit(characters.current()); characters.advance())
        exponent = std::min(exponent * 10 + (characters.current() - '0'), enough);
    return negative ? -exponent : exponent;
}

/// The double nearest to the number; failure 6 past the double range, 0 below it.
double nearest(const Mantissa& mantissa, long long exponent) {
    // The range of doubles, subnormals included, is 4.9E-324 to 1.8E+308.
    constexpr long long largestPoint = 309;
    constexpr long long smallestPoint = -323;
    const long long point = mantissa.point + exponent;
    if (point > largestPoint)
        throw RuntimeFailure(Failure::overflow);
    if (point < smallestPoint)
        return 0;
    const std::string text = "." + mantissa.digits + "e" + std::to_string(point);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec != std::errc::result_out_of_range)
        return value;
    if (point > 0)
        throw RuntimeFailure(Failure::overflow);
    return 0;
}

} // namespace

double Val(std::string_view text) {
    SolidCharacters characters(text);
    const bool negative = characters.takeSign();
    const Mantissa mantissa = readMantissa(characters);
    if (mantissa.digits.empty())
        return 0;
    const double value = nearest(mantissa, readExponent(characters));
    // Adding a zero keeps a negative one from coming out of a number below the double range.
    return (negative ? -value : value) + 0.0;
}

} // namespace caudalera
