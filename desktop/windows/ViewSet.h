#pragma once

#include "desktop/controls/ControlView.h"

#include <memory>
#include <vector>

namespace caudalera {

/// The views of a window's controls, each made when it is first asked for.
class ViewSet {
public:
    ViewSet(Session& session, QWidget& window) : session_(session), window_(window) {}

    /// The view of a control; its widget waits in the window for its place in a layout.
    ControlView& of(Control& control);
    /// nullptr if the control has none.
    ControlView* find(const Control& control) const;
    /// In the order in which they were made, which is that of the layout.
    const std::vector<std::unique_ptr<ControlView>>& all() const { return views_; }

private:
    std::unique_ptr<ControlView> make(Control& control);

    Session& session_;
    QWidget& window_;
    std::vector<std::unique_ptr<ControlView>> views_;
};

} // namespace caudalera
