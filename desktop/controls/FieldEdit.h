#pragma once

#include "desktop/controls/ControlView.h"

#include <QLineEdit>
#include <functional>

namespace caudalera {

class Program;

/// A text field of the model as a line edit. The model edits: keys, pasted and dropped texts and
/// those of an input method go there, and what becomes of the text is shown as a step that can be
/// undone. What the widget does by itself (cutting, undoing, deleting words) goes there as the text
/// that results. Everything passes the field's filter.
class FieldEdit : public QLineEdit {
    Q_OBJECT

public:
    FieldEdit(Session& session, TextBox& box, QWidget* parent);

    void sync();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

    /// A text from elsewhere comes in at the selection, by whatever way.
    virtual void pasteText(const QString& text);

private:
    /// An act of the user's hands on the text.
    void act(const std::function<void(Program&)>& event);
    bool pressInModel(const QKeyEvent& event);
    void pressEnter(bool again);
    /// The widget has edited by itself.
    void tellText(const QString& text);
    /// Caret and selection are part of the control: what the user does to them goes there.
    void tellSelection();
    void showSelection();
    /// Shows a text that the user's act led to as one step of the widget's history.
    void showStep(const QString& wanted);
    /// What follows is another step: so the widget takes it when its caret has been elsewhere.
    void endStep();
    QSize sizeFor(int characters) const;

    Session& session_;
    TextBox& box_;
    bool acting_ = false;
};

} // namespace caudalera
