#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace caudalera::viewer {

/// As the search compares: small letters without accents, as many characters as the text has.
QString folded(const QString& text);

/// The words of a query.
QStringList queryWords(const QString& query);

/// Where the words of a query stand in a text, each from the beginning of a word on.
struct Place {
    qsizetype at = 0;
    qsizetype length = 0;
};
QList<Place> placesOf(const QString& text, const QStringList& words);

/// Searches the pages of a help file for words, whatever their accents and capitals.
class HelpSearch {
public:
    struct Hit {
        QString page;
        QString title;
        /// The text around the first place.
        QString excerpt;
        int score = 0;
    };

    /// Takes a page of HTML.
    void add(const QString& page, const QString& html);
    /// The pages that hold words beginning with each of the query's, the best ones first.
    QList<Hit> find(const QString& query) const;

private:
    struct Text {
        QString page;
        QString title;
        QString text;
    };

    QList<Text> texts_;
};

} // namespace caudalera::viewer
