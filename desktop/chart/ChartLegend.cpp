#include "desktop/chart/ChartLegend.h"

#include "desktop/style/Style.h"

#include <algorithm>
#include <qcustomplot.h>

namespace caudalera {

void ChartLegend::clear() {
    if (legend_)
        plot_.plotLayout()->removeAt(0);
    legend_ = nullptr;
    meanings_.clear();
    plot_.plotLayout()->simplify();
}

void ChartLegend::build() {
    legend_ = new QCPLegend;
    auto* line = new QCPLayoutGrid;
    plot_.plotLayout()->insertRow(0);
    plot_.plotLayout()->addElement(0, 0, line);
    plot_.plotLayout()->setRowStretchFactor(0, 0.001);
    line->addElement(0, 0, new QCPLayoutElement);
    line->addElement(0, 1, legend_);
    line->addElement(0, 2, new QCPLayoutElement);
    legend_->setLayer(QStringLiteral("legend"));
    legend_->setFillOrder(QCPLayoutGrid::foColumnsFirst);
    legend_->setBorderPen(Qt::NoPen);
    legend_->setBrush(Qt::NoBrush);
    // High enough for the marks of the points.
    legend_->setIconSize(4 * style::unit(), style::unit() + style::halfUnit());
    legend_->setColumnSpacing(2 * style::unit());
    legend_->setFont(plot_.font());
    legend_->setTextColor(plot_.palette().color(QPalette::Text));
}

void ChartLegend::add(QCPAbstractPlottable& series, const QString& meaning) {
    if (!legend_)
        build();
    legend_->addItem(new QCPPlottableLegendItem(legend_, &series));
    meanings_.append(meaning);
}

void ChartLegend::setFont(const QFont& font) {
    if (legend_)
        legend_->setFont(font);
}

void ChartLegend::fit() {
    if (!legend_)
        return;
    int widest = 1;
    for (int i = 0; i < legend_->itemCount(); ++i)
        widest = std::max(widest, legend_->item(i)->minimumOuterSizeHint().width());
    const int each = widest + legend_->columnSpacing();
    const int columns = std::clamp((plot_.width() - 4 * style::unit()) / each, 1,
                                   std::max(1, legend_->itemCount()));
    legend_->setWrap(columns);
    legend_->setFillOrder(QCPLayoutGrid::foColumnsFirst, true);
    legend_->setMaximumSize(columns * each + 2 * style::unit(), QWIDGETSIZE_MAX);
}

QString ChartLegend::meaningAt(const QPoint& position) const {
    for (int i = 0; legend_ && i < legend_->itemCount(); ++i) {
        if (legend_->item(i)->outerRect().contains(position))
            return meanings_.value(i);
    }
    return {};
}

} // namespace caudalera
