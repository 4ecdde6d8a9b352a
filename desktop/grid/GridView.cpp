#include "desktop/grid/GridView.h"

#include "desktop/grid/GridEditor.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>
#include <numeric>

namespace caudalera {

namespace {

/// The model's widths are in twips: 1440 are an inch of 96 px, and a unit is 8 px.
constexpr double twipsPerUnit = 1440.0 / 96 * 8;
constexpr int defaultTwips = 1000;

} // namespace

GridView::GridView(Session& session, MSFlexGrid& grid, QWidget* parent)
    : QTableView(parent), session_(session), grid_(grid), model_(grid, this),
      delegate_(grid, this) {
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
    header->setSectionResizeMode(QHeaderView::Fixed);
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
            fitColumns();
        executeDelayedItemsLayout();
        // Results are not shown on more ground than they fill.
        if (!editor_)
            setMaximumHeight(heightOf(std::max(grid_.visibleRows, model_.rowCount())));
    }
    current_ = current;
    selectionEnd_ = end;
    syncScroll(moved || written);
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
    if (session_.busy() || resizing_) {
        syncEditor();
        return;
    }
    session_.act([&] {
        session_.program().scroll(grid_, model_.gridRow(value));
        topRow_ = grid_.TopRow();
    });
}

int GridView::columnMinimum(int col) const {
    const QString title = model_.headerData(col, Qt::Horizontal).toString();
    int width = 0;
    for (const QString& line : title.split(u'\n'))
        width = std::max(width, fontMetrics().horizontalAdvance(line));
    return width + 2 * style::unit();
}

int GridView::preferredWidth(int col) const {
    const auto i = static_cast<std::size_t>(col);
    const int twips = i < grid_.columnWidths.size() ? grid_.columnWidths[i] : defaultTwips;
    return std::max(columnMinimum(col), static_cast<int>(twips / twipsPerUnit * style::unit()));
}

void GridView::fitColumns() {
    const int columns = model_.columnCount();
    std::vector<int> widths(static_cast<std::size_t>(columns));
    for (int col = 0; col < columns; ++col)
        widths[static_cast<std::size_t>(col)] = preferredWidth(col);
    const int wanted = std::accumulate(widths.begin(), widths.end(), 0);
    const int room = fittedWidth_ = viewport()->width();
    int used = 0;
    for (int col = 0; col < columns; ++col) {
        int& width = widths[static_cast<std::size_t>(col)];
        width = std::max(columnMinimum(col),
                         static_cast<int>(static_cast<double>(width) * room / std::max(wanted, 1)));
        // The last one takes what rounding leaves.
        if (col == columns - 1 && used + width < room)
            width = room - used;
        used += width;
        if (columnWidth(col) != width)
            setColumnWidth(col, width);
    }
}

int GridView::heightOf(int rows) const {
    return horizontalHeader()->height() + rows * verticalHeader()->defaultSectionSize() +
           2 * frameWidth() + 2;
}

QSize GridView::sizeHint() const {
    int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int col = 0; col < model_.columnCount(); ++col)
        width += preferredWidth(col);
    return {width, heightOf(grid_.visibleRows)};
}

QSize GridView::minimumSizeHint() const {
    int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int col = 0; col < model_.columnCount(); ++col)
        width += columnMinimum(col);
    return {width, heightOf(std::min(grid_.visibleRows, 4))};
}

void GridView::resizeEvent(QResizeEvent* event) {
    resizing_ = true;
    QTableView::resizeEvent(event);
    resizing_ = false;
    syncEditor();
}

void GridView::updateGeometries() {
    QTableView::updateGeometries();
    // A scroll bar that comes or goes changes the room, too.
    if (viewport()->width() != fittedWidth_)
        fitColumns();
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
