#pragma once

#include "tests/fitting/DisGammaTest.h"

namespace caudalera::testing {

class DisGamma3par : public DisGammaTest {
protected:
    DisGamma3par() : DisGammaTest("frmDisGamma3par") {}
};

class DisLogPearson3 : public DisGammaTest {
protected:
    DisLogPearson3() : DisGammaTest("frmDisLogPearson3") {}
};

/// What an evaluation of an invalid kind says, in both windows.
inline Message invalidKind(const std::string& kind) {
    return {"Los datos no se ajustan a la distribución Gamma de 3 parámetros, con momentos " + kind,
            "Mensaje de Error", Icon::error};
}

/// What a probability of a flow below the lower end says, in both windows.
inline Message belowTheEnd(const std::string& kind) {
    return {"Para los parámetros: Xo y ß la variable reducida y, por momentos " + kind +
                ", es negativa, por lo que por lo que no se puede calcular su probabilidad",
            "Mensaje de Error", Icon::information};
}

} // namespace caudalera::testing
