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

} // namespace caudalera
