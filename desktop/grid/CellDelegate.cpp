#include "desktop/grid/CellDelegate.h"

#include "desktop/style/Style.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace caudalera {

namespace {

QRect textRect(const QStyleOptionViewItem& option) {
    return option.rect.adjusted(style::halfUnit(), 0, -style::halfUnit(), 0);
}

} // namespace

CellDelegate::CellDelegate(const MSFlexGrid& grid, QObject* parent)
    : QStyledItemDelegate(parent), grid_(grid) {}

bool CellDelegate::selected(long row, long col) const {
    const auto between = [](long a, long x, long b) {
        return x >= std::min(a, b) && x <= std::max(a, b);
    };
    return between(grid_.Row(), row, grid_.RowSel()) && between(grid_.Col(), col, grid_.ColSel());
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const long row = index.row() + grid_.FixedRows();
    const long col = index.column();
    const bool focused =
        (option.state & QStyle::State_HasFocus) || (option.widget && option.widget->hasFocus());
    const bool single = grid_.Row() == grid_.RowSel() && grid_.Col() == grid_.ColSel();
    const bool current = row == grid_.Row() && col == grid_.Col();

    if (col < grid_.FixedCols()) {
        painter->fillRect(option.rect, style::paleAccent());
    } else if (selected(row, col) && (!single || focused)) {
        painter->fillRect(option.rect, style::selection());
    }

    const QString text = index.data(Qt::DisplayRole).toString();
    if (!text.isEmpty()) {
        const QRect room = textRect(option);
        painter->setPen(option.palette.color(QPalette::Text));
        painter->setFont(option.font);
        painter->drawText(room, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(text, Qt::ElideRight, room.width()));
    }
    if (current && grid_.editor) {
        painter->setPen(QPen(focused ? style::accent() : style::lines().darker(120), 2));
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool cut = option.fontMetrics.horizontalAdvance(text) > textRect(option).width();
    QToolTip::showText(event->globalPos(), cut ? text : QString(), view);
    return true;
}

} // namespace caudalera
