#pragma once

#include "desktop/windows/ViewSet.h"

class QWidget;

namespace caudalera {

/// The commands of a window in one row: their groups in the order that every window has them.
/// Buttons of short words are made wider than they need, unless the row would be wider than
/// `widest`.
QWidget* commandBar(Window& window, ViewSet& views, QWidget& parent, int widest);

} // namespace caudalera
