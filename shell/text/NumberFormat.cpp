// Number formatter: interprets a mask over the decimal digits of a value.

#include "shell/text/DecimalDigits.h"
#include "shell/text/Text.h"

#include <algorithm>
#include <utility>

namespace caudalera {

namespace {

bool isPlace(char c) {
    return c == '#' || c == '0';
}

/// What has to be known of a mask before its first character can be written.
struct MaskPlaces {
    int integer = 0;       ///< places in front of the point
    int integerPadded = 0; ///< of them, those from the first '0' on, which always show
    int decimal = 0;       ///< places behind the point
};

MaskPlaces countPlaces(std::string_view mask) {
    MaskPlaces places;
    bool behindPoint = false;
    for (const char c : mask) {
        if (c == '.') {
            behindPoint = true;
        } else if (isPlace(c) && behindPoint) {
            ++places.decimal;
        } else if (isPlace(c)) {
            ++places.integer;
            if (c == '0' || places.integerPadded > 0)
                ++places.integerPadded;
        }
    }
    return places;
}

class MaskWriter {
public:
    MaskWriter(DecimalDigits digits, std::string_view mask)
        : digits_(digits), mask_(mask), places_(countPlaces(mask)) {
        digits_.round(places_.decimal);
        // In digits without a zero the exponent tells how many stand in front of the point.
        const int held = digits_.isZero() ? 0 : std::max(digits_.exponent() + 1, 0);
        integerShown_ = std::max(held, places_.integerPadded);
        power_ = std::max(integerShown_, places_.integer) - 1;
    }

    std::string write(std::string_view separator) {
        text_.reserve(mask_.size() + separator.size() + static_cast<std::size_t>(integerShown_));
        if (digits_.isNegative())
            text_ += '-';
        for (const char c : mask_) {
            if (isPlace(c)) {
                writePlace(c);
            } else if (c == '.') {
                writeIntegerDownTo(0);
                text_ += separator;
            } else {
                text_ += c;
            }
        }
        writeIntegerDownTo(0);
        return std::move(text_);
    }

private:
    void writePlace(char place) {
        if (power_ >= 0) {
            // Digits in front of the first place are written with it.
            writeIntegerDownTo(std::min(power_, places_.integer - 1));
            return;
        }
        if (place == '0' || (!digits_.isZero() && power_ >= digits_.lowestPower()))
            text_ += digits_.at(power_);
        --power_;
    }

    void writeIntegerDownTo(int last) {
        for (; power_ >= last; --power_) {
            if (power_ < integerShown_)
                text_ += digits_.at(power_);
        }
    }

    DecimalDigits digits_;
    std::string_view mask_;
    MaskPlaces places_;
    int integerShown_ = 0;
    int power_ = 0; ///< the next power of ten to be written
    std::string text_;
};

} // namespace

std::string formatear(double value, std::string_view mascara, std::string_view separador) {
    return MaskWriter(DecimalDigits(value), mascara).write(separador);
}

std::string formatear(float value, std::string_view mascara, std::string_view separador) {
    return MaskWriter(DecimalDigits(value), mascara).write(separador);
}

} // namespace caudalera
