#include "tests/shell/main/TableCalculator.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace caudalera {

namespace {

double inDegrees(double radians) {
    return radians * 180 / 3.14159265358979;
}

struct Failed {
    int number;
};

double finite(double value) {
    if (std::isfinite(value))
        return value;
    throw Failed{6};
}

/// The C library's reading; the display holds nothing that it would read in another way but a lone
/// sign or point, which are 0 for both.
double read(const std::string& text) {
    return finite(std::strtod(text.c_str(), nullptr));
}

/// Fifteen significant digits; decimals as long as there are no more than 15 places on either side
/// of the point; with a point in any case.
std::string show(double value) {
    if (value == 0)
        return "0.";
    std::array<char, 40> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.14e", std::fabs(value));
    const std::string written = buffer.data();
    const int exponent = std::atoi(written.substr(written.find('e') + 1).c_str());
    std::string digits = written.substr(0, 1) + written.substr(2, 14);
    digits.erase(digits.find_last_not_of('0') + 1);

    const int count = static_cast<int>(digits.size());
    std::string text;
    if (exponent >= 15 || count - 1 - exponent > 15) {
        std::snprintf(buffer.data(), buffer.size(), "E%c%02d", exponent < 0 ? '-' : '+',
                      std::abs(exponent));
        text = digits.substr(0, 1) + (count > 1 ? "." + digits.substr(1) : "") + buffer.data();
        if (count == 1)
            text += '.';
    } else if (exponent < 0) {
        text = "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    } else {
        const auto whole = static_cast<std::size_t>(exponent + 1);
        if (digits.size() < whole)
            digits.append(whole - digits.size(), '0');
        text = digits.substr(0, whole) + "." + digits.substr(whole);
    }
    return value < 0 ? "-" + text : text;
}

double power(double base, double exponent) {
    if (exponent == 0)
        return 1;
    if (base == 0 && exponent < 0)
        throw Failed{5};
    if (base < 0 && exponent != std::trunc(exponent))
        throw Failed{5};
    return finite(std::pow(base, exponent));
}

std::int64_t asInteger32(double value) {
    const double nearest = std::nearbyint(value);
    if (nearest > 2147483647.0 || nearest < -2147483648.0)
        throw Failed{6};
    return static_cast<std::int64_t>(nearest);
}

double remainderOf(double a, double b) {
    const std::int64_t dividend = asInteger32(a);
    const std::int64_t divisor = asInteger32(b);
    if (divisor == 0)
        throw Failed{11};
    return static_cast<double>(dividend - dividend / divisor * divisor);
}

double nthRoot(double a, double b) {
    if (b == 0)
        throw Failed{11};
    return power(a, finite(1 / b));
}

/// No value: the table has an error there.
std::optional<double> operate(int code, double a, double b) {
    switch (code) {
    case 1:
        return b == 0 ? std::nullopt : std::optional(std::fabs(finite(a / b)));
    case 2:
        return finite(a * b);
    case 3:
        return finite(a - b);
    case 4:
        return finite(a + b);
    case 5:
        return a < 0 ? std::nullopt : std::optional(std::sqrt(a));
    case 6:
        return b == 0 ? std::nullopt : std::optional(finite(finite(a / b) * 100));
    case 7:
        return a == 0 ? std::nullopt : std::optional(finite(1 / a));
    case 8:
        return power(a, b);
    case 9:
        return power(a, 3);
    case 10:
        return power(a, 2);
    case 11:
        return remainderOf(a, b);
    case 12:
        return std::trunc(a);
    case 13:
        return nthRoot(a, b);
    case 14:
        return power(a, 1.0 / 3);
    default:
        throw std::logic_error("no operation of that code");
    }
}

double inRadians(double degrees) {
    return std::fabs(std::fmod(std::nearbyint(degrees), 360)) * 3.14159265358979 / 180;
}

} // namespace

TableCalculator::Outcome TableCalculator::press(const std::string& key) {
    const auto open = key.find('(');
    const std::string name = key.substr(0, open);
    const std::string member =
        open == std::string::npos ? "" : key.substr(open + 1, key.size() - open - 2);
    try {
        if (name == "cmdNum")
            type(member[0]);
        else if (name == "cmdDecimal")
            type('.');
        else if (name == "cmdValue")
            changeSign();
        else if (name == "cmdBackSpace")
            eraseLast();
        else if (name == "cmdClear")
            pressClear(member);
        else if (name == "cmdMem")
            pressMemory(member);
        else if (name == "cmdEquals")
            return equals();
        else if (name == "cmdOp")
            return pressOperation(std::stoi(member));
        else if (name == "cmdSci")
            return pressFunction(member);
        else if (name == "OptDegree" || name == "OptRadian")
            degrees_ = name == "OptDegree";
        else
            throw std::logic_error("no such key: " + key);
    } catch (const Failed& failed) {
        return {false, failed.number};
    }
    return {};
}

void TableCalculator::type(char character) {
    if (beginsNumber_)
        display_.clear();
    beginsNumber_ = false;
    if (character != '.' || display_.find('.') == std::string::npos)
        display_ += character;
    operand() = read(display_);
}

void TableCalculator::eraseLast() {
    if (!display_.empty())
        display_.pop_back();
    beginsNumber_ = false;
    operand() = read(display_);
}

void TableCalculator::changeSign() {
    if (display_.empty() || (beginsNumber_ && read(display_) == 0))
        return;
    display_ = display_[0] == '-' ? display_.substr(1) : "-" + display_;
    operand() = read(display_);
}

void TableCalculator::pressClear(const std::string& name) {
    pending_ = 0;
    second_ = 0;
    inSecond_ = false;
    if (name == "C") {
        first_ = 0;
        beginsNumber_ = true;
    }
    display_ = show(first_);
}

void TableCalculator::put(double result) {
    operand() = result;
    display_ = show(result);
}

void TableCalculator::pressMemory(const std::string& name) {
    beginsNumber_ = true;
    if (name == "MS")
        memory_ = read(display_);
    else if (name == "M+")
        memory_ = finite(memory_ + read(display_));
    else if (name == "MC")
        memory_ = 0;
    else
        put(memory_);
}

TableCalculator::Outcome TableCalculator::cancel() {
    pending_ = 0;
    second_ = 0;
    inSecond_ = false;
    return {true};
}

TableCalculator::Outcome TableCalculator::equals() {
    beginsNumber_ = true;
    if (pending_ == 0)
        return {};
    const std::optional<double> result = operate(pending_, first_, second_);
    if (!result)
        return cancel();
    pending_ = 0;
    inSecond_ = false;
    put(*result);
    return {};
}

TableCalculator::Outcome TableCalculator::pressOperation(int code) {
    beginsNumber_ = true;
    if (code == 5 || code == 7 || code == 9 || code == 10 || code == 12 || code == 14) {
        const std::optional<double> result = operate(code, read(display_), 0);
        if (!result)
            return cancel();
        put(*result);
        return {};
    }
    if (pending_ != 0) {
        const Outcome computed = equals();
        if (computed.refused)
            return computed;
    }
    if (display_ != show(first_))
        first_ = read(display_);
    pending_ = code;
    second_ = 0;
    inSecond_ = true;
    display_.clear();
    return {};
}

TableCalculator::Outcome TableCalculator::pressFunction(const std::string& name) {
    beginsNumber_ = true;
    const double x = read(display_);
    if (name == "pi") {
        put(3.14159265358979);
        return {};
    }
    if (name == "sin" || name == "cos" || name == "tan") {
        const double angle = degrees_ ? inRadians(x) : x;
        put(name == "sin" ? std::sin(angle) : name == "cos" ? std::cos(angle) : std::tan(angle));
        return {};
    }
    if (name == "tan-1") {
        put(degrees_ ? inDegrees(std::atan(x)) : std::atan(x));
        return {};
    }
    if (std::fabs(x) > 1)
        return {true};
    const double quarter = degrees_ ? 90 : 2 * std::atan(1.0);
    if (x == 1 || x == -1) {
        put(name == "sin-1" ? x * quarter : x == 1 ? 0 : 2 * quarter);
        return {};
    }
    const double slope = x / std::sqrt(1 - x * x);
    const double angle = name == "sin-1" ? std::atan(slope) : std::atan(-slope) + 2 * std::atan(1);
    put(degrees_ ? inDegrees(angle) : angle);
    return {};
}

} // namespace caudalera
