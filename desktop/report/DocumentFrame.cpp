#include "desktop/report/DocumentFrame.h"

#include "desktop/report/DocumentView.h"
#include "desktop/richtext/QtText.h"
#include "desktop/style/Style.h"
#include "shell/report/frmDocumento.h"

#include <QCloseEvent>
#include <QShortcut>
#include <QVBoxLayout>

namespace caudalera {

namespace {

/// Room around the box on each side, in twips.
constexpr int inset = 100;

} // namespace

DocumentFrame::DocumentFrame(frmDocumento& document, DocumentView* view,
                             std::function<void()> onClose)
    : document_(document), view_(view), onClose_(std::move(onClose)) {
    auto* ground = new QWidget;
    auto* layout = new QVBoxLayout(ground);
    const int margin = inset * logicalDpiX() / 1440;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(view);
    ground->setFocusProxy(view);
    setWidget(ground);
    setWindowIcon(style::icon(QStringLiteral("Reporte")));
    // Its entries would be those of Qt, in the language of the system.
    setSystemMenu(nullptr);
    // The key that such a window has everywhere went with that menu.
    auto* close = new QShortcut(Qt::CTRL | Qt::Key_F4, this);
    close->setContext(Qt::WidgetWithChildrenShortcut);
    connect(close, &QShortcut::activated, this, &QWidget::close);
    setAttribute(Qt::WA_DeleteOnClose, false);
    sync();
}

void DocumentFrame::sync() {
    const QString caption = toQString(document_.caption);
    if (windowTitle() != caption)
        setWindowTitle(caption);
    view_->sync();
}

void DocumentFrame::closeEvent(QCloseEvent* event) {
    event->ignore();
    onClose_();
}

} // namespace caudalera
