#pragma once

class QMessageBox;
class QString;

namespace caudalera::style {

/// Width of a window whose title bar shows all of the title: the bar's own font may be heavier than
/// the text's, and its icon and buttons stand beside it.
int titleWidth(const QString& title);

/// Gives a box the room that its title needs, however short its text is.
void makeRoomForTitle(QMessageBox& box);

} // namespace caudalera::style
