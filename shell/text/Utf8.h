#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

/// UTF-8 by characters.
namespace caudalera::utf8 {

/// Stands for what can't be decoded.
inline constexpr char32_t replacement = 0xFFFD;

/// A character and how many bytes it took.
struct Decoded {
    char32_t character = replacement;
    std::size_t bytes = 1;
    bool valid = false;
};

/// Whether the byte goes on with a character that another one began.
inline bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Character that begins at byte `at`, which lies inside the text. A byte that begins none
/// (overlong forms, surrogates and values past U+10FFFF included) is one replacement character.
inline Decoded decode(std::string_view text, std::size_t at) {
    const auto first = static_cast<unsigned char>(text[at]);
    if (first < 0x80) {
        return {first, 1, true};
    }
    std::size_t bytes = 0;
    char32_t value = 0;
    char32_t least = 0;
    if (first >= 0xC2 && first <= 0xDF) {
        bytes = 2;
        value = first & 0x1FU;
        least = 0x80;
    } else if (first >= 0xE0 && first <= 0xEF) {
        bytes = 3;
        value = first & 0x0FU;
        least = 0x800;
    } else if (first >= 0xF0 && first <= 0xF4) {
        bytes = 4;
        value = first & 0x07U;
        least = 0x10000;
    } else {
        return {};
    }
    if (text.size() - at < bytes) {
        return {};
    }
    for (std::size_t i = 1; i < bytes; ++i) {
        if (!isContinuation(text[at + i])) {
            return {};
        }
        value = (value << 6U) | (static_cast<unsigned char>(text[at + i]) & 0x3FU);
    }
    if (value < least || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) {
        return {};
    }
    return {value, bytes, true};
}

/// Appends a character; a surrogate or a value past U+10FFFF as the replacement character.
inline void append(std::string& text, char32_t character) {
    const auto byte = [&text](char32_t value) {
        text += static_cast<char>(static_cast<unsigned char>(value));
    };
    const auto continuation = [&byte](char32_t value) { byte(0x80U | (value & 0x3FU)); };
    if (character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF)) {
        character = replacement;
    }
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xC0U | (character >> 6U));
        continuation(character);
    } else if (character < 0x10000) {
        byte(0xE0U | (character >> 12U));
        continuation(character >> 6U);
        continuation(character);
    } else {
        byte(0xF0U | (character >> 18U));
        continuation(character >> 12U);
        continuation(character >> 6U);
        continuation(character);
    }
}

/// Whether the whole text decodes.
inline bool isValid(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const Decoded next = decode(text, at);
        if (!next.valid) {
            return false;
        }
        at += next.bytes;
    }
    return true;
}

/// Characters of a valid text.
inline std::size_t count(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !isContinuation(byte); }));
}

/// Byte at which character number `characters` (from 0) of a valid text begins; the text's size if
/// it has no more than that many.
inline std::size_t offset(std::string_view text, std::size_t characters) {
    std::size_t at = 0;
    while (at < text.size()) {
        if (!isContinuation(text[at])) {
            if (characters == 0) {
                break;
            }
            --characters;
        }
        ++at;
    }
    return at;
}

} // namespace caudalera::utf8
