#pragma once

#include "desktop/windows/ViewSet.h"

#include <QPalette>
#include <map>
#include <vector>

namespace caudalera {

/// The muted dress of results that are older than the data: a ground of their own and quieter
/// text; a chart as if behind a veil.
class StaleDress {
public:
    explicit StaleDress(const ViewSet& views) : views_(views) {}

    /// Puts it on the views of these controls, and takes it off all others.
    void sync(const std::vector<const Control*>& stale);

private:
    void putOn(ControlView& view);
    void takeOff(ControlView& view);

    const ViewSet& views_;
    /// What wears it, with the palette that it wore before.
    std::map<ControlView*, QPalette> dressed_;
};

} // namespace caudalera
