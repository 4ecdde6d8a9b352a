#pragma once

#include "manual/maker/Example.h"
#include "shell/window/Window.h"

#include <string>
#include <vector>

namespace caudalera::manual {

/// What a picture of a window shows, in words: its controls with their texts, and the example that
/// was played before. It stands beside the picture, so that a test can tell when the window has
/// changed since.
std::string pictureRecord(const Window& window, const std::vector<Step>& example);

} // namespace caudalera::manual
