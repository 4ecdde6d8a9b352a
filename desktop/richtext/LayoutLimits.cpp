#include "desktop/richtext/LayoutLimits.h"

#include "shell/text/Utf8.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace caudalera::richtext {

namespace {

/// Digits in groups of three.
QString grouped(std::size_t number) {
    QString digits = QString::number(number);
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3)
        digits.insert(at, QChar::Nbsp);
    return digits;
}

QString tooMany(const QString& what, std::size_t found, std::size_t limit) {
    return QStringLiteral("%1, y caben %2").arg(what.arg(grouped(found)), grouped(limit));
}

/// Longest stretch without a blank, in characters.
std::size_t longestWordIn(std::string_view line) {
    std::size_t longest = 0;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(' '), line.size());
        longest = std::max(longest, utf8::count(line.substr(0, end)));
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return longest;
}

/// Of a paragraph of `length` characters; 0 where none of it can be too long.
std::size_t wordToBreak(const Paragraph& paragraph, std::size_t length) {
    if (length <= longestWord)
        return 0;
    const std::string line = paragraph.text();
    return isTableLine(line) ? 0 : longestWordIn(line);
}

/// Lines of 10 points that a paragraph is as high as in the narrowest box. Larger type is higher
/// and has fewer characters a line.
double linesOf(const Paragraph& paragraph, std::size_t length) {
    int halfPoints = 20;
    for (const TextRun& run : paragraph.runs)
        halfPoints = std::max(halfPoints, run.format.halfPoints);
    const double larger = halfPoints / 20.0;
    const double lines = std::ceil(static_cast<double>(length) * larger / narrowestLine);
    return lines <= 1 || isTableLine(paragraph.text()) ? larger : lines * larger;
}

/// The first characters of a paragraph that is too long for the layout.
Paragraph cut(const Paragraph& paragraph, std::size_t characters) {
    Paragraph head;
    head.format = paragraph.format;
    for (const TextRun& run : paragraph.runs) {
        const std::size_t length = utf8::count(run.text);
        const std::size_t kept = std::min(length, characters);
        head.runs.push_back({run.text.substr(0, utf8::offset(run.text, kept)), run.format});
        characters -= kept;
        if (characters == 0)
            break;
    }
    return head;
}

} // namespace

QString excess(const RichText& text) {
    const auto& paragraphs = text.paragraphs();
    if (paragraphs.size() > mostParagraphs)
        return tooMany(QStringLiteral("%1 párrafos"), paragraphs.size(), mostParagraphs);
    if (text.length() > mostCharacters)
        return tooMany(QStringLiteral("%1 caracteres"), text.length(), mostCharacters);
    double lines = 0;
    for (const Paragraph& paragraph : paragraphs) {
        const std::size_t length = paragraph.length();
        lines += linesOf(paragraph, length);
        if (length > longestParagraph)
            return tooMany(QStringLiteral("un párrafo de %1 caracteres"), length, longestParagraph);
        if (const std::size_t word = wordToBreak(paragraph, length); word > longestWord)
            return tooMany(QStringLiteral("una palabra de %1 caracteres"), word, longestWord);
    }
    if (lines > mostLines)
        return tooMany(QStringLiteral("%1 líneas"), static_cast<std::size_t>(lines), mostLines);
    return {};
}

RichText showable(const RichText& text) {
    std::vector<Paragraph> shown;
    std::size_t left = mostCharacters;
    double lines = 0;
    for (const Paragraph& paragraph : text.paragraphs()) {
        const std::size_t length = paragraph.length();
        const bool wordTooLong = wordToBreak(paragraph, length) > longestWord;
        const std::size_t most = std::min(left, wordTooLong ? longestWord : longestParagraph);
        Paragraph part = length > most ? cut(paragraph, most) : paragraph;
        lines += linesOf(part, std::min(length, most));
        if (lines > mostLines)
            break;
        shown.push_back(std::move(part));
        // Each counts with its end.
        left -= std::min(left, std::min(length, most) + 1);
        if (left == 0 || shown.size() == mostParagraphs)
            break;
    }
    return RichText(std::move(shown));
}

} // namespace caudalera::richtext
