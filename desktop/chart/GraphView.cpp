#include "desktop/chart/GraphView.h"

#include "desktop/chart/ChartView.h"

namespace caudalera {

GraphView::GraphView(Graph& graph, QWidget* parent)
    : ControlView(graph, *new ChartView(graph, parent)) {
    widget().setObjectName(toQString(graph.name()));
}

ChartView& GraphView::chart() const {
    return static_cast<ChartView&>(widget());
}

void GraphView::sync() {
    chart().sync();
}

} // namespace caudalera
