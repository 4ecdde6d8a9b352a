#pragma once

#include "viewer/ChmFile.h"

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
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QImage image(const QByteArray& bytes) const;

    const ChmFile& file_;
    QString page_;
    /// Pictures get the new width once the user has stopped dragging.
    QTimer refit_;
    int fittedWidth_ = 0;
};

} // namespace caudalera::viewer
