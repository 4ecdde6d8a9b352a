#include "viewer/HelpSearch.h"

#include <QRegularExpression>
#include <QTextDocumentFragment>
#include <algorithm>

namespace caudalera::viewer {

namespace {

QString plain(QString html) {
    // The title stands apart, and the links at the foot are the next pages' words.
    static const QRegularExpression head(
        QStringLiteral("<head>.*</head>|<h1>.*</h1>|<p class=\"foot\">.*</p>"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression block(
        QStringLiteral("</?(p|h[1-6]|li|ul|ol|tr|td|th|table|br|hr)\\b[^>]*>"));
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    html.remove(head);
    html.replace(block, QStringLiteral(" "));
    html.remove(tag);
    html.replace(QLatin1String("&lt;"), QLatin1String("<"));
    html.replace(QLatin1String("&gt;"), QLatin1String(">"));
    html.replace(QLatin1String("&quot;"), QLatin1String("\""));
    html.replace(QLatin1String("&amp;"), QLatin1String("&"));
    return html.simplified();
}

QString titleOf(const QString& html) {
    static const QRegularExpression title(QStringLiteral("<title>(.*)</title>"));
    return plain(title.match(html).captured(1));
}

QString excerptAround(const QString& text, const Place& place) {
    constexpr qsizetype around = 60;
    qsizetype begin = std::max<qsizetype>(place.at - around, 0);
    // From a whole word on.
    if (begin > 0)
        begin = std::max(text.indexOf(QLatin1Char(' '), begin) + 1, qsizetype(0));
    qsizetype end = std::min(place.at + place.length + around, text.size());
    if (end < text.size())
        end = std::max(text.lastIndexOf(QLatin1Char(' '), end), place.at + place.length);
    return (begin > 0 ? QStringLiteral("… ") : QString()) + text.mid(begin, end - begin) +
           (end < text.size() ? QStringLiteral(" …") : QString());
}

} // namespace

QString folded(const QString& text) {
    QString result = text;
    for (QChar& c : result) {
        const QString parts = c.decomposition();
        if (!parts.isEmpty() && c.decompositionTag() == QChar::Canonical)
            c = parts.front();
        c = c.toLower();
    }
    return result;
}

QStringList queryWords(const QString& query) {
    static const QRegularExpression between(QStringLiteral("[^\\p{L}\\p{N}]+"));
    return folded(query).split(between, Qt::SkipEmptyParts);
}

QList<Place> placesOf(const QString& text, const QStringList& words) {
    const QString where = folded(text);
    QList<Place> places;
    for (const QString& word : words) {
        for (qsizetype at = 0; (at = where.indexOf(word, at)) >= 0; at += word.size()) {
            if (at == 0 || !where[at - 1].isLetterOrNumber())
                places.append({at, word.size()});
        }
    }
    std::sort(places.begin(), places.end(),
              [](const Place& a, const Place& b) { return a.at < b.at; });
    return places;
}

void HelpSearch::add(const QString& page, const QString& html) {
    texts_.append({page, titleOf(html), plain(html)});
}

QList<HelpSearch::Hit> HelpSearch::find(const QString& query) const {
    // A word of the title counts as much as many of the text.
    constexpr int titleWeight = 50;
    const QStringList words = queryWords(query);
    QList<Hit> hits;
    for (const Text& each : texts_) {
        const bool all = std::all_of(words.begin(), words.end(), [&](const QString& word) {
            return !placesOf(each.text, {word}).isEmpty() ||
                   !placesOf(each.title, {word}).isEmpty();
        });
        if (words.isEmpty() || !all)
            continue;
        const QList<Place> places = placesOf(each.text, words);
        const auto inTitle = static_cast<int>(placesOf(each.title, words).size());
        hits.append({each.page, each.title,
                     excerptAround(each.text, places.isEmpty() ? Place() : places.front()),
                     static_cast<int>(places.size()) + titleWeight * inTitle});
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const Hit& a, const Hit& b) { return a.score > b.score; });
    return hits;
}

} // namespace caudalera::viewer
