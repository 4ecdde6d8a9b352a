#pragma once

#include "desktop/controls/ControlView.h"

#include <QColor>
#include <QSvgRenderer>
#include <QWidget>

namespace caudalera {

/// A drawing, whole and in its proportions, in the middle of the room it is given.
class Drawing : public QWidget {
    Q_OBJECT

public:
    /// `ground` fills the room around the drawing; none leaves it as it is.
    Drawing(const QString& name, const QColor& ground, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint() / 2; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSvgRenderer renderer_;
    QColor ground_;
};

class PictureView : public ControlView {
public:
    PictureView(Picture& picture, QWidget* parent)
        : ControlView(picture, *new Drawing(toQString(picture.image()), QColor(), parent)) {}
};

} // namespace caudalera
