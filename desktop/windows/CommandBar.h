#pragma once

#include "desktop/windows/ViewSet.h"

class QWidget;

namespace caudalera {

/// The commands of a window in one row: their groups in the order that every window has them.
QWidget* commandBar(Window& window, ViewSet& views, QWidget& parent);

} // namespace caudalera
