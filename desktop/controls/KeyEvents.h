#pragma once

#include "shell/window/Key.h"

#include <optional>

class QKeyEvent;

namespace caudalera {

/// ENTER of either block of keys.
bool isEnter(const QKeyEvent& event);
/// The keys that the model knows beside characters.
std::optional<Key::Kind> commandKey(const QKeyEvent& event);
/// A letter with Ctrl or Alt is a shortcut, not text; with both it is AltGr.
bool isShortcut(const QKeyEvent& event);
/// Ctrl+Z; Ctrl+Y or Ctrl+Shift+Z, on every system.
bool isUndo(const QKeyEvent& event);
bool isRedo(const QKeyEvent& event);

} // namespace caudalera
