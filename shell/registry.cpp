#include "shell/Program.h"

namespace caudalera {

const std::vector<WindowEntry>& ventanas() {
    static const std::vector<WindowEntry> entries;
    return entries;
}

} // namespace caudalera
