#include "peakflow/caudalRacional.h"

namespace caudalera {

Real caudalRacional(Real C, Real I, Real A) {
    return ((C * I) * A) / 360;
}

} // namespace caudalera
