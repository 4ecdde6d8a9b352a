#include "desktop/grid/GridEditor.h"

namespace caudalera {

namespace {

bool holdsSeveralCells(const QString& text) {
    const QString content = text.trimmed();
    return content.contains(u'\t') || content.contains(u'\n');
}

} // namespace

GridEditor::GridEditor(Session& session, TextBox& box, QWidget* viewport,
                       std::function<void(const QString&)> pasteBlock)
    : FieldEdit(session, box, viewport), pasteBlock_(std::move(pasteBlock)) {
    setFrame(false);
    hide();
}

void GridEditor::floatOver(const QRect& cell, Qt::Alignment where) {
    const QRect room = cell.adjusted(2, 2, -2, -2);
    if (geometry() != room)
        setGeometry(room);
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
