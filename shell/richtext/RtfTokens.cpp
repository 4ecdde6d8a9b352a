#include "shell/richtext/RtfTokens.h"

#include <algorithm>
#include <limits>

namespace caudalera {

namespace {

// A NUL is none of them, whatever the C library's routines say of other bytes in a locale.
constexpr std::string_view betweenPieces("\r\n\0", 3);
constexpr std::string_view endsOfText("\\{}\r\n\0", 6);

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// -1 for what is no hexadecimal digit.
int hexValue(char digit) {
    if (isDigit(digit)) {
        return digit - '0';
    }
    if (digit >= 'a' && digit <= 'f') {
        return digit - 'a' + 10;
    }
    if (digit >= 'A' && digit <= 'F') {
        return digit - 'A' + 10;
    }
    return -1;
}

} // namespace

RtfToken RtfTokens::endOfSource() {
    at_ = source_.size();
    return {};
}

RtfToken RtfTokens::next() {
    at_ = source_.find_first_not_of(betweenPieces, at_);
    if (at_ == std::string_view::npos) {
        return endOfSource();
    }
    RtfToken token;
    switch (source_[at_]) {
    case '{':
        ++at_;
        token.kind = RtfTokenKind::open;
        return token;
    case '}':
        ++at_;
        token.kind = RtfTokenKind::close;
        return token;
    case '\\':
        return control();
    default:
        break;
    }
    const std::size_t end = std::min(source_.find_first_of(endsOfText, at_), source_.size());
    token.kind = RtfTokenKind::text;
    token.text = source_.substr(at_, end - at_);
    at_ = end;
    return token;
}

RtfToken RtfTokens::control() {
    ++at_;
    if (at_ == source_.size()) {
        return endOfSource();
    }
    if (isLetter(source_[at_])) {
        return word();
    }
    if (source_[at_] == '\'') {
        return byte();
    }
    RtfToken token;
    token.kind = RtfTokenKind::symbol;
    token.character = static_cast<unsigned char>(source_[at_]);
    ++at_;
    return token;
}

RtfToken RtfTokens::byte() {
    ++at_;
    if (source_.size() - at_ < 2) {
        return endOfSource();
    }
    const int high = hexValue(source_[at_]);
    const int low = hexValue(source_[at_ + 1]);
    RtfToken token;
    token.kind = RtfTokenKind::symbol;
    token.character = '\'';
    if (high >= 0 && low >= 0) {
        token.kind = RtfTokenKind::byte;
        token.character = static_cast<unsigned char>(high * 16 + low);
        at_ += 2;
    }
    return token;
}

RtfToken RtfTokens::word() {
    RtfToken token;
    token.kind = RtfTokenKind::word;
    const std::size_t begin = at_;
    while (at_ < source_.size() && isLetter(source_[at_])) {
        ++at_;
    }
    token.text = source_.substr(begin, at_ - begin);
    const bool negative =
        source_.size() - at_ >= 2 && source_[at_] == '-' && isDigit(source_[at_ + 1]);
    if (negative) {
        ++at_;
    }
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    std::int64_t value = 0;
    while (at_ < source_.size() && isDigit(source_[at_])) {
        token.hasParameter = true;
        value = std::min(most, value * 10 + (source_[at_] - '0'));
        ++at_;
    }
    token.parameter = static_cast<std::int32_t>(negative ? -value : value);
    // Files end with a brace; here the end may stand amid the word or its number.
    if (at_ == source_.size() || (source_[at_] == '-' && at_ + 1 == source_.size())) {
        return endOfSource();
    }
    if (source_[at_] == ' ') {
        ++at_;
    }
    if (token.text == "bin") {
        at_ += std::min(source_.size() - at_,
                        static_cast<std::size_t>(std::max<std::int32_t>(token.parameter, 0)));
    }
    return token;
}

} // namespace caudalera
