#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "shell/richtext/CodePages.h"
#include "shell/richtext/RichText.h"
#include "shell/richtext/RtfPage.h"
#include "shell/richtext/RtfWords.h"
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

/// Entry of the font table without its braces; a semicolon ends the name and cannot stand in it.
std::string fontEntry(std::size_t number, std::string_view family, std::string name) {
    std::string rtf = "\\f" + std::to_string(number);
    rtf += family;
    rtf += "\\fcharset0 ";
    std::replace(name.begin(), name.end(), ';', ' ');
    appendText(rtf, name);
    return rtf + ';';
}

/// Fonts and colours of a text in the order of their first use. Number 0 of both tables is the
/// default one, which no run names.
class Tables {
public:
    Tables(const RichText& text, const FixedFont& box) : box_(box) {
        for (const Paragraph& paragraph : text.paragraphs()) {
            for (const TextRun& run : paragraph.runs) {
                add(run.format);
            }
        }
    }

    std::size_t font(const std::string& name) const { return fontNumbers_.at(name); }
    std::size_t color(std::int32_t color) const { return colorNumbers_.at(color); }

    std::string source() const {
        // Where the box's font is missing, family and pitch still say what stands for it.
        std::string rtf = "{\\fonttbl{" + fontEntry(0, "\\fmodern\\fprq1", box_.name) + "}";
        for (std::size_t i = 0; i < fonts_.size(); ++i) {
            rtf += "{" + fontEntry(i + 1, "\\fnil", fonts_[i]) + "}";
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

    const FixedFont& box_;
    std::vector<std::string> fonts_;
    std::vector<std::int32_t> colors_;
    std::unordered_map<std::string, std::size_t> fontNumbers_;
    std::unordered_map<std::int32_t, std::size_t> colorNumbers_;
};

/// Style, paper, tab stops and size of the whole. Word processors take the size for a default only
/// where the style and the running text both state it, and every \plain would take it back.
std::string documentSource(const RtfPage& page, int halfPoints) {
    const std::string size = "\\fs" + std::to_string(halfPoints);
    const std::string sides = std::to_string(page.sideMargin);
    const std::string ends = std::to_string(page.endMargin);
    std::string rtf = "{\\stylesheet{\\s0\\f0" + size + " Normal;}}\r\n";
    rtf += "{\\*\\generator ";
    rtf += rtfGenerator;
    rtf += ";}\r\n\\paperw" + std::to_string(page.width) + "\\paperh" + std::to_string(page.height);
    rtf += "\\margl" + sides + "\\margr" + sides + "\\margt" + ends + "\\margb" + ends;
    rtf += "\\landscape\\deftab" + std::to_string(std::lround(page.tabDistance));
    return rtf + size + "\r\n";
}

std::string paragraphSource(const ParagraphFormat& format, const RtfPage& page) {
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
    rtf += "\\li" + std::to_string(format.indent) + "\\ri" + std::to_string(format.rightIndent);
    if (format.indent == 0) {
        return rtf;
    }
    // Tab stops that are not stated are counted from the margin, those of the box from the indent.
    for (double at = format.indent + page.tabDistance; at < page.textWidth();
         at += page.tabDistance) {
        rtf += "\\tx" + std::to_string(std::lround(at));
    }
    return rtf;
}

/// What sets a run apart; empty for one in the format of the whole.
std::string characterSource(const CharacterFormat& format, const Tables& tables) {
    std::string rtf;
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

void appendRun(std::string& rtf, const TextRun& run, const Tables& tables) {
    const std::string format = characterSource(run.format, tables);
    if (format.empty()) {
        appendText(rtf, run.text);
        return;
    }
    rtf += '{' + format + ' ';
    appendText(rtf, run.text);
    rtf += '}';
}

} // namespace

std::string writeRtf(const RichText& text, const FixedFont& box) {
    const Tables tables(text, box);
    const RtfPage page = pageFor(text, box);
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang3082\\uc1\r\n" + tables.source() +
                      documentSource(page, box.halfPoints);
    // Paragraph formats hold until changed, so only changes are written.
    const ParagraphFormat* format = nullptr;
    for (const Paragraph& paragraph : text.paragraphs()) {
        if (format == nullptr || *format != paragraph.format) {
            rtf += paragraphSource(paragraph.format, page);
            rtf += paragraph.runs.empty() ? "" : " ";
            format = &paragraph.format;
        }
        for (const TextRun& run : paragraph.runs) {
            appendRun(rtf, run, tables);
        }
        // Every paragraph is ended, the last one too: readers take no paragraph to begin behind
        // the last \par.
        rtf += "\\par\r\n";
    }
    return rtf + "}\r\n";
}

} // namespace caudalera
