#include "shell/richtext/RtfPage.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "shell/text/Utf8.h"

namespace caudalera {

namespace {

constexpr std::size_t tabStop = 8;
constexpr double reportColumns = 130;
constexpr double reportIndents = 400;

std::size_t columnsOf(std::string_view line) {
    std::size_t columns = 0;
    for (const char byte : line) {
        if (byte == '\t') {
            columns = (columns / tabStop + 1) * tabStop;
        } else if (!utf8::isContinuation(byte)) {
            ++columns;
        }
    }
    return columns;
}

} // namespace

bool isTableLine(std::string_view line) {
    return line.find('\t') != std::string_view::npos ||
           line.find("   ") != std::string_view::npos ||
           line.find("-----") != std::string_view::npos;
}

RtfPage pageFor(const RichText& text, const FixedFont& font) {
    // A half point is ten twips.
    const double character = font.width * font.halfPoints * 10;
    double needed = reportIndents + reportColumns * character;
    for (const Paragraph& paragraph : text.paragraphs()) {
        const std::string line = paragraph.text();
        if (isTableLine(line)) {
            needed = std::max(needed, paragraph.format.indent + paragraph.format.rightIndent +
                                          static_cast<double>(columnsOf(line)) * character);
        }
    }
    RtfPage a4;
    a4.width = 16838;
    a4.height = 11906;
    RtfPage a3;
    a3.width = 23811;
    a3.height = a4.width;
    RtfPage page = needed <= a4.textWidth() ? a4 : a3;
    page.tabDistance = static_cast<double>(tabStop) * character;
    return page;
}

} // namespace caudalera
