#include "shell/window/GridHistory.h"

#include "shell/numbers/RuntimeFailure.h"
#include "shell/window/MSFlexGrid.h"
#include "shell/window/Window.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace caudalera {

namespace {

/// A grid of the most rows that a 16-bit count holds takes some 6 MB in the widest worksheet, so
/// that three or four clearings of such can be taken back one after the other; of single values, of
/// which each takes some 400 bytes, there is room for more than anyone types.
constexpr std::size_t byteLimit = 24U << 20U;

std::size_t bytesOf(const std::string& text) {
    return sizeof(std::string) + text.capacity();
}

std::size_t bytesOf(const std::vector<std::string>& texts) {
    std::size_t bytes = 0;
    for (const std::string& text : texts)
        bytes += bytesOf(text);
    return bytes;
}

} // namespace

bool GridHistory::ready() {
    const long columns = grid_.Cols() - grid_.FixedCols();
    if (columns != columns_) {
        columns_ = columns;
        noting_ = false;
        cells_.clear();
        steps_.clear();
        done_ = bytes_ = 0;
    }
    return columns > 0 && grid_.Rows() > grid_.FixedRows();
}

GridHistory::Place GridHistory::place() const {
    Place now{grid_.Row(), grid_.Col(), grid_.TextMatrix(grid_.Rows() - 1, 0), {}};
    now.fields.reserve(fields.size());
    for (const TextBox* field : fields)
        now.fields.push_back(field->text());
    return now;
}

bool GridHistory::takeOver(Step& step) {
    if (revision_ == grid_.revision())
        return false;
    revision_ = grid_.revision();
    const long fixed = grid_.FixedRows();
    const long rowsBefore = static_cast<long>(cells_.size()) / columns_;
    const long rowsNow = grid_.Rows() - fixed;
    const MSFlexGrid::Touched touched = grid_.takeTouched();
    long first = std::clamp(touched.first - fixed, 0L, std::min(rowsBefore, rowsNow));
    long rest = std::clamp(touched.rest, 0L, std::min(rowsBefore, rowsNow) - first);
    const auto same = [&](long before, long now) {
        for (long col = 0; col < columns_; ++col) {
            if (cells_[static_cast<std::size_t>(before * columns_ + col)] !=
                grid_.TextMatrix(fixed + now, grid_.FixedCols() + col))
                return false;
        }
        return true;
    };
    // Rows that were written but say the same, and those that an inserted one has moved.
    while (first < std::min(rowsBefore, rowsNow) - rest && same(first, first))
        ++first;
    while (rest < std::min(rowsBefore, rowsNow) - first &&
           same(rowsBefore - rest - 1, rowsNow - rest - 1))
        ++rest;
    step.first = fixed + first;
    step.rows = rowsNow - rest - first;
    const auto from = cells_.begin() + first * columns_;
    const auto to = cells_.end() - rest * columns_;
    step.cells.assign(std::make_move_iterator(from), std::make_move_iterator(to));
    // Only another number of rows moves those behind them, of which there may be many.
    if (rowsNow < rowsBefore) {
        cells_.erase(from, from + (rowsBefore - rowsNow) * columns_);
    } else {
        cells_.insert(from, static_cast<std::size_t>((rowsNow - rowsBefore) * columns_), {});
    }
    auto cell = cells_.begin() + first * columns_;
    for (long row = step.first; row < step.first + step.rows; ++row) {
        for (long col = grid_.FixedCols(); col < grid_.Cols(); ++col)
            *cell++ = grid_.TextMatrix(row, col);
    }
    return step.rows > 0 || !step.cells.empty();
}

void GridHistory::note() {
    if (!ready())
        return;
    Step step;
    const bool changed = takeOver(step);
    Place now = place();
    if (changed && noting_) {
        for (; canRedo(); steps_.pop_back())
            forget(steps_.back());
        step.before = std::move(place_);
        step.after = now;
        weigh(step);
        steps_.push_back(std::move(step));
        ++done_;
        keepLimit();
    }
    noting_ = true;
    place_ = std::move(now);
}

bool GridHistory::undo() {
    note();
    if (!canUndo())
        return false;
    Step& step = steps_[done_ - 1];
    if (!move(step, step.after, step.before))
        return false;
    --done_;
    keepLimit();
    return true;
}

bool GridHistory::redo() {
    note();
    if (!canRedo())
        return false;
    Step& step = steps_[done_];
    if (!move(step, step.before, step.after))
        return false;
    ++done_;
    keepLimit();
    return true;
}

bool GridHistory::move(Step& step, const Place& from, const Place& to) {
    const Place now = place();
    if (grid_.editor)
        grid_.editor->visible = false;
    exchange(step);
    bool possible = true;
    try {
        put(from, to);
    } catch (const RuntimeFailure&) {
        // What the rows are labelled by has changed since, and does not reach so far.
        possible = false;
        exchange(step);
        put(to, now);
    }
    Step known;
    takeOver(known);
    place_ = place();
    weigh(step);
    return possible;
}

void GridHistory::exchange(Step& step) {
    const long rows = static_cast<long>(step.cells.size()) / columns_;
    step.cells = grid_.replaceRows(step.first, step.rows, std::move(step.cells));
    step.rows = rows;
}

void GridHistory::put(const Place& from, const Place& to) {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (from.fields[i] != to.fields[i])
            fields[i]->setText(to.fields[i]);
    }
    grid_.placeCurrent(to.row, to.col);
    if (onRestored)
        onRestored();
    grid_.setTextMatrix(grid_.Rows() - 1, 0, to.mark);
}

void GridHistory::weigh(Step& step) {
    bytes_ -= step.bytes;
    step.bytes = sizeof step + bytesOf(step.cells) + bytesOf(step.before.fields) +
                 bytesOf(step.after.fields);
    bytes_ += step.bytes;
}

void GridHistory::keepLimit() {
    // The last one stays whatever it takes: the grid itself has held as much.
    while (bytes_ > byteLimit && steps_.size() > 1) {
        if (done_ > 1) {
            forget(steps_.front());
            steps_.pop_front();
            --done_;
        } else {
            forget(steps_.back());
            steps_.pop_back();
        }
    }
}

} // namespace caudalera
