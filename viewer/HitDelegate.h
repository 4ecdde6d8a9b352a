#pragma once

#include <QStyledItemDelegate>

namespace caudalera::viewer {

/// Draws what a search has found: the title of the page above the words around the place.
class HitDelegate : public QStyledItemDelegate {
public:
    /// The words around the place; the item's own text is the title.
    static constexpr int excerptRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace caudalera::viewer
