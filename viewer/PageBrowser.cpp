#include "viewer/PageBrowser.h"

#include "viewer/HelpSearch.h"

#include <QDesktopServices>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>

namespace caudalera::viewer {

PageBrowser::PageBrowser(const ChmFile& file, QWidget* parent) : QTextBrowser(parent), file_(file) {
    setOpenLinks(false);
    document()->setDocumentMargin(fontMetrics().height());
    refit_.setSingleShot(true);
    refit_.setInterval(150);
    connect(&refit_, &QTimer::timeout, this, [this] {
        if (fittedWidth_ == viewport()->width() || page().isEmpty())
            return;
        const int at = verticalScrollBar()->value();
        document()->clear();
        reload();
        verticalScrollBar()->setValue(at);
    });
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
        const QUrl target = source().resolved(link);
        if (target.scheme() == QLatin1String("chm")) {
            setSource(target);
        } else {
            QDesktopServices::openUrl(target);
        }
    });
    // The toolkit's own source() is still the one before when it says so.
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
        page_ = url.path();
        emit pageChanged();
    });
}

void PageBrowser::openPage(const QString& path) {
    QUrl url(path, QUrl::TolerantMode);
    url.setScheme(QStringLiteral("chm"));
    if (url == source()) {
        scrollToAnchor(url.fragment());
    } else {
        setSource(url);
    }
}

void PageBrowser::mark(const QStringList& words) {
    QList<QTextEdit::ExtraSelection> marks;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        for (const Place& place : placesOf(block.text(), words)) {
            QTextCursor cursor(block);
            cursor.setPosition(block.position() + static_cast<int>(place.at));
            cursor.setPosition(cursor.position() + static_cast<int>(place.length),
                               QTextCursor::KeepAnchor);
            QTextCharFormat format;
            format.setBackground(QColor(0xFF, 0xE9, 0x8A));
            marks.append({cursor, format});
        }
    }
    setExtraSelections(marks);
    if (!marks.isEmpty()) {
        QTextCursor first = marks.constFirst().cursor;
        first.clearSelection();
        setTextCursor(first);
        ensureCursorVisible();
    }
}

QVariant PageBrowser::loadResource(int type, const QUrl& name) {
    const QByteArray bytes = file_.read(source().resolved(name).path());
    if (type == QTextDocument::ImageResource)
        return image(bytes);
    return QString::fromUtf8(bytes);
}

QImage PageBrowser::image(const QByteArray& bytes) const {
    QImage picture = QImage::fromData(bytes);
    // The page has margins within those of the document, and a bar may come beside it.
    const int width = viewport()->width() - 9 * fontMetrics().height();
    const_cast<PageBrowser*>(this)->fittedWidth_ = viewport()->width();
    if (width > 0 && picture.width() > width)
        picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
    return picture;
}

void PageBrowser::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    refit_.start();
}

void PageBrowser::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() & Qt::ControlModifier) {
        zoomInF(event->angleDelta().y() > 0 ? 1 : -1);
        event->accept();
        return;
    }
    QTextBrowser::wheelEvent(event);
}

} // namespace caudalera::viewer
