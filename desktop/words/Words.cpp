#include "desktop/words/Words.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace caudalera::words {

namespace {

QByteArray key(const char* context, const char* english) {
    return QByteArray(context) + '\0' + english;
}

} // namespace

Words::Words(const QString& folder, QObject* parent) : QTranslator(parent) {
    for (const auto& words : {dialogWords(), printingWords(), keyWords()}) {
        for (const Word& word : words)
            own_.insert(key(word.context, word.english), QString::fromUtf8(word.spanish));
    }
    // A program that brings the toolkit along has its words within itself. They may be missing:
    // then a text that our own words leave out stays as it is.
    const QString name = QStringLiteral("qtbase_es");
    static_cast<void>(load(name, folder) || load(name, QStringLiteral(":/words")));
}

QString Words::translate(const char* context, const char* english, const char* disambiguation,
                         int n) const {
    const auto own = own_.constFind(key(context, english));
    if (own != own_.cend())
        return *own;
    QString text = QTranslator::translate(context, english, disambiguation, n);
    if (text.isNull())
        return text;
    return text.replace(QStringLiteral("fichero"), QStringLiteral("archivo"))
        .replace(QStringLiteral("Fichero"), QStringLiteral("Archivo"));
}

void install(QCoreApplication& application) {
    if (!application.findChild<QObject*>(QStringLiteral("words"), Qt::FindDirectChildrenOnly)) {
        auto* words = new Words(QLibraryInfo::path(QLibraryInfo::TranslationsPath), &application);
        words->setObjectName(QStringLiteral("words"));
        QCoreApplication::installTranslator(words);
    }
}

} // namespace caudalera::words
