#pragma once

#include "shell/window/Control.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

class GridHistory;

/// A table of text cells with fixed rows and columns and a current cell. An index outside it is
/// failure 9, more rows than a 16-bit count holds failure 6.
class MSFlexGrid : public Control {
public:
    enum class ColumnAlignment { left, center, right };

    MSFlexGrid(Window& window, std::string name);

    /// Builds it anew and empty, the current cell in the first one that is not fixed.
    void reset(long rows, long cols, long fixedRows, long fixedCols);
    /// A row, the first one if not given, takes these texts from column 0 on.
    void setHeaders(const std::vector<std::string>& headers, long row = 0);

    long Rows() const { return rows_; }
    long Cols() const { return cols_; }
    long FixedRows() const { return fixedRows_; }
    long FixedCols() const { return fixedCols_; }
    /// New rows are empty and stand at the end.
    void setRows(long rows);
    /// Takes one row out; the current cell keeps its place as far as there is one.
    void RemoveItem(long row);

    const std::string& TextMatrix(long row, long col) const { return cells_[position(row, col)]; }
    void setTextMatrix(long row, long col, std::string text);
    /// Empties the cells of the rows from `first` to the last one.
    void clearRowsFrom(long first);
    /// Puts rows in place of `count` others; gives back the cells that stood there. Both are told
    /// without the fixed columns, whose texts are then to be written anew. No event runs.
    std::vector<std::string> replaceRows(long first, long count, std::vector<std::string> cells);

    long Row() const { return row_; }
    long Col() const { return col_; }
    /// Moving the current cell runs the events of leaving and of change; staying runs neither.
    void setRow(long row) { moveTo(row, col_); }
    void setCol(long col) { moveTo(row_, col); }
    /// Makes a cell the current one as a click does: the change event runs in any case.
    void selectCell(long row, long col);
    /// Makes a cell the current one and runs no event.
    void placeCurrent(long row, long col);
    /// Whether it is a cell that can be made current.
    bool canSelect(long row, long col) const;

    /// Other end of the selection that begins in the current cell.
    long RowSel() const { return rowSel_; }
    long ColSel() const { return colSel_; }
    void setSelectionEnd(long row, long col);

    /// Topmost row below the fixed ones; scrolling runs its event.
    long TopRow() const { return topRow_; }
    void setTopRow(long row);

    /// Column widths in twips (1440 to the inch); the view takes their proportions from them.
    std::vector<int> columnWidths;
    std::vector<ColumnAlignment> columnAlignments;
    /// Rows that the grid shows at a time, the fixed ones not counted.
    int visibleRows = 14;

    std::function<void()> onLeaveCell;
    std::function<void()> onRowColChange;
    std::function<void()> onScroll;
    /// The box that floats over the cell being edited; while it is visible it gets the keys.
    TextBox* editor = nullptr;
    /// The menu that a right click opens, its entries below it.
    MenuEntry* popup = nullptr;
    /// What takes changes of the cells back; nullptr for a grid that has none.
    GridHistory* history = nullptr;
    /// Character key other than ENTER (its code), and ENTER, on the grid itself.
    std::function<void(char32_t)> onKeyPress;
    std::function<void()> onEnter;
    std::function<void()> onRightClick;

    /// Grows whenever a cell or the size changes.
    std::uint64_t revision() const { return revision_; }

    /// Which rows may hold other data since the last call: those from `first` on but for the last
    /// `rest` ones.
    struct Touched {
        long first = 0;
        long rest = 0;
    };
    Touched takeTouched();

private:
    void touch(long first, long rest);
    std::size_t position(long row, long col) const;
    void moveTo(long row, long col);

    long rows_ = 0;
    long cols_ = 0;
    long fixedRows_ = 0;
    long fixedCols_ = 0;
    long row_ = 0;
    long col_ = 0;
    long rowSel_ = 0;
    long colSel_ = 0;
    long topRow_ = 0;
    std::vector<std::string> cells_;
    std::uint64_t revision_ = 0;
    Touched touched_;
};

} // namespace caudalera
