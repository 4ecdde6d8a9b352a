#include "desktop/report/ReportWindow.h"

#include "desktop/report/DocumentFrame.h"
#include "desktop/report/DocumentStrip.h"
#include "desktop/report/DocumentView.h"
#include "desktop/richtext/QtText.h"
#include "desktop/session/Session.h"
#include "desktop/style/LongWork.h"
#include "desktop/style/Style.h"
#include "shell/report/frmPadre.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

namespace caudalera {

namespace {

constexpr double twipsPerInch = 1440;
/// Bytes that take some time to be read.
constexpr std::size_t longSource = 1 << 20;

/// The keys that such commands have everywhere; empty for the others.
QList<QKeySequence> shortcutsOf(const frmPadre& padre, const MenuEntry& entry) {
    const std::pair<const MenuEntry*, QKeySequence::StandardKey> keys[] = {
        {&padre.mnuFileNew, QKeySequence::New},     {&padre.mnuFileOpen, QKeySequence::Open},
        {&padre.mnuFileSave, QKeySequence::Save},   {&padre.mnuFilePrint, QKeySequence::Print},
        {&padre.mnuEditCut, QKeySequence::Cut},     {&padre.mnuEditCopy, QKeySequence::Copy},
        {&padre.mnuEditPaste, QKeySequence::Paste},
    };
    for (const auto& [each, key] : keys) {
        if (each == &entry)
            return QKeySequence::keyBindings(key);
    }
    return {};
}

/// The rectangle moved, and where it must be shrunk, so that all of it lies on a screen.
QRect onScreen(QRect rect) {
    const QScreen* screen = QGuiApplication::screenAt(rect.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return rect;
    const QRect room = screen->availableGeometry();
    rect.setSize(rect.size().boundedTo(room.size()));
    rect.moveLeft(std::clamp(rect.left(), room.left(), room.right() + 1 - rect.width()));
    rect.moveTop(std::clamp(rect.top(), room.top(), room.bottom() + 1 - rect.height()));
    return rect;
}

} // namespace

ReportWindow::ReportWindow(Session& session, frmPadre& padre)
    : session_(session), padre_(padre), area_(new QMdiArea),
      strip_(
          new DocumentStrip(padre, [this](const frmDocumento& document) { activate(document); })) {
    setObjectName(toQString(padre.name()));
    setWindowTitle(toQString(padre.caption));
    setWindowIcon(style::icon(QStringLiteral("app")));
    auto* ground = new QWidget;
    auto* column = new QVBoxLayout(ground);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(area_);
    column->addWidget(strip_);
    setCentralWidget(ground);
    area_->setBackground(palette().mid());
    buildMenu();
    for (std::size_t i = 0; i < padre_.sbStatusBar.panels.size(); ++i) {
        panels_.push_back(new QLabel(this));
        statusBar()->addWidget(panels_.back(), 1);
    }
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        const auto* frame = static_cast<DocumentFrame*>(window);
        if (frame && padre_.active() != frame->document())
            activate(*frame->document());
    });
    place();
    sync();
}

ReportWindow::~ReportWindow() {
    // The area tells of windows that go; nobody is left to hear it.
    area_->disconnect(this);
}

void ReportWindow::buildMenu() {
    for (const MenuEntry* title : padre_.menuBar)
        menuBar()->addMenu(menuOf(*title));
}

QMenu* ReportWindow::menuOf(const MenuEntry& title) {
    auto* menu = new QMenu(toQString(title.caption), this);
    menu->setToolTipsVisible(true);
    for (MenuEntry* entry : title.entries) {
        if (!entry) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(toQString(entry->caption));
        action->setObjectName(toQString(entry->name()));
        action->setShortcuts(shortcutsOf(padre_, *entry));
        connect(action, &QAction::triggered, this, [this, entry] { click(*entry); });
        actions_.emplace_back(entry, action);
    }
    if (&title == &padre_.mnuEdit)
        editMenu_ = menu;
    return menu;
}

void ReportWindow::activate(const frmDocumento& chosen) {
    session_.act([&] {
        for (const auto& document : padre_.documents()) {
            if (document.get() == &chosen) {
                padre_.activate(*document);
                return;
            }
        }
    });
}

void ReportWindow::click(MenuEntry& entry) {
    recordPlace();
    const LongWork work;
    const DocumentFrame* const frame = frameOf(padre_.active());
    if (frame && refused(entry, frame->view()))
        return;
    session_.platform().takeChosenFile();
    {
        const QScopedValueRollback<bool> commanding(commanding_, true);
        session_.act([&] { session_.program().click(entry); });
    }
    if (!session_.program().ended() && padre_.loaded())
        confirmSaving(entry);
}

bool ReportWindow::refused(const MenuEntry& entry, DocumentView& view) {
    const auto tell = [this](const Message& message) {
        session_.act([&] { session_.platform().showMessage(message); });
        return true;
    };
    if (view.shownWhole()) {
        if (&entry != &padre_.mnuEditPaste)
            return false;
        const std::string source = session_.platform().clipboardRichText();
        if (source.size() > longSource)
            LongWork::announce();
        const QString excess = view.excessWith(readRtf(source));
        return !excess.isEmpty() && tell(refusedPaste(excess));
    }
    if (&entry == &padre_.mnuEditCopy) {
        // The selection is not the model's.
        view.copy();
        return true;
    }
    if (&entry == &padre_.mnuEditCut || &entry == &padre_.mnuEditPaste ||
        &entry == &padre_.mnuFilePrint) {
        const QString text =
            QStringLiteral("Este documento es demasiado largo para editarlo o imprimirlo aquí: %1.")
                .arg(view.excess());
        return tell({text.toStdString(), {}, Icon::information});
    }
    return false;
}

void ReportWindow::confirmSaving(const MenuEntry& entry) {
    const auto chosen = session_.platform().takeChosenFile();
    if (&entry != &padre_.mnuFileSave && &entry != &padre_.mnuFileSaveAs)
        return;
    // Without a dialog the document went to its own file.
    const std::string path = chosen.value_or(padre_.active()->caption);
    // What was done a while ago must not hide the panel behind it.
    constexpr int shownFor = 10000;
    if (!path.empty())
        statusBar()->showMessage(QStringLiteral("Guardado: %1").arg(toQString(path)), shownFor);
}

void ReportWindow::place() {
    const auto& at = padre_.place;
    const auto across = [this](double twips) {
        return qRound(twips * logicalDpiX() / twipsPerInch);
    };
    const auto down = [this](double twips) { return qRound(twips * logicalDpiY() / twipsPerInch); };
    // Where a screen is gone since, the window comes back into sight, but the place that was
    // stored stays until the user moves it.
    placed_ = onScreen({across(at.left), down(at.top), across(at.width), down(at.height)});
    resize(placed_.size());
    move(placed_.topLeft());
    if (session_.reportsMaximized)
        setWindowState(Qt::WindowMaximized);
}

void ReportWindow::recordPlace() {
    if (!isVisible() || session_.busy())
        return;
    const bool minimized = isMinimized();
    const QRect now = minimized ? placed_ : QRect(pos(), size());
    if (now == placed_ && minimized == padre_.place.minimized)
        return;
    session_.act([&] {
        auto& at = padre_.place;
        at.minimized = minimized;
        const auto record = [](double& twips, int before, int after, int dpi) {
            // What has not moved keeps its twips, which pixels are too coarse to tell.
            if (before != after)
                twips = after * twipsPerInch / dpi;
        };
        record(at.left, placed_.x(), now.x(), logicalDpiX());
        record(at.top, placed_.y(), now.y(), logicalDpiY());
        record(at.width, placed_.width(), now.width(), logicalDpiX());
        record(at.height, placed_.height(), now.height(), logicalDpiY());
    });
    placed_ = now;
}

bool ReportWindow::needsDocument(const MenuEntry& entry) const {
    return &entry == &padre_.mnuFileSave || &entry == &padre_.mnuFileSaveAs ||
           &entry == &padre_.mnuFilePrint || &entry == &padre_.mnuEditCut ||
           &entry == &padre_.mnuEditCopy || &entry == &padre_.mnuEditPaste;
}

void ReportWindow::sync() {
    for (const auto& [entry, action] : actions_) {
        if (action->text() != toQString(entry->caption))
            action->setText(toQString(entry->caption));
        const bool prints = entry == &padre_.mnuFilePrint;
        const QString missing = prints ? session_.printers().anyMissing() : QString();
        action->setToolTip(missing);
        const bool enabled =
            entry->enabled && missing.isEmpty() && (padre_.active() || !needsDocument(*entry));
        if (action->isEnabled() != enabled)
            action->setEnabled(enabled);
    }
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const QString panel = toQString(padre_.sbStatusBar.panels[i]);
        if (panels_[i]->text() != panel)
            panels_[i]->setText(panel);
    }
    syncDocuments();
}

void ReportWindow::syncDocuments() {
    const auto& documents = padre_.documents();
    bool maximized = false;
    std::erase_if(frames_, [&](DocumentFrame* frame) {
        const bool open = std::any_of(documents.begin(), documents.end(), [&](const auto& each) {
            return each.get() == frame->document();
        });
        if (!open) {
            maximized = maximized || frame->isMaximized();
            area_->removeSubWindow(frame);
            session_.retire(*frame);
        }
        return !open;
    });
    for (const auto& document : documents) {
        if (DocumentFrame* frame = frameOf(document.get())) {
            frame->sync(commanding_ ? DocumentView::Following::caret
                                    : DocumentView::Following::report);
            continue;
        }
        auto* view = new DocumentView(session_, padre_, *document, *editMenu_,
                                      [this](MenuEntry& entry) { click(entry); });
        frmDocumento& shown = *document;
        auto* frame = new DocumentFrame(
            shown, view, [this, &shown] { session_.act([&] { padre_.closeDocument(shown); }); });
        share(*frame, document);
        frames_.push_back(frame);
        area_->addSubWindow(frame);
        // Reports are wide: the first document takes all the room, the others follow suit.
        if (frames_.size() == 1) {
            frame->showMaximized();
        } else {
            frame->show();
        }
    }
    DocumentFrame* active = frameOf(padre_.active());
    if (active && area_->currentSubWindow() != active)
        area_->setActiveSubWindow(active);
    strip_->sync();
    // The next one takes over the room of the one that went.
    if (active && maximized)
        active->showMaximized();
}

DocumentFrame* ReportWindow::frameOf(const frmDocumento* document) const {
    const auto found = std::find_if(frames_.begin(), frames_.end(), [&](const auto* frame) {
        return frame->document() == document;
    });
    return found == frames_.end() ? nullptr : *found;
}

void ReportWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    recordPlace();
    session_.act([this] { session_.program().close(padre_); });
}

void ReportWindow::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    recordPlace();
}

void ReportWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    recordPlace();
}

void ReportWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange)
        return;
    if (!isMinimized())
        session_.reportsMaximized = isMaximized();
    recordPlace();
}

} // namespace caudalera
