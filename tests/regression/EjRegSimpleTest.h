#pragma once

#include "tests/regression/RegressionTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// The open window of simple regression.
class EjRegSimpleTest : public RegressionTest {
protected:
    EjRegSimpleTest() : RegressionTest("frmEjRegSimple") {}

    const std::vector<std::string> noEquations = {"|||", "|||", "|||"};

    // Y = 2^X. Linear: means 2.5 and 7.5, Cuu = 30 - 25 = 5, Cvv = 340 - 225 = 115, Cuv = 98 - 75 =
    // 23, so b = 4.6, a = 7.5 - 11.5 = -4, R = 23 / sqrt(575) = 0.9591663, R2 = 529 / 575 = 0.92.
    // Potential, on (0, ln 2, ln 3, ln 4) and ln 2 x (1, 2, 3, 4): b = 1.4590220,
    // a = exp(1.7328680 - 1.4590220 x 0.7945135) = 1.7747426, R = 0.9801839, R2 = 0.9607605 (from
    // the sums of squares of the differences from the means).
    const Rows doubling = {{"1", "2"}, {"2", "4"}, {"3", "8"}, {"4", "16"}};
    const std::vector<std::string> doublingEquations = {
        "Lineal|Y = -4.0 + 4.6 * X|0.95917|0.92", "Exponencial|Y = 1.0 * ( 2.0 )  ^ X|1.0|1.0",
        "Potencial|Y = 1.7747426 *  X ^ (1.459022)|0.98018|0.96076"};
};

} // namespace caudalera
