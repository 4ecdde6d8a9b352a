#include "desktop/chart/ChartView.h"

#include "desktop/chart/ChartExport.h"
#include "desktop/chart/ChartNavigation.h"
#include "desktop/chart/ChartReadout.h"
#include "desktop/chart/ChartTicker.h"
#include "desktop/richtext/QtText.h"
#include "desktop/style/Style.h"
#include "shell/window/Program.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace caudalera {

namespace {

/// Around the chart while it has the keyboard, in pixels.
constexpr int focusRing = 2;

QString text(const std::string& utf8) {
    return toQString(utf8);
}

QString decimalSeparator(const Graph& graph) {
    return text(graph.window().program().platform().decimalSeparator());
}

std::vector<double> positionsOf(const Graph& graph, std::size_t count) {
    if (graph.x())
        return *graph.x();
    std::vector<double> ranks(count);
    std::iota(ranks.begin(), ranks.end(), 1.0);
    return ranks;
}

/// Length of the longest caption that an axis can have, whichever of its labels are visible.
int longestCaption(const QFontMetrics& metrics, const std::vector<Label*>& labels) {
    int length = 0;
    for (const Label* label : labels)
        length = std::max(length, metrics.horizontalAdvance(text(label->caption)));
    return length;
}

/// Gives a range room around its data; one that does not span anything gets some width, and one
/// that lies on one side of zero does not cross it, but for what touches zero itself.
QCPRange withMargins(QCPRange range, double share) {
    const double span = range.size();
    double room = span * share;
    if (span <= 0)
        room = range.lower == 0 ? 1 : std::abs(range.lower) * 0.1;
    QCPRange wide(range.lower - room, range.upper + room);
    if (range.lower > 0 && wide.lower < 0)
        wide.lower = 0;
    if (range.upper < 0 && wide.upper > 0)
        wide.upper = 0;
    return wide;
}

/// Gives an axis so many ticks, or as many of them as have their labels side by side; the length of
/// the longest one.
template <typename Length>
int giveTicks(const QCPAxis& axis, int most, int room, Length lengthOf) {
    QVector<double> ticks;
    QVector<QString> labels;
    int length = 0;
    for (int count = most; count > 1; --count) {
        axis.ticker()->setTickCount(count);
        axis.ticker()->generate(axis.range(), {}, 'g', 6, ticks, nullptr, &labels);
        length = 0;
        for (const QString& label : labels)
            length = std::max(length, lengthOf(label));
        if (length * labels.size() <= room)
            break;
    }
    return length;
}

QCPScatterStyle markerOf(int index, const QPen& pen) {
    constexpr std::array shapes = {QCPScatterStyle::ssDisc,     QCPScatterStyle::ssSquare,
                                   QCPScatterStyle::ssTriangle, QCPScatterStyle::ssDiamond,
                                   QCPScatterStyle::ssCross,    QCPScatterStyle::ssPlus};
    const auto shape = shapes[static_cast<std::size_t>(index) % shapes.size()];
    // Solid outlines: a dashed pen would break up the small shapes.
    return {shape, QPen(pen.color(), pen.widthF() * 0.75), QBrush(pen.color()), pen.widthF() * 3.5};
}

} // namespace

ChartView::ChartView(const Graph& graph, QWidget* parent)
    : QWidget(parent), graph_(graph), plot_(new QCustomPlot(this)),
      xTicker_(new ChartTicker(decimalSeparator(graph))),
      yTicker_(new ChartTicker(decimalSeparator(graph))), legend_(*plot_),
      navigation_(new ChartNavigation(*plot_)),
      readout_(new ChartReadout(*plot_, *xTicker_, *yTicker_)),
      wholeButton_(new QToolButton(plot_)) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    setAccessibleName(tr("Gráfico"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(focusRing, focusRing, focusRing, focusRing);
    layout->addWidget(plot_);
    build();
    addOverlays();
    setVisible(false);
}

QSize ChartView::sizeHint() const {
    return {60 * style::unit(), 40 * style::unit()};
}

QSize ChartView::minimumSizeHint() const {
    // What stands beside the length of an axis: its neighbour's ticks and caption, the margins.
    const int beside = 12 * style::unit();
    return {std::max(34 * style::unit(), longestCaption(fontMetrics(), graph_.xLabels) + beside),
            std::max(22 * style::unit(), longestCaption(fontMetrics(), graph_.yLabels) + beside)};
}

void ChartView::build() {
    // A chart is looked at, not edited: a click leaves the focus with the field that has it.
    setFocusPolicy(Qt::TabFocus);
    plot_->setFocusPolicy(Qt::NoFocus);
    plot_->setAutoAddPlottableToLegend(false);
    plot_->xAxis->setTicker(xTicker_);
    plot_->yAxis->setTicker(yTicker_);
    xTicker_->setTickStepStrategy(QCPAxisTicker::tssReadability);
    yTicker_->setTickStepStrategy(QCPAxisTicker::tssReadability);
    plot_->axisRect()->setupFullAxesBox();
    for (QCPAxis* far : {plot_->xAxis2, plot_->yAxis2})
        far->setTicks(false);
    applyFonts();
    plot_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(plot_, &QWidget::customContextMenuRequested, this, &ChartView::openMenu);
    connect(plot_, &QCustomPlot::beforeReplot, this, &ChartView::fitTicks);
    connect(plot_, &QCustomPlot::afterLayout, this, &ChartView::fitTitles);
    connect(plot_, &QCustomPlot::afterReplot, this, &ChartView::placeOverlays);
    plot_->installEventFilter(this);
}

void ChartView::addOverlays() {
    wholeButton_->setObjectName(QStringLiteral("verTodo"));
    wholeButton_->setText(tr("Ver todo"));
    wholeButton_->setToolTip(tr("Mostrar todo el gráfico (0, Inicio o doble clic)"));
    wholeButton_->setFocusPolicy(Qt::NoFocus);
    wholeButton_->setCursor(Qt::ArrowCursor);
    wholeButton_->hide();
    connect(wholeButton_, &QToolButton::clicked, this, &ChartView::showAll);
    readout_->keepClearOf(*wholeButton_);
}

void ChartView::applyFonts() {
    plot_->setBackground(palette().base());
    const QColor ink = palette().color(QPalette::Text);
    const QPen line(style::lines());
    for (QCPAxis* axis : plot_->axisRect()->axes()) {
        axis->setLabelFont(font());
        axis->setTickLabelFont(font());
        axis->setLabelColor(ink);
        axis->setTickLabelColor(ink);
        axis->setBasePen(line);
        axis->setTickPen(line);
        axis->setSubTickPen(line);
        axis->setTickLengthIn(0);
        axis->setTickLengthOut(style::halfUnit());
        axis->setSubTickLength(0, style::halfUnit() / 2);
        axis->setLabelPadding(style::halfUnit());
        axis->grid()->setPen(QPen(line.color(), 1, Qt::DotLine));
        axis->grid()->setZeroLinePen(QPen(line.color().darker(130), 1));
    }
    legend_.setFont(font());
}

void ChartView::sync() {
    const bool renamed = nameAxes();
    if (revision_ != graph_.revision()) {
        revision_ = graph_.revision();
        read();
    } else if (renamed) {
        plot_->replot();
    }
    if (isHidden() == graph_.visible)
        setVisible(graph_.visible);
}

bool ChartView::nameAxes() {
    const QString x = text(graph_.xTitle());
    const QString y = text(graph_.yTitle());
    if (xTitle_ == x && yTitle_ == y)
        return false;
    xTitle_ = x;
    yTitle_ = y;
    // Makes room for them, before it is known how much of them the axes have.
    plot_->xAxis->setLabel(x);
    plot_->yAxis->setLabel(y);
    return true;
}

void ChartView::fitTitles() {
    const QRect inner = plot_->axisRect()->rect();
    const QFontMetrics metrics(plot_->xAxis->labelFont());
    plot_->xAxis->setLabel(metrics.elidedText(xTitle_, Qt::ElideRight, inner.width()));
    plot_->yAxis->setLabel(metrics.elidedText(yTitle_, Qt::ElideRight, inner.height()));
}

void ChartView::fitTicks() {
    constexpr int most = 5;
    // What stands beside an axis: the other one's numbers and title, or the legend.
    const int beside = 9 * style::unit();
    const int gap = 2 * style::unit();
    const QFontMetrics metrics(font());
    const int width = giveTicks(
        *plot_->xAxis, xTicker_->ticksOf(plot_->xAxis->range(), most), plot_->width() - beside,
        [&](const QString& label) { return metrics.horizontalAdvance(label) + gap; });
    giveTicks(*plot_->yAxis, most, plot_->height() - beside,
              [&](const QString&) { return metrics.height() + style::halfUnit(); });
    // A number at the very end stands out by half of its width.
    const int side = gap;
    plot_->axisRect()->setMinimumMargins({side, side, std::max(side, (width - gap) / 2 + 2), side});
}

void ChartView::read() {
    plot_->clearPlottables();
    legend_.clear();
    for (QCPAxis* far : {plot_->xAxis2, plot_->yAxis2})
        far->setVisible(graph_.border());

    int index = 0;
    bool whole = true;
    for (const Graph::Series& series : graph_.series()) {
        const std::vector<double> x = positionsOf(graph_, series.y.size());
        whole = whole && std::all_of(x.begin(), x.end(),
                                     [](double value) { return value == std::floor(value); });
        addSeries(x, series, index++);
    }
    xTicker_->setWholeNumbers(whole);
    legend_.fit();
    scale();
}

void ChartView::addSeries(const std::vector<double>& x, const Graph::Series& series, int index) {
    const auto points = static_cast<int>(std::min(x.size(), series.y.size()));
    if (points == 0)
        return;
    // A curve joins its points in the order given; a graph would sort them by their X.
    QVector<QCPCurveData> line;
    for (int i = 0; i < points; ++i)
        line.append({double(i), x[std::size_t(i)], series.y[std::size_t(i)]});
    const QPen pen(style::seriesColor(index), style::unit() / 4.0, style::seriesPen(index),
                   Qt::FlatCap, Qt::RoundJoin);

    if (graph_.graphKind() == Graph::Kind::area) {
        // The ground reaches down to the axis also where the line does not.
        auto* ground = new QCPCurve(plot_->xAxis, plot_->yAxis);
        QVector<QCPCurveData> closed = line;
        closed.append({double(points), line.last().key, 0});
        closed.append({double(points) + 1, line.first().key, 0});
        ground->data()->set(closed, true);
        ground->setPen(Qt::NoPen);
        QColor color = pen.color();
        color.setAlphaF(0.25F);
        ground->setBrush(color);
    }
    auto* curve = new QCPCurve(plot_->xAxis, plot_->yAxis);
    curve->data()->set(line, true);
    curve->setPen(pen);
    // One point makes no line to be seen.
    const bool marked = graph_.style() == 1 || points == 1;
    if (marked) {
        // The points are what counts; the line only tells their order.
        QPen thin = pen;
        thin.setWidthF(pen.widthF() / 2);
        curve->setPen(thin);
        curve->setScatterStyle(markerOf(index, pen));
    }
    if (series.legend.empty())
        return;
    curve->setName(text(series.legend));
    legend_.add(*curve, text(series.meaning));
}

void ChartView::scale() {
    std::optional<QCPRange> all[2];
    for (int i = 0; i < plot_->plottableCount(); ++i) {
        bool keys = false;
        bool values = false;
        const QCPRange found[2] = {plot_->plottable(i)->getKeyRange(keys),
                                   plot_->plottable(i)->getValueRange(values)};
        if (!keys || !values)
            continue;
        for (int axis : {0, 1})
            all[axis] = all[axis] ? all[axis]->expanded(found[axis]) : found[axis];
    }
    QCPRange height = all[1] ? withMargins(*all[1], 0.06) : QCPRange(0, 1);
    // Bars stand on the axis.
    if (graph_.graphKind() == Graph::Kind::area && height.lower < 0 && all[1]->lower >= 0)
        height.lower = 0;
    navigation_->setWhole(all[0] ? withMargins(*all[0], 0.02) : QCPRange(0, 1), height);
}

void ChartView::showAll() {
    navigation_->showAll();
}

void ChartView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    legend_.fit();
    plot_->replot(QCustomPlot::rpQueuedReplot);
}

void ChartView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        applyFonts();
        legend_.fit();
        plot_->replot(QCustomPlot::rpQueuedReplot);
    }
}

void ChartView::keyPressEvent(QKeyEvent* event) {
    const bool menuKey = event->key() == Qt::Key_Menu ||
                         (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
    if (menuKey) {
        openMenu(plot_->rect().center());
    } else if (!navigation_->takeKey(*event)) {
        QWidget::keyPressEvent(event);
    }
}

void ChartView::contextMenuEvent(QContextMenuEvent* event) {
    // The pointer's one comes from the plot.
    if (event->reason() == QContextMenuEvent::Keyboard)
        openMenu(plot_->rect().center());
}

void ChartView::openMenu(const QPoint& position) {
    // Some platforms send a key press and the wish for a menu with it.
    if (menu_ && menu_->isVisible())
        return;
    menu_ = new QMenu(this);
    menu_->setAttribute(Qt::WA_DeleteOnClose);
    menu_->addAction(tr("Copiar imagen"), this, &ChartView::copyImage);
    menu_->addAction(tr("Guardar imagen..."), this,
                     [this] { askAndSaveChart(*plot_, text(graph_.window().caption), this); });
    menu_->addSeparator();
    menu_->addAction(tr("Ver todo"), this, &ChartView::showAll)->setEnabled(navigation_->departs());
    menu_->popup(plot_->mapToGlobal(position));
}

void ChartView::copyImage() const {
    QGuiApplication::clipboard()->setPixmap(plot_->toPixmap(plot_->width(), plot_->height(), 2));
}

void ChartView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void ChartView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

void ChartView::paintEvent(QPaintEvent* /*event*/) {
    if (!hasFocus())
        return;
    QPainter painter(this);
    // Around the plot, which covers the rest.
    painter.fillRect(rect(), style::accent());
}

void ChartView::placeOverlays() {
    wholeButton_->adjustSize();
    const QRect inner = plot_->axisRect()->rect();
    wholeButton_->move(inner.right() - wholeButton_->width() - style::halfUnit(),
                       inner.top() + style::halfUnit());
    wholeButton_->setVisible(navigation_->departs());
}

bool ChartView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::eventFilter(watched, event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    // Empty, it takes away the one that is shown.
    QToolTip::showText(help.globalPos(), explanationAt(help.pos()), plot_);
    return true;
}

QString ChartView::explanationAt(const QPoint& position) const {
    const QRect inner = plot_->axisRect()->rect();
    if (position.x() < inner.left() && plot_->yAxis->label() != yTitle_)
        return yTitle_;
    if (position.y() > inner.bottom() && plot_->xAxis->label() != xTitle_)
        return xTitle_;
    return legend_.meaningAt(position);
}

} // namespace caudalera
