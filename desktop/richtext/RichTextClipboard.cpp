#include "desktop/richtext/RichTextClipboard.h"

#include "desktop/richtext/LayoutLimits.h"
#include "desktop/richtext/QtText.h"
#include "desktop/richtext/RichTextBridge.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <utility>

namespace caudalera::richtext {

namespace {

QString plainName() {
    return QStringLiteral("text/plain");
}
QString htmlName() {
    return QStringLiteral("text/html");
}

/// Names of RTF. The last is how the toolkit tells the name that it has on Windows.
QStringList rtfNames() {
    return {QStringLiteral("text/rtf"), QStringLiteral("application/rtf"),
            QStringLiteral("application/x-qt-windows-mime;value=\"Rich Text Format\"")};
}

class RichTextData : public QMimeData {
public:
    explicit RichTextData(std::string rtf) : rtf_(std::move(rtf)) {}

    QStringList formats() const override {
        QStringList names = rtfNames();
#ifndef Q_OS_WIN
        names.removeLast();
#endif
        return names + QStringList{htmlName(), plainName()};
    }

protected:
    QVariant retrieveData(const QString& name, QMetaType /*type*/) const override {
        if (rtfNames().contains(name))
            return QByteArray::fromStdString(rtf_);
        if (name == plainName())
            return toQString(readRtf(rtf_).text());
        if (name == htmlName())
            return html();
        return {};
    }

private:
    QVariant html() const {
        const RichText text = readRtf(rtf_);
        if (!excess(text).isEmpty())
            return {};
        QTextDocument document;
        document.setUndoRedoEnabled(false);
        prepare(document, reportFont());
        update(document, text);
        return document.toHtml();
    }

    std::string rtf_;
};

/// A page as it stands: it fetches neither pictures nor styles from elsewhere.
class Page : public QTextDocument {
protected:
    QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return {}; }
};

/// Line ends inside a paragraph; the model knows paragraphs alone.
void breakLines(QTextDocument& page) {
    const QString lineEnd(QChar::LineSeparator);
    for (QTextCursor at = page.find(lineEnd); !at.isNull(); at = page.find(lineEnd, at))
        at.insertBlock();
}

/// The blocks as paragraphs, of a table each row as one with tabs between the cells.
std::vector<Paragraph> rowsOf(const QTextDocument& page) {
    std::vector<Paragraph> rows;
    QTextTableCell last;
    const QTextTable* lastTable = nullptr;
    for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
        const QTextTable* table = QTextCursor(block).currentTable();
        const QTextTableCell cell = table ? table->cellAt(block.position()) : QTextTableCell();
        Paragraph paragraph = paragraphOf(block);
        for (TextRun& run : paragraph.runs) {
            // Where pictures were.
            run.text = toQString(run.text).remove(QChar::ObjectReplacementCharacter).toStdString();
        }
        if (table && table == lastTable && cell.row() == last.row()) {
            rows.back().runs.push_back({cell == last ? " " : "\t", {}});
            for (TextRun& run : paragraph.runs)
                rows.back().runs.push_back(std::move(run));
        } else {
            rows.push_back(std::move(paragraph));
        }
        lastTable = table;
        last = cell;
    }
    return rows;
}

std::string fromHtml(const QString& html) {
    Page page;
    page.setUndoRedoEnabled(false);
    page.setHtml(html);
    breakLines(page);
    return writeRtf(RichText(rowsOf(page)), boxFont());
}

} // namespace

std::unique_ptr<QMimeData> toClipboard(std::string rtf) {
    return std::make_unique<RichTextData>(std::move(rtf));
}

std::string fromClipboard(const QMimeData& clipboard) {
    for (const QString& name : rtfNames()) {
        std::string source = clipboard.data(name).toStdString();
        if (looksLikeRtf(source))
            return source;
    }
    std::string plain = clipboard.text().toStdString();
    if (!clipboard.hasHtml() || looksLikeRtf(plain))
        return plain;
    const QString html = clipboard.html();
    // Where it could not be shown anyhow, it is not worth the time that the page takes.
    return static_cast<std::size_t>(html.size()) > mostCharacters ? plain : fromHtml(html);
}

} // namespace caudalera::richtext
