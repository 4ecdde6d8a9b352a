// What a person does at a grid: keys, mouse, clipboard.
#include "desktop/controls/KeyEvents.h"
#include "desktop/controls/Note.h"
#include "desktop/controls/PasteReading.h"
#include "desktop/grid/GridEditor.h"
#include "desktop/grid/GridView.h"
#include "desktop/session/Session.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

namespace caudalera {

void GridView::typeText(const QString& text) {
    session_.act([&] {
        for (const auto character : text.toUcs4())
            session_.program().key(grid_, {Key::Kind::character, static_cast<char32_t>(character)});
    });
}

void GridView::travel(Way way) {
    session_.act([&] {
        Program& program = session_.program();
        // What stands in an open box becomes a change first.
        program.focus(grid_);
        program.act([&] {
            if (way == Way::back) {
                grid_.history->undo();
            } else {
                grid_.history->redo();
            }
        });
    });
}

bool GridView::travelByKey(QKeyEvent& event) {
    if (!grid_.history || !(isUndo(event) || isRedo(event)))
        return false;
    if (grid_.editor->visible) {
        // A key that came before the box had the keyboard.
        QApplication::sendEvent(editor_, &event);
    } else {
        travel(isUndo(event) ? Way::back : Way::again);
    }
    return true;
}

void GridView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy();
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        paste(toQString(session_.platform().clipboardText()));
        return;
    }
    if (event->matches(QKeySequence::SelectAll)) {
        selectAllCells();
        return;
    }
    if (travelByKey(*event))
        return;
    if (editor_ && event->key() == Qt::Key_F2) {
        openCell();
        return;
    }
    if (editor_ && event->key() == Qt::Key_Delete) {
        emptyCell();
        return;
    }
    const bool selecting = event->modifiers() & Qt::ShiftModifier;
    const auto kind = commandKey(*event);
    if (kind && !(selecting && (*kind == Key::Kind::up || *kind == Key::Kind::down))) {
        session_.act([&] { session_.program().key(grid_, {*kind}); });
        return;
    }
    if (navigate(*event))
        return;
    const QString text = event->text();
    const bool isText = !text.isEmpty() && (text.front().isPrint() || text == u"\b");
    if (isText && !isShortcut(*event)) {
        typeText(text);
    } else {
        event->ignore();
    }
}

void GridView::openCell() {
    typeText(QStringLiteral(" "));
}

void GridView::emptyCell() {
    // The box opens with the cell's text and gives its own, empty, back to the cell.
    session_.act([this] {
        Program& program = session_.program();
        program.key(grid_, {Key::Kind::character, U' '});
        program.editText(*grid_.editor, "");
        program.focus(grid_);
    });
}

bool GridView::navigate(const QKeyEvent& event) {
    const bool selecting = event.modifiers() & Qt::ShiftModifier;
    const bool far = event.modifiers() & Qt::ControlModifier;
    const long page = std::max(viewport()->height() / std::max(rowHeight(0), 1) - 1, 1);
    switch (event.key()) {
    case Qt::Key_Up:
        step(-1, 0, selecting);
        return true;
    case Qt::Key_Down:
        step(1, 0, selecting);
        return true;
    case Qt::Key_Left:
        step(0, -1, selecting);
        return true;
    case Qt::Key_Right:
        step(0, 1, selecting);
        return true;
    case Qt::Key_PageUp:
        step(-page, 0, selecting);
        return true;
    case Qt::Key_PageDown:
        step(page, 0, selecting);
        return true;
    case Qt::Key_Home:
        step(far ? -grid_.Rows() : 0, far ? 0 : -grid_.Cols(), selecting);
        return true;
    case Qt::Key_End:
        step(far ? grid_.Rows() : 0, far ? 0 : grid_.Cols(), selecting);
        return true;
    default:
        return false;
    }
}

void GridView::step(long rows, long cols, bool selecting) {
    const Cell from =
        selecting ? Cell{grid_.RowSel(), grid_.ColSel()} : Cell{grid_.Row(), grid_.Col()};
    if (grid_.Rows() <= grid_.FixedRows() || grid_.Cols() <= grid_.FixedCols())
        return;
    moveTo({std::clamp(from.row + rows, grid_.FixedRows(), grid_.Rows() - 1),
            std::clamp(from.col + cols, grid_.FixedCols(), grid_.Cols() - 1)},
           selecting);
}

void GridView::moveTo(Cell cell, bool selecting) {
    session_.act([&] {
        Program& program = session_.program();
        if (!selecting) {
            program.selectCell(grid_, cell.row, cell.col);
        } else if (grid_.canSelect(cell.row, cell.col)) {
            program.act([&] { grid_.setSelectionEnd(cell.row, cell.col); });
        }
    });
    if (selecting && !session_.busy() && !session_.program().ended())
        scrollTo(model_.indexOf(cell.row, cell.col), QAbstractItemView::EnsureVisible);
}

void GridView::selectAllCells() {
    if (!grid_.canSelect(grid_.FixedRows(), grid_.FixedCols()))
        return;
    session_.act([this] {
        Program& program = session_.program();
        program.selectCell(grid_, grid_.FixedRows(), grid_.FixedCols());
        program.act([this] { grid_.setSelectionEnd(grid_.Rows() - 1, grid_.Cols() - 1); });
    });
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
    typeText(event->commitString());
    event->accept();
}

GridView::Cell GridView::nearestCell(const QPoint& point) const {
    int row = rowAt(point.y());
    if (row < 0)
        row = point.y() < 0 ? verticalScrollBar()->value() : model_.rowCount() - 1;
    int col = columnAt(point.x());
    if (col < 0)
        col = point.x() < 0 ? 0 : model_.columnCount() - 1;
    return {model_.gridRow(row), std::max<long>(col, grid_.FixedCols())};
}

void GridView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid())
        return;
    const Cell cell = nearestCell(event->position().toPoint());
    if (!grid_.canSelect(cell.row, cell.col))
        return;
    dragging_ = true;
    moveTo(cell, event->modifiers() & Qt::ShiftModifier);
    // A click beside the data takes the whole row.
    if (index.column() < grid_.FixedCols())
        moveTo({cell.row, grid_.Cols() - 1}, true);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
    dragging_ = false;
    const QModelIndex index = indexAt(event->position().toPoint());
    if (editor_ && event->button() == Qt::LeftButton && index.column() >= grid_.FixedCols())
        openCell();
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    if (!dragging_ || !(event->buttons() & Qt::LeftButton))
        return;
    const Cell cell = nearestCell(event->position().toPoint());
    if (cell.row != grid_.RowSel() || cell.col != grid_.ColSel())
        moveTo(cell, true);
}

void GridView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    dragging_ = false;
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    session_.act([this] { session_.program().rightClick(grid_); });
    const QPoint position =
        event->reason() == QContextMenuEvent::Mouse
            ? event->globalPos()
            : viewport()->mapToGlobal(
                  visualRect(model_.indexOf(grid_.Row(), grid_.Col())).bottomLeft());
    openMenu(position);
}

void GridView::paste(const QString& text) {
    if (!editor_)
        return;
    PastedBlock block(text.toStdString());
    std::string refusal;
    session_.act([&] {
        session_.program().focus(grid_);
        refusal = block.refusalFor(grid_);
        if (!refusal.empty())
            session_.platform().showMessage({refusal, {}, Icon::information});
    });
    if (!refusal.empty() || !settleCommas(block, *this))
        return;
    session_.act([&] { block.enter(session_.program(), grid_); });
    if (block.hasHeadings() && !session_.program().ended()) {
        showNote(*viewport(), visualRect(model_.indexOf(grid_.Row(), grid_.Col())),
                 QStringLiteral("La primera fila no tiene números: se dejó fuera como "
                                "encabezado."));
    }
}

} // namespace caudalera
