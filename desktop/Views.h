#pragma once

#include "desktop/session/Session.h"

namespace caudalera {

/// The view of any window: the main window and the report window have one of their own, all others
/// are built from their layout data.
View* makeView(Session& session, Window& window);

} // namespace caudalera
