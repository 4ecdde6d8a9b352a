#pragma once

#include "desktop/richtext/QtText.h"
#include "shell/window/Control.h"

class QWidget;

namespace caudalera {

class Session;

/// A control of the model and the widget that shows it. The widget belongs to its parent widget,
/// as all widgets do.
class ControlView {
public:
    ControlView(Control& control, QWidget& widget) : control_(control), widget_(widget) {}
    virtual ~ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    Control& control() const { return control_; }
    QWidget& widget() const { return widget_; }
    /// What gets the keyboard when the control has the focus; nullptr if it takes none.
    virtual QWidget* focusTarget() const { return nullptr; }
    /// Brings the widget in line with the control: here what all controls have.
    virtual void sync();

protected:
    /// As the control is, unless the desktop has a reason of its own.
    virtual bool enabled() const { return control_.enabled; }
    virtual QString toolTip() const { return toQString(control_.toolTip); }

private:
    Control& control_;
    QWidget& widget_;
};

} // namespace caudalera
