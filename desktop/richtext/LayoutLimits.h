#pragma once

#include "shell/richtext/RichText.h"

#include <QString>
#include <cstddef>

/// How much text the toolkit's layout carries without freezing the desktop. Measured with Qt 6.4 on
/// one core of a common machine, in a box of 1000 pixels with a font of 10 points:
/// - a table row takes 25 µs to lay out and is laid out twice when it appears, so 100,000 rows take
///   5 s; each key at their start moves all that follow, 0.15 s.
/// - the layout knows no height past INT_MAX / 256 pixels, 8.4 million, and does not come to an end
///   there: 500,000 empty lines of 16 pixels appear after some seconds, 600,000 never. 200,000 stay
///   below that on a screen of twice the resolution, too.
/// - a paragraph is laid out anew with each key inside it: 0.1 s at 500,000 characters.
/// - a word that must be broken costs the square of its length: 0.1 s a key at 50,000 characters,
///   0.4 s at 100,000; at 400,000 it takes 16 s to appear.
/// - prose takes 0.4 µs a character, so 10 million take 4 s.
namespace caudalera::richtext {

inline constexpr std::size_t mostParagraphs = 100000;
inline constexpr std::size_t longestParagraph = 500000;
inline constexpr std::size_t longestWord = 50000;
inline constexpr std::size_t mostCharacters = 10000000;
inline constexpr std::size_t mostLines = 200000;
/// Characters of 10 points that a line has room for in the narrowest box.
inline constexpr std::size_t narrowestLine = 20;

/// What of a text is past the limits and how much there may be, to stand behind a colon: "650 001
/// párrafos, y caben 100 000". Empty if the text can be shown. The rows of tables and the rules are
/// never broken and may be one word.
QString excess(const RichText& text);
/// The beginning of a text as far as it can be shown, too long paragraphs cut.
RichText showable(const RichText& text);

} // namespace caudalera::richtext
