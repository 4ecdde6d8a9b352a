#include "manual/maker/Formula.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace caudalera::manual {
namespace {

TEST(Formula, LettersThatStandAloneAreVariables) {
    EXPECT_EQ(formulaHtml("y = a ln x"),
              "<p class=\"formula\"><i>y</i> = <i>a</i> ln <i>x</i></p>\n");
}

TEST(Formula, LowAndHighTakeACharacterAWordOrAGroup) {
    EXPECT_EQ(formulaHtml("x_i^2"),
              "<p class=\"formula\"><i>x</i><sub><i>i</i></sub><sup>2</sup></p>\n");
    EXPECT_EQ(formulaHtml("Q_max"), "<p class=\"formula\"><i>Q</i><sub>max</sub></p>\n");
    EXPECT_EQ(formulaHtml("h^{n - 1}"),
              "<p class=\"formula\"><i>h</i><sup><i>n</i> − 1</sup></p>\n");
    EXPECT_EQ(formulaHtml("e^-x"), "<p class=\"formula\"><i>e</i><sup>−</sup><i>x</i></p>\n");
}

TEST(Formula, AFractionStandsOverItsDenominator) {
    EXPECT_EQ(formulaHtml("m = \\frac{Σ x}{n} + 1"),
              "<table class=\"formula\"><tr><td rowspan=\"2\"><i>m</i> = </td>"
              "<td class=\"over\">Σ <i>x</i></td><td rowspan=\"2\"> + 1</td></tr>"
              "<tr><td class=\"under\"><i>n</i></td></tr></table>\n");
}

TEST(Formula, AFractionWithinAGroupHasASlashAndTheBracketsThatItNeeds) {
    EXPECT_EQ(formulaHtml("\\sqrt{\\frac{a + b}{n}}"),
              "<p class=\"formula\">√((<i>a</i> + <i>b</i>)/<i>n</i>)</p>\n");
    EXPECT_EQ(formulaHtml("\\sqrt{\\frac{2 + a}{3}}"),
              "<p class=\"formula\">√((2 + <i>a</i>)/3)</p>\n");
    EXPECT_EQ(formulaHtml("\\sqrt{\\frac{a}{n - 1}}"),
              "<p class=\"formula\">√(<i>a</i>/(<i>n</i> − 1))</p>\n");
}

TEST(Formula, SignsAreThoseOfPrint) {
    EXPECT_EQ(formulaHtml("0 <= a * b >= -1"),
              "<p class=\"formula\">0 ≤ <i>a</i> · <i>b</i> ≥ −1</p>\n");
    EXPECT_EQ(formulaHtml("\\bar{x} < 1"), "<p class=\"formula\"><i>x\u0304</i> &lt; 1</p>\n");
}

TEST(Formula, WhatIsNotUnderstoodIsRefused) {
    EXPECT_THROW(formulaHtml("\\frac{a}{b"), std::runtime_error);
    EXPECT_THROW(formulaHtml("\\frac a"), std::runtime_error);
    EXPECT_THROW(formulaHtml("\\int x"), std::runtime_error);
    EXPECT_THROW(formulaHtml("x_"), std::runtime_error);
}

TEST(Formula, WhatHtmlReservesIsEscaped) {
    EXPECT_EQ(escaped("P(Q<q) & \"x\" > 1"), "P(Q&lt;q) &amp; &quot;x&quot; &gt; 1");
}

} // namespace
} // namespace caudalera::manual
