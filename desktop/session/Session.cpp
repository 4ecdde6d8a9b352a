#include "desktop/session/Session.h"

#include "desktop/style/LongWork.h"
#include "shell/main/frmCaudalera.h"
#include "shell/window/Nesting.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <exception>
#include <utility>

namespace caudalera {

namespace {

/// What a person does to a widget, the keyboard that comes to it included.
bool isInput(const QEvent& event) {
    switch (event.type()) {
    case QEvent::FocusIn:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return event.isInputEvent();
    }
}

/// The decimal key of the number pad where the layout writes a comma: numbers here have a point.
bool isDecimalKeyWithComma(const QKeyEvent& key) {
    return (key.modifiers() & Qt::KeypadModifier) &&
           (key.key() == Qt::Key_Comma || key.text() == u",");
}

} // namespace

void share(QWidget& widget, std::shared_ptr<const void> shown) {
    // Connections go behind the children.
    QObject::connect(&widget, &QObject::destroyed, [shown = std::move(shown)] {});
}

Session::Session(const std::vector<WindowEntry>& windows, ViewFactory makeView)
    : platform_(*this), program_(platform_, windows), makeView_(std::move(makeView)) {
    qApp->installEventFilter(this);
    connect(&printers_, &Printers::changed, this, [this] { act([] {}); });
}

Session::~Session() {
    const Nesting nesting(depth_);
    for (const auto& widget : retired_)
        delete widget;
    for (const Opened& opened : views_)
        delete &opened.view->widget();
}

void Session::start() {
    act([this] { program_.start(); });
}

void Session::act(const std::function<void()>& event) {
    if (busy())
        return;
    const LongWork work;
    try {
        {
            const Nesting nesting(depth_);
            event();
        }
        if (!program_.ended())
            sync();
    } catch (...) {
        fail();
    }
}

void Session::fail() {
    // While the box stands, there is nothing to be done behind it.
    const Nesting nesting(depth_);
    try {
        try {
            throw;
        } catch (const std::exception& fault) {
            program_.fail(fault.what());
        } catch (...) {
            program_.fail({});
        }
    } catch (...) {
        // Not even the words could be shown.
    }
    end({Ending::Reason::fault, 0, {}});
}

void Session::sync() {
    const Nesting nesting(depth_);
    retireUnloaded();
    openNew();
    for (const Opened& opened : views_)
        opened.view->sync();
    raiseShown();
}

void Session::retireUnloaded() {
    std::erase_if(views_, [&](const Opened& opened) {
        const bool loaded = opened.window->loaded();
        if (!loaded)
            retire(opened.view->widget());
        return !loaded;
    });
}

void Session::retire(QWidget& widget) {
    std::erase(retired_, nullptr);
    retired_.emplace_back(&widget);
    widget.hide();
    widget.deleteLater();
}

bool Session::retired(const QObject* object) const {
    for (; object && !retired_.empty(); object = object->parent()) {
        if (std::find(retired_.begin(), retired_.end(), object) != retired_.end())
            return true;
    }
    return false;
}

void Session::openNew() {
    for (const auto& window : program_.windows()) {
        if (viewOf(*window))
            continue;
        View* const view = makeView_(*this, *window);
        share(view->widget(), window);
        views_.push_back({window.get(), 0, view});
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
    if (!std::exchange(ended_, true))
        emit ended(ending.reason == Ending::Reason::exit ? 0 : 1);
}

void Session::help(const QWidget& widget) {
    const Window* about = nullptr;
    // A dialog belongs to the window that it stands before.
    for (const QWidget* each = &widget; each && !about; each = each->parentWidget()) {
        for (const Opened& opened : views_) {
            if (&opened.view->widget() == each)
                about = opened.window;
        }
    }
    if (!platform_.openHelp(about))
        act([this] { platform_.showMessage(sinAyuda); });
}

bool Session::eventFilter(QObject* watched, QEvent* event) {
    if (isInput(*event) && retired(watched))
        return true;
    if (event->type() == QEvent::KeyPress && watched->isWidgetType() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) {
        help(*static_cast<QWidget*>(watched));
        return true;
    }
    if (event->type() == QEvent::KeyPress && watched->isWidgetType() &&
        isDecimalKeyWithComma(*static_cast<QKeyEvent*>(event))) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        QKeyEvent point(key.type(), Qt::Key_Period, key.modifiers(), QStringLiteral("."),
                        key.isAutoRepeat());
        QCoreApplication::sendEvent(watched, &point);
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace caudalera
