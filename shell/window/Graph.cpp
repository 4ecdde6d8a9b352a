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

std::string titleOf(const std::vector<Label*>& labels, const std::string& drawn) {
    std::string title;
    for (const Label* label : labels) {
        if (label->visible)
            title += (title.empty() ? "" : " ") + label->caption;
    }
    return title.empty() ? drawn : title;
}

} // namespace

Graph::Graph(Window& window, std::string name)
    : Control(window, std::move(name), ControlKind::chart) {
    visible = false;
}

std::string Graph::xTitle() const {
    return titleOf(xLabels, xTitle_);
}

std::string Graph::yTitle() const {
    return titleOf(yLabels, yTitle_);
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

void Graph::setLegend(std::size_t series, std::string legend, std::string meaning) {
    if (series >= series_.size())
        throw RuntimeFailure(Failure::index);
    series_[series].legend = std::move(legend);
    series_[series].meaning = std::move(meaning);
}

void Graph::setTitles(std::string x, std::string y) {
    xTitle_ = std::move(x);
    yTitle_ = std::move(y);
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
    setTitles({}, {});
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
    graph.setTitles(std::move(chart.xTitle), std::move(chart.yTitle));
    for (std::size_t i = 0; i < chart.series.size(); ++i)
        graph.setLegend(i, std::move(chart.series[i].legend), std::move(chart.series[i].meaning));
    if (chart.x)
        graph.setX(*std::move(chart.x));
    for (std::size_t i = 0; i < chart.series.size(); ++i)
        graph.setY(i, std::move(chart.series[i].y));
    graph.draw();
}

} // namespace caudalera
