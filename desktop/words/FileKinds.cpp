#include "desktop/words/FileKinds.h"

namespace caudalera::words {

QString FileKinds::type(const QFileInfo& file) const {
    if (file.isRoot())
        return QStringLiteral("Unidad");
    if (file.isDir())
        return QStringLiteral("Carpeta");
    return QStringLiteral("Archivo %1").arg(file.suffix().toUpper()).trimmed();
}

} // namespace caudalera::words
