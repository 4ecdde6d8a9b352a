#include "shell/richtext/RtfContent.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "shell/text/Utf8.h"

namespace caudalera {

namespace {

/// Bytes kept of a font's name, which every run in that font holds a copy of. Systems take 31
/// characters.
constexpr std::size_t longestFontName = 64;

} // namespace

void RtfTables::beginFont(std::int32_t number) {
    fontNumber_ = number;
    fontName_.clear();
}

void RtfTables::addFontCharacter(char32_t character) {
    if (character == ';') {
        endFont();
    } else if (fontName_.size() < longestFontName) {
        utf8::append(fontName_, character);
    }
}

void RtfTables::endFont() {
    const std::size_t begin = fontName_.find_first_not_of(' ');
    if (begin != std::string::npos) {
        fonts_[fontNumber_] = fontName_.substr(begin, fontName_.find_last_not_of(' ') + 1 - begin);
    }
    fontName_.clear();
}

void RtfTables::setColorPart(std::int32_t shift, std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(shift);
    const auto before = static_cast<std::uint32_t>(std::max(nextColor_, 0));
    const auto part = static_cast<std::uint32_t>(std::clamp(value, 0, 255));
    nextColor_ = static_cast<std::int32_t>((before & ~(0xFFU << bits)) | (part << bits));
}

void RtfTables::addColorCharacter(char32_t character) {
    if (character == ';') {
        colors_.push_back(std::exchange(nextColor_, -1));
    }
}

CharacterFormat RtfTables::resolved(const RtfFormat& format) const {
    CharacterFormat result;
    result.bold = format.bold;
    result.italic = format.italic;
    result.underline = format.underline;
    result.halfPoints = format.halfPoints;
    if (const auto font = fonts_.find(format.font); font != fonts_.end()) {
        result.font = font->second;
    }
    if (format.color >= 0 && static_cast<std::size_t>(format.color) < colors_.size()) {
        result.color = colors_[static_cast<std::size_t>(format.color)];
    }
    return result;
}

void RtfParagraphs::append(std::string_view utf8, const RtfFormat& format,
                           const ParagraphFormat& paragraph, const RtfTables& tables) {
    Paragraph& last = paragraphs_.back();
    if (formatChanged_ || last.runs.empty()) {
        CharacterFormat characters = tables.resolved(format);
        if (last.runs.empty() || last.runs.back().format != characters) {
            last.runs.push_back({"", std::move(characters)});
        }
        formatChanged_ = false;
    }
    last.runs.back().text += utf8;
    // What holds for a last paragraph without \par, since the end of its group would take it back.
    last.format = paragraph;
}

void RtfParagraphs::end(const ParagraphFormat& paragraph, bool last) {
    paragraphs_.back().format = paragraph;
    paragraphs_.emplace_back().format = paragraph;
    mayEnd_ = last;
}

std::vector<Paragraph> RtfParagraphs::take() {
    if (mayEnd_ && isEmptyLast()) {
        paragraphs_.pop_back();
    }
    return std::move(paragraphs_);
}

} // namespace caudalera
