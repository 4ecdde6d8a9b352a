#include "viewer/PageBrowser.h"

#include "viewer/HelpSearch.h"

#include <QDesktopServices>
#include <QImage>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>

namespace caudalera::viewer {

PageBrowser::PageBrowser(const ChmFile& file, QWidget* parent) : QTextBrowser(parent), file_(file) {
    setOpenLinks(false);
    document()->setDocumentMargin(fontMetrics().height());
    refit_.setSingleShot(true);
    refit_.setInterval(150);
    connect(&refit_, &QTimer::timeout, this, &PageBrowser::fitPictures);
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

void PageBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    pictures_.clear();
    QTextBrowser::doSetSource(name, type);
    // The document remembers those of an earlier visit, at the width of then.
    fittedWidth_ = 0;
    fitPictures();
}

QVariant PageBrowser::loadResource(int type, const QUrl& name) {
    const QString path = source().resolved(name).path();
    if (type != QTextDocument::ImageResource)
        return QString::fromUtf8(file_.read(path));
    pictures_.insert(name, path);
    return picture(path);
}

int PageBrowser::widestPicture() const {
    // The page has margins within those of the document, and a bar may come beside it.
    return std::max(width() - 9 * fontMetrics().height(), 1);
}

QImage PageBrowser::picture(const QString& path) const {
    const QImage whole = QImage::fromData(file_.read(path));
    return whole.width() <= widestPicture()
               ? whole
               : whole.scaledToWidth(widestPicture(), Qt::SmoothTransformation);
}

void PageBrowser::fitPictures() {
    if (fittedWidth_ == widestPicture())
        return;
    fittedWidth_ = widestPicture();
    for (auto each = pictures_.cbegin(); each != pictures_.cend(); ++each)
        document()->addResource(QTextDocument::ImageResource, each.key(), picture(each.value()));
    document()->markContentsDirty(0, document()->characterCount());
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
