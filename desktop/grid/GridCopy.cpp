// What goes out of a grid: the clipboard's text, and the menu that offers it.
#include "desktop/grid/GridView.h"
#include "desktop/session/Session.h"
#include "shell/text/ForeignNumber.h"

#include <QActionGroup>
#include <QMenu>
#include <algorithm>

namespace caudalera {

namespace {

QChar other(QChar decimal) {
    return decimal == u',' ? u'.' : u',';
}

/// A number with the decimal sign that was chosen; any other text as it stands.
QString withDecimal(const QString& text, QChar decimal) {
    const bool comma = decimal == u',';
    const std::string shown = text.trimmed().toStdString();
    const bool number =
        !foreignNumber(shown, comma ? DecimalSign::point : DecimalSign::comma).empty();
    return number ? QString(text).replace(other(decimal), decimal) : text;
}

} // namespace

QString GridView::rowsText(long firstRow, long lastRow) const {
    const auto [firstCol, lastCol] = std::minmax({grid_.Col(), grid_.ColSel()});
    QStringList rows;
    for (long row = firstRow; row <= lastRow; ++row) {
        QStringList cells;
        for (long col = firstCol; col <= lastCol; ++col) {
            const QString cell = toQString(grid_.TextMatrix(row, col));
            cells.append(session_.copyDecimal.isNull() ? cell
                                                       : withDecimal(cell, session_.copyDecimal));
        }
        rows.append(cells.join(u'\t'));
    }
    while (rows.size() > 1 && rows.constLast().trimmed().isEmpty())
        rows.removeLast();
    return rows.join(u'\n');
}

QString GridView::selectedText() const {
    const auto [firstRow, lastRow] = std::minmax({grid_.Row(), grid_.RowSel()});
    return rowsText(firstRow, lastRow);
}

void GridView::copy() const {
    session_.platform().setClipboardText(selectedText().toStdString());
}

void GridView::copyWithHeadings() const {
    const QString headings = rowsText(0, grid_.FixedRows() - 1);
    session_.platform().setClipboardText((headings + u'\n' + selectedText()).toStdString());
}

void GridView::offerCopying(QMenu& menu) {
    menu.addAction(QStringLiteral("Copiar"), QKeySequence::Copy, this, &GridView::copy);
    if (grid_.FixedRows() > 0) {
        menu.addAction(QStringLiteral("Copiar con encabezados"), this, &GridView::copyWithHeadings)
            ->setObjectName(QStringLiteral("copiarConEncabezados"));
    }
    menu.addSeparator();
    const QString shown = toQString(session_.platform().decimalSeparator());
    const QChar current = session_.copyDecimal.isNull() ? shown.front() : session_.copyDecimal;
    auto* signs = new QActionGroup(&menu);
    const auto choice = [&](const char* words, const char* name, QChar sign) {
        QAction* action = menu.addAction(QString::fromUtf8(words), this,
                                         [this, sign] { session_.copyDecimal = sign; });
        action->setObjectName(QString::fromUtf8(name));
        action->setCheckable(true);
        action->setChecked(current == sign);
        signs->addAction(action);
    };
    choice("Decimales con punto", "decimalPunto", u'.');
    choice("Decimales con coma", "decimalComa", u',');
}

void GridView::openMenu(const QPoint& globalPosition) {
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("menúDeCuadrícula"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (grid_.popup) {
        for (MenuEntry* entry : grid_.popup->entries) {
            if (!entry) {
                menu->addSeparator();
                continue;
            }
            QAction* action = menu->addAction(toQString(entry->caption), this, [this, entry] {
                session_.act([&] { session_.program().click(*entry); });
            });
            action->setObjectName(toQString(entry->name()));
            action->setEnabled(entry->enabled);
        }
    } else {
        offerCopying(*menu);
    }
    menu->popup(globalPosition);
}

} // namespace caudalera
