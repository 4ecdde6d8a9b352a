// The gamma function, the incomplete gamma function and its inverse. Reference values: 50-digit
// arithmetic (mpmath), its gamma and gammainc for the exact functions, and the told series summed
// in it for the routines' own values.

#include "fitting/funcionGamma.h"
#include "tests/support/FailureNumber.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace caudalera::testing {
namespace {

const double rootOfPi = std::sqrt(std::acos(-1.0));

// (1/1286 - 1/1260) / 11^5 = -9.963E-11, and the next term of the series, 1 / (1188 11^9), is
// 3.6E-13: at a = 1 the logarithm is low by 9.998E-11.
TEST(FuncionGamma, IsLowByWhatItsThirdConstantLeavesOut) {
    EXPECT_NEAR((funcionGamma(1).value() - 1) / -9.998e-11, 1, 1e-4);
    // At a = 2 by 6.4645E-11, at 1/2 by 1.2625E-10.
    EXPECT_NEAR((funcionGamma(2).value() - 1) / -6.4645e-11, 1, 1e-4);
    EXPECT_NEAR((funcionGamma(0.5).value() / rootOfPi - 1) / -1.2625e-10, 1, 1e-4);
}

TEST(FuncionGamma, Factorials) {
    double factorial = 1;
    for (int n = 1; n <= 160; ++n) {
        EXPECT_NEAR(funcionGamma(n).value() / factorial, 1, 1.1e-10) << n;
        factorial *= n;
    }
}

// Gamma(a + 1) = a Gamma(a) but for the difference of two errors; half of an odd number has the
// products of the halves times Sqr(pi).
TEST(FuncionGamma, HalvesAndRecurrence) {
    double expected = rootOfPi;
    for (double a = 0.5; a < 160; a += 1) {
        EXPECT_NEAR(funcionGamma(a).value() / expected, 1, 1.3e-10) << a;
        expected *= a;
    }
    for (double a = 0.05; a < 160; a += 0.37)
        EXPECT_NEAR((funcionGamma(a + 1) / funcionGamma(a)).value() / a, 1, 7e-11) << a;
}

TEST(FuncionGamma, LargestErrorOverTheWholeRange) {
    double lowest = 0;
    double highest = 0;
    for (double a = 1e-4; a < 161.6; a *= 1.01) {
        const double error = funcionGamma(a).value() / std::tgamma(a) - 1;
        lowest = std::min(lowest, error);
        highest = std::max(highest, error);
    }
    // 1.613E-10 at a = 0 from the constant, and up to half an ulp of a + 10 (9E-16) over a. Above
    // it is only the rounding of the exponent, which grows to some 700.
    EXPECT_NEAR(lowest, -1.613e-10, 1e-11);
    EXPECT_LT(highest, 1e-12);
}

// Gamma(171.6244) is the largest double.
TEST(FuncionGamma, LeavesTheDoubleRangeAtAShapeOfAbout162) {
    EXPECT_NEAR(funcionGamma(161.62).value() / std::tgamma(161.62), 1, 1e-12);
    EXPECT_EQ(failureNumber([] { funcionGamma(161.63); }), 6);
    EXPECT_EQ(failureNumber([] { funcionGamma(1e300); }), 6);
}

TEST(FuncionGamma, SmallAndNegativeArguments) {
    EXPECT_NEAR(funcionGamma(0.25).value() / 3.6256099082219083, 1, 1.7e-10);
    // a + 10 is 10 to the last bit.
    EXPECT_EQ(failureNumber([] { funcionGamma(1e-300); }), 11);
    // Gamma(-1/2) = -2 Sqr(pi), and the next half below is 4/3 of it with the other sign.
    EXPECT_NEAR(funcionGamma(-0.5).value() / (-2 * rootOfPi), 1, 4e-10);
    EXPECT_NEAR(funcionGamma(-1.5).value() / (4 * rootOfPi / 3), 1, 4e-10);
    for (int a = 0; a > -10; --a)
        EXPECT_EQ(failureNumber([&] { funcionGamma(a); }), 11) << a;
    EXPECT_EQ(failureNumber([] { funcionGamma(-10); }), 5);
    EXPECT_EQ(failureNumber([] { funcionGamma(-12.5); }), 5);
}

Real incomplete(Real a, Real x) {
    return gammaIncompleta(a, x, funcionGamma(a));
}

struct Incomplete {
    double a;
    double x;
    double exact;
    /// The series up to its stop over the approximate gamma function, in 50 digits.
    double own;
};

const std::vector<Incomplete> incompleteValues = {
    {0.01, 0.001, 0.93857065252612899, 0.93857065267670702},
    {0.01, 20, 0.99999999999898029, 0.99999996891353568},
    {0.1, 1e-30, 0.0010511370061117778, 0.0010511370062730469},
    {0.5, 1e-6, 0.0011283787909692364, 0.0011283787911116997},
    {0.5, 2.5, 0.97465268132253174, 0.97465267733465095},
    {0.5, 100, 1.0, 0.99999983084556164},
    {1, 0.001, 0.00099950016662500833, 0.00099950016672493237},
    {1, 1, 0.63212055882855768, 0.63212055806014783},
    {1, 110, 1.0, 0.99999983105284797},
    {2.35, 0.4, 0.031140942934221248, 0.031140942929605217},
    {2.35, 7, 0.98740047954983815, 0.98740046181480478},
    {10, 1, 1.1142547833872068e-7, 1.1142547827863678e-7},
    {10, 10, 0.54207028552814779, 0.54207027815865899},
    {10, 30, 0.99999287824913718, 0.99999283171104261},
    {50, 20, 1.2458926079719379e-8, 1.2458925682463473e-8},
    {50, 55, 0.76779521949914367, 0.76779515916753167},
    {50, 130, 0.99999999999999965, 0.9999998520281946},
    {100, 60, 1.4815276326460468e-6, 1.4815275551356785e-6},
    {100, 100, 0.51329879827914866, 0.51329871335924741},
    {100, 165, 0.99999998045057689, 0.99999980819025787},
    {161, 60, 3.5027624577795337e-27, 3.5027623873711655e-27},
    {161, 161, 0.51048070871123456, 0.5104806206502585},
    {161, 214, 0.99993221766335226, 0.9999319713945713},
};

TEST(GammaIncompleta, ValuesOfTheSeriesItself) {
    for (const auto& [a, x, exact, own] : incompleteValues)
        EXPECT_NEAR(incomplete(a, x).value() / own, 1, 1e-12) << a << " " << x;
}

// Low by the terms behind the last, up to 2.7E-7 of the value where they fall off slowest (at the
// end of the reach for a = 161); high by no more than the 1.6E-10 that the gamma function is low.
TEST(GammaIncompleta, LargestDifferenceToTheExactFunction) {
    double lowest = 0;
    for (const auto& [a, x, exact, own] : incompleteValues) {
        const double error = incomplete(a, x).value() / exact - 1;
        EXPECT_LT(error, 1.7e-10) << a << " " << x;
        EXPECT_GT(error, -2.7e-7) << a << " " << x;
        lowest = std::min(lowest, error);
    }
    EXPECT_LT(lowest, -2e-7);
}

// Where the function has a closed form.
TEST(GammaIncompleta, ClosedFormsOverTheRange) {
    for (double x = 1e-6; x < 112; x *= 1.07) {
        const auto expect = [x](double a, double closed) {
            const double error = incomplete(a, x).value() / closed - 1;
            EXPECT_LT(error, 1.7e-10) << a << " " << x;
            EXPECT_GT(error, -2e-7) << a << " " << x;
        };
        expect(1, -std::expm1(-x));
        expect(0.5, std::erf(std::sqrt(x)));
        // Past the cancellation of the small x.
        if (x > 0.5) {
            expect(2, 1 - (1 + x) * std::exp(-x));
            expect(3, 1 - (1 + x + x * x / 2) * std::exp(-x));
        }
    }
}

TEST(GammaIncompleta, RisesWithX) {
    for (const double a : {0.2, 1.0, 4.0, 40.0}) {
        Real before = 0;
        for (double x = a / 100; x < a + 4 * std::sqrt(a); x += a / 50) {
            const Real now = incomplete(a, x);
            EXPECT_GT(now, before) << a << " " << x;
            before = now;
        }
        EXPECT_LT(before, 1);
    }
}

// Where the product of the terms' divisors leaves the double range, found with the series in 50
// digits: x = 112.604 for a = 1, 113.43 for 0.01, 115.05 for 10, 135.60 for 50, 169.05 for 100 and
// 214.21 for 161. Before it, x^e alone (214^291 at the end) is far outside that range.
TEST(GammaIncompleta, ReachOfTheSeries) {
    struct Reach {
        double a;
        double last;
        double first;
    };
    for (const auto& [a, last, first] : std::vector<Reach>{{0.01, 113.4, 113.5},
                                                           {1, 112.6, 112.61},
                                                           {10, 115, 115.1},
                                                           {50, 135.5, 135.61},
                                                           {100, 169, 169.1},
                                                           {161, 214.2, 214.3}}) {
        EXPECT_EQ(failureNumber([a = a, x = last] { incomplete(a, x); }), 0) << a;
        EXPECT_EQ(failureNumber([a = a, x = first] { incomplete(a, x); }), 6) << a;
    }
    EXPECT_EQ(failureNumber([] { incomplete(2, 560); }), 6);
}

// Exp(-570) is 1E-248; over the fourth root of some 1E305 it is 0, so that the terms seem to have
// fallen off.
TEST(GammaIncompleta, FarOutTheTermsVanishBeforeTheProductOverflows) {
    for (const double x : {570.0, 650.0, 740.0}) {
        EXPECT_GT(incomplete(2, x), 0) << x;
        EXPECT_LT(incomplete(2, x), 1e-80) << x;
    }
    EXPECT_EQ(failureNumber([] { incomplete(2, 746); }), 11) << "Exp(-746) is 0";
}

TEST(GammaIncompleta, FailuresByTheirNumbers) {
    for (const double a : {0.3, 3.0, 30.0}) {
        EXPECT_EQ(failureNumber([&] { incomplete(a, 0); }), 11) << a;
        EXPECT_EQ(failureNumber([&] { incomplete(a, -0.5); }), 5) << a;
    }
    // A first term below the doubles.
    EXPECT_EQ(failureNumber([] { incomplete(3, 1e-110); }), 11);
}

struct Search {
    double a;
    double p;
    /// The same search over the told series, written anew in Python's doubles. With the exact
    /// function (mpmath) it makes as many passes and ends within 4E-6 of this.
    double x;
    long passes;
};

// Shapes on either side of the convergence, and both ends of each stretch of p.
const std::vector<Search> searches = {
    {2, 0.5, 1.67843648516, 19},          {0.5, 0.5, 0.227508669959, 55},
    {0.5, 0.75, 0.661539681523, 66},      {5.4, 1.0 / 3, 4.16656714776, 8},
    {5.4, 0.5, 5.07066415828, 9},         {10, 0.1, 6.22098418489, 15},
    {3, 0.7999999999, 4.27874992379, 32}, {2, 0.8, 2.99406322082, 35},
    {50, 0.8, 55.8333594288, 5},          {2, 0.89995, 3.88873142132, 26},
    {2, 0.9, 3.88912332241, 281},         {2, 0.98, 5.83117500896, 166},
    {2, 0.99, 6.63323765872, 138},        {5.4, 0.99, 12.2053010325, 94},
    {120, 0.99, 146.932385063, 23},       {2, 0.99499, 7.41751471852, 115},
    {2, 0.995, 7.41912468023, 580},       {2, 0.999, 9.18045685338, 392},
    {20, 0.995, 33.3623000369, 235},
};

TEST(GammaInversa, SearchAndItsPasses) {
    for (const auto& [a, p, x, passes] : searches) {
        Integer16 counted;
        EXPECT_NEAR(gammaInversa(a, p, counted).value() / x, 1, 1e-9) << a << " " << p;
        EXPECT_EQ(counted, passes) << a << " " << p;
    }
}

TEST(GammaInversa, ComesBackToTheProbability) {
    for (const auto& [a, p, x, passes] : searches) {
        Integer16 counted;
        EXPECT_NEAR(incomplete(a, gammaInversa(a, p, counted)).value(), p, 5e-5) << a << " " << p;
    }
}

// The steps are a share of x, and small where a small shape has brought x down: by the same Python
// search P(0.1, x) is 0.99480 after 1200 passes at 0.995, and P(0.05, x) 0.89987 at 0.9. Just below
// either p the steps are five and ten times as long.
TEST(GammaInversa, EndsAfter1200PassesWithTheValueInHand) {
    Integer16 passes;
    EXPECT_NEAR(gammaInversa(0.1, 0.995, passes).value(), 2.06543527382, 1e-9);
    EXPECT_EQ(passes, 1200);
    EXPECT_NEAR(gammaInversa(0.1, 0.9949, passes).value(), 2.07262586308, 1e-9);
    EXPECT_EQ(passes, 291);
    EXPECT_NEAR(gammaInversa(0.05, 0.9, passes).value(), 0.0760884652406, 1e-11);
    EXPECT_EQ(passes, 1200);
    EXPECT_NEAR(gammaInversa(0.05, 0.89995, passes).value(), 0.0761404852388, 1e-11);
    EXPECT_EQ(passes, 141);
    // Steep and flat: the steps overshoot, or creep.
    gammaInversa(12, 0.02, passes);
    EXPECT_EQ(passes, 1200);
    gammaInversa(0.01, 0.5, passes);
    EXPECT_EQ(passes, 1200);
}

// Each period asks for more than the one before, also from one stretch to the next, until P is
// within 0.00005 of 1.
TEST(GammaInversa, RisesWithTheProbability) {
    for (const double a : {0.5, 2.0, 5.4, 17.0, 73.0}) {
        Real before = 0;
        for (const double T : {4.9, 5.1, 9.9, 10.1, 50.0, 100.0, 195.0, 205.0, 1000.0, 10000.0}) {
            Integer16 passes;
            const Real now = gammaInversa(a, 1 - 1 / T, passes);
            EXPECT_GT(now, before) << a << " " << T;
            before = now;
        }
    }
}

// P(2, 2) = 1 - 3 Exp(-2) = 0.5939942: the search begins there, and returns the x of the step that
// it still makes, 2 (p / F)^(1/3). Less than a part in 10,000 on either side of 0.00005.
TEST(GammaInversa, MakesOneStepBehindTheTest) {
    const double F = incomplete(2, 2).value();
    ASSERT_NEAR(F, 1 - 3 * std::exp(-2.0), 2e-7);
    Integer16 passes = 7;
    for (const double difference : {4.9998e-5, -4.9998e-5}) {
        EXPECT_NEAR(gammaInversa(2, F + difference, passes).value(),
                    2 * std::cbrt((F + difference) / F), 1e-12);
        EXPECT_EQ(passes, 1);
    }
    gammaInversa(2, F + 5.0002e-5, passes);
    EXPECT_EQ(passes, 2);
    gammaInversa(2, F - 5.0002e-5, passes);
    EXPECT_EQ(passes, 2);
}

// A search that ends in its first pass gives the step itself: x less 0.1, 0.01 or 0.002 of it times
// the logarithm of (1 - p) / (1 - F), with F = P(a, a) = 0.83, 0.96 and 0.997. The step is compared
// to 1 part in 100,000.
TEST(GammaInversa, StepsOfEachStretch) {
    struct Stretch {
        double a;
        double from;
        double to;
        double step;
    };
    for (const auto& [a, from, to, step] : std::vector<Stretch>{
             {0.1, 0.8, 0.9, 0.1}, {0.01, 0.9, 0.995, 0.01}, {0.0004, 0.995, 1, 0.002}}) {
        const double F = incomplete(a, a).value();
        const double p = F + 4.9e-5;
        ASSERT_TRUE(p >= from && p < to) << a << " " << F;
        Integer16 passes;
        const double share = -step * std::log((1 - p) / (1 - F));
        EXPECT_NEAR((gammaInversa(a, p, passes).value() - a) / a / share, 1, 1e-5) << a;
        EXPECT_EQ(passes, 1) << a;
    }
}

TEST(GammaInversa, FailuresByTheirNumbers) {
    Integer16 passes;
    const auto number = [&](double a, double p) {
        return failureNumber([&] { gammaInversa(a, p, passes); });
    };
    // The first pass sets x = 0, the second finds 0 / 0.
    EXPECT_EQ(number(2, 0), 11);
    EXPECT_EQ(passes, 2);
    EXPECT_EQ(number(2, -1), 5);
    EXPECT_EQ(passes, 1);
    // The logarithm of 0, and of a negative.
    EXPECT_EQ(number(2, 1), 5);
    EXPECT_EQ(number(2, 2), 5);
    EXPECT_EQ(number(0, 0.5), 11);
    EXPECT_EQ(number(162, 0.5), 6);
    // Overshooting out of the reach of the series, and to where Exp(-x) is 0.
    EXPECT_EQ(number(20, 0.01), 6);
    EXPECT_EQ(number(100, 0.1), 11);
    // 1 - P(1E-7, 1E-7) = 1.6E-6, of which 0.2 is more than e^10 times as much: a tenth of that
    // logarithm is more than all of x.
    EXPECT_EQ(number(1e-7, 0.8), 5);
}

} // namespace
} // namespace caudalera::testing
