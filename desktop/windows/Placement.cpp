#include "desktop/windows/Placement.h"

#include "desktop/chart/ChartView.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QScreen>
#include <algorithm>

namespace caudalera::placement {

namespace {

constexpr double shareOfScreen = 0.9;

/// A window that is not shown yet has no frame; it will be as wide as that of the other.
QSize framed(const QWidget& window, const QWidget* opener) {
    return opener ? window.size() + opener->frameGeometry().size() - opener->size() : window.size();
}

void moveFrame(QWidget& window, const QPoint& corner, const QWidget* opener) {
    const QPoint frame =
        opener ? opener->geometry().topLeft() - opener->frameGeometry().topLeft() : QPoint();
    window.setGeometry(QRect(corner + frame, window.size()));
}

QPoint within(const QRect& screen, const QSize& size, const QPoint& corner) {
    // Its title and what it begins with, if it is larger than the screen.
    return {std::max(std::min(corner.x(), screen.right() + 1 - size.width()), screen.left()),
            std::max(std::min(corner.y(), screen.bottom() + 1 - size.height()), screen.top())};
}

/// How much it costs to hide a widget, a pixel: what is pressed and typed into is small, a chart
/// is only looked at.
double priceOf(const QWidget& widget) {
    if (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
        qobject_cast<const QComboBox*>(&widget))
        return 100;
    if (qobject_cast<const QAbstractItemView*>(&widget))
        return 1;
    return qobject_cast<const ChartView*>(&widget) ? 0.2 : 0;
}

double costOf(const QRect& place, const QWidget& opener) {
    double cost = 0;
    for (const QWidget* widget : opener.findChildren<QWidget*>()) {
        const double price = widget->isVisible() ? priceOf(*widget) : 0;
        if (price == 0)
            continue;
        const QRect hidden =
            place.intersected(QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()));
        if (!hidden.isEmpty())
            cost += price * hidden.width() * hidden.height();
    }
    return cost;
}

QPoint leastInTheWay(const QSize& size, const QRect& screen, const QWidget& opener) {
    constexpr int steps = 24;
    const QSize spare = screen.size() - size;
    QPoint best = within(screen, size, screen.bottomRight());
    double least = costOf(QRect(best, size), opener);
    for (int i = steps; i >= 0; --i) {
        for (int j = 0; j <= steps; ++j) {
            const QPoint corner = within(
                screen, size,
                screen.topLeft() + QPoint(spare.width() * i / steps, spare.height() * j / steps));
            const double cost = costOf(QRect(corner, size), opener);
            if (cost < least) {
                least = cost;
                best = corner;
            }
        }
    }
    return best;
}

} // namespace

void remeasure(QWidget& widget) {
    for (QWidget* each : widget.findChildren<QWidget*>()) {
        each->ensurePolished();
        each->updateGeometry();
    }
    for (QLayout* each : widget.findChildren<QLayout*>())
        each->invalidate();
    widget.updateGeometry();
}

QSize largestFirstSize(const QWidget& window) {
    return QSizeF(window.screen()->availableSize() * shareOfScreen).toSize();
}

void centreOn(QWidget& window, const QWidget* opener) {
    const QRect screen = (opener ? *opener : window).screen()->availableGeometry();
    const QSize size = framed(window, opener);
    const QRect middle = opener ? opener->frameGeometry() : screen;
    const QPoint corner = middle.topLeft() + QPoint((middle.width() - size.width()) / 2,
                                                    (middle.height() - size.height()) / 2);
    moveFrame(window, within(screen, size, corner), opener);
}

void bringOnScreen(QWidget& window) {
    const QRect screen = window.screen()->availableGeometry();
    const QRect frame = window.frameGeometry();
    const QPoint corner = within(screen, frame.size(), frame.topLeft());
    if (corner != frame.topLeft())
        window.move(corner);
}

void standBeside(QWidget& window, const QWidget& opener) {
    const QRect screen = opener.screen()->availableGeometry();
    const QRect beside = opener.frameGeometry();
    const QSize size = framed(window, &opener);
    const QPoint right(beside.right() + 1, beside.top());
    const QPoint left(beside.left() - size.width(), beside.top());
    QPoint corner;
    if (right.x() + size.width() <= screen.right() + 1) {
        corner = within(screen, size, right);
    } else if (left.x() >= screen.left()) {
        corner = within(screen, size, left);
    } else {
        corner = leastInTheWay(size, screen, opener);
    }
    moveFrame(window, corner, &opener);
}

} // namespace caudalera::placement
