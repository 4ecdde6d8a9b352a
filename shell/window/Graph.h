#pragma once

#include "shell/window/Control.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace caudalera {

/// The chart of a window: a table of series over shared X positions. It is declared for a number of
/// points; those that a series gives no value are not set, and not drawn. It is hidden until drawn
/// and holds nothing that a calculation needs.
class Graph : public Control {
public:
    enum class Kind { line, area };
    struct Series {
        std::string legend;
        std::vector<double> y;
        /// What the legend's abbreviation stands for.
        std::string meaning{};
    };

    Graph(Window& window, std::string name);

    Kind graphKind() const { return kind_; }
    int style() const { return style_; }
    int backgroundColor() const { return background_; }
    bool border() const { return border_; }
    bool autoAdvance() const { return autoAdvance_; }
    /// Points declared for each series.
    long points() const { return points_; }
    const std::vector<Series>& series() const { return series_; }
    /// None: the points stand at 1, 2, 3 and so on.
    const std::optional<std::vector<double>>& x() const { return x_; }
    /// Grows with each draw and clear.
    std::uint64_t revision() const { return revision_; }

    /// Captions of the axes: labels of the window, whose place is along the axis. The visible ones
    /// of an axis are joined by a blank.
    std::vector<Label*> xLabels;
    std::vector<Label*> yLabels;
    /// What an axis measures: its caption, or what the drawing says where it has none.
    std::string xTitle() const;
    std::string yTitle() const;

    void setKind(Kind kind, int style);
    void setBackgroundColor(int index) { background_ = index; }
    void setBorder(bool single) { border_ = single; }
    void setAutoAdvance(bool on) { autoAdvance_ = on; }
    /// Also discards the values and legends of an earlier drawing.
    void setSize(long points, long series);
    void setLegend(std::size_t series, std::string legend, std::string meaning = {});
    void setTitles(std::string x, std::string y);
    /// The positions of the first points; failure 9 past the declared ones.
    void setX(std::vector<double> positions);
    /// The values of the first points; failure 9 past the declared ones.
    void setY(std::size_t series, std::vector<double> values);
    void draw();
    /// Background index 7, no border, no series, no titles, not visible.
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
    std::string xTitle_;
    std::string yTitle_;
    std::uint64_t revision_ = 0;
};

/// What a drawing shows.
struct Chart {
    Graph::Kind kind = Graph::Kind::line;
    int style = 0;
    bool autoAdvance = true;
    /// As many as the longest series has values, if not given.
    std::optional<long> points;
    /// None: the points stand at 1, 2, 3 and so on.
    std::optional<std::vector<double>> x;
    std::vector<Graph::Series> series;
    /// Titles of the axes, as the window calls the quantities, where no label stands along them.
    std::string xTitle;
    std::string yTitle;
};

/// Takes a chart through the operations of a drawing in their order: kind and style, background,
/// border, visible, auto-advance, size, titles, legends, X positions, Y values, draw. What an
/// earlier drawing showed is gone. Failure 9 for more values than declared points.
void dibujar(Graph& graph, Chart chart);

} // namespace caudalera
