#include "desktop/windows/MainWindow.h"

#include "desktop/controls/ButtonViews.h"
#include "desktop/controls/PictureView.h"
#include "desktop/style/Style.h"
#include "shell/main/frmCaudalera.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>

namespace caudalera {

namespace {

constexpr double shareOfScreen = 0.7;

} // namespace

MainWindow::MainWindow(Session& session, frmCaudalera& window)
    : session_(session), window_(window) {
    setObjectName(toQString(window.name()));
    buildMenu();
    auto* cover = new Drawing(toQString(window.imgPortada.image()), style::coverGround(), this);
    setCentralWidget(cover);
    exit_ = new CommandButton(session, window.bsalir, cover);
    QPalette pale = exit_->palette();
    pale.setColor(QPalette::Button, style::paleAccent());
    exit_->setPalette(pale);
    sync();
    resize(QSizeF(screen()->availableSize() * shareOfScreen)
               .toSize()
               .expandedTo({menuBar()->sizeHint().width() + 2 * style::unit(), 0}));
}

void MainWindow::buildMenu() {
    for (const MenuEntry* title : window_.menuBar)
        fill(*menuBar()->addMenu(toQString(title->caption)), *title);
}

void MainWindow::fill(QMenu& menu, const MenuEntry& title) {
    menu.setObjectName(toQString(title.name()));
    for (MenuEntry* entry : title.entries) {
        if (!entry) {
            menu.addSeparator();
            continue;
        }
        QAction* action = menu.addAction(toQString(entry->caption), this, [this, entry] {
            session_.act([&] { session_.program().click(*entry); });
        });
        action->setObjectName(toQString(entry->name()));
        action->setMenuRole(QAction::NoRole);
        actions_.emplace_back(entry, action);
    }
}

void MainWindow::sync() {
    if (const QString title = toQString(window_.caption); windowTitle() != title)
        setWindowTitle(title);
    for (const auto& [entry, action] : actions_) {
        if (action->isEnabled() != entry->enabled)
            action->setEnabled(entry->enabled);
    }
    exit_->sync();
    placeExit();
}

void MainWindow::placeExit() {
    const QSize size = exit_->sizeHint();
    const QSize room = centralWidget()->size();
    const int margin = 2 * style::unit();
    exit_->setGeometry(
        QRect(QPoint(room.width() - size.width() - margin, room.height() - size.height() - margin),
              size));
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    placeExit();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    session_.act([this] { session_.program().close(window_); });
}

} // namespace caudalera
