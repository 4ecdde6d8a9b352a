#pragma once

#include <sstream>
#include <string>

#include "shell/richtext/RichText.h"

namespace caudalera {

/// One line for each paragraph: alignment, indents and runs with what differs from the default, as
/// "c200/300 [plain][bold|b][all|biu,Arial,24,#c00020]".
inline std::string show(const RichText& text) {
    std::ostringstream out;
    for (const Paragraph& paragraph : text.paragraphs()) {
        out << "lrcj"[static_cast<int>(paragraph.format.alignment)] << paragraph.format.indent
            << '/' << paragraph.format.rightIndent << ' ';
        for (const TextRun& run : paragraph.runs) {
            const CharacterFormat& format = run.format;
            out << '[' << run.text;
            if (format != CharacterFormat{}) {
                out << '|' << (format.bold ? "b" : "") << (format.italic ? "i" : "")
                    << (format.underline ? "u" : "");
            }
            if (!format.font.empty()) {
                out << ',' << format.font;
            }
            if (format.halfPoints != 0) {
                out << ',' << format.halfPoints;
            }
            if (format.color >= 0) {
                out << ",#" << std::hex << format.color << std::dec;
            }
            out << ']';
        }
        out << '\n';
    }
    return out.str();
}

} // namespace caudalera
