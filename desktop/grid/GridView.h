#pragma once

#include "desktop/controls/ControlView.h"
#include "desktop/grid/CellDelegate.h"
#include "desktop/grid/GridColumns.h"
#include "desktop/grid/GridModel.h"
#include "shell/window/GridHistory.h"

#include <QTableView>

class QMenu;

namespace caudalera {

class GridEditor;

/// A grid of the model with its floating edit box. Current cell and selection are the model's;
/// keys, clicks and scrolling go there. Cells can be copied from any grid, blocks of numbers
/// pasted into one that can be edited.
class GridView : public QTableView {
    Q_OBJECT

public:
    GridView(Session& session, MSFlexGrid& grid, QWidget* parent);

    /// Takes back or brings again a change of the data if the key says so; whether it does.
    bool travelByKey(QKeyEvent& event);
    /// What the columns take more than there is room for.
    int lackingWidth() const;

    void sync();
    /// nullptr for a grid that can't be edited.
    GridEditor* editor() const { return editor_; }

    /// The selected cells, columns parted by tabs, rows by line ends; empty rows behind the last
    /// one that holds something are left out.
    QString selectedText() const;
    void copy() const;
    /// With the titles of the columns above them.
    void copyWithHeadings() const;
    /// Enters a block of numbers from the current cell on, or tells why not.
    void paste(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Cell {
        long row;
        long col;
    };

    void typeText(const QString& text);
    /// Takes the last change of the data back, or brings it again.
    enum class Way { back, again };
    void travel(Way way);
    /// Moves the current cell, or with Shift the other end of the selection, as far as it can go.
    void step(long rows, long cols, bool selecting);
    void moveTo(Cell cell, bool selecting);
    void selectAllCells();
    bool navigate(const QKeyEvent& event);
    /// The cell at a point, or the nearest one.
    Cell nearestCell(const QPoint& point) const;
    void userScrolled(int value);
    /// As high as its lines of titles.
    void fitHeader();
    int heightOf(int rows) const;
    /// Rows that there is something to see in, at least those that the grid shows at any rate.
    int shownRows() const;
    /// Rows that it asks room for.
    int wantedRows() const;
    void limitHeight();
    /// What stands beside the columns.
    int sides() const;
    /// Results scroll to their last row that holds something, or that is the current one.
    void limitScrolling();
    void syncScroll(bool moved);
    void syncEditor();
    void openMenu(const QPoint& globalPosition);
    /// The entries of a grid that has no menu of its own.
    void offerCopying(QMenu& menu);
    /// The selected columns of some rows.
    QString rowsText(long firstRow, long lastRow) const;
    /// Opens the edit box with the current cell's text.
    void openCell();
    /// Empties the current cell as the edit box does.
    void emptyCell();

    Session& session_;
    MSFlexGrid& grid_;
    GridModel model_;
    CellDelegate delegate_;
    GridColumns columns_;
    GridEditor* editor_ = nullptr;
    std::uint64_t revision_ = 0;
    Cell current_{-1, -1};
    Cell selectionEnd_{-1, -1};
    long topRow_ = -1;
    bool resizing_ = false;
    /// Whether the columns take more than the room.
    bool scrollsAside_ = false;
    bool dragging_ = false;
};

class GridControlView : public ControlView {
public:
    GridControlView(Session& session, MSFlexGrid& grid, QWidget* parent)
        : GridControlView(grid, *new GridView(session, grid, parent)) {}

    QWidget* focusTarget() const override { return &view_; }
    void sync() override;
    GridView& view() const { return view_; }
    MSFlexGrid& grid() const { return static_cast<MSFlexGrid&>(control()); }

private:
    GridControlView(MSFlexGrid& grid, GridView& view) : ControlView(grid, view), view_(view) {}

    GridView& view_;
};

} // namespace caudalera
