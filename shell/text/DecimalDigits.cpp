#include "shell/text/DecimalDigits.h"

#include "shell/numbers/Real.h"

#include <charconv>

namespace caudalera {

namespace {

// "-d.dddddddddddddde-308" has 22 characters.
constexpr std::size_t scientificLength = 32;

} // namespace

DecimalDigits::DecimalDigits(double value) {
    std::array<char, scientificLength> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(),
                                   Real::checked(value).value(), std::chars_format::scientific, 14);
    take(text.data(), end.ptr);
}

DecimalDigits::DecimalDigits(float value) {
    (void)Real::checked(value);
    std::array<char, scientificLength> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::scientific, 6);
    take(text.data(), end.ptr);
}

void DecimalDigits::take(const char* first, const char* last) {
    if (*first == '-') {
        negative_ = true;
        ++first;
    }
    for (; *first != 'e'; ++first) {
        if (*first != '.')
            digits_[static_cast<unsigned>(count_++)] = *first;
    }
    ++first;
    // The reader of integers takes a minus but no plus.
    if (*first == '+')
        ++first;
    std::from_chars(first, last, exponent_);
    dropTrailingZeros();
}

void DecimalDigits::dropTrailingZeros() {
    while (count_ > 0 && digits_[static_cast<unsigned>(count_ - 1)] == '0')
        --count_;
    if (count_ == 0)
        exponent_ = 0;
}

void DecimalDigits::round(int decimals) {
    const int kept = exponent_ + 1 + decimals;
    if (kept >= count_)
        return;
    const bool up = kept >= 0 && digits_[static_cast<unsigned>(kept)] >= '5';
    count_ = kept > 0 ? kept : 0;
    if (!up) {
        dropTrailingZeros();
        return;
    }
    while (count_ > 0 && digits_[static_cast<unsigned>(count_ - 1)] == '9')
        --count_;
    if (count_ > 0) {
        ++digits_[static_cast<unsigned>(count_ - 1)];
        return;
    }
    // The carry ran through all the digits kept: a single 1, one place to the left.
    digits_[0] = '1';
    count_ = 1;
    ++exponent_;
}

} // namespace caudalera
