// The acts of the walk, as real events of the toolkit.
#include "desktop/grid/GridEditor.h"
#include "desktop/grid/GridView.h"
#include "tests/desktop/session/RandomWalk.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <iterator>

namespace caudalera {

namespace {

QString described(const QWidget& widget) {
    return QStringLiteral("%1 %2 in %3")
        .arg(QString::fromLatin1(widget.metaObject()->className()), widget.objectName(),
             widget.window()->objectName());
}

void postMouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
               Qt::KeyboardModifiers modifiers) {
    const bool held = type != QEvent::MouseButtonRelease;
    QCoreApplication::postEvent(&widget, new QMouseEvent(type, at, widget.mapToGlobal(at), button,
                                                         held ? button : Qt::NoButton, modifiers));
}

void postClick(QWidget& widget, const QPoint& at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    postMouse(widget, QEvent::MouseButtonPress, at, button, modifiers);
    postMouse(widget, QEvent::MouseButtonRelease, at, button, modifiers);
}

void postKey(QWidget& widget, int key, const QString& text, Qt::KeyboardModifiers modifiers) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(&widget, new QKeyEvent(type, key, modifiers, text));
}

} // namespace

void RandomWalk::open() {
    const auto& windows = ventanas();
    const std::string name(
        windows[static_cast<std::size_t>(below(static_cast<int>(windows.size())))].name);
    note(QStringLiteral("open ") + QString::fromStdString(name));
    session_->act([&] { session_->program().act([&] { session_->program().show(name); }); });
}

void RandomWalk::click() {
    QWidget* widget = anyWidget();
    if (!widget)
        return;
    note(QStringLiteral("click ") + described(*widget));
    const auto modifiers = chance(15) ? Qt::ShiftModifier : Qt::NoModifier;
    postClick(*widget, anyPoint(*widget), chance(8) ? Qt::RightButton : Qt::LeftButton, modifiers);
    if (chance(10))
        postMouse(*widget, QEvent::MouseButtonDblClick, anyPoint(*widget), Qt::LeftButton,
                  modifiers);
}

void RandomWalk::queueTwice() {
    QWidget* view = anyView();
    if (!view)
        return;
    QWidget* widget = view->findChild<QAbstractButton*>(QStringLiteral("bMenu"));
    if (!widget || chance(50))
        widget = anyWidget();
    if (!widget)
        return;
    note(QStringLiteral("click twice ") + described(*widget));
    postClick(*widget, widget->rect().center());
    postClick(*widget, widget->rect().center());
}

void RandomWalk::queueSeveral() {
    note(QStringLiteral("while it is busy"));
    for (int i = 2 + below(4); i > 0; --i) {
        switch (below(4)) {
        case 0:
            queueTwice();
            break;
        case 1:
            click();
            break;
        case 2:
            if (QWidget* widget = anyWidget())
                postKey(*widget, Qt::Key_Return, QStringLiteral("\r"), Qt::NoModifier);
            break;
        default:
            if (QWidget* view = chance(10) ? anyView() : nullptr)
                QCoreApplication::postEvent(view, new QCloseEvent);
        }
    }
}

void RandomWalk::press() {
    QWidget* widget = chance(60) ? QApplication::focusWidget() : anyWidget();
    if (!widget || !mayUse(*widget))
        return;
    static constexpr int keys[] = {
        Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape,   Qt::Key_Tab,   Qt::Key_Backtab,
        Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right, Qt::Key_Home,
        Qt::Key_End,    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Backspace,
        Qt::Key_Delete, Qt::Key_F1,     Qt::Key_F4,       Qt::Key_A,     Qt::Key_C,
        Qt::Key_V,      Qt::Key_X,      Qt::Key_Z,        Qt::Key_L,     Qt::Key_M,
        Qt::Key_R,      Qt::Key_U,      Qt::Key_Y,        Qt::Key_1};
    const auto key = static_cast<Qt::Key>(keys[below(static_cast<int>(std::size(keys)))]);
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    if (chance(30))
        modifiers = chance(50) ? Qt::ControlModifier : Qt::AltModifier;
    if (chance(15))
        modifiers |= Qt::ShiftModifier;
    note(QStringLiteral("key %1 with %2 on ").arg(key, 0, 16).arg(modifiers.toInt(), 0, 16) +
         described(*widget));
    const QPointer<QWidget> there = widget;
    QTest::keyPress(widget, key, modifiers);
    if (there)
        QTest::keyRelease(there, key, modifiers);
}

void RandomWalk::typeValue() {
    QWidget* view = anyView();
    QWidget* widget = view ? view->findChild<QWidget*>(QStringLiteral("grdt")) : nullptr;
    if (!widget || chance(30))
        widget = anyWidget();
    if (!widget)
        return;
    static const QStringList texts = {QStringLiteral("1"),     QStringLiteral("2.5"),
                                      QStringLiteral("17"),    QStringLiteral("0"),
                                      QStringLiteral("-3"),    QStringLiteral("1e300"),
                                      QStringLiteral("enero"), QStringLiteral("ñ€")};
    const QString text = texts[chance(70) ? below(3) : below(static_cast<int>(texts.size()))];
    note(QStringLiteral("type ") + text + QStringLiteral(" into ") + described(*widget));
    widget->setFocus(Qt::MouseFocusReason);
    for (const QChar character : text)
        postKey(*widget, 0, character, Qt::NoModifier);
    QCoreApplication::processEvents();
    QWidget* focused = chance(85) ? QApplication::focusWidget() : nullptr;
    if (focused && mayUse(*focused))
        postKey(*focused, Qt::Key_Return, QStringLiteral("\r"), Qt::NoModifier);
}

void RandomWalk::turnWheel() {
    QWidget* widget = anyWidget();
    if (!widget)
        return;
    note(QStringLiteral("wheel on ") + described(*widget));
    const QPoint at = anyPoint(*widget);
    const QPoint angle(0, chance(50) ? 240 : -240);
    QCoreApplication::postEvent(widget, new QWheelEvent(at, widget->mapToGlobal(at), {}, angle,
                                                        Qt::NoButton, Qt::NoModifier,
                                                        Qt::NoScrollPhase, false));
}

void RandomWalk::askForMenu() {
    QWidget* widget = anyWidget();
    if (!widget)
        return;
    note(QStringLiteral("menu of ") + described(*widget));
    const QPoint at = anyPoint(*widget);
    const auto reason = chance(50) ? QContextMenuEvent::Mouse : QContextMenuEvent::Keyboard;
    QCoreApplication::postEvent(widget, new QContextMenuEvent(reason, at, widget->mapToGlobal(at)));
}

void RandomWalk::chooseFromMenu() {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu || chance(20)) {
        note(QStringLiteral("leave the pop-up"));
        QApplication::activePopupWidget()->close();
        return;
    }
    QAction* action = any(menu->actions());
    if (!action || !mayUse(*action))
        return;
    note(QStringLiteral("choose ") + action->text());
    postClick(*menu, menu->actionGeometry(action).center());
    if (chance(20))
        postClick(*menu, menu->actionGeometry(action).center());
}

void RandomWalk::moveFocus() {
    if (chance(50)) {
        if (QWidget* view = anyView()) {
            note(QStringLiteral("activate ") + view->objectName());
            view->activateWindow();
        }
    } else if (QWidget* widget = anyWidget()) {
        note(QStringLiteral("focus to ") + described(*widget));
        widget->setFocus(Qt::TabFocusReason);
    }
}

void RandomWalk::paste() {
    static const QStringList texts = {
        QStringLiteral("1\t2\n3\t4\n5\t6\n"),
        QStringLiteral("12"),
        QString(),
        QStringLiteral("1\r\n\r\nx\r\n"),
        QStringLiteral("{\\rtf1\\ansi Caudal {\\b m\\'e1ximo}\\par 3\\tab 4}"),
        QStringLiteral("{\\rtf1 {{{"),
        QStringLiteral("cota\u2028\U0001F30A\n")};
    QWidget* widget = chance(50) ? QApplication::focusWidget() : anyWidget();
    if (!widget)
        return;
    const QString text = texts[below(static_cast<int>(texts.size()))];
    note(QStringLiteral("paste into ") + described(*widget));
    QApplication::clipboard()->setText(text);
    postKey(*widget, Qt::Key_V, QStringLiteral("\x16"), Qt::ControlModifier);
}

void RandomWalk::resize() {
    QWidget* view = anyView();
    if (!view)
        return;
    note(QStringLiteral("resize ") + view->objectName());
    if (view->isVisible() && chance(20)) {
        view->isMinimized() ? view->showNormal() : view->showMinimized();
    } else {
        view->resize(200 + below(1200), 150 + below(800));
    }
}

void RandomWalk::close() {
    QWidget* view = anyView();
    // The program ends with its last window, which is soon enough.
    if (!view || (views_.size() < 3 && chance(80)))
        return;
    note(QStringLiteral("close ") + view->objectName());
    view->close();
    if (chance(30))
        QCoreApplication::postEvent(view, new QCloseEvent);
}

void RandomWalk::takeBack() {
    QWidget* view = anyView();
    auto* grid = view ? view->findChild<GridView*>(QStringLiteral("grdt")) : nullptr;
    if (!grid)
        return;
    note(QStringLiteral("take back in ") + described(*grid));
    const QPointer<GridView> there = grid;
    const auto cells = [&] {
        QStringList all;
        for (int row = 0; row < grid->model()->rowCount(); ++row) {
            for (int col = 1; col < grid->model()->columnCount(); ++col)
                all.append(grid->model()->index(row, col).data().toString());
        }
        return all;
    };
    const auto press = [&](Qt::Key key) {
        if (there)
            QTest::keyClick(grid, key, Qt::ControlModifier);
    };
    for (int i = below(3); i > 0; --i)
        press(chance(70) ? Qt::Key_Z : Qt::Key_Y);
    const bool open = there && grid->editor()->isVisible();
    const QStringList before = there ? cells() : QStringList();
    press(Qt::Key_Z);
    const bool moved = there && cells() != before;
    if (moved && !open) {
        press(Qt::Key_Y);
        if (cells() != before)
            fault_ = QStringLiteral("what was taken back is not brought again");
    }
}

void RandomWalk::trigger() {
    QWidget* view = anyView();
    QAction* action = view ? any(view->findChildren<QAction*>()) : nullptr;
    if (!action || !mayUse(*action))
        return;
    note(QStringLiteral("trigger ") + action->text());
    action->trigger();
}

} // namespace caudalera
