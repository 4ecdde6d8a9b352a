#include "desktop/controls/KeyEvents.h"

#include <QKeyEvent>

namespace caudalera {

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

std::optional<Key::Kind> commandKey(const QKeyEvent& event) {
    if (isEnter(event))
        return Key::Kind::enter;
    switch (event.key()) {
    case Qt::Key_Escape:
        return Key::Kind::escape;
    case Qt::Key_Up:
        return Key::Kind::up;
    case Qt::Key_Down:
        return Key::Kind::down;
    default:
        return std::nullopt;
    }
}

bool isShortcut(const QKeyEvent& event) {
    const bool ctrl = event.modifiers() & Qt::ControlModifier;
    const bool alt = event.modifiers() & Qt::AltModifier;
    return ctrl != alt;
}

bool isUndo(const QKeyEvent& event) {
    return event.matches(QKeySequence::Undo);
}

bool isRedo(const QKeyEvent& event) {
    const auto pressed = event.keyCombination();
    return pressed == (Qt::CTRL | Qt::Key_Y) || pressed == (Qt::CTRL | Qt::SHIFT | Qt::Key_Z) ||
           event.matches(QKeySequence::Redo);
}

} // namespace caudalera
