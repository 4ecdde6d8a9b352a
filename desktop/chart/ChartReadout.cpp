#include "desktop/chart/ChartReadout.h"

#include "desktop/chart/ChartTicker.h"
#include "desktop/style/Style.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <limits>
#include <qcustomplot.h>

namespace caudalera {

ChartReadout::ChartReadout(QCustomPlot& plot, const ChartTicker& x, const ChartTicker& y)
    : QLabel(&plot), plot_(plot), x_(x), y_(y) {
    setObjectName(QStringLiteral("coordenadas"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setContentsMargins(style::halfUnit(), 0, style::halfUnit(), 0);
    setTextFormat(Qt::PlainText);
    hide();
    plot.installEventFilter(this);
    connect(&plot, &QCustomPlot::afterReplot, this, [this] {
        corners_.clear();
        if (isVisible())
            follow();
    });
}

bool ChartReadout::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const auto& mouse = static_cast<QMouseEvent&>(*event);
        pointer_ = mouse.position().toPoint();
        if (mouse.buttons() == Qt::NoButton) {
            follow();
        } else {
            hide();
        }
    } else if (event->type() == QEvent::Leave || event->type() == QEvent::Hide) {
        hide();
    }
    return QLabel::eventFilter(watched, event);
}

void ChartReadout::follow() {
    if (!plot_.axisRect()->rect().contains(pointer_) || plot_.plottableCount() == 0) {
        hide();
        return;
    }
    setText(QStringLiteral("x = %1   y = %2")
                .arg(x_.reading(plot_.xAxis->pixelToCoord(pointer_.x())),
                     y_.reading(plot_.yAxis->pixelToCoord(pointer_.y()))));
    setGeometry(place());
    show();
    raise();
}

QRect ChartReadout::place() {
    // A text that outgrows its corner asks for them anew.
    if (corners_.empty() || corners_.front().width() < sizeHint().width())
        corners_ = corners();
    const int around = style::unit();
    const auto taken = [&](const QRect& corner) {
        return corner.adjusted(-around, -around, around, around).contains(pointer_) ||
               (other_ && !other_->isHidden() && corner.intersects(other_->geometry()));
    };
    const auto free = std::find_if_not(corners_.begin(), corners_.end(), taken);
    return free == corners_.end() ? corners_.front() : *free;
}

std::vector<QRect> ChartReadout::corners() const {
    const int gap = style::halfUnit();
    const QRect inner = plot_.axisRect()->rect().adjusted(gap, gap, -gap, -gap);
    // The numbers become longer and shorter on the way: not so the room for them.
    const QSize size(sizeHint().width() + 2 * style::unit(), sizeHint().height());
    const int right = inner.right() + 1 - size.width();
    const int bottom = inner.bottom() + 1 - size.height();
    std::vector<QRect> all = {
        QRect({right, bottom}, size), QRect({inner.left(), inner.top()}, size),
        QRect({right, inner.top()}, size), QRect({inner.left(), bottom}, size)};
    std::vector<std::pair<double, QRect>> ranked;
    ranked.reserve(all.size());
    for (const QRect& corner : all)
        ranked.emplace_back(clearance(corner), corner);
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = ranked[i].second;
    return all;
}

double ChartReadout::clearance(const QRect& place) const {
    double least = std::numeric_limits<double>::max();
    for (int i = 0; i < plot_.plottableCount(); ++i) {
        for (const QPoint at : {QPoint(place.left(), place.center().y()), place.center(),
                                QPoint(place.right(), place.center().y())}) {
            const double distance = plot_.plottable(i)->selectTest(at, false);
            if (distance >= 0)
                least = std::min(least, distance);
        }
    }
    // Past a few lines one corner is as good as the other, and the first one stays.
    return std::min(least, 2.0 * place.height());
}

void ChartReadout::paintEvent(QPaintEvent* event) {
    QColor ground = palette().color(QPalette::Base);
    ground.setAlphaF(0.85F);
    QPainter(this).fillRect(rect(), ground);
    QLabel::paintEvent(event);
}

} // namespace caudalera
