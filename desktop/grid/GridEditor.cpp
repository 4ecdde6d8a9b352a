#include "desktop/grid/GridEditor.h"

#include "desktop/controls/KeyEvents.h"
#include "desktop/style/Style.h"

#include <QKeyEvent>
#include <QPainter>

namespace caudalera {

namespace {

constexpr int frameLine = 2;

bool holdsSeveralCells(const QString& text) {
    const QString content = text.trimmed();
    return content.contains(u'\t') || content.contains(u'\n');
}

} // namespace

GridEditor::GridEditor(Session& session, TextBox& box, QWidget* viewport,
                       std::function<void(const QString&)> pasteBlock)
    : FieldEdit(session, box, viewport), pasteBlock_(std::move(pasteBlock)),
      pencil_(style::drawingPath(QStringLiteral("lapiz"))) {
    setFrame(false);
    // The table has a style sheet, beside which a palette of its own does nothing.
    setStyleSheet(QStringLiteral("QLineEdit { background: %1; border: none; }")
                      .arg(style::editedCell().name()));
    setToolTip(QStringLiteral("En edición: ENTER guarda el dato en la celda"));
    hide();
}

QRect GridEditor::mark() const {
    const int side = fontMetrics().ascent();
    return {frameLine + style::halfUnit() / 2, (height() - side) / 2, side, side};
}

void GridEditor::keyPressEvent(QKeyEvent* event) {
    // The toolkit's own redoing has one of the two usual keys, another one on each system.
    if (isRedo(*event)) {
        redo();
    } else {
        FieldEdit::keyPressEvent(event);
    }
}

void GridEditor::paintEvent(QPaintEvent* event) {
    FieldEdit::paintEvent(event);
    QPainter painter(this);
    pencil_.paint(&painter, mark());
    painter.setPen(QPen(style::accent(), frameLine, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void GridEditor::floatOver(const QRect& cell, Qt::Alignment where) {
    if (geometry() != cell)
        setGeometry(cell);
    const int beside = mark().right() + 1;
    setTextMargins(beside, 0, frameLine, 0);
    if (alignment() != where)
        setAlignment(where);
    if (isHidden()) {
        show();
        raise();
    }
}

void GridEditor::pasteText(const QString& text) {
    if (holdsSeveralCells(text)) {
        pasteBlock_(text);
    } else {
        FieldEdit::pasteText(text);
    }
}

} // namespace caudalera
