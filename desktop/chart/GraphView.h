#pragma once

#include "desktop/controls/ControlView.h"
#include "shell/window/Graph.h"

namespace caudalera {

class ChartView;

/// A chart; it shows and hides itself, so that its room stays.
class GraphView : public ControlView {
public:
    GraphView(Graph& graph, QWidget* parent);

    void sync() override;

private:
    ChartView& chart() const;
};

} // namespace caudalera
