#include "desktop/grid/GridView.h"

#include "desktop/grid/GridEditor.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <utility>

namespace caudalera {

GridView::GridView(Session& session, MSFlexGrid& grid, QWidget* parent)
    : QTableView(parent), session_(session), grid_(grid), model_(grid, this), delegate_(grid, this),
      columns_(*this, grid, model_) {
    setObjectName(toQString(grid.name()));
    setModel(&model_);
    setItemDelegate(&delegate_);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollBarPolicy(grid.editor ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAsNeeded);
    setAttribute(Qt::WA_InputMethodEnabled);
    setWordWrap(false);
    setCornerButtonEnabled(false);

    QPalette ruled = palette();
    ruled.setColor(QPalette::Mid, style::lines());
    setPalette(ruled);
    setStyleSheet(QStringLiteral("QTableView { gridline-color: %1; }").arg(style::lines().name()));
    verticalHeader()->hide();
    // One height for all rows: nothing is measured row by row.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + style::unit());
    QHeaderView* header = horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setMinimumSectionSize(1);
    header->setHighlightSections(false);
    header->setSectionsClickable(false);
    header->setStyleSheet(
        QStringLiteral("QHeaderView::section { background: %1; color: %2; border: none;"
                       " border-right: 1px solid %3; padding: 0 %4px; }")
            .arg(style::accent().name(), style::accentText().name(),
                 style::accent().lighter(130).name())
            .arg(style::halfUnit()));

    if (grid.editor) {
        editor_ = new GridEditor(session, *grid.editor, viewport(),
                                 [this](const QString& text) { paste(text); });
    }
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &GridView::userScrolled);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { syncEditor(); });
    connect(header, &QHeaderView::sectionResized, this, [this](int col, int /*old*/, int width) {
        columns_.resized(col, width);
        syncEditor();
    });
}

void GridView::sync() {
    const Cell current{grid_.Row(), grid_.Col()};
    const Cell end{grid_.RowSel(), grid_.ColSel()};
    const bool moved = current.row != current_.row || current.col != current_.col;
    const bool selected = moved || end.row != selectionEnd_.row || end.col != selectionEnd_.col;
    const bool written = revision_ != grid_.revision();
    if (written) {
        const int columns = model_.columnCount();
        model_.sync();
        revision_ = grid_.revision();
        fitHeader();
        if (columns != model_.columnCount() || columns == 0 || horizontalHeader()->length() == 0)
            columns_.fit();
        executeDelayedItemsLayout();
        limitHeight();
    }
    current_ = current;
    selectionEnd_ = end;
    if (moved || written)
        updateGeometries();
    syncScroll(moved || written);
    if (written)
        columns_.see();
    if (selected) {
        selectionModel()->setCurrentIndex(model_.indexOf(current.row, current.col),
                                          QItemSelectionModel::NoUpdate);
        viewport()->update();
    }
    syncEditor();
    // A message that a handler shows is no end of the user's act.
    if (grid_.history && !session_.program().running())
        grid_.history->note();
}

void GridView::fitHeader() {
    const int lines = static_cast<int>(std::max(grid_.FixedRows(), 1L));
    const int height = fontMetrics().height() + (lines - 1) * fontMetrics().lineSpacing() +
                       style::unit() + style::halfUnit();
    if (horizontalHeader()->height() == height)
        return;
    horizontalHeader()->setFixedHeight(height);
    updateGeometries();
    updateGeometry();
}

void GridView::syncScroll(bool moved) {
    const QModelIndex current = model_.indexOf(current_.row, current_.col);
    if (topRow_ != grid_.TopRow()) {
        topRow_ = grid_.TopRow();
        scrollTo(model_.indexOf(topRow_, current_.col), QAbstractItemView::PositionAtTop);
    }
    if (moved && current.isValid())
        scrollTo(current, QAbstractItemView::EnsureVisible);
}

void GridView::syncEditor() {
    if (!editor_)
        return;
    if (grid_.editor->visible) {
        const QModelIndex current = model_.indexOf(current_.row, current_.col);
        editor_->floatOver(visualRect(current),
                           Qt::Alignment::fromInt(current.data(Qt::TextAlignmentRole).toInt()));
        editor_->sync();
    } else if (!editor_->isHidden()) {
        // The grid keeps the keyboard; hiding alone would pass it on to the next widget.
        if (editor_->hasFocus())
            setFocus(Qt::OtherFocusReason);
        editor_->hide();
    }
}

void GridView::userScrolled(int value) {
    if (!editor_) {
        // At the end of whatever range the toolkit shows its very last row.
        verticalHeader()->setOffsetToSectionPosition(value);
        viewport()->update();
    }
    columns_.see();
    if (session_.busy() || resizing_) {
        syncEditor();
        return;
    }
    session_.act([&] {
        session_.program().scroll(grid_, model_.gridRow(value));
        topRow_ = grid_.TopRow();
    });
}

int GridView::heightOf(int rows) const {
    const int bar = scrollsAside_ ? horizontalScrollBar()->sizeHint().height() : 0;
    return horizontalHeader()->height() + rows * verticalHeader()->defaultSectionSize() +
           2 * frameWidth() + 2 + bar;
}

int GridView::shownRows() const {
    const int rows = model_.filledRows() > 0 ? model_.filledRows() : model_.rowCount();
    return std::max(grid_.visibleRows, rows);
}

int GridView::wantedRows() const {
    // Results of a few rows, twelve months say, are seen at a glance.
    constexpr int few = 14;
    return !editor_ && shownRows() <= few ? shownRows() : grid_.visibleRows;
}

int GridView::lackingWidth() const {
    return isVisible() ? std::max(horizontalHeader()->length() - viewport()->width(), 0) : 0;
}

void GridView::limitHeight() {
    // Results are not shown on more ground than they fill.
    if (!editor_)
        setMaximumHeight(heightOf(shownRows()));
}

int GridView::sides() const {
    return 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
}

QSize GridView::sizeHint() const {
    return {sides() + columns_.preferredTotal(), heightOf(wantedRows())};
}

QSize GridView::minimumSizeHint() const {
    return {sides() + columns_.titlesTotal(), heightOf(std::min(grid_.visibleRows, 4))};
}

void GridView::resizeEvent(QResizeEvent* event) {
    resizing_ = true;
    QTableView::resizeEvent(event);
    resizing_ = false;
    columns_.see();
    syncEditor();
}

void GridView::updateGeometries() {
    QTableView::updateGeometries();
    limitScrolling();
    // A scroll bar that comes or goes changes the room, too.
    columns_.fitToRoom();
    // The one below takes none of the rows' own; before it is shown, the room is none yet.
    const bool aside = isVisible() && horizontalScrollBar()->maximum() > 0;
    if (std::exchange(scrollsAside_, aside) != aside) {
        limitHeight();
        updateGeometry();
    }
    // The toolkit keeps a bar that was needed when the resizing began, and no longer is.
    if (!aside && horizontalScrollBar()->isVisible()) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
                setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
            },
            Qt::QueuedConnection);
    }
}

void GridView::limitScrolling() {
    // Where one types, the empty row at the end is the one to be reached.
    if (editor_)
        return;
    const int current = model_.indexOf(current_.row, current_.col).row();
    const int end = std::max(model_.filledRows(), current + 1);
    QScrollBar& bar = *verticalScrollBar();
    // The toolkit's range ends at the last row, and all rows are of one height.
    bar.setMaximum(std::max(bar.maximum() - (model_.rowCount() - end), 0));
}

void GridView::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QTableView::focusOutEvent(event);
    viewport()->update();
}

void GridControlView::sync() {
    ControlView::sync();
    view_.sync();
}

} // namespace caudalera
