#include "desktop/richtext/RichTextBridge.h"
#include "desktop/style/Style.h"

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QTextDocument>

namespace caudalera::richtext {

namespace {

/// The document's own measures are those of a device of this many dots per inch.
constexpr double documentDpi = 96;
/// White around the text on every side, on top of what the printer leaves.
constexpr double marginInches = 0.4;

} // namespace

std::unique_ptr<QTextDocument> toTextDocument(const RichText& text, const QSizeF& paper) {
    auto document = std::make_unique<QTextDocument>();
    QFont font = style::fixedFont();
    font.setPointSizeF(10);
    document->setUndoRedoEnabled(false);
    prepare(*document, font);
    document->setDocumentMargin(marginInches * documentDpi);
    update(*document, text);
    QSizeF page = paper * documentDpi;
    document->setPageSize(page);
    // Lines that may not break reach past a page that is too narrow for them.
    if (const double needed = document->size().width(); needed > page.width())
        page *= needed / page.width();
    document->setPageSize(page);
    return document;
}

void print(const RichText& text, QPagedPaintDevice& device) {
    toTextDocument(text, device.pageLayout().paintRect(QPageLayout::Inch).size())->print(&device);
}

} // namespace caudalera::richtext
