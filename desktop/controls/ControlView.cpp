#include "desktop/controls/ControlView.h"

#include <QWidget>

namespace caudalera {

void ControlView::sync() {
    if (widget_.isHidden() == control_.visible)
        widget_.setVisible(control_.visible);
    if (widget_.isEnabledTo(widget_.parentWidget()) != control_.enabled)
        widget_.setEnabled(control_.enabled);
    const QString tip = toQString(control_.toolTip);
    if (widget_.toolTip() != tip)
        widget_.setToolTip(tip);
}

} // namespace caudalera
