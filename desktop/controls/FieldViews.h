#pragma once

#include "desktop/controls/ControlView.h"
#include "desktop/controls/FieldEdit.h"

#include <QComboBox>
#include <QLabel>

namespace caudalera {

class TextView : public ControlView {
public:
    TextView(Session& session, TextBox& box, QWidget* parent)
        : TextView(box, *new FieldEdit(session, box, parent)) {}

    QWidget* focusTarget() const override { return &edit_; }
    void sync() override;

private:
    TextView(TextBox& box, FieldEdit& edit) : ControlView(box, edit), edit_(edit) {}

    FieldEdit& edit_;
};

/// A list of the model: a drop-down that can be typed into.
class ListBox : public QComboBox {
    Q_OBJECT

public:
    ListBox(Session& session, List& list, QWidget* parent);

    void sync();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// Chooses the item that what was typed equals but for case, accents and blanks around.
    void settle();

    Session& session_;
    List& list_;
};

class ListView : public ControlView {
public:
    ListView(Session& session, List& list, QWidget* parent)
        : ListView(list, *new ListBox(session, list, parent)) {}

    QWidget* focusTarget() const override { return &box_; }
    void sync() override;

private:
    ListView(List& list, ListBox& box) : ControlView(list, box), box_(box) {}

    ListBox& box_;
};

/// A label whose text runs over as many lines as the width asks for, and takes the room of some
/// lines in any case.
class WrappingLabel : public QLabel {
    Q_OBJECT

public:
    WrappingLabel(int reservedLines, QWidget* parent);

    /// Shows a sign before the first line.
    void setMark(Label::Mark mark);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int reservedLines_;
    Label::Mark mark_ = Label::Mark::none;
};

class LabelView : public ControlView {
public:
    LabelView(Label& label, QWidget* parent);

    void sync() override;

private:
    QLabel& label() const { return static_cast<QLabel&>(widget()); }
};

} // namespace caudalera
