#pragma once

#include <QHash>
#include <QTranslator>
#include <span>

class QCoreApplication;

namespace caudalera::words {

/// A text of the toolkit, by its context and its English words, and ours for it.
struct Word {
    const char* context;
    const char* english;
    const char* spanish;
};

/// Of file, message, colour and font dialogs, context menus and title bars.
std::span<const Word> dialogWords();
/// Of the print dialog with its settings and the names of paper sizes.
std::span<const Word> printingWords();
/// Of the keys that keyboards have, as menus show them.
std::span<const Word> keyWords();

/// The toolkit's texts in the Spanish of the program. What our own words leave out is the toolkit's
/// Spanish, where it is installed, with one word for one thing: "archivo" and never "fichero".
class Words : public QTranslator {
public:
    /// `folder`: where the toolkit's own Spanish is looked for.
    explicit Words(const QString& folder, QObject* parent = nullptr);

    QString translate(const char* context, const char* english,
                      const char* disambiguation = nullptr, int n = -1) const override;
    /// Never: our own words are always there.
    bool isEmpty() const override { return false; }

private:
    QHash<QByteArray, QString> own_;
};

/// Gives the application these words, once.
void install(QCoreApplication& application);

} // namespace caudalera::words
