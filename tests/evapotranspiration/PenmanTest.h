#pragma once

#include "tests/support/WindowTest.h"

#include <map>
#include <string>

namespace caudalera {

/// The open Penman window.
class PenmanTest : public WindowTest {
protected:
    using Fields = std::map<std::string, std::string>;

    PenmanTest() { open("frmPenman"); }

    /// Types the numbers of a site and month; `changes` replace some of them.
    void fill(const Fields& changes = {}) {
        Fields fields = site;
        for (const auto& [name, value] : changes)
            fields[name] = value;
        for (const auto& [name, value] : fields)
            enter(name, value);
    }

    void expectTexts(const Fields& expected) {
        for (const auto& [name, value] : expected)
            EXPECT_EQ(text(name), value) << name;
    }

    const Fields site = {{"txtLatitud", "12"}, {"txth", "250"},     {"txtT", "24.3"},
                         {"txtHRmed", "68"},   {"txtHRmax", "90"},  {"txtUz", "12"},
                         {"txtHz", "3"},       {"txtRVdVn", "1.8"}, {"txtnp", "7.2"}};
};

} // namespace caudalera
