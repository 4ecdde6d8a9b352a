#pragma once

#include "desktop/controls/ControlView.h"

class QGroupBox;
class QTabWidget;

namespace caudalera {

/// A frame as a group box.
class FrameView : public ControlView {
public:
    FrameView(Frame& frame, QWidget* parent);

    QGroupBox& box() const;
    void sync() override;
};

/// Tabs with a page each.
class TabsView : public ControlView {
public:
    TabsView(Session& session, Tabs& tabs, QWidget* parent);

    QTabWidget& tabs() const;
    /// On which page a widget is seen when the page is; -1 if on none.
    int pageOf(const QWidget& widget) const;
    QWidget* focusTarget() const override;
    void sync() override;
};

} // namespace caudalera
