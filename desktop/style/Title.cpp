#include "desktop/style/Title.h"

#include "desktop/style/Style.h"

#include <QApplication>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

namespace caudalera::style {

int titleWidth(const QString& title) {
    QFont heavy = QApplication::font();
    heavy.setBold(true);
    return QFontMetrics(heavy).horizontalAdvance(title) + 16 * unit();
}

void makeRoomForTitle(QMessageBox& box) {
    // A box takes the size of its layout and no other.
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (!grid)
        return;
    auto* room =
        new QSpacerItem(titleWidth(box.windowTitle()), 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
    grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
}

} // namespace caudalera::style
