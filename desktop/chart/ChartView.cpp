#include "desktop/chart/ChartView.h"

#include "desktop/chart/ChartImage.h"
#include "desktop/chart/ChartTicker.h"
#include "desktop/richtext/QtText.h"
#include "desktop/style/Style.h"
#include "desktop/words/FileKinds.h"
#include "shell/window/Program.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QMessageBox>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace caudalera {

namespace {

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

QString captionOf(const std::vector<Label*>& labels) {
    QStringList captions;
    for (const Label* label : labels) {
        if (label->visible)
            captions.append(text(label->caption));
    }
    return captions.join(u' ');
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
      yTicker_(new ChartTicker(decimalSeparator(graph))) {
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    setAccessibleName(tr("Gráfico"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(plot_);
    build();
    connectMouse();
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
    // A chart is looked at, not edited: the focus stays with the field that has it.
    plot_->setFocusPolicy(Qt::NoFocus);
    plot_->setAutoAddPlottableToLegend(false);
    plot_->setInteractions(QCP::iRangeZoom | QCP::iRangeDrag);
    plot_->setNoAntialiasingOnDrag(false);
    plot_->xAxis->setTicker(xTicker_);
    plot_->yAxis->setTicker(yTicker_);
    xTicker_->setTickStepStrategy(QCPAxisTicker::tssReadability);
    yTicker_->setTickStepStrategy(QCPAxisTicker::tssReadability);
    plot_->axisRect()->setupFullAxesBox();
    for (QCPAxis* far : {plot_->xAxis2, plot_->yAxis2})
        far->setTicks(false);
    applyFonts();
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
    if (legend_)
        legend_->setFont(font());
}

void ChartView::connectMouse() {
    // Set before the plot itself looks at the press.
    connect(plot_, &QCustomPlot::mousePress, this, [this](QMouseEvent* event) {
        const bool zoom =
            event->button() == Qt::LeftButton && !(event->modifiers() & Qt::ShiftModifier);
        plot_->setSelectionRectMode(zoom ? QCP::srmCustom : QCP::srmNone);
    });
    connect(plot_->selectionRect(), &QCPSelectionRect::accepted, this, [this](const QRect& rect) {
        const QRect drawn = rect.normalized() & plot_->axisRect()->rect();
        // Less is a click with an unsteady hand.
        if (drawn.width() < style::unit() || drawn.height() < style::unit())
            return;
        plot_->xAxis->setRange(plot_->xAxis->pixelToCoord(drawn.left()),
                               plot_->xAxis->pixelToCoord(drawn.right()));
        plot_->yAxis->setRange(plot_->yAxis->pixelToCoord(drawn.bottom()),
                               plot_->yAxis->pixelToCoord(drawn.top()));
        plot_->replot();
    });
    connect(plot_, &QCustomPlot::mouseDoubleClick, this, [this] { showAll(); });
    plot_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(plot_, &QWidget::customContextMenuRequested, this, &ChartView::openMenu);
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
    const QString x = captionOf(graph_.xLabels);
    const QString y = captionOf(graph_.yLabels);
    if (plot_->xAxis->label() == x && plot_->yAxis->label() == y)
        return false;
    plot_->xAxis->setLabel(x);
    plot_->yAxis->setLabel(y);
    return true;
}

void ChartView::read() {
    plot_->clearPlottables();
    if (legend_)
        plot_->plotLayout()->removeAt(0);
    legend_ = nullptr;
    plot_->plotLayout()->simplify();
    for (QCPAxis* far : {plot_->xAxis2, plot_->yAxis2})
        far->setVisible(graph_.border());

    if (std::any_of(graph_.series().begin(), graph_.series().end(),
                    [](const Graph::Series& series) { return !series.legend.empty(); }))
        addLegend();

    int index = 0;
    bool whole = true;
    for (const Graph::Series& series : graph_.series()) {
        const std::vector<double> x = positionsOf(graph_, series.y.size());
        whole = whole && std::all_of(x.begin(), x.end(),
                                     [](double value) { return value == std::floor(value); });
        addSeries(x, series, index++);
    }
    xTicker_->setWholeNumbers(whole);
    fitLegend();
    showAll();
}

void ChartView::addLegend() {
    // Above the drawing, where it covers no data.
    legend_ = new QCPLegend;
    auto* line = new QCPLayoutGrid;
    plot_->plotLayout()->insertRow(0);
    plot_->plotLayout()->addElement(0, 0, line);
    plot_->plotLayout()->setRowStretchFactor(0, 0.001);
    line->addElement(0, 0, new QCPLayoutElement);
    line->addElement(0, 1, legend_);
    line->addElement(0, 2, new QCPLayoutElement);
    legend_->setLayer(QStringLiteral("legend"));
    legend_->setFillOrder(QCPLayoutGrid::foColumnsFirst);
    legend_->setBorderPen(Qt::NoPen);
    legend_->setBrush(Qt::NoBrush);
    legend_->setIconSize(4 * style::unit(), style::unit());
    legend_->setColumnSpacing(2 * style::unit());
    legend_->setFont(font());
    legend_->setTextColor(palette().color(QPalette::Text));
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
    legend_->addItem(new QCPPlottableLegendItem(legend_, curve));
}

void ChartView::showAll() {
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
    plot_->xAxis->setRange(all[0] ? withMargins(*all[0], 0.02) : QCPRange(0, 1));
    QCPRange height = all[1] ? withMargins(*all[1], 0.06) : QCPRange(0, 1);
    // Bars stand on the axis.
    if (graph_.graphKind() == Graph::Kind::area && height.lower < 0 && all[1]->lower >= 0)
        height.lower = 0;
    plot_->yAxis->setRange(height);
    plot_->replot();
}

void ChartView::fitLegend() {
    if (!legend_)
        return;
    int widest = 1;
    for (int i = 0; i < legend_->itemCount(); ++i)
        widest = std::max(widest, legend_->item(i)->minimumOuterSizeHint().width());
    const int each = widest + legend_->columnSpacing();
    const int columns = std::clamp((plot_->width() - 4 * style::unit()) / each, 1,
                                   std::max(1, legend_->itemCount()));
    legend_->setWrap(columns);
    legend_->setFillOrder(QCPLayoutGrid::foColumnsFirst, true);
    legend_->setMaximumSize(columns * each + 2 * style::unit(), QWIDGETSIZE_MAX);
}

void ChartView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitLegend();
    plot_->replot(QCustomPlot::rpQueuedReplot);
}

void ChartView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange) {
        applyFonts();
        fitLegend();
        plot_->replot(QCustomPlot::rpQueuedReplot);
    }
}

void ChartView::openMenu(const QPoint& position) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Copiar imagen"), this, &ChartView::copyImage);
    menu->addAction(tr("Guardar imagen..."), this, &ChartView::askAndSave);
    menu->addSeparator();
    menu->addAction(tr("Ver todo"), this, &ChartView::showAll);
    menu->popup(plot_->mapToGlobal(position));
}

void ChartView::copyImage() const {
    QGuiApplication::clipboard()->setPixmap(plot_->toPixmap(plot_->width(), plot_->height(), 2));
}

bool ChartView::saveImage(const QString& path) const {
    return saveChartImage(*plot_, path);
}

void ChartView::askAndSave() {
    words::FileKinds kinds;
    QFileDialog dialog(this, tr("Guardar imagen"));
    dialog.setIconProvider(&kinds);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(
        {tr("Imagen PNG (*.png)"), tr("Documento PDF (*.pdf)"), tr("Dibujo SVG (*.svg)")});
    dialog.setDefaultSuffix(QStringLiteral("png"));
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        const auto dot = filter.lastIndexOf(u'.');
        dialog.setDefaultSuffix(filter.mid(dot + 1, filter.lastIndexOf(u')') - dot - 1));
    });
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const QString path = dialog.selectedFiles().constFirst();
    if (!saveImage(path)) {
        QMessageBox::warning(this, tr("Guardar imagen"),
                             tr("No se pudo guardar la imagen en %1").arg(path));
    }
}

} // namespace caudalera
