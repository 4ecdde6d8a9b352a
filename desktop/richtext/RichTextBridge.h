#pragma once

#include "shell/richtext/RichText.h"

#include <QFont>
#include <QSizeF>
#include <cstddef>
#include <memory>
#include <vector>

class QPagedPaintDevice;
class QTextBlock;
class QTextDocument;

/// Between the rich text of the model and Qt's text documents. A paragraph is a block, a run a
/// stretch of characters; what the model leaves open (font, size, colour) stays open in the
/// document too and shows as its default.
namespace caudalera::richtext {

/// Font of reports. They lay out their tables with blanks counted in characters and with tabs, so
/// only a font of one width for all characters lines the columns up. It takes the system's size,
/// or smaller if the widest tables would not fit a maximised window on the screen.
QFont reportFont();
/// The same font as the model names it, by the family that stands for it on this system.
FixedFont boxFont();
/// Width of a box in which a line has room for `narrowestLine` characters.
int narrowestBox(const QFont& font);
/// Default font and tab stops (every eight characters) of a document that shows a report.
void prepare(QTextDocument& document, const QFont& font);

/// Brings a document in line with the text. Only the blocks between the first and the last that
/// differ are replaced, as one step of the document's history. Gives the number of the first block
/// that was replaced, -1 if none was.
int update(QTextDocument& document, const RichText& text);

/// Lays all of a document out, which the toolkit otherwise does while it is idle.
void layOut(const QTextDocument& document);

/// A block as a paragraph of the model.
Paragraph paragraphOf(const QTextBlock& block);
std::vector<Paragraph> paragraphsOf(const QTextDocument& document);
/// Characters [start, start + length) of a document, counted in UTF-16 units.
RichText fragment(const QTextDocument& document, int start, int length);

/// A document of its own for printing, in a font of one width at 10 points, laid out in pages of
/// the paper's proportions (its printable part, in inches). They are as wide as the paper or, where
/// tables are wider, as these; printing scales the pages to the paper as a whole.
std::unique_ptr<QTextDocument> toTextDocument(const RichText& text, const QSizeF& paper);
/// Prints a text on the device's pages.
void print(const RichText& text, QPagedPaintDevice& device);

} // namespace caudalera::richtext
