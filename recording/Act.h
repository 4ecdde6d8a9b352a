#pragma once

#include "shell/window/Program.h"

#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

// What a person does at a window, in terms of the program's events. The driver and the tests act
// through these alone.

/// Types a text at a control, character by character.
void typeText(Program& program, Control& control, std::string_view text);

/// Types rows at the append row of a grid: each value's characters and ENTER; an empty value is
/// ENTER on the grid alone.
void typeRows(Program& program, MSFlexGrid& grid,
              const std::vector<std::vector<std::string>>& rows);

} // namespace caudalera
