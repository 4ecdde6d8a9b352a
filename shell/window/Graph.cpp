#include "shell/window/Graph.h"

#include "shell/numbers/RuntimeFailure.h"

#include <algorithm>

namespace caudalera {

namespace {

long longest(const std::vector<Graph::Series>& series) {
    std::size_t count = 0;
    for (const Graph::Series& each : series)
        count = std::max(count, each.y.size());
    return static_cast<long>(count);
}

} // namespace

Graph::Graph(Window& window, std::string name)
    : Control(window, std::move(name), ControlKind::chart) {
    visible = false;
}

void Graph::setKind(Kind kind, int style) {
    kind_ = kind;
    style_ = style;
}

void Graph::setSize(long points, long series) {
    points_ = points;
    series_.assign(static_cast<std::size_t>(series), {});
    x_.reset();
}

void Graph::setLegend(std::size_t series, std::string legend) {
    if (series >= series_.size())
        throw RuntimeFailure(Failure::index);
    series_[series].legend = std::move(legend);
}

void Graph::setX(std::vector<double> positions) {
    if (static_cast<long>(positions.size()) > points_)
        throw RuntimeFailure(Failure::index);
    x_ = std::move(positions);
}

void Graph::setY(std::size_t series, std::vector<double> values) {
    if (series >= series_.size() || static_cast<long>(values.size()) > points_)
        throw RuntimeFailure(Failure::index);
    series_[series].y = std::move(values);
}

void Graph::draw() {
    ++revision_;
}

void Graph::clear() {
    background_ = 7;
    border_ = false;
    points_ = 0;
    series_.clear();
    x_.reset();
    visible = false;
    ++revision_;
}

void dibujar(Graph& graph, Chart chart) {
    graph.setKind(chart.kind, chart.style);
    graph.setBackgroundColor(7);
    graph.setBorder(true);
    graph.visible = true;
    graph.setAutoAdvance(chart.autoAdvance);
    graph.setSize(chart.points.value_or(longest(chart.series)),
                  static_cast<long>(chart.series.size()));
    for (std::size_t i = 0; i < chart.series.size(); ++i)
        graph.setLegend(i, std::move(chart.series[i].legend));
    if (chart.x)
        graph.setX(*std::move(chart.x));
    for (std::size_t i = 0; i < chart.series.size(); ++i)
        graph.setY(i, std::move(chart.series[i].y));
    graph.draw();
}

} // namespace caudalera
