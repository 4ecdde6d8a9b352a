#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "shell/richtext/CodePages.h"
#include "shell/richtext/RichText.h"
#include "shell/text/Utf8.h"

namespace caudalera {

namespace {

/// \'hh
void appendHex(std::string& rtf, unsigned char byte) {
    constexpr std::string_view digits = "0123456789abcdef";
    rtf += "\\'";
    rtf += digits[byte >> 4U];
    rtf += digits[byte & 0x0FU];
}

/// \uN, which counts in signed 16 bits, and what a reader without Unicode shows in its place.
void appendUnicode(std::string& rtf, char32_t unit, std::optional<unsigned char> fallback) {
    const auto number = static_cast<std::int32_t>(unit);
    rtf += "\\u" + std::to_string(number > 0x7FFF ? number - 0x10000 : number);
    if (fallback) {
        appendHex(rtf, *fallback);
    } else {
        rtf += '?';
    }
}

void appendCharacter(std::string& rtf, char32_t character) {
    if (character == '\t') {
        rtf += "\\tab ";
    } else if (character == '\\' || character == '{' || character == '}') {
        rtf += '\\';
        rtf += static_cast<char>(character);
    } else if (character < 0x20 || character == 0x7F) {
        appendHex(rtf, static_cast<unsigned char>(character));
    } else if (character < 0x7F) {
        rtf += static_cast<char>(character);
    } else if (character < 0x10000) {
        appendUnicode(rtf, character, toWindows1252(character));
    } else {
        const char32_t rest = character - 0x10000;
        appendUnicode(rtf, 0xD800 + (rest >> 10U), std::nullopt);
        appendUnicode(rtf, 0xDC00 + (rest & 0x3FFU), std::nullopt);
    }
}

void appendText(std::string& rtf, std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const utf8::Decoded next = utf8::decode(text, at);
        appendCharacter(rtf, next.character);
        at += next.bytes;
    }
}

/// Fonts and colours of a text in the order of their first use. Number 0 of both tables is the
/// default one, which no run names.
class Tables {
public:
    explicit Tables(const RichText& text) {
        for (const Paragraph& paragraph : text.paragraphs()) {
            for (const TextRun& run : paragraph.runs) {
                add(run.format);
            }
        }
    }

    std::size_t font(const std::string& name) const { return fontNumbers_.at(name); }
    std::size_t color(std::int32_t color) const { return colorNumbers_.at(color); }

    std::string source() const {
        // Readers need a name for the default font, too; ours never meets a run in it.
        std::string rtf = "{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}";
        for (std::size_t i = 0; i < fonts_.size(); ++i) {
            rtf += "{\\f" + std::to_string(i + 1) + "\\fnil\\fcharset0 ";
            // A semicolon would end the name.
            std::string name = fonts_[i];
            std::replace(name.begin(), name.end(), ';', ' ');
            appendText(rtf, name);
            rtf += ";}";
        }
        rtf += "}\r\n{\\colortbl ;";
        for (const std::int32_t color : colors_) {
            const auto part = [color](unsigned shift) {
                return std::to_string((static_cast<std::uint32_t>(color) >> shift) & 0xFFU);
            };
            rtf += "\\red" + part(16) + "\\green" + part(8) + "\\blue" + part(0) + ";";
        }
        return rtf + "}\r\n";
    }

private:
    void add(const CharacterFormat& format) {
        if (!format.font.empty() &&
            fontNumbers_.try_emplace(format.font, fonts_.size() + 1).second) {
            fonts_.push_back(format.font);
        }
        if (format.color >= 0 &&
            colorNumbers_.try_emplace(format.color, colors_.size() + 1).second) {
            colors_.push_back(format.color);
        }
    }

    std::vector<std::string> fonts_;
    std::vector<std::int32_t> colors_;
    std::unordered_map<std::string, std::size_t> fontNumbers_;
    std::unordered_map<std::int32_t, std::size_t> colorNumbers_;
};

std::string paragraphSource(const ParagraphFormat& format) {
    std::string rtf = "\\pard";
    switch (format.alignment) {
    case Alignment::left:
        rtf += "\\ql";
        break;
    case Alignment::right:
        rtf += "\\qr";
        break;
    case Alignment::center:
        rtf += "\\qc";
        break;
    case Alignment::justify:
        rtf += "\\qj";
        break;
    }
    return rtf + "\\li" + std::to_string(format.indent) + "\\ri" +
           std::to_string(format.rightIndent);
}

std::string characterSource(const CharacterFormat& format, const Tables& tables) {
    std::string rtf = "\\plain";
    if (!format.font.empty()) {
        rtf += "\\f" + std::to_string(tables.font(format.font));
    }
    if (format.halfPoints > 0) {
        rtf += "\\fs" + std::to_string(format.halfPoints);
    }
    if (format.color >= 0) {
        rtf += "\\cf" + std::to_string(tables.color(format.color));
    }
    rtf += format.bold ? "\\b" : "";
    rtf += format.italic ? "\\i" : "";
    rtf += format.underline ? "\\ul" : "";
    return rtf;
}

} // namespace

std::string writeRtf(const RichText& text) {
    const Tables tables(text);
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang3082\\uc1\r\n" + tables.source();
    // Formats hold until changed, also across paragraphs, so only changes are written.
    const ParagraphFormat* paragraphFormat = nullptr;
    const CharacterFormat* characterFormat = nullptr;
    for (const Paragraph& paragraph : text.paragraphs()) {
        std::string changes;
        if (paragraphFormat == nullptr || *paragraphFormat != paragraph.format) {
            changes += paragraphSource(paragraph.format);
            paragraphFormat = &paragraph.format;
        }
        for (const TextRun& run : paragraph.runs) {
            if (characterFormat == nullptr || *characterFormat != run.format) {
                changes += characterSource(run.format, tables);
                characterFormat = &run.format;
            }
            if (!changes.empty()) {
                rtf += changes + ' ';
                changes.clear();
            }
            appendText(rtf, run.text);
        }
        // Every paragraph is ended, the last one too: readers take no paragraph to begin behind
        // the last \par.
        rtf += changes + "\\par\r\n";
    }
    return rtf + "}\r\n";
}

} // namespace caudalera
