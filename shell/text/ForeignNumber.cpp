#include "shell/text/ForeignNumber.h"

#include <algorithm>
#include <cstddef>

namespace caudalera {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Takes the digits in front off the text.
std::string_view takeDigits(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

/// Takes the integer part off the text: digits, or groups of three behind signs.
std::string takeGroupedDigits(std::string_view& text, char grouping) {
    std::string digits(takeDigits(text));
    const bool mayGroup = !digits.empty() && digits.size() <= 3 && digits.front() != '0';
    while (mayGroup && text.size() > 3 && text[0] == grouping &&
           std::all_of(text.begin() + 1, text.begin() + 4, isDigit)) {
        digits += text.substr(1, 3);
        text.remove_prefix(4);
    }
    return digits;
}

bool isExponent(std::string_view text) {
    if (text.empty() || std::string_view("eEdD").find(text[0]) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    if (!text.empty() && (text[0] == '+' || text[0] == '-'))
        text.remove_prefix(1);
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

} // namespace

std::string foreignNumber(std::string_view text, DecimalSign sign) {
    const char decimal = sign == DecimalSign::comma ? ',' : '.';
    const char grouping = sign == DecimalSign::comma ? '.' : ',';
    std::string number;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        if (text[0] == '-')
            number = "-";
        text.remove_prefix(1);
    }
    const std::string whole = takeGroupedDigits(text, grouping);
    number += whole;
    std::string_view decimals;
    if (!text.empty() && text[0] == decimal) {
        text.remove_prefix(1);
        decimals = takeDigits(text);
        (number += '.') += decimals;
    }
    if (whole.empty() && decimals.empty())
        return {};
    if (!text.empty() && !isExponent(text))
        return {};
    return number += text;
}

} // namespace caudalera
