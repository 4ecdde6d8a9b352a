#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "shell/text/Utf8.h"

namespace caudalera {

/// Characters of the bytes 0x80 to 0x9F of Windows-1252; all its other bytes are the Latin-1
/// characters of the same number. The five bytes that the code page leaves undefined stand for the
/// control characters of their number, as its best-fit table has them.
inline constexpr std::array<char16_t, 32> windows1252Specials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Character of a byte of Windows-1252.
inline char32_t fromWindows1252(unsigned char byte) {
    if (byte < 0x80 || byte > 0x9F) {
        return byte;
    }
    return windows1252Specials[byte - 0x80U];
}

/// UTF-8 of a text in Windows-1252.
inline std::string decodeWindows1252(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes) {
        utf8::append(text, fromWindows1252(static_cast<unsigned char>(byte)));
    }
    return text;
}

/// Byte of a character in Windows-1252; none if the code page lacks it.
inline std::optional<unsigned char> toWindows1252(char32_t character) {
    if (character < 0x80 || (character > 0x9F && character <= 0xFF)) {
        return static_cast<unsigned char>(character);
    }
    for (std::size_t i = 0; i < windows1252Specials.size(); ++i) {
        if (windows1252Specials[i] == character) {
            return static_cast<unsigned char>(0x80 + i);
        }
    }
    return std::nullopt;
}

} // namespace caudalera
