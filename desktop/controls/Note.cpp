#include "desktop/controls/Note.h"

#include <QToolTip>
#include <QWidget>

namespace caudalera {

void showNote(QWidget& widget, const QRect& place, const QString& text) {
    constexpr int milliseconds = 6000;
    QToolTip::showText(widget.mapToGlobal(place.bottomLeft()), text, &widget, place, milliseconds);
}

} // namespace caudalera
