#pragma once

#include <cstdint>
#include <string_view>

namespace caudalera {

/// What our own files name as the program that wrote them.
inline constexpr std::string_view rtfGenerator = "Caudalera";

enum class RtfWordKind {
    unknown,
    /// Its group holds nothing of the text.
    skipped,
    fonts,
    colors,
    generator,
    /// Stands for the character `value`.
    character,
    unit,
    fallbackLength,
    paragraphEnd,
    lineEnd,
    sectionEnd,
    /// `value` is the Alignment.
    alignment,
    indent,
    rightIndent,
    defaultParagraph,
    bold,
    italic,
    /// `value` 0 takes it away.
    underline,
    hidden,
    font,
    fontSize,
    color,
    defaultCharacter,
    /// `value` is the part's place in 0xRRGGBB, in bits.
    colorPart,
};

struct RtfWord {
    RtfWordKind kind = RtfWordKind::unknown;
    std::int32_t value = 0;
};

/// What a control word means to a reader of text, indents, alignments and character formats.
RtfWord findRtfWord(std::string_view name);

} // namespace caudalera
