#include "shell/window/MSFlexGrid.h"

#include "shell/numbers/Integer16.h"
#include "shell/numbers/RuntimeFailure.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace caudalera {

namespace {

std::ptrdiff_t offset(long rows, long cols) {
    return static_cast<std::ptrdiff_t>(rows) * cols;
}

} // namespace

MSFlexGrid::MSFlexGrid(Window& window, std::string name)
    : Control(window, std::move(name), ControlKind::grid) {}

std::size_t MSFlexGrid::position(long row, long col) const {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_)
        throw RuntimeFailure(Failure::index);
    return static_cast<std::size_t>(offset(row, cols_) + col);
}

void MSFlexGrid::touch(long first, long rest) {
    touched_.first = std::min(touched_.first, first);
    touched_.rest = std::min(touched_.rest, rest);
    ++revision_;
}

MSFlexGrid::Touched MSFlexGrid::takeTouched() {
    constexpr long none = std::numeric_limits<long>::max();
    return std::exchange(touched_, {none, none});
}

void MSFlexGrid::reset(long rows, long cols, long fixedRows, long fixedCols) {
    rows_ = Integer16(rows);
    cols_ = Integer16(cols);
    fixedRows_ = fixedRows;
    fixedCols_ = fixedCols;
    cells_.assign(static_cast<std::size_t>(offset(rows, cols)), {});
    row_ = rowSel_ = std::min(fixedRows_, std::max(rows_ - 1, 0L));
    col_ = colSel_ = std::min(fixedCols_, std::max(cols_ - 1, 0L));
    topRow_ = fixedRows_;
    touch(0, 0);
}

void MSFlexGrid::setHeaders(const std::vector<std::string>& headers, long row) {
    for (std::size_t i = 0; i < headers.size(); ++i)
        setTextMatrix(row, static_cast<long>(i), headers[i]);
}

void MSFlexGrid::setRows(long rows) {
    const long count = Integer16(rows);
    if (count < fixedRows_)
        throw RuntimeFailure(Failure::index);
    if (count == rows_)
        return;
    cells_.resize(static_cast<std::size_t>(offset(count, cols_)));
    touch(std::min(rows_, count), 0);
    rows_ = count;
    row_ = std::min(row_, std::max(rows_ - 1, 0L));
    rowSel_ = std::min(rowSel_, std::max(rows_ - 1, 0L));
    topRow_ = std::min(topRow_, std::max(rows_ - 1, 0L));
}

void MSFlexGrid::RemoveItem(long row) {
    if (row < fixedRows_ || row >= rows_)
        throw RuntimeFailure(Failure::index);
    const auto first = cells_.begin() + offset(row, cols_);
    cells_.erase(first, first + cols_);
    --rows_;
    row_ = std::min(row_, std::max(rows_ - 1, 0L));
    rowSel_ = row_;
    topRow_ = std::min(topRow_, std::max(rows_ - 1, 0L));
    touch(row, rows_ - row);
}

void MSFlexGrid::setTextMatrix(long row, long col, std::string text) {
    countWriting();
    auto& cell = cells_[position(row, col)];
    if (cell == text)
        return;
    cell = std::move(text);
    if (col < fixedCols_) {
        ++revision_;
    } else {
        touch(row, rows_ - row - 1);
    }
}

std::vector<std::string> MSFlexGrid::replaceRows(long first, long count,
                                                 std::vector<std::string> cells) {
    const long width = cols_ - fixedCols_;
    const long added = static_cast<long>(cells.size()) / width;
    if (first < fixedRows_ || count < 0 || first + count > rows_)
        throw RuntimeFailure(Failure::index);
    const long rows = Integer16(rows_ + added - count);
    std::vector<std::string> before;
    before.reserve(static_cast<std::size_t>(count * width));
    for (long row = first; row < first + count; ++row) {
        const auto data = cells_.begin() + offset(row, cols_) + fixedCols_;
        std::move(data, data + width, std::back_inserter(before));
    }
    const auto place = cells_.begin() + offset(first, cols_);
    if (added < count) {
        cells_.erase(place, place + offset(count - added, cols_));
    } else {
        cells_.insert(place, static_cast<std::size_t>(offset(added - count, cols_)), {});
    }
    rows_ = rows;
    for (long i = 0; i < added; ++i) {
        const auto data = cells.begin() + offset(i, width);
        std::move(data, data + width, cells_.begin() + offset(first + i, cols_) + fixedCols_);
    }
    row_ = rowSel_ = std::min(row_, std::max(rows_ - 1, 0L));
    topRow_ = std::min(topRow_, std::max(rows_ - 1, 0L));
    touch(first, rows_ - first - added);
    return before;
}

void MSFlexGrid::clearRowsFrom(long first) {
    for (long row = first; row < rows_; ++row) {
        for (long col = fixedCols_; col < cols_; ++col)
            setTextMatrix(row, col, {});
    }
}

void MSFlexGrid::moveTo(long row, long col) {
    if (row < 0 || row >= rows_ || col < 0 || col >= cols_)
        throw RuntimeFailure(Failure::index);
    if (row == row_ && col == col_) {
        rowSel_ = row;
        colSel_ = col;
        return;
    }
    if (onLeaveCell)
        onLeaveCell();
    row_ = rowSel_ = row;
    col_ = colSel_ = col;
    if (onRowColChange)
        onRowColChange();
}

bool MSFlexGrid::canSelect(long row, long col) const {
    return row >= fixedRows_ && row < rows_ && col >= fixedCols_ && col < cols_;
}

void MSFlexGrid::selectCell(long row, long col) {
    if (!canSelect(row, col))
        throw RuntimeFailure(Failure::index);
    if (row != row_ || col != col_) {
        moveTo(row, col);
        return;
    }
    rowSel_ = row;
    colSel_ = col;
    if (onRowColChange)
        onRowColChange();
}

void MSFlexGrid::placeCurrent(long row, long col) {
    position(row, col);
    row_ = rowSel_ = row;
    col_ = colSel_ = col;
}

void MSFlexGrid::setSelectionEnd(long row, long col) {
    position(row, col);
    rowSel_ = row;
    colSel_ = col;
}

void MSFlexGrid::setTopRow(long row) {
    const long top = std::clamp(row, fixedRows_, std::max(rows_ - 1, fixedRows_));
    if (top == topRow_)
        return;
    topRow_ = top;
    if (onScroll)
        onScroll();
}

} // namespace caudalera
