// The whole main menu: every entry opens its window, and every window survives its commands.

#include "shell/main/frmCaudalera.h"
#include "shell/worksheet/Worksheet.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/WindowTest.h"

#include <map>
#include <set>

namespace caudalera {
namespace {

class MenuTest : public WindowTest {
protected:
    /// The entries of the main menu that stand for a window.
    std::vector<std::string> entries() {
        std::vector<std::string> names;
        for (const MenuEntry* title : window("frmCaudalera").menuBar)
            for (const MenuEntry* entry : title->entries)
                if (entry && entry->name() != "mparasalir" && entry->name() != "mayuayu")
                    names.push_back(entry->name());
        return names;
    }

    std::set<std::string> openWindows() const {
        std::set<std::string> names;
        for (const auto& each : program.windows())
            if (each->loaded())
                names.insert(each->name());
        return names;
    }

    /// Chooses an entry and gives the name of the window that it opens.
    std::string openedBy(const std::string& entry) {
        const std::set<std::string> before = openWindows();
        open("frmCaudalera");
        click(entry);
        for (const std::string& name : openWindows())
            if (!before.contains(name))
                return name;
        return {};
    }
};

TEST_F(MenuTest, EveryEntryOpensAWindowOfItsOwn) {
    std::set<std::string> opened;
    for (const std::string& entry : entries()) {
        const std::string name = openedBy(entry);
        EXPECT_NE(name, "") << entry;
        EXPECT_TRUE(opened.insert(name).second) << entry << " opens " << name << " again";
    }
    EXPECT_EQ(opened.size(), 35U) << "34 calculations and the about box";
    EXPECT_TRUE(messages().empty());
    EXPECT_FALSE(program.ended());
}

/// What the calculations of these windows fail with while nothing was entered: they have no guard,
/// so that the program ends.
const std::map<std::string_view, int> fatalWhenEmpty = {
    {"frmParEstAgru", 5},     // the logarithm of no values
    {"frmDistriFre", 5},      // the same
    {"frmCurvaDuracion", 11}, // their mean
    {"frmPenman", 5},         // the logarithm of the wind at the height 0
};

class MenuWindowTest : public WindowTest, public ::testing::WithParamInterface<std::string_view> {
protected:
    std::string name() const { return std::string(GetParam()); }
    bool has(const std::string& command) { return window(name()).find(command) != nullptr; }
    /// Clicks a command that the window has; whether the program goes on.
    bool survives(const std::string& command) {
        open(name());
        if (has(command))
            click(command);
        return !program.ended();
    }
};

TEST_P(MenuWindowTest, SurvivesItsCommandsWithoutData) {
    writeSingles(file("doce"), std::vector<float>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    for (const char* command : {"bReporte", "bLimpiar", "bReporte", "bCalculadora"})
        ASSERT_TRUE(survives(command)) << command;
    EXPECT_TRUE(program.find("frmCalculadora"));
    platform.answers = {file("doce")};
    for (const char* command : {"bAccesar", "bReporte", "bLimpiar"})
        ASSERT_TRUE(survives(command)) << command;
    const auto failure = fatalWhenEmpty.find(GetParam());
    if (failure == fatalWhenEmpty.end()) {
        ASSERT_TRUE(survives("bCalcular"));
        ASSERT_TRUE(survives("bReporte"));
        ASSERT_TRUE(survives("bMenu"));
        const Window* closed = program.find(name());
        EXPECT_FALSE(closed && closed->loaded());
    } else {
        survives("bCalcular");
        EXPECT_TRUE(fatal(failure->second));
    }
}

std::vector<std::string_view> calculations() {
    const std::set<std::string_view> others = {"frmCaudalera", "frmPadre", "frmacerc",
                                               "frmCalculadora"};
    std::vector<std::string_view> names;
    for (const WindowEntry& entry : ventanas())
        if (!others.contains(entry.name))
            names.push_back(entry.name);
    return names;
}

INSTANTIATE_TEST_SUITE_P(AllOfThem, MenuWindowTest, ::testing::ValuesIn(calculations()),
                         [](const auto& each) { return std::string(each.param); });

} // namespace
} // namespace caudalera
