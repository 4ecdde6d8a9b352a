#pragma once

#include "tests/regression/RegressionTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// The open window of multiple regression with two variables.
class RegMul2VarTest : public RegressionTest {
protected:
    RegMul2VarTest() : RegressionTest("frmRegMul2Var") {}

    using Texts = std::vector<std::string>;
    const Texts noEquations = {"||||", "||||"};

    // Solved in rational arithmetic, the potential fit with logarithms of 60 digits: a = (2/7, 3/4,
    // 55/28), R2 = 1160/1162 = 0.99828, Se = sqrt(1/7) = 0.37796; potential 3.2056580, 0.2702036,
    // 0.6487221, R = 0.9979869, R2 = 0.9959779 of the logarithms, Se = 0.7692531 of Y itself.
    const Rows trios = {
        {"1", "2", "5"}, {"2", "1", "4"}, {"3", "5", "12"}, {"4", "3", "9"}, {"5", "8", "20"}};
    const Texts triosEquations = {
        "Lineal Múltiple|Y = 0.2857 +0.7500 *X1 +1.9643 *X2|0.9991|0.9983|0.3780",
        "Potencial Múltiple|Y= 3.2057*X1^(0.2702) *X2^(0.6487)|0.9980|0.9960|0.7693"};

    /// As many trios, all of them on Y = X1 * X2 with X1 and X2 independent.
    static Rows product(int count) {
        Rows data;
        for (int i = 1; i <= count; ++i) {
            const int second = 1 + i % 7;
            data.push_back({std::to_string(i), std::to_string(second), std::to_string(i * second)});
        }
        return data;
    }
};

} // namespace caudalera
