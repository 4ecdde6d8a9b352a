#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace caudalera::viewer {

/// An entry of the contents or of the index of a help file.
struct SiteMapEntry {
    /// 1 for the outermost.
    int level = 1;
    QString name;
    /// Path of its page; empty for a title without one.
    QString page;
};

/// Reads the contents or the index, as help files hold them: nested lists of objects with their
/// parameters, in Latin-1 with entities.
QList<SiteMapEntry> readSiteMap(const QByteArray& source);

} // namespace caudalera::viewer
