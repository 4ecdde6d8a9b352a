#include "desktop/windows/ContentArea.h"

#include <QEvent>
#include <QLayout>
#include <QScrollBar>

namespace caudalera {

namespace {

/// Is as high as its layout needs for a width, not as high as it would like.
class Content : public QWidget {
public:
    int heightForWidth(int width) const override {
        return layout()->totalMinimumHeightForWidth(width);
    }
};

} // namespace

ContentArea::ContentArea(QLayout* content, QWidget* parent) : QScrollArea(parent) {
    auto* inside = new Content;
    inside->setLayout(content);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(inside);
}

QSize ContentArea::smallestContent() const {
    // At the smallest width sentences wrap, which the layout's own smallest height leaves out.
    const QSize smallest = widget()->layout()->totalMinimumSize();
    return smallest.expandedTo({0, widget()->heightForWidth(smallest.width())});
}

void ContentArea::setLargestMinimum(const QSize& size) {
    if (size == largestMinimum_)
        return;
    largestMinimum_ = size;
    updateGeometry();
}

QSize ContentArea::bounded(QSize size, const QSize& largest) const {
    if (size.height() > largest.height())
        size.rwidth() += verticalScrollBar()->sizeHint().width();
    return size.boundedTo(largest);
}

QSize ContentArea::sizeHint() const {
    return widget()->layout()->totalSizeHint().expandedTo(smallestContent());
}

QSize ContentArea::minimumSizeHint() const {
    return bounded(smallestContent(), largestMinimum_);
}

bool ContentArea::eventFilter(QObject* watched, QEvent* event) {
    const bool eaten = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return eaten;
}

} // namespace caudalera
