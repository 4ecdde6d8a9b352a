#include "desktop/words/FileKinds.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

namespace caudalera::words {

QString FileKinds::type(const QFileInfo& file) const {
    if (file.isRoot())
        return QStringLiteral("Unidad");
    if (file.isDir())
        return QStringLiteral("Carpeta");
    return QStringLiteral("Archivo %1").arg(file.suffix().toUpper()).trimmed();
}

void prepare(QFileDialog& dialog, FileKinds& kinds) {
    dialog.setIconProvider(&kinds);
    // A dialog of the system has no such list.
    auto* details = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (!details)
        return;
    const QFontMetrics metrics(details->font());
    dialog.resize(dialog.sizeHint().expandedTo(
        QSize(100 * metrics.averageCharWidth(), 26 * metrics.lineSpacing())));
    QHeaderView* columns = details->header();
    columns->setStretchLastSection(false);
    columns->setSectionResizeMode(QHeaderView::ResizeToContents);
    columns->setSectionResizeMode(0, QHeaderView::Stretch);
}

} // namespace caudalera::words
