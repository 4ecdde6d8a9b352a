#pragma once

#include "shell/window/MSFlexGrid.h"

#include <QStyledItemDelegate>

namespace caudalera {

/// Paints the cells of a grid: fixed cells on a pale ground, the selection, a frame around the
/// current cell of a grid that can be edited. A text that does not fit shows whole as a tool tip.
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    CellDelegate(const MSFlexGrid& grid, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    bool selected(long row, long col) const;

    const MSFlexGrid& grid_;
};

} // namespace caudalera
