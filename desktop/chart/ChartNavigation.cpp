#include "desktop/chart/ChartNavigation.h"

#include "desktop/style/Style.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace caudalera {

namespace {

/// Share of the sight that may lie beyond either end of the whole.
constexpr double beyond = 0.25;
/// With that much beyond both ends the whole is half of the sight.
constexpr double farthest = 1 / (1 - 2 * beyond);
/// What is in sight at least, as a share of the whole and of the numbers at the axis, of which
/// doubles hold 15 digits and a step of the axis takes the last ones.
constexpr double nearest = 1e-3;
constexpr double nearestOfNumbers = 1e-9;

/// What is left in sight by a notch of the wheel or a key, and the turn of a notch in eighths of a
/// degree.
constexpr double zoomStep = 0.85;
constexpr double notch = 120;
/// What an arrow key moves by.
constexpr double keyShare = 0.1;

double spanWithin(double span, const QCPRange& whole) {
    const double numbers = std::max(std::abs(whole.lower), std::abs(whole.upper));
    const double least =
        std::min(whole.size(), std::max(nearest * whole.size(), nearestOfNumbers * numbers));
    return std::clamp(span, least, farthest * whole.size());
}

QCPRange within(const QCPRange& wanted, const QCPRange& whole) {
    const double span = spanWithin(wanted.size(), whole);
    if (span == wanted.size() && wanted.lower >= whole.lower - beyond * span &&
        wanted.upper <= whole.upper + beyond * span)
        return wanted;
    const double lower =
        std::clamp(wanted.center() - span / 2, whole.lower - beyond * span,
                   std::max(whole.lower - beyond * span, whole.upper + beyond * span - span));
    return {lower, lower + span};
}

bool same(const QCPRange& a, const QCPRange& b) {
    const double slack = 1e-9 * b.size();
    return std::abs(a.lower - b.lower) <= slack && std::abs(a.upper - b.upper) <= slack;
}

/// A range grown or shrunk about a point that keeps its place in sight.
QCPRange zoomed(const QCPRange& range, double factor, double about, const QCPRange& whole) {
    const double possible = spanWithin(range.size() * factor, whole) / range.size();
    return {about - (about - range.lower) * possible, about + (range.upper - about) * possible};
}

/// Whether a line from one point to another meets a rectangle: what is left of it behind the four
/// sides, each of which cuts a piece off its beginning or its end (Liang and Barsky, 1984).
bool meets(const QCPCurveData& from, const QCPCurveData& to, const QCPRange& x, const QCPRange& y) {
    double begin = 0;
    double end = 1;
    const auto cut = [&](double way, double room) {
        if (way == 0)
            return room >= 0;
        double& bound = way < 0 ? begin : end;
        bound = way < 0 ? std::max(begin, room / way) : std::min(end, room / way);
        return begin <= end;
    };
    const double right = to.key - from.key;
    const double up = to.value - from.value;
    return cut(-right, from.key - x.lower) && cut(right, x.upper - from.key) &&
           cut(-up, from.value - y.lower) && cut(up, y.upper - from.value);
}

} // namespace

ChartNavigation::ChartNavigation(QCustomPlot& plot) : QObject(&plot), plot_(plot) {
    plot.setInteractions(QCP::iNone);
    plot.installEventFilter(this);
    QColor ground = style::accent();
    ground.setAlphaF(0.12F);
    plot.selectionRect()->setPen(QPen(style::accent(), 1));
    plot.selectionRect()->setBrush(ground);
    connect(plot.selectionRect(), &QCPSelectionRect::accepted, this, [this](const QRect& rect) {
        const QRect drawn = rect.normalized() & plot_.axisRect()->rect();
        // Less is a click with an unsteady hand.
        if (drawn.width() < style::unit() || drawn.height() < style::unit())
            return;
        show({{plot_.xAxis->pixelToCoord(drawn.left()), plot_.xAxis->pixelToCoord(drawn.right())},
              {plot_.yAxis->pixelToCoord(drawn.bottom()), plot_.yAxis->pixelToCoord(drawn.top())}});
    });
}

void ChartNavigation::setWhole(const QCPRange& x, const QCPRange& y) {
    whole_ = {x, y};
    pressed_.reset();
    showAll();
}

void ChartNavigation::showAll() {
    plot_.xAxis->setRange(whole_.x);
    plot_.yAxis->setRange(whole_.y);
    plot_.replot();
}

bool ChartNavigation::departs() const {
    return !same(plot_.xAxis->range(), whole_.x) || !same(plot_.yAxis->range(), whole_.y);
}

ChartNavigation::View ChartNavigation::inSight() const {
    return {plot_.xAxis->range(), plot_.yAxis->range()};
}

void ChartNavigation::show(const View& wanted) {
    const View view{within(wanted.x, whole_.x), within(wanted.y, whole_.y)};
    if (!showsACurve(view))
        return;
    plot_.xAxis->setRange(view.x);
    plot_.yAxis->setRange(view.y);
    plot_.replot();
}

bool ChartNavigation::showsACurve(const View& view) const {
    for (int i = 0; i < plot_.plottableCount(); ++i) {
        const auto* curve = qobject_cast<QCPCurve*>(plot_.plottable(i));
        if (!curve)
            continue;
        const auto& points = *curve->data();
        // The first one from itself to itself, in case that it is the only one.
        auto before = points.constBegin();
        for (auto point = before; point != points.constEnd(); before = point++) {
            if (meets(*before, *point, view.x, view.y))
                return true;
        }
    }
    return false;
}

void ChartNavigation::move(double right, double up) {
    View view = inSight();
    view.x += right * view.x.size();
    view.y += up * view.y.size();
    show(view);
}

void ChartNavigation::zoom(double factor, QPointF about, Qt::Orientations along) {
    View view = inSight();
    if (along & Qt::Horizontal)
        view.x = zoomed(view.x, factor, plot_.xAxis->pixelToCoord(about.x()), whole_.x);
    if (along & Qt::Vertical)
        view.y = zoomed(view.y, factor, plot_.yAxis->pixelToCoord(about.y()), whole_.y);
    show(view);
}

bool ChartNavigation::takeKey(const QKeyEvent& key) {
    if (key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const QPointF middle = QRectF(plot_.axisRect()->rect()).center();
    switch (key.key()) {
    case Qt::Key_Left:
        move(-keyShare, 0);
        return true;
    case Qt::Key_Right:
        move(keyShare, 0);
        return true;
    case Qt::Key_Up:
        move(0, keyShare);
        return true;
    case Qt::Key_Down:
        move(0, -keyShare);
        return true;
    case Qt::Key_Plus:
        zoom(zoomStep, middle, Qt::Horizontal | Qt::Vertical);
        return true;
    case Qt::Key_Minus:
        zoom(1 / zoomStep, middle, Qt::Horizontal | Qt::Vertical);
        return true;
    case Qt::Key_0:
    case Qt::Key_Home:
        showAll();
        return true;
    default:
        return false;
    }
}

bool ChartNavigation::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(static_cast<QMouseEvent&>(*event));
        break;
    case QEvent::MouseMove:
        drag(static_cast<QMouseEvent&>(*event));
        break;
    case QEvent::MouseButtonRelease:
        pressed_.reset();
        plot_.unsetCursor();
        break;
    case QEvent::MouseButtonDblClick:
        pressed_.reset();
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
            showAll();
        break;
    case QEvent::Wheel:
        wheel(static_cast<QWheelEvent&>(*event));
        event->accept();
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ChartNavigation::press(const QMouseEvent& event) {
    const bool left = event.button() == Qt::LeftButton;
    const bool band = left && (event.modifiers() & Qt::ShiftModifier);
    // Read by the plot when the press reaches it.
    plot_.setSelectionRectMode(band ? QCP::srmCustom : QCP::srmNone);
    pressed_.reset();
    dragging_ = false;
    if (!left || band || !plot_.axisRect()->rect().contains(event.position().toPoint()))
        return;
    pressed_ = event.position().toPoint();
    before_ = inSight();
}

void ChartNavigation::drag(const QMouseEvent& event) {
    if (!pressed_ || !(event.buttons() & Qt::LeftButton))
        return;
    const QPoint way = event.position().toPoint() - *pressed_;
    // Less is a click with an unsteady hand.
    if (!dragging_ && way.manhattanLength() < style::unit())
        return;
    if (!dragging_)
        plot_.setCursor(Qt::ClosedHandCursor);
    dragging_ = true;
    const QRect inner = plot_.axisRect()->rect();
    View view = before_;
    view.x -= view.x.size() * way.x() / inner.width();
    view.y += view.y.size() * way.y() / inner.height();
    show(view);
}

void ChartNavigation::wheel(const QWheelEvent& event) {
    const QRect inner = plot_.axisRect()->rect();
    const QPointF at = event.position();
    Qt::Orientations along = Qt::Horizontal | Qt::Vertical;
    if (at.x() < inner.left()) {
        along = Qt::Vertical;
    } else if (at.y() > inner.bottom()) {
        along = Qt::Horizontal;
    }
    zoom(std::pow(zoomStep, event.angleDelta().y() / notch), at, along);
}

} // namespace caudalera
