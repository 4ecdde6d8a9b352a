// Gauss-Jordan elimination with the first pivot that is not zero.

#include "regression/gaussJordan.h"
#include "tests/support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

namespace caudalera {
namespace {

void expectSolution(const MatrizAumentada& sistema, const std::vector<double>& esperada,
                    double tolerance) {
    const auto solucion = gaussJordan(sistema);
    ASSERT_TRUE(solucion.has_value());
    ASSERT_EQ(solucion->size(), esperada.size());
    for (std::size_t i = 0; i < esperada.size(); ++i)
        EXPECT_NEAR((*solucion)[i].value(), esperada[i], tolerance) << "unknown " << i;
}

// Right sides by multiplying out x = 2, y = -1, z = 3:
// 4 - 1 + 3 = 6, 2 - 3 + 6 = 5, 6 + 2 - 3 = 5.
TEST(GaussJordan, SolvesThreeEquations) {
    expectSolution({{2, 1, 1, 6}, {1, 3, 2, 5}, {3, -2, -1, 5}}, {2, -1, 3}, 1e-14);
}

// Right sides by multiplying out 1, -2, 3, 4:
// 1 - 2 + 3 + 4 = 6, 2 + 2 + 6 + 4 = 14, 1 - 4 - 3 + 8 = 2, 3 - 2 + 3 - 4 = 0.
TEST(GaussJordan, SolvesFourEquations) {
    expectSolution({{1, 1, 1, 1, 6}, {2, -1, 2, 1, 14}, {1, 2, -1, 2, 2}, {3, 1, 1, -1, 0}},
                   {1, -2, 3, 4}, 1e-13);
}

// Zeros stand in all three places of the diagonal: x = 5 / 1, y = 8 / 4, z = 6 / 2.
TEST(GaussJordan, ARowBelowTakesThePlaceOfOneWithAZeroPivot) {
    expectSolution({{0, 0, 2, 6}, {1, 0, 0, 5}, {0, 4, 0, 8}}, {5, 2, 3}, 0);
}

// With p = 2^-70 every step is exact. Row 2 becomes (1 - 2^70) y = 2 - 2^70, both of which round
// to -2^70, so y = 1 and x = 2^70 - 2^70 = 0. The largest pivot would have given x = 1.
TEST(GaussJordan, TakesTheFirstPivotAndNotTheLargest) {
    expectSolution({{std::ldexp(1, -70), 1, 1}, {1, 1, 2}}, {0, 1}, 0);
}

TEST(GaussJordan, ASystemWithoutAPivotHasNoSolution) {
    // Row 2 is twice row 1, exactly; with a third row the search in column 2 still finds a pivot
    // there and fails in column 3.
    EXPECT_FALSE(gaussJordan({{1, 2, 3, 4}, {2, 4, 6, 8}, {1, 0, 1, 2}}).has_value());
    EXPECT_FALSE(gaussJordan({{1, 2, 4}, {2, 4, 8}}).has_value());
    // A column of zeros, and nothing but zeros.
    EXPECT_FALSE(gaussJordan({{4, 0, 3, 1}, {0, 0, 0, 0}, {3, 0, 5, 2}}).has_value());
    EXPECT_FALSE(gaussJordan({{0, 0, 0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}}).has_value());
    // The last column alone: rows 1 to 3 are independent, row 4 is their sum.
    EXPECT_FALSE(gaussJordan({{1, 0, 0, 1, 1}, {0, 1, 0, 1, 2}, {0, 0, 1, 1, 3}, {1, 1, 1, 3, 6}})
                     .has_value());
}

// The reciprocal of 1e-320 is past the double range.
TEST(GaussJordan, APivotWithoutAReciprocalIsAFailure) {
    EXPECT_EQ(testing::failureNumber([] { gaussJordan({{1e-320, 1, 1}, {1, 1, 2}}); }), 6);
}

} // namespace
} // namespace caudalera
