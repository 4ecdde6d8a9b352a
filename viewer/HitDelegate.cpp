#include "viewer/HitDelegate.h"

#include "desktop/style/Style.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

namespace caudalera::viewer {

namespace {

QFont titleFont(const QStyleOptionViewItem& option) {
    QFont font = option.font;
    font.setBold(true);
    return font;
}

/// Where title and excerpt stand within a row of this width.
struct Parts {
    QRect title;
    QRect excerpt;
    int height;
};

Parts partsOf(const QStyleOptionViewItem& option, const QModelIndex& index, int width) {
    const int margin = style::halfUnit();
    const QRect room(margin, margin, width - 2 * margin, 10000);
    const auto height = [&](const QFont& font, const QString& text) {
        return QFontMetrics(font).boundingRect(room, Qt::TextWordWrap, text).height();
    };
    const int title = height(titleFont(option), index.data().toString());
    const QString excerpt = index.data(HitDelegate::excerptRole).toString();
    const int below = excerpt.isEmpty() ? 0 : height(option.font, excerpt);
    return {{margin, margin, room.width(), title},
            {margin, margin + title, room.width(), below},
            2 * margin + title + below};
}

} // namespace

void HitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);

    const Parts parts = partsOf(option, index, option.rect.width());
    const bool enabled = option.state & QStyle::State_Enabled;
    const bool selected = option.state & QStyle::State_Selected;
    painter->save();
    painter->setPen(option.palette.color(enabled ? QPalette::Normal : QPalette::Disabled,
                                         selected ? QPalette::HighlightedText : QPalette::Text));
    painter->translate(option.rect.topLeft());
    painter->setFont(enabled ? titleFont(option) : option.font);
    painter->drawText(parts.title, Qt::TextWordWrap, index.data().toString());
    painter->setFont(option.font);
    painter->drawText(parts.excerpt, Qt::TextWordWrap, index.data(excerptRole).toString());
    painter->restore();
}

QSize HitDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    return {width, partsOf(option, index, width).height};
}

} // namespace caudalera::viewer
