#include "desktop/controls/PictureView.h"

#include "desktop/style/Style.h"

#include <QFile>
#include <QPainter>

namespace caudalera {

Drawing::Drawing(const QString& name, const QColor& ground, QWidget* parent)
    : QWidget(parent), ground_(ground) {
    const QString path = style::drawingPath(name);
    if (QFile::exists(path))
        renderer_.load(path);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize Drawing::sizeHint() const {
    const int width = 40 * style::unit();
    if (!renderer_.isValid() || renderer_.defaultSize().isEmpty())
        return {width, width / 2};
    return renderer_.defaultSize().scaled(width, width, Qt::KeepAspectRatio);
}

void Drawing::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (ground_.isValid())
        painter.fillRect(rect(), ground_);
    if (!renderer_.isValid())
        return;
    const QSizeF size = QSizeF(renderer_.defaultSize()).scaled(this->size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer_.render(
        &painter,
        QRectF(QPointF((width() - size.width()) / 2, (height() - size.height()) / 2), size));
}

} // namespace caudalera
