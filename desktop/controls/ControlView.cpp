#include "desktop/controls/ControlView.h"

#include <QWidget>

namespace caudalera {

void ControlView::sync() {
    if (widget_.isHidden() == control_.visible)
        widget_.setVisible(control_.visible);
    if (widget_.isEnabledTo(widget_.parentWidget()) != enabled())
        widget_.setEnabled(enabled());
    if (const QString tip = toolTip(); widget_.toolTip() != tip)
        widget_.setToolTip(tip);
}

} // namespace caudalera
