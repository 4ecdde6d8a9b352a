#pragma once

#include "tests/fitting/FitTest.h"

namespace caudalera::testing {

/// The window of the log-normal distribution of two parameters, open; its parameters are µy, Sy,
/// µyl, Syl.
class DisLogNormal2Test : public FitTest {
protected:
    DisLogNormal2Test() : FitTest("frmDisLogNormal2", {"txtux", "txtSX", "txtmedial", "txtsl"}) {}

    const std::vector<Message> notPositive = {
        {"Para esta distribución, los valores de la serie no pueden ser iguales a 0, ¡Corregir "
         "valores¡",
         "Mensaje de error", Icon::error}};
};

} // namespace caudalera::testing
