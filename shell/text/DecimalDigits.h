#pragma once

#include <array>

namespace caudalera {

/// The significant decimal digits of a number: the value is d1.d2d3... x 10^exponent, with the
/// digits as characters, no leading and no trailing zero. A zero has no digits.
class DecimalDigits {
public:
    /// The 15 significant digits of a double, its exact binary value rounded half to even; failure
    /// 6 for an infinite value, 5 for a not-a-number, since neither has digits.
    explicit DecimalDigits(double value);
    /// The 7 significant digits of a single.
    explicit DecimalDigits(float value);

    bool isZero() const { return count_ == 0; }
    /// Never true for a zero.
    bool isNegative() const { return negative_ && count_ > 0; }
    int count() const { return count_; }
    /// Power of ten of the first digit; 0 for a zero.
    int exponent() const { return exponent_; }
    /// Power of ten of the last digit that is not zero.
    int lowestPower() const { return exponent_ - count_ + 1; }

    /// The digit that stands at 10^power, '0' outside the digits held.
    char at(int power) const {
        const int index = exponent_ - power;
        return index >= 0 && index < count_ ? digits_[static_cast<unsigned>(index)] : '0';
    }

    /// Rounds half away from zero to `decimals` digits behind the point.
    void round(int decimals);

private:
    static constexpr int maxDigits = 15;

    void take(const char* first, const char* last);
    void dropTrailingZeros();

    std::array<char, maxDigits> digits_{};
    int count_ = 0;
    int exponent_ = 0;
    bool negative_ = false;
};

} // namespace caudalera
