// What is typed, corrected, kept and pasted.

#include "tests/shell/main/CalculadoraTest.h"

namespace caudalera {
namespace {

TEST_F(CalculadoraTest, ItStartsWithZeroAndItsPoint) {
    EXPECT_EQ(display(), "0.");
}

TEST_F(CalculadoraTest, DigitsAreAppendedAsTyped) {
    EXPECT_EQ(after("1234567890"), "1234567890");
    EXPECT_EQ(after("007"), "007");
    EXPECT_EQ(after("007 + 0 ="), "7.");
}

TEST_F(CalculadoraTest, ThePointIsAppendedOnce) {
    EXPECT_EQ(after("."), ".");
    EXPECT_EQ(after("12.5"), "12.5");
    EXPECT_EQ(after("1..2.5."), "1.25");
    EXPECT_EQ(after(".5 + ="), "0.5");
    EXPECT_EQ(after(". + ="), "0.") << "a lone point is 0";
}

TEST_F(CalculadoraTest, ADigitOrPointBeginsANumberBehindAnythingButAnEntry) {
    for (const char* before : {"C", "12 =", "3 + 4 =", "9 sqrt", "9 +", "9 - 4 *", "7 MS", "7 M+",
                               "7 MC", "7 MR", "5 sin", "pi", "ran", "1 asin", "12 paste"}) {
        EXPECT_EQ(after(std::string(before) + " 8"), "8") << before;
        EXPECT_EQ(after(std::string(before) + " .8"), ".8") << before;
        messages();
    }
    EXPECT_EQ(after("5 / 0 = 8"), "8") << "after a refusal as well";
    EXPECT_EQ(after("2 asin 8"), "8");
    EXPECT_EQ(after("1 neg sqrt 8"), "8");
}

TEST_F(CalculadoraTest, BackspaceDropsTheLastCharacter) {
    EXPECT_EQ(after("125 <<"), "12");
    EXPECT_EQ(after("12.5 <<"), "12.");
    EXPECT_EQ(after("12.5 << <<"), "12");
    EXPECT_EQ(after("12.5 << << .3"), "12.3") << "the point may be typed anew";
    EXPECT_EQ(after("125 << + 1 ="), "13.") << "and it is read again";
    EXPECT_EQ(after("2 * 35 << ="), "6.");
    EXPECT_EQ(after("5 << <<"), "");
    EXPECT_EQ(after("5 << << + 3 ="), "3.");
    EXPECT_EQ(after("5 << 4"), "4");
    EXPECT_EQ(after("3 * 4 = << 5"), "125") << "12. without its point and with a 5";
}

TEST_F(CalculadoraTest, TheSignOfTheDisplayChanges) {
    EXPECT_EQ(after("5 neg"), "-5");
    EXPECT_EQ(after("5 neg neg"), "5");
    EXPECT_EQ(after("12 neg 3"), "-123") << "the number goes on";
    EXPECT_EQ(after("12 neg + 1 ="), "-11.");
    EXPECT_EQ(after("7 * 3 neg ="), "-21.");
    EXPECT_EQ(after("3 * 4 = neg"), "-12.");
    EXPECT_EQ(after("3 * 4 = neg 5"), "5") << "a result is no entry";
    EXPECT_EQ(after("3 * 4 = neg + 2 ="), "-10.");
}

TEST_F(CalculadoraTest, ZeroHasASignOnlyWhileItIsTyped) {
    EXPECT_EQ(after("neg"), "0.");
    EXPECT_EQ(after("neg 5"), "5");
    EXPECT_EQ(after("0. neg 5"), "-0.5");
    EXPECT_EQ(after("8 - neg"), "") << "nothing to change yet";
    EXPECT_EQ(after("5 << neg"), "");
    EXPECT_EQ(after("0 * 5 neg ="), "0.");
}

TEST_F(CalculadoraTest, COnlyKeepsTheMemory) {
    EXPECT_EQ(after("12 C"), "0.");
    EXPECT_EQ(after("12 + 5 C"), "0.");
    EXPECT_EQ(after("12 + 5 C 3 ="), "3") << "nothing waits any more";
    EXPECT_EQ(after("12 C + 1 ="), "1.") << "the first operand is 0";
    EXPECT_EQ(after("12 C CE"), "0.");
    EXPECT_EQ(after("12 MS 5 C MR"), "12.");
}

TEST_F(CalculadoraTest, CEGoesBackToTheFirstOperand) {
    EXPECT_EQ(after("12 + 5 CE"), "12.");
    EXPECT_EQ(after("12 + CE"), "12.");
    EXPECT_EQ(after("12 + 5 CE ="), "12.");
    EXPECT_EQ(after("12 + 5 CE + 3 ="), "15.") << "the 5 is forgotten";
    EXPECT_EQ(after("12 + 5 CE - ="), "12.") << "and with it the second operand";
    EXPECT_EQ(after("12 + 5 CE 4 + 3 ="), "15.4") << "what is typed goes on with it";
    EXPECT_EQ(after("8 1 CE 9"), "81.9");
    EXPECT_EQ(after("12 + CE 3"), "3") << "the operator's new number still begins";
    EXPECT_EQ(after("1 + 2 * 5 CE"), "3.");
    EXPECT_EQ(after("CE"), "0.");
    EXPECT_EQ(after("3 M+ CE MR"), "3.") << "the memory stays";
    EXPECT_EQ(after("5 / 0 = CE"), "5.") << "also behind a refusal";
}

TEST_F(CalculadoraTest, TheMemoryStoresAddsShowsAndClears) {
    EXPECT_EQ(after("MR"), "0.") << "it starts empty";
    EXPECT_EQ(after("12.5 MS 3 MR"), "12.5");
    EXPECT_EQ(after("12.5 MS 3 MS 7 MR"), "3.");
    EXPECT_EQ(after("12.5 MS 3 M+ 9 MR"), "15.5");
    EXPECT_EQ(after("5 neg M+ 7 M+ C MR"), "2.");
    EXPECT_EQ(after("12.5 MS MC 3 MR"), "0.");
    EXPECT_EQ(after("4 MS 10 - MR ="), "6.") << "it serves as second operand";
    EXPECT_EQ(after("4 MS C MR - 1 ="), "3.") << "and as first";
    EXPECT_EQ(after("8 MS"), "8") << "the display stays";
    EXPECT_EQ(after("8 M+"), "8");
    EXPECT_EQ(after("8 MC"), "8");
    EXPECT_EQ(after("8 + MS 5 M+ 1 MR"), "5.") << "an empty display is 0";
    EXPECT_EQ(after("1 / 3 = MS * 3 = C MR * 3 ="), "0.999999999999999")
        << "it keeps what is on display";
}

TEST_F(CalculadoraTest, AFullMemoryShowsItsSign) {
    EXPECT_EQ(text("lblMemoria"), "");
    press("5 MS");
    EXPECT_EQ(text("lblMemoria"), "M");
    press("C CE =");
    EXPECT_EQ(text("lblMemoria"), "M");
    press("5 neg M+");
    EXPECT_EQ(text("lblMemoria"), "") << "5 - 5";
    press("0.01 neg MS");
    EXPECT_EQ(text("lblMemoria"), "M");
    press("MC");
    EXPECT_EQ(text("lblMemoria"), "");
}

TEST_F(CalculadoraTest, WhatWaitsIsShown) {
    EXPECT_EQ(text("lblPendiente"), "");
    press("12 +");
    EXPECT_EQ(text("lblPendiente"), "12. +");
    EXPECT_EQ(display(), "");
    press("5 *");
    EXPECT_EQ(text("lblPendiente"), "17. ×");
    press("2 sqrt");
    EXPECT_EQ(text("lblPendiente"), "17. ×");
    press("CE");
    EXPECT_EQ(text("lblPendiente"), "");
    press("5 mod 3");
    EXPECT_EQ(text("lblPendiente"), "5. mod");
    press("=");
    EXPECT_EQ(text("lblPendiente"), "");
    press("5 / 0 =");
    EXPECT_EQ(text("lblPendiente"), "");
    press("7 ^ C");
    EXPECT_EQ(text("lblPendiente"), "");
}

TEST_F(CalculadoraTest, NumbersShowFifteenDigitsAndAlwaysAPoint) {
    EXPECT_EQ(after("2 + 3 ="), "5.");
    EXPECT_EQ(after("1 / 4 ="), "0.25");
    EXPECT_EQ(after("1 - 5 ="), "-4.");
    EXPECT_EQ(after("1 / 3 ="), "0.333333333333333");
    EXPECT_EQ(after("2 / 3 ="), "0.666666666666667");
    EXPECT_EQ(after("200 / 3 ="), "66.6666666666667");
    EXPECT_EQ(after("999999999999999 + 0 ="), "999999999999999.");
    EXPECT_EQ(after("999999999999999 + 1 ="), "1E+15.");
    EXPECT_EQ(after("1500000000000000 + 0 ="), "1.5E+15");
    // 1 / 30 has sixteen decimals when it is written out.
    EXPECT_EQ(after("30 1/x"), "3.33333333333333E-02");
    EXPECT_EQ(after("20 1/x"), "0.05");
}

TEST_F(CalculadoraTest, CopyTakesTheDisplayAsItStands) {
    press("12.50 copy");
    EXPECT_EQ(platform.clipboardText(), "12.50");
    press("+ copy");
    EXPECT_EQ(platform.clipboardText(), "");
    press("3 = copy");
    EXPECT_EQ(platform.clipboardText(), "15.5");
}

TEST_F(CalculadoraTest, PasteTakesTheReadingOfTheText) {
    platform.setClipboardText(" -12.50 m3/s");
    EXPECT_EQ(after("7 paste"), "-12.5");
    EXPECT_EQ(after("7 paste + 1 ="), "-11.5");
    EXPECT_EQ(after("2 * paste ="), "-25.") << "into the second operand";
    platform.setClipboardText("1,5");
    EXPECT_EQ(after("paste"), "1.");
    platform.setClipboardText("texto");
    EXPECT_EQ(after("7 paste"), "0.");
    platform.setClipboardText("1E20");
    EXPECT_EQ(after("paste"), "1E+20.");
    platform.setClipboardText("1E999");
    expectFatal("7 paste", 6);
}

TEST_F(CalculadoraTest, WhatIsTypedPastTheDoublesIsAFailure) {
    const std::string nines(309, '9');
    EXPECT_EQ(after(nines.substr(1)), nines.substr(1));
    expectFatal(nines, 6);
}

} // namespace
} // namespace caudalera
