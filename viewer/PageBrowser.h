#pragma once

#include "viewer/ChmFile.h"

#include <QHash>
#include <QTextBrowser>
#include <QTimer>

namespace caudalera::viewer {

/// Shows the pages of a help file; links to the web go to the system's browser.
class PageBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit PageBrowser(const ChmFile& file, QWidget* parent = nullptr);

    /// Path of the page that is shown.
    QString page() const { return page_; }
    void openPage(const QString& path);
    /// Marks these words in the page and goes to the first of them; none takes the marks away.
    void mark(const QStringList& words);

    QVariant loadResource(int type, const QUrl& name) override;

signals:
    void pageChanged();

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// The picture at a path of the file, no wider than the page.
    QImage picture(const QString& path) const;
    int widestPicture() const;
    /// Gives the pictures of the page the room that there is now.
    void fitPictures();

    const ChmFile& file_;
    QString page_;
    /// The page's pictures, by the names that the document knows them by.
    QHash<QUrl, QString> pictures_;
    /// They get the new width once the user has stopped dragging.
    QTimer refit_;
    int fittedWidth_ = 0;
};

} // namespace caudalera::viewer
