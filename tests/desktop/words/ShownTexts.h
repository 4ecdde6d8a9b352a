#pragma once

#include "desktop/words/Words.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QSpinBox>
#include <QTabBar>

namespace caudalera {

/// Asked last: keeps what no translator before it knew.
class UnknownTexts : public QTranslator {
public:
    QString translate(const char* context, const char* english, const char* /*disambiguation*/,
                      int /*n*/) const override {
        static const QRegularExpression word(QStringLiteral("[a-z]"));
        const QString text = QString::fromUtf8(english);
        // The program's own texts are Spanish as they stand; names of paper sizes have no words.
        if (!QByteArray(context).startsWith("caudalera::") && text.contains(word))
            asked.insert(QString::fromUtf8(context) + QStringLiteral(": ") + text);
        return {};
    }
    bool isEmpty() const override { return false; }

    mutable QSet<QString> asked;
};

/// All that a person can read of a widget and what it holds, tool tips and menus included.
inline QStringList textsOf(const QWidget& top) {
    QStringList texts;
    auto widgets = top.findChildren<QWidget*>();
    widgets.prepend(const_cast<QWidget*>(&top));
    for (const QWidget* widget : widgets) {
        texts << widget->toolTip() << widget->windowTitle() << widget->accessibleName();
        if (const auto* label = qobject_cast<const QLabel*>(widget))
            texts << label->text();
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
            texts << button->text();
        if (const auto* group = qobject_cast<const QGroupBox*>(widget))
            texts << group->title();
        if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
            for (int i = 0; i < list->count(); ++i)
                texts << list->itemText(i);
        }
        if (const auto* spin = qobject_cast<const QSpinBox*>(widget))
            texts << spin->prefix() << spin->suffix();
        if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                texts << tabs->tabText(i) << tabs->tabToolTip(i);
        }
        if (const auto* header = qobject_cast<const QHeaderView*>(widget);
            header && header->model()) {
            for (int i = 0; i < header->count(); ++i)
                texts << header->model()->headerData(i, header->orientation()).toString();
        }
        for (const QAction* action : widget->actions())
            texts << action->text() << action->toolTip()
                  << action->shortcut().toString(QKeySequence::NativeText);
    }
    for (const QAction* action : top.findChildren<QAction*>())
        texts << action->text() << action->toolTip()
              << action->shortcut().toString(QKeySequence::NativeText);
    texts.removeAll(QString());
    return texts;
}

/// English texts that are another in Spanish, without their access keys.
inline QSet<QString> englishTexts() {
    QSet<QString> texts;
    for (const auto& words : {words::dialogWords(), words::printingWords()}) {
        for (const words::Word& word : words) {
            if (qstrcmp(word.english, word.spanish) != 0)
                texts.insert(QString::fromUtf8(word.english).remove(u'&'));
        }
    }
    return texts;
}

/// What of these texts is not the program's Spanish.
inline QStringList foreign(const QStringList& texts) {
    static const QSet<QString> english = englishTexts();
    static const QRegularExpression word(
        QStringLiteral("\\b(ficheros?|directorios?|directory|files?|folder|open|save|cancel|print|"
                       "copy|paste|undo|select|page|the|shift)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    QStringList found;
    for (const QString& text : texts) {
        const QString plain = QString(text).remove(u'&').section(u'\t', 0, 0);
        if (english.contains(plain) || word.match(QString(text).remove(u'&')).hasMatch())
            found << text;
    }
    return found;
}

} // namespace caudalera
