#pragma once

#include "shell/numbers/RuntimeFailure.h"

#include <cstdint>
#include <limits>

namespace caudalera {

/// A signed 16-bit counter: a value past its range is failure 6.
class Integer16 {
public:
    static constexpr long max = std::numeric_limits<std::int16_t>::max();

    constexpr Integer16() = default;
    constexpr Integer16(long value) : value_(checked(value)) {}

    constexpr operator long() const { return value_; }
    Integer16& operator++() { return *this = Integer16(value_ + 1L); }
    Integer16& operator--() { return *this = Integer16(value_ - 1L); }

private:
    static constexpr std::int16_t checked(long value) {
        if (value < std::numeric_limits<std::int16_t>::min() || value > max)
            throw RuntimeFailure(Failure::overflow);
        return static_cast<std::int16_t>(value);
    }

    std::int16_t value_ = 0;
};

} // namespace caudalera
