#pragma once

#include "shell/numbers/RuntimeFailure.h"

namespace caudalera::testing {

/// Number of the run-time failure that `action` ends with, 0 if it ends well.
template <typename Action>
int failureNumber(Action action) {
    try {
        action();
    } catch (const RuntimeFailure& failure) {
        return failure.number();
    }
    return 0;
}

} // namespace caudalera::testing
