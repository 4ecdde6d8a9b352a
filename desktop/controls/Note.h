#pragma once

#include <QString>

class QWidget;
class QRect;

namespace caudalera {

/// A short note at a place of a widget, which goes by itself and takes no keyboard.
void showNote(QWidget& widget, const QRect& place, const QString& text);

} // namespace caudalera
