#include "desktop/session/FileNames.h"

namespace caudalera {

QString fileNameOf(const QString& text, const QString& otherwise) {
    // Well below what file systems take, with the folders before it.
    constexpr qsizetype longest = 80;
    QString name;
    for (const QChar each : text) {
        // A full stop would part a suffix off.
        const bool safe = each.isPrint() && !QStringLiteral("<>:\"/\\|?*.").contains(each);
        name += safe ? each : QChar(u' ');
    }
    name = name.simplified().left(longest).trimmed();
    return name.isEmpty() ? otherwise : name;
}

} // namespace caudalera
