#pragma once

#include "tests/support/WindowTest.h"

#include <map>
#include <sstream>
#include <string>

namespace caudalera {

/// An open calculator whose keys are pressed by what stands on them: words apart by blanks, a
/// number as its digits, an operation by its sign or name.
class CalculadoraTest : public WindowTest {
protected:
    CalculadoraTest() { open("frmCalculadora"); }

    void press(const std::string& keys) {
        std::istringstream words(keys);
        for (std::string word; words >> word;)
            pressWord(word);
    }

    std::string display() { return text("lblDisplay"); }

    /// What the display shows in the end, from the start.
    std::string after(const std::string& keys) {
        program.close(window("frmCalculadora"));
        open("frmCalculadora");
        press(keys);
        return display();
    }

    /// That the keys end in the one message, with this on display.
    void expectRefusal(const std::string& keys, const std::string& shown,
                       std::source_location where = std::source_location::current()) {
        EXPECT_EQ(after(keys), shown) << keys << " in line " << where.line();
        expectMessage({"No se puede cumplir con su petición.\r\n"
                       "Esta operación ha sido cancelada.",
                       "Error en cálculo", Icon::error},
                      where);
    }

    void expectFatal(const std::string& keys, int number,
                     std::source_location where = std::source_location::current()) {
        Program other(platform, ventanas());
        other.start();
        other.act([&] { other.show("frmCalculadora"); });
        Window& calculator = *other.find("frmCalculadora");
        std::istringstream words(keys);
        for (std::string word; words >> word;) {
            EXPECT_FALSE(other.ended()) << keys << " before " << word;
            for (const std::string& name : namesOf(word))
                other.click(*calculator.find(name));
        }
        ASSERT_TRUE(other.ended()) << keys << " in line " << where.line();
        EXPECT_EQ(other.ended()->reason, Ending::Reason::fatal) << keys;
        EXPECT_EQ(other.ended()->number, number) << keys << " in line " << where.line();
    }

private:
    void pressWord(const std::string& word) {
        for (const std::string& name : namesOf(word))
            click(name);
    }

    /// The controls that a word presses.
    static std::vector<std::string> namesOf(const std::string& word) {
        static const std::map<std::string, std::string> names = {
            {"/", "cmdOp(1)"},         {"*", "cmdOp(2)"},         {"-", "cmdOp(3)"},
            {"+", "cmdOp(4)"},         {"sqrt", "cmdOp(5)"},      {"%", "cmdOp(6)"},
            {"1/x", "cmdOp(7)"},       {"^", "cmdOp(8)"},         {"x3", "cmdOp(9)"},
            {"x2", "cmdOp(10)"},       {"mod", "cmdOp(11)"},      {"int", "cmdOp(12)"},
            {"root", "cmdOp(13)"},     {"cbrt", "cmdOp(14)"},     {"=", "cmdEquals"},
            {"neg", "cmdValue"},       {"<<", "cmdBackSpace"},    {"C", "cmdClear(C)"},
            {"CE", "cmdClear(CE)"},    {"M+", "cmdMem(M+)"},      {"MS", "cmdMem(MS)"},
            {"MR", "cmdMem(MR)"},      {"MC", "cmdMem(MC)"},      {"sin", "cmdSci(sin)"},
            {"cos", "cmdSci(cos)"},    {"tan", "cmdSci(tan)"},    {"asin", "cmdSci(sin-1)"},
            {"acos", "cmdSci(cos-1)"}, {"atan", "cmdSci(tan-1)"}, {"pi", "cmdSci(pi)"},
            {"ran", "cmdSci(ran)"},    {"deg", "OptDegree"},      {"rad", "OptRadian"},
            {"paste", "mnuPaste"},     {"copy", "mnuCopy"},
        };
        if (const auto named = names.find(word); named != names.end())
            return {named->second};
        std::vector<std::string> keys;
        for (const char character : word) {
            keys.push_back(character == '.' ? std::string("cmdDecimal")
                                            : std::string("cmdNum(") + character + ")");
        }
        return keys;
    }
};

} // namespace caudalera
