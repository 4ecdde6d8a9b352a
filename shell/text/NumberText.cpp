// Number-to-text conversion and plain texts of numbers.

#include "shell/text/DecimalDigits.h"
#include "shell/text/Text.h"

#include <algorithm>

namespace caudalera {

namespace {

constexpr int maxFixedIntegerDigits = 15;
constexpr int maxFixedDecimals = 15;

void appendFixed(std::string& text, const DecimalDigits& digits, bool zeroBeforePoint) {
    if (digits.exponent() >= 0 || zeroBeforePoint) {
        for (int power = std::max(digits.exponent(), 0); power >= 0; --power)
            text += digits.at(power);
    }
    if (digits.lowestPower() < 0) {
        text += '.';
        for (int power = -1; power >= digits.lowestPower(); --power)
            text += digits.at(power);
    }
}

void appendScientific(std::string& text, const DecimalDigits& digits) {
    const int first = digits.exponent();
    text += digits.at(first);
    if (digits.count() > 1)
        text += '.';
    for (int power = first - 1; power >= digits.lowestPower(); --power)
        text += digits.at(power);
    text += first < 0 ? "E-" : "E+";
    const int magnitude = first < 0 ? -first : first;
    if (magnitude < 10)
        text += '0';
    text += std::to_string(magnitude);
}

std::string numberText(const DecimalDigits& digits, const char* signOfPositive,
                       bool zeroBeforePoint) {
    std::string text = digits.isNegative() ? "-" : signOfPositive;
    const bool fixed =
        digits.exponent() < maxFixedIntegerDigits && digits.lowestPower() >= -maxFixedDecimals;
    if (digits.isZero()) {
        text += '0';
    } else if (fixed) {
        appendFixed(text, digits, zeroBeforePoint);
    } else {
        appendScientific(text, digits);
    }
    return text;
}

} // namespace

std::string Str(double value) {
    return numberText(DecimalDigits(value), " ", false);
}

std::string Str(float value) {
    return numberText(DecimalDigits(value), " ", false);
}

std::string textoPlano(double value) {
    return numberText(DecimalDigits(value), "", true);
}

std::string textoPlano(float value) {
    return numberText(DecimalDigits(value), "", true);
}

std::string textoPlano(long value) {
    return std::to_string(value);
}

} // namespace caudalera
