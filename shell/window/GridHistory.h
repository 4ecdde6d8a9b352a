#pragma once

#include "shell/window/Control.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace caudalera {

class MSFlexGrid;

/// The changes of a grid's data, to be taken back and brought again. A step holds the rows in which
/// the grid before it differs from the one behind it, with the current cell and the mark of the
/// last row of either. Nothing is kept before somebody notes for the first time.
class GridHistory {
public:
    explicit GridHistory(MSFlexGrid& grid) : grid_(grid) {}

    /// Fields that belong to the rows: a step that changes both takes both back.
    std::vector<TextBox*> fields;
    /// Derives from rows and fields what is not kept (the fixed cells). A run-time failure here
    /// leaves the grid as it was.
    std::function<void()> onRestored;

    /// Closes a step: what has changed since the last call is one. To be called when an act of the
    /// user has ended.
    void note();
    /// False if there is nothing to be taken back or brought again, or if it can't be. The edit box
    /// closes, no event of the grid runs; who calls has brought the focus to the grid.
    bool undo();
    bool redo();
    bool canUndo() const { return done_ > 0; }
    bool canRedo() const { return done_ < steps_.size(); }
    /// What the steps take of the memory.
    std::size_t bytes() const { return bytes_; }

private:
    /// What goes with the data at one moment.
    struct Place {
        long row = 0;
        long col = 0;
        /// Fixed cell of the last row.
        std::string mark;
        std::vector<std::string> fields;
    };
    /// `rows` of the grid stand in for `cells`, which are none of the fixed ones.
    struct Step {
        long first = 0;
        long rows = 0;
        std::vector<std::string> cells;
        Place before;
        Place after;
        std::size_t bytes = 0;
    };

    Place place() const;
    /// Whether there are data columns; another number of them begins anew.
    bool ready();
    /// Takes the grid's data over; whether and where they differed, with the cells that stood here.
    bool takeOver(Step& step);
    bool move(Step& step, const Place& from, const Place& to);
    /// Changes the step's cells for those in the grid.
    void exchange(Step& step);
    /// Brings what goes with the data in line with them, of the fields those that a step changes.
    void put(const Place& from, const Place& to);
    void weigh(Step& step);
    void forget(const Step& step) { bytes_ -= step.bytes; }
    void keepLimit();

    MSFlexGrid& grid_;
    bool noting_ = false;
    long columns_ = 0;
    std::uint64_t revision_ = 0;
    /// The data cells as they were noted last.
    std::vector<std::string> cells_;
    Place place_;
    std::deque<Step> steps_;
    /// How many of the steps are in the grid; the others were taken back.
    std::size_t done_ = 0;
    std::size_t bytes_ = 0;
};

} // namespace caudalera
