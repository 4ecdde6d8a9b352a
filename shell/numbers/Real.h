#pragma once

#include "shell/numbers/RuntimeFailure.h"

#include <cmath>
#include <compare>

namespace caudalera {

/// A double whose arithmetic fails instead of giving infinity or not-a-number: failure 11 for a
/// division by zero, 6 for a result past the double range. Formulas written with it read like the
/// formulas, and no failure can slip through.
class Real {
public:
    constexpr Real() = default;
    constexpr Real(double value) : value_(value) {}

    constexpr double value() const { return value_; }

    friend Real operator+(Real a, Real b) { return checked(a.value_ + b.value_); }
    friend Real operator-(Real a, Real b) { return checked(a.value_ - b.value_); }
    friend Real operator*(Real a, Real b) { return checked(a.value_ * b.value_); }
    friend Real operator/(Real a, Real b) {
        if (b.value_ == 0)
            throw RuntimeFailure(Failure::divisionByZero);
        return checked(a.value_ / b.value_);
    }
    Real operator-() const { return Real(-value_); }
    Real& operator+=(Real other) { return *this = *this + other; }
    Real& operator-=(Real other) { return *this = *this - other; }
    Real& operator*=(Real other) { return *this = *this * other; }
    Real& operator/=(Real other) { return *this = *this / other; }

    friend constexpr bool operator==(Real a, Real b) { return a.value_ == b.value_; }
    friend constexpr auto operator<=>(Real a, Real b) { return a.value_ <=> b.value_; }

    /// Passes a finite value on; failure 6 for an infinite one, failure 5 for a not-a-number.
    static Real checked(double value) {
        if (std::isfinite(value))
            return Real(value);
        throw RuntimeFailure(std::isnan(value) ? Failure::invalidArgument : Failure::overflow);
    }

private:
    double value_ = 0;
};

/// Square root; failure 5 for a negative argument.
inline Real Sqr(Real x) {
    if (x < 0)
        throw RuntimeFailure(Failure::invalidArgument);
    return std::sqrt(x.value());
}

/// Natural logarithm; failure 5 for an argument of 0 or less.
inline Real Log(Real x) {
    if (x <= 0)
        throw RuntimeFailure(Failure::invalidArgument);
    return std::log(x.value());
}

/// e to the power x; failure 6 past the double range, 0 below it.
inline Real Exp(Real x) {
    return Real::checked(std::exp(x.value()));
}

/// Arc tangent in radians.
inline Real Atn(Real x) {
    return std::atan(x.value());
}

inline Real Sin(Real x) {
    return std::sin(x.value());
}
inline Real Cos(Real x) {
    return std::cos(x.value());
}
inline Real Tan(Real x) {
    return std::tan(x.value());
}
inline Real Abs(Real x) {
    return std::fabs(x.value());
}

/// Largest integer not above x.
inline Real Int(Real x) {
    return std::floor(x.value());
}

/// a to the power b. Anything to the power 0 is 1 and 0 to a positive power is 0; failure 5 for 0
/// to a negative power and for a fractional power of a negative, 6 past the double range.
inline Real Pow(Real a, Real b) {
    if (b == 0)
        return 1;
    if (a == 0) {
        if (b < 0)
            throw RuntimeFailure(Failure::invalidArgument);
        return 0;
    }
    if (a < 0 && b != Int(b))
        throw RuntimeFailure(Failure::invalidArgument);
    return Real::checked(std::pow(a.value(), b.value()));
}

/// The circle constant as all the calculations take it, Atn(1) x 4.
inline Real pi() {
    return Atn(1) * 4;
}

/// Rounds to single precision, as storing in a single does; failure 6 past the single range.
inline float toSingle(Real x) {
    const auto single = static_cast<float>(x.value());
    if (!std::isfinite(single))
        throw RuntimeFailure(Failure::overflow);
    return single;
}

} // namespace caudalera
