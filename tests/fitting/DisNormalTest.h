#pragma once

#include "tests/fitting/FitTest.h"

namespace caudalera::testing {

/// The window of the normal distribution, open; its parameters are Xm, S, Xl, Sl.
class DisNormalTest : public FitTest {
protected:
    DisNormalTest() : FitTest("frmDisNormal", {"txtux", "txtSX", "txtmedial", "txtsl"}) {}
};

} // namespace caudalera::testing
