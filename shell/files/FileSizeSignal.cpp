#include "shell/files/FileSizeSignal.h"

#include <csignal>

namespace caudalera {

void ignoreFileSizeSignal() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

} // namespace caudalera
