#include "desktop/session/Session.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>

namespace caudalera {

namespace {

/// Counts how deep acts and syncs are nested.
class Nesting {
public:
    explicit Nesting(int& depth) : depth_(depth) { ++depth_; }
    ~Nesting() { --depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

private:
    int& depth_;
};

} // namespace

void View::retire() {
    widget().hide();
    widget().deleteLater();
}

Session::Session(const std::vector<WindowEntry>& windows, ViewFactory makeView)
    : platform_(*this), program_(platform_, windows), makeView_(std::move(makeView)) {
    qApp->installEventFilter(this);
}

Session::~Session() {
    const Nesting nesting(depth_);
    for (const Opened& opened : views_)
        delete &opened.view->widget();
}

void Session::start() {
    act([this] { program_.start(); });
}

void Session::act(const std::function<void()>& event) {
    if (busy())
        return;
    {
        const Nesting nesting(depth_);
        event();
    }
    if (!program_.ended())
        sync();
}

void Session::sync() {
    const Nesting nesting(depth_);
    closeUnloaded();
    openNew();
    for (const Opened& opened : views_)
        opened.view->sync();
    raiseShown();
}

void Session::closeUnloaded() {
    const auto& windows = program_.windows();
    std::erase_if(views_, [&](const Opened& opened) {
        const bool loaded = std::any_of(windows.begin(), windows.end(), [&](const auto& window) {
            return window.get() == opened.window;
        });
        if (!loaded)
            opened.view->retire();
        return !loaded;
    });
}

void Session::openNew() {
    for (const auto& window : program_.windows()) {
        if (!viewOf(*window))
            views_.push_back({window.get(), 0, makeView_(*this, *window)});
    }
}

void Session::raiseShown() {
    std::vector<Opened*> shown;
    for (Opened& opened : views_) {
        if (opened.window->visible && opened.window->shown > opened.shown)
            shown.push_back(&opened);
    }
    std::sort(shown.begin(), shown.end(),
              [](const Opened* a, const Opened* b) { return a->window->shown < b->window->shown; });
    for (Opened* opened : shown) {
        opened->shown = opened->window->shown;
        QWidget& widget = opened->view->widget();
        if (widget.isMinimized()) {
            widget.showNormal();
        } else {
            widget.show();
        }
        widget.raise();
        widget.activateWindow();
    }
}

QWidget* Session::viewOf(const Window& window) const {
    const auto found = std::find_if(views_.begin(), views_.end(),
                                    [&](const Opened& each) { return each.window == &window; });
    return found == views_.end() ? nullptr : &found->view->widget();
}

void Session::end(const Ending& ending) {
    emit ended(ending.reason == Ending::Reason::fatal ? 1 : 0);
}

bool Session::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && watched->isWidgetType() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) {
        platform_.openHelp();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace caudalera
