#include "desktop/windows/ViewSet.h"

#include "desktop/chart/GraphView.h"
#include "desktop/controls/ButtonViews.h"
#include "desktop/controls/ContainerViews.h"
#include "desktop/controls/FieldViews.h"
#include "desktop/controls/PictureView.h"
#include "desktop/controls/StatusLine.h"
#include "desktop/grid/GridView.h"

#include <algorithm>
#include <stdexcept>

namespace caudalera {

ControlView& ViewSet::of(Control& control) {
    if (ControlView* known = find(control))
        return *known;
    views_.push_back(make(control));
    return *views_.back();
}

ControlView* ViewSet::find(const Control& control) const {
    const auto found = std::find_if(views_.begin(), views_.end(),
                                    [&](const auto& view) { return &view->control() == &control; });
    return found == views_.end() ? nullptr : found->get();
}

std::unique_ptr<ControlView> ViewSet::make(Control& control) {
    switch (control.kind()) {
    case ControlKind::button:
        return std::make_unique<ButtonView>(session_, static_cast<Button&>(control), &window_);
    case ControlKind::text:
        return std::make_unique<TextView>(session_, static_cast<TextBox&>(control), &window_);
    case ControlKind::label:
        return std::make_unique<LabelView>(static_cast<Label&>(control), &window_);
    case ControlKind::option:
        return std::make_unique<OptionView>(session_, static_cast<Option&>(control), &window_);
    case ControlKind::list:
        return std::make_unique<ListView>(session_, static_cast<List&>(control), &window_);
    case ControlKind::grid:
        return std::make_unique<GridControlView>(session_, static_cast<MSFlexGrid&>(control),
                                                 &window_);
    case ControlKind::chart:
        return std::make_unique<GraphView>(static_cast<Graph&>(control), &window_);
    case ControlKind::frame:
        return std::make_unique<FrameView>(static_cast<Frame&>(control), &window_);
    case ControlKind::tabs:
        return std::make_unique<TabsView>(session_, static_cast<Tabs&>(control), &window_);
    case ControlKind::picture:
        return std::make_unique<PictureView>(static_cast<Picture&>(control), &window_);
    case ControlKind::status:
        return std::make_unique<StatusView>(static_cast<StatusBar&>(control), &window_);
    case ControlKind::menu:
        break;
    }
    throw std::logic_error("a menu entry has no place in a layout: " + control.name());
}

} // namespace caudalera
