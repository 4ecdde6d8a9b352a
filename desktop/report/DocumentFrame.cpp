#include "desktop/report/DocumentFrame.h"

#include "desktop/richtext/QtText.h"
#include "desktop/style/Style.h"
#include "shell/report/frmDocumento.h"

#include <QCloseEvent>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace caudalera {

namespace {

/// Room around the box on each side, in twips.
constexpr int inset = 100;

} // namespace

DocumentFrame::DocumentFrame(frmDocumento& document, DocumentView* view,
                             std::function<void()> onClose)
    : document_(document), view_(view), notice_(new QLabel), onClose_(std::move(onClose)) {
    auto* ground = new QWidget;
    auto* layout = new QVBoxLayout(ground);
    const int margin = inset * logicalDpiX() / 1440;
    layout->setContentsMargins(margin, margin, margin, margin);
    notice_->setObjectName(QStringLiteral("notice"));
    notice_->setWordWrap(true);
    notice_->setTextFormat(Qt::PlainText);
    notice_->setMargin(style::halfUnit());
    QPalette palette = notice_->palette();
    palette.setColor(QPalette::Window, style::paleAccent());
    notice_->setPalette(palette);
    notice_->setAutoFillBackground(true);
    layout->addWidget(notice_);
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
    sync(DocumentView::Following::report);
}

void DocumentFrame::sync(DocumentView::Following following) {
    const QString caption = toQString(document_.caption);
    if (windowTitle() != caption)
        setWindowTitle(caption);
    view_->sync(following);
    notice_->setVisible(!view_->shownWhole());
    if (view_->shownWhole())
        return;
    notice_->setText(
        QStringLiteral("Este documento es demasiado largo para mostrarlo entero: %1. Se "
                       "ve su comienzo y aquí no se puede editar ni imprimir; «Guardar» "
                       "lo escribe completo.")
            .arg(view_->excess()));
}

void DocumentFrame::closeEvent(QCloseEvent* event) {
    event->ignore();
    onClose_();
}

} // namespace caudalera
