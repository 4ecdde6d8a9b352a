#pragma once

#include <QSize>

class QWidget;

namespace caudalera::placement {

/// Asks all that stands in a widget again what it needs, whatever has been hidden, shown or written
/// since it was asked last.
void remeasure(QWidget& widget);

/// The largest size that a window opens at: a share of the screen, so that what it came from stays
/// in sight.
QSize largestFirstSize(const QWidget& window);

/// Moves a window that is not shown yet over the middle of the one it came from, or of the screen
/// if that is nullptr; wholly on the screen in any case.
void centreOn(QWidget& window, const QWidget* opener);

/// Moves a window that has grown back onto the screen, if it reaches beyond.
void bringOnScreen(QWidget& window);

/// Moves a window that is not shown yet beside the one it came from. Where the screen has no room
/// there it comes to stand where it hides the least of what the other one is worked with.
void standBeside(QWidget& window, const QWidget& opener);

} // namespace caudalera::placement
