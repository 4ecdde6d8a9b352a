#include "viewer/SiteMap.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace caudalera::viewer {

namespace {

QString withoutEntities(const QString& text) {
    return text.contains(QLatin1Char('&')) ? QTextDocumentFragment::fromHtml(text).toPlainText()
                                           : text;
}

} // namespace

QList<SiteMapEntry> readSiteMap(const QByteArray& source) {
    static const QRegularExpression tag(QStringLiteral(R"(<(/?)(ul|object|param)\b([^>]*)>)"),
                                        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression parameter(
        QStringLiteral(R"re(name="([^"]*)"\s+value="([^"]*)")re"),
        QRegularExpression::CaseInsensitiveOption);
    QList<SiteMapEntry> entries;
    SiteMapEntry entry;
    int level = 0;
    auto tags = tag.globalMatch(QString::fromLatin1(source));
    while (tags.hasNext()) {
        const QRegularExpressionMatch found = tags.next();
        const bool closes = !found.captured(1).isEmpty();
        const QString kind = found.captured(2).toLower();
        if (kind == QLatin1String("ul")) {
            level += closes ? -1 : 1;
        } else if (kind == QLatin1String("object")) {
            if (closes && !entry.name.isEmpty())
                entries.append(entry);
            entry = {std::max(level, 1), {}, {}};
        } else if (const auto pair = parameter.match(found.captured(3)); pair.hasMatch()) {
            const QString name = pair.captured(1).toLower();
            // An entry of the index names itself once and then each of its pages.
            if (name == QLatin1String("name") && entry.name.isEmpty())
                entry.name = withoutEntities(pair.captured(2));
            if (name == QLatin1String("local") && entry.page.isEmpty())
                entry.page = QLatin1Char('/') + pair.captured(2);
        }
    }
    return entries;
}

} // namespace caudalera::viewer
