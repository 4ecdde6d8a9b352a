// Whether the screen tells what the model holds.
#include "desktop/controls/FieldViews.h"
#include "desktop/grid/GridView.h"
#include "desktop/report/DocumentFrame.h"
#include "desktop/report/DocumentView.h"
#include "shell/report/frmPadre.h"
#include "tests/desktop/session/RandomWalk.h"

#include <QAbstractButton>
#include <QMdiArea>
#include <QTextBlock>
#include <algorithm>

namespace caudalera {

namespace {

QString differs(const Control& control, const QString& shown, const std::string& held) {
    const QString wanted = QString::fromStdString(held);
    if (shown == wanted)
        return {};
    return QStringLiteral("%1 shows \"%2\" instead of \"%3\"")
        .arg(QString::fromStdString(control.name()), shown, wanted);
}

/// Values wait in the append row only while it is the current one.
bool keepsAppendRow(const MSFlexGrid& grid) {
    const long last = grid.Rows() - 1;
    for (long col = grid.FixedCols(); grid.Row() != last && col < grid.Cols(); ++col) {
        if (!grid.TextMatrix(last, col).empty())
            return false;
    }
    return true;
}

QString inGrid(const MSFlexGrid& grid, const GridView& view) {
    if (grid.history && !keepsAppendRow(grid))
        return QStringLiteral("%1 holds values in its append row").arg(view.objectName());
    const QAbstractItemModel& cells = *view.model();
    if (cells.rowCount() != grid.Rows() - grid.FixedRows() || cells.columnCount() != grid.Cols())
        return QStringLiteral("%1 has another size").arg(view.objectName());
    for (long row = grid.FixedRows(); row < grid.Rows(); ++row) {
        for (long col = 0; col < grid.Cols(); ++col) {
            const QString shown =
                cells.index(static_cast<int>(row - grid.FixedRows()), static_cast<int>(col))
                    .data()
                    .toString();
            if (const QString wrong = differs(grid, shown, grid.TextMatrix(row, col));
                !wrong.isEmpty())
                return wrong;
        }
    }
    return {};
}

QString inControl(const Control& control, const QWidget& view) {
    const QString name = QString::fromStdString(control.name());
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
        // The edit box of a grid is brought in line when it opens.
        const auto* edit = view.findChild<FieldEdit*>(name);
        return edit && box->visible ? differs(control, edit->text(), box->text()) : QString();
    }
    if (const auto* list = dynamic_cast<const List*>(&control)) {
        const auto* shown = view.findChild<ListBox*>(name);
        return shown ? differs(control, shown->currentText(), list->text()) : QString();
    }
    if (const auto* option = dynamic_cast<const Option*>(&control)) {
        const auto* shown = view.findChild<QAbstractButton*>(name);
        return shown && shown->isChecked() != option->checked()
                   ? QStringLiteral("%1 is set otherwise").arg(name)
                   : QString();
    }
    if (const auto* grid = dynamic_cast<const MSFlexGrid*>(&control)) {
        const auto* shown = view.findChild<GridView*>(name);
        return shown ? inGrid(*grid, *shown) : QString();
    }
    return {};
}

QString inDocuments(const frmPadre& padre, const QWidget& view) {
    const auto frames = view.findChild<QMdiArea*>()->subWindowList();
    if (frames.size() != static_cast<qsizetype>(padre.documents().size()))
        return QStringLiteral("another number of documents");
    for (const QMdiSubWindow* each : frames) {
        const auto& frame = static_cast<const DocumentFrame&>(*each);
        const QStringList held =
            QString::fromStdString(frame.document()->rtfText.text()).split(u'\n');
        QTextBlock block = frame.view().document()->begin();
        for (qsizetype i = 0; i < held.size(); ++i, block = block.next()) {
            if (block.text() != held[i])
                return QStringLiteral("%1 shows \"%2\" instead of \"%3\" in line %4")
                    .arg(frame.windowTitle(), block.text(), held[i])
                    .arg(i);
        }
        if (block.isValid())
            return QStringLiteral("%1 shows too many lines").arg(frame.windowTitle());
    }
    return {};
}

} // namespace

QString RandomWalk::contradiction() {
    if (!fault_.isEmpty())
        return fault_;
    std::size_t shown = 0;
    for (const auto& window : session_->program().windows()) {
        const QWidget* view = session_->viewOf(*window);
        const QString name = QString::fromStdString(window->name());
        if (!view || !view->isVisible())
            return name + QStringLiteral(" is not on the screen");
        ++shown;
        QString wrong;
        for (const Control* control : window->controls()) {
            if (wrong.isEmpty())
                wrong = inControl(*control, *view);
        }
        if (const auto* padre = dynamic_cast<const frmPadre*>(window.get());
            padre && wrong.isEmpty())
            wrong = inDocuments(*padre, *view);
        if (!wrong.isEmpty())
            return name + QStringLiteral(": ") + wrong;
    }
    const auto visible = std::count_if(views_.begin(), views_.end(),
                                       [](const auto& view) { return view && view->isVisible(); });
    if (visible != static_cast<std::ptrdiff_t>(shown))
        return QStringLiteral("a window that is gone is still on the screen");
    return {};
}

} // namespace caudalera
