#pragma once

#include "desktop/controls/ControlView.h"

#include <QPushButton>
#include <QRadioButton>

namespace caudalera {

/// A command: icon and word, another icon under the mouse, the main one in the accent colour.
class CommandButton : public QPushButton {
    Q_OBJECT

public:
    CommandButton(Session& session, Button& button, QWidget* parent);

    void sync();
    /// Why the command is out of reach here, for want of a printer; empty if it is not.
    QString missing() const;

    /// Icon and word without the width that the style gives short words, too.
    QSize minimumSizeHint() const override;

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showIcon(bool hover);

    Session& session_;
    Button& button_;
    QIcon drawing_;
    bool accented_;
};

class ButtonView : public ControlView {
public:
    ButtonView(Session& session, Button& button, QWidget* parent)
        : ButtonView(button, *new CommandButton(session, button, parent)) {}
    ButtonView(Button& control, CommandButton& button)
        : ControlView(control, button), button_(button) {}

    QWidget* focusTarget() const override { return &button_; }
    void sync() override;

protected:
    bool enabled() const override;
    QString toolTip() const override;

private:
    CommandButton& button_;
};

/// An option. A click runs its event also when it is set; what is set is for the model to say, and
/// that may be none of a group.
class OptionButton : public QRadioButton {
    Q_OBJECT

public:
    OptionButton(Session& session, Option& option, QWidget* parent);

    void sync();

protected:
    void nextCheckState() override {}
    void keyPressEvent(QKeyEvent* event) override;

private:
    void stepFrom(int step);
    /// One of a group: the one that is set, or the first if none is.
    bool isTabStop() const;

    Session& session_;
    Option& option_;
};

class OptionView : public ControlView {
public:
    OptionView(Session& session, Option& option, QWidget* parent)
        : OptionView(option, *new OptionButton(session, option, parent)) {}

    QWidget* focusTarget() const override { return &button_; }
    void sync() override;

private:
    OptionView(Option& option, OptionButton& button)
        : ControlView(option, button), button_(button) {}

    OptionButton& button_;
};

} // namespace caudalera
