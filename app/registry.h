#pragma once

#include "shell/window/Program.h"

#include <vector>

namespace caudalera {

/// All the windows that there are: those of the program itself, then the calculations in the order
/// of the menu. The one list of them; a window that stands in it has its menu entry enabled.
const std::vector<WindowEntry>& ventanas();

} // namespace caudalera
