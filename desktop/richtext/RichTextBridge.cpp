#include "desktop/richtext/RichTextBridge.h"

#include "desktop/richtext/LayoutLimits.h"
#include "desktop/richtext/QtText.h"
#include "desktop/style/LongWork.h"
#include "desktop/style/Style.h"

#include <QAbstractTextDocumentLayout>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QtMath>
#include <algorithm>

namespace caudalera::richtext {

namespace {

/// Indents as the model counts them, beside the margins in pixels that are rounded from them.
enum BlockProperty { leftTwips = QTextFormat::UserProperty + 1, rightTwips };

constexpr double twipsPerInch = 1440;
/// Hyphens of the widest rule of the reports.
constexpr int widestRule = 165;
/// What stands beside it in a maximised window, in twips: the indents of the report, 200 on each
/// side, the right margin of the text, 400, the ground around its box, 100 on each side, and a
/// scroll bar with the box's own frame and margins.
constexpr double besideRule = 200 + 200 + 400 + 100 + 100 + 400;
/// Paragraphs between two signs that the work goes on; some 50 ms to lay out.
constexpr int batch = 2000;

double pixels(double twips) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return twips * (screen ? screen->logicalDotsPerInchX() : 96) / twipsPerInch;
}

/// Characters that would end a block or stand for an object inside Qt's documents.
QString shown(const std::string& utf8) {
    QString text = toQString(utf8);
    for (QChar& character : text) {
        if (character == QChar::ParagraphSeparator || character == QChar(0xFDD0) ||
            character == QChar(0xFDD1))
            character = QChar::ReplacementCharacter;
    }
    return text;
}

Qt::Alignment alignmentOf(Alignment alignment) {
    switch (alignment) {
    case Alignment::right:
        return Qt::AlignRight;
    case Alignment::center:
        return Qt::AlignHCenter;
    case Alignment::justify:
        return Qt::AlignJustify;
    case Alignment::left:
        break;
    }
    return Qt::AlignLeft;
}

Alignment alignmentOf(Qt::Alignment alignment) {
    if (alignment & Qt::AlignHCenter)
        return Alignment::center;
    if (alignment & Qt::AlignRight)
        return Alignment::right;
    return alignment & Qt::AlignJustify ? Alignment::justify : Alignment::left;
}

QTextBlockFormat blockFormat(const Paragraph& paragraph) {
    QTextBlockFormat format;
    format.setAlignment(alignmentOf(paragraph.format.alignment));
    format.setLeftMargin(pixels(paragraph.format.indent));
    format.setRightMargin(pixels(paragraph.format.rightIndent));
    format.setProperty(leftTwips, paragraph.format.indent);
    format.setProperty(rightTwips, paragraph.format.rightIndent);
    format.setNonBreakableLines(isTableLine(paragraph.text()));
    return format;
}

QTextCharFormat charFormat(const CharacterFormat& format) {
    QTextCharFormat result;
    if (format.bold)
        result.setFontWeight(QFont::Bold);
    if (format.italic)
        result.setFontItalic(true);
    if (format.underline)
        result.setFontUnderline(true);
    if (!format.font.empty())
        result.setFontFamilies({toQString(format.font)});
    if (format.halfPoints > 0)
        result.setFontPointSize(format.halfPoints / 2.0);
    if (format.color >= 0)
        result.setForeground(QColor::fromRgb(static_cast<QRgb>(format.color)));
    return result;
}

CharacterFormat characterFormat(const QTextCharFormat& format) {
    CharacterFormat result;
    result.bold = format.fontWeight() >= QFont::DemiBold;
    result.italic = format.fontItalic();
    result.underline = format.fontUnderline();
    if (const QStringList families = format.fontFamilies().toStringList(); !families.isEmpty())
        result.font = families.constFirst().toStdString();
    if (format.hasProperty(QTextFormat::FontPointSize))
        result.halfPoints = qRound(format.fontPointSize() * 2);
    if (format.hasProperty(QTextFormat::ForegroundBrush))
        result.color = static_cast<std::int32_t>(format.foreground().color().rgb() & 0xFFFFFFU);
    return result;
}

/// The part [start, end) of a block as a paragraph, counted from the block's start.
Paragraph partOf(const QTextBlock& block, int start, int end) {
    Paragraph paragraph;
    const QTextBlockFormat format = block.blockFormat();
    paragraph.format = {alignmentOf(format.alignment()), format.intProperty(leftTwips),
                        format.intProperty(rightTwips)};
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment run = it.fragment();
        const int from = run.position() - block.position();
        const int first = std::max(start, from);
        const int last = std::min(end, from + run.length());
        if (first >= last)
            continue;
        std::string text = run.text().mid(first - from, last - first).toStdString();
        CharacterFormat characters = characterFormat(run.charFormat());
        if (!paragraph.runs.empty() && paragraph.runs.back().format == characters) {
            paragraph.runs.back().text += text;
        } else {
            paragraph.runs.push_back({std::move(text), std::move(characters)});
        }
    }
    return paragraph;
}

void insert(QTextCursor& cursor, const Paragraph& paragraph) {
    cursor.setBlockFormat(blockFormat(paragraph));
    for (const TextRun& run : paragraph.runs)
        cursor.insertText(shown(run.text), charFormat(run.format));
}

/// Whether the block shows the paragraph already.
bool shows(const QTextBlock& block, const Paragraph& paragraph) {
    return paragraphOf(block) == paragraph;
}

} // namespace

QFont reportFont() {
    QFont font = style::fixedFont();
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double room = (screen ? screen->availableGeometry().width() : 1024) - pixels(besideRule);
    constexpr double smallest = 8;
    if (font.pointSizeF() <= 0)
        font.setPointSizeF(10);
    while (font.pointSizeF() > smallest &&
           QFontMetricsF(font).horizontalAdvance(u'-') * widestRule > room)
        font.setPointSizeF(font.pointSizeF() - 0.5);
    return font;
}

FixedFont boxFont() {
    QFont font = reportFont();
    FixedFont box;
    box.name = QFontInfo(font).family().toStdString();
    box.halfPoints = qRound(font.pointSizeF() * 2);
    // So large that no rounding to pixels shows.
    constexpr int pixels = 1000;
    font.setPixelSize(pixels);
    box.width = QFontMetricsF(font).horizontalAdvance(u'-') / pixels;
    return box;
}

int narrowestBox(const QFont& font) {
    return qCeil(QFontMetricsF(font).horizontalAdvance(u'-') * narrowestLine + pixels(besideRule));
}

void prepare(QTextDocument& document, const QFont& font) {
    document.setDefaultFont(font);
    QTextOption option = document.defaultTextOption();
    option.setTabStopDistance(8 * QFontMetricsF(font).horizontalAdvance(u' '));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document.setDefaultTextOption(option);
}

Paragraph paragraphOf(const QTextBlock& block) {
    return partOf(block, 0, block.length());
}

std::vector<Paragraph> paragraphsOf(const QTextDocument& document) {
    std::vector<Paragraph> paragraphs;
    paragraphs.reserve(static_cast<std::size_t>(document.blockCount()));
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        paragraphs.push_back(paragraphOf(block));
    return paragraphs;
}

RichText fragment(const QTextDocument& document, int start, int length) {
    std::vector<Paragraph> paragraphs;
    const int end = start + length;
    for (QTextBlock block = document.findBlock(start); block.isValid() && block.position() <= end;
         block = block.next())
        paragraphs.push_back(partOf(block, start - block.position(), end - block.position()));
    return RichText(std::move(paragraphs));
}

int update(QTextDocument& document, const RichText& text) {
    const auto& paragraphs = text.paragraphs();
    const int now = document.blockCount();
    const int wanted = static_cast<int>(paragraphs.size());
    const auto paragraph = [&](int i) -> const Paragraph& {
        return paragraphs[static_cast<std::size_t>(i)];
    };

    int first = 0;
    QTextBlock head = document.begin();
    while (first < std::min(now, wanted) && shows(head, paragraph(first))) {
        ++first;
        head = head.next();
    }
    if (first == now && first == wanted)
        return -1;
    int same = 0;
    QTextBlock tail = document.lastBlock();
    while (same < std::min(now, wanted) - first && shows(tail, paragraph(wanted - 1 - same))) {
        ++same;
        tail = tail.previous();
    }

    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    if (first == now) {
        cursor.movePosition(QTextCursor::End);
        cursor.insertBlock();
    } else if (now - same == first) {
        // Nothing goes; a block for the first new paragraph stands in front of those that stay.
        cursor.setPosition(head.position());
        cursor.insertBlock();
        cursor.setPosition(document.findBlockByNumber(first).position());
    } else if (wanted - same == first) {
        // Blocks go and none comes: with one of the ends that part them from those that stay.
        const bool atStart = first == 0;
        cursor.setPosition(atStart ? 0 : head.previous().position() + head.previous().length() - 1);
        cursor.setPosition(atStart ? tail.next().position() : tail.position() + tail.length() - 1,
                           QTextCursor::KeepAnchor);
        const QTextBlockFormat kept = (atStart ? tail.next() : head.previous()).blockFormat();
        cursor.removeSelectedText();
        cursor.setBlockFormat(kept);
        cursor.endEditBlock();
        return std::min(first, wanted - 1);
    } else {
        cursor.setPosition(head.position());
        cursor.setPosition(tail.position() + tail.length() - 1, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
    for (int i = first; i < wanted - same; ++i) {
        if (i > first)
            cursor.insertBlock();
        insert(cursor, paragraph(i));
        if ((i - first + 1) % batch == 0) {
            // What was inserted is laid out when its step ends, all at once. Joined to the former
            // one, the next batch belongs to the same step of the history.
            cursor.endEditBlock();
            LongWork::step(i - first, wanted - same - first);
            cursor.joinPreviousEditBlock();
        }
    }
    cursor.endEditBlock();
    return first;
}

void layOut(const QTextDocument& document) {
    const QAbstractTextDocumentLayout& layout = *document.documentLayout();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockNumber() % batch == 0) {
            static_cast<void>(layout.blockBoundingRect(block));
            LongWork::step(block.blockNumber(), document.blockCount());
        }
    }
    static_cast<void>(layout.documentSize());
}

} // namespace caudalera::richtext
