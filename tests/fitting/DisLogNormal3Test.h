#pragma once

#include "tests/fitting/FitTest.h"

namespace caudalera::testing {

/// The window of the log-normal distribution of three parameters, open; its parameters are xo, µy,
/// Sy.
class DisLogNormal3Test : public FitTest {
protected:
    DisLogNormal3Test() : FitTest("frmDisLogNormal3", {"txtxo", "txtux", "txtSX"}) {}

    const std::vector<Message> notPositive = {
        {"Verificar que los datos sean positivos y mayor que 0 ¡ Corregir datos!",
         "Mensaje de Error", Icon::information}};
    /// xo = (1000 - 625) / 60 = 6.25; the logarithms of x - xo have the mean 2.9164405 and, with
    /// divisor n, the deviation 1.0326246.
    const Texts skewed = {"10", "20", "30", "100", "25"};
};

} // namespace caudalera::testing
