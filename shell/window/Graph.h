#pragma once

#include "shell/window/Control.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace caudalera {

/// The chart of a window: a table of series over shared X positions. It is hidden until drawn and
/// holds nothing that a calculation needs.
class Graph : public Control {
public:
    enum class Kind { line, area };
    struct Series {
        std::string legend;
        std::vector<double> y;
    };

    Graph(Window& window, std::string name);

    Kind graphKind() const { return kind_; }
    int style() const { return style_; }
    int backgroundColor() const { return background_; }
    bool border() const { return border_; }
    bool autoAdvance() const { return autoAdvance_; }
    long points() const { return points_; }
    const std::vector<Series>& series() const { return series_; }
    /// None: the points stand at 1, 2, 3 and so on.
    const std::optional<std::vector<double>>& x() const { return x_; }
    /// Grows with each draw and clear.
    std::uint64_t revision() const { return revision_; }

    /// Fixed captions of the axes, where the form gives them.
    std::string xCaption;
    std::string yCaption;

    void setKind(Kind kind, int style);
    void setBackgroundColor(int index) { background_ = index; }
    void setBorder(bool single) { border_ = single; }
    void setAutoAdvance(bool on) { autoAdvance_ = on; }
    /// Also discards the values and legends of an earlier drawing.
    void setSize(long points, long series);
    void setLegend(std::size_t series, std::string legend);
    void setX(std::vector<double> positions) { x_ = std::move(positions); }
    void setY(std::size_t series, std::vector<double> values);
    void draw();
    /// Background index 7, no border, no series, not visible.
    void clear();

private:
    Kind kind_ = Kind::line;
    int style_ = 0;
    int background_ = 7;
    bool border_ = false;
    bool autoAdvance_ = true;
    long points_ = 0;
    std::vector<Series> series_;
    std::optional<std::vector<double>> x_;
    std::uint64_t revision_ = 0;
};

/// What a line chart shows; `dibujarLineas` takes a Graph through the fixed order of operations.
struct LineChart {
    int style = 0;
    bool autoAdvance = true;
    std::optional<std::vector<double>> x;
    std::vector<Graph::Series> series;
};

/// Draws a line chart: kind and style, background, border, visible, auto-advance, size, legends,
/// X positions, Y values, draw.
void dibujarLineas(Graph& graph, LineChart chart);

} // namespace caudalera
