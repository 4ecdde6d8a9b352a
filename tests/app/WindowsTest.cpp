#include "app/registry.h"
#include "recording/RecordingPlatform.h"
#include "shell/worksheet/CalculationWindow.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

// What holds of every window that there is: a view that builds it from its layout shows each of its
// controls, and each of them once.

namespace caudalera {
namespace {

/// Counts the places that a window gives its controls.
class Places {
public:
    explicit Places(const Window& window) : window_(window) {
        visit(window.layout);
        for (const Window::CommandGroup& group : window.commands) {
            place(group.frame);
            for (const Button* button : group.buttons)
                place(button);
        }
        for (const MenuEntry* title : window.menuBar)
            visit(title);
        for (const Control* control : window.controls())
            placeWithWindow(*control);
    }

    /// What is wrong with them; empty if every control has its place once and every label stands
    /// in the line of its field.
    std::vector<std::string> faults() const {
        std::vector<std::string> all = faults_;
        for (const Control* control : window_.controls()) {
            const auto found = places_.find(control);
            const int count = found == places_.end() ? 0 : found->second;
            if (count != 1)
                all.push_back(control->name() + " has " + std::to_string(count) + " places");
            if (const auto* box = dynamic_cast<const TextBox*>(control)) {
                keepTogether(*box, box->label(), all);
                keepTogether(*box, box->unit(), all);
            } else if (const auto* list = dynamic_cast<const List*>(control)) {
                keepTogether(*list, list->label(), all);
                keepTogether(*list, list->unit(), all);
            }
        }
        return all;
    }

private:
    void place(const Control* control) {
        if (!control)
            return;
        ++places_[control];
        if (&control->window() != &window_)
            faults_.push_back(control->name() + " is of another window");
    }

    /// What stands at something else and has no place in the layout of its own.
    void placeWithWindow(const Control& control) {
        if (control.kind() == ControlKind::status)
            place(&control);
        if (const auto* grid = dynamic_cast<const MSFlexGrid*>(&control)) {
            place(grid->editor);
            visit(grid->popup);
        }
        if (const auto* graph = dynamic_cast<const Graph*>(&control)) {
            for (const auto* labels : {&graph->xLabels, &graph->yLabels}) {
                for (const Label* label : *labels)
                    place(label);
            }
        }
    }

    void visit(const MenuEntry* entry) {
        if (!entry)
            return;
        place(entry);
        for (const MenuEntry* below : entry->entries)
            visit(below);
    }

    void visit(const Layout& node) {
        place(node.control);
        checkShape(node);
        for (const Layout& child : node.children)
            visit(child);
        for (const Layout::FieldLine& line : node.lines) {
            place(line.label);
            place(line.unit);
            for (const Control* field : line.fields)
                place(field);
            for (const Control* control : line.fields)
                lines_[control] = &line;
            lines_[line.label] = lines_[line.unit] = &line;
        }
    }

    /// Each kind of node holds what a view takes from it, and nothing that it would pass over.
    void checkShape(const Layout& node) {
        using Kind = Layout::Kind;
        const bool single =
            node.kind == Kind::control || node.kind == Kind::frame || node.kind == Kind::tabs;
        if (single != (node.control != nullptr))
            faults_.emplace_back("a node without its control, or with one that it has no use for");
        if (node.kind != Kind::fields && !node.lines.empty())
            faults_.emplace_back("lines of fields in another node");
        if (node.kind == Kind::frame && node.children.size() != 1)
            faults_.push_back(node.control->name() + " has not one content");
        if (const auto* tabs = dynamic_cast<const Tabs*>(node.control);
            tabs && tabs->titles().size() != node.children.size())
            faults_.push_back(tabs->name() + " has not one page a title");
        for (const Layout::FieldLine& line : node.lines) {
            if (line.fields.empty())
                faults_.emplace_back("a line without a field");
        }
    }

    void keepTogether(const Control& field, const Label* label,
                      std::vector<std::string>& faultsFound) const {
        if (!label)
            return;
        const auto of = lines_.find(&field);
        const auto at = lines_.find(label);
        if (of == lines_.end() || at == lines_.end() || of->second != at->second)
            faultsFound.push_back(label->name() + " does not stand at its field");
    }

    const Window& window_;
    std::map<const Control*, int> places_;
    std::map<const Control*, const Layout::FieldLine*> lines_;
    std::vector<std::string> faults_;
};

/// Names that more than one control has, and empty ones.
std::vector<std::string> badNames(const Window& window) {
    std::set<std::string> seen;
    std::vector<std::string> bad;
    for (const Control* control : window.controls()) {
        if (control->name().empty() || !seen.insert(control->name()).second)
            bad.push_back("'" + control->name() + "'");
    }
    return bad;
}

using Faults = std::vector<std::string>;

class WindowsTest : public ::testing::Test {
protected:
    RecordingPlatform platform;
    Program program{platform, ventanas()};
};

TEST_F(WindowsTest, EveryControlHasItsPlaceOnce) {
    int built = 0;
    for (const WindowEntry& entry : ventanas()) {
        const auto window = entry.create(program);
        // Without a layout: one with a view of its own, which no calculation has.
        if (window->layout.kind == Layout::Kind::none) {
            EXPECT_EQ(dynamic_cast<CalculationWindow*>(window.get()), nullptr) << entry.name;
            continue;
        }
        ++built;
        EXPECT_EQ(Places(*window).faults(), Faults()) << entry.name;
    }
    EXPECT_GT(built, 0);
}

TEST_F(WindowsTest, EveryWindowAndControlHasANameOfItsOwn) {
    std::set<std::string_view> names;
    for (const WindowEntry& entry : ventanas()) {
        EXPECT_TRUE(names.insert(entry.name).second) << entry.name << " stands there twice";
        const auto window = entry.create(program);
        EXPECT_EQ(window->name(), entry.name);
        EXPECT_FALSE(window->caption.empty()) << entry.name;
        EXPECT_FALSE(window->controls().empty()) << entry.name;
        EXPECT_EQ(badNames(*window), Faults()) << entry.name;
    }
}

/// A window whose layout its test gives.
class Probe : public Window {
public:
    explicit Probe(Program& owner) : Window(owner, "frmSonda", "Sonda") {
        grid.editor = &editor;
        grid.popup = &menu;
        menu.entries = {&insert, nullptr, &remove};
        chart.yLabels = {&axis};
        commands = {{&group, {&command}}};
        layout = row({control(grid), frame(box, fields({value})), control(chart)});
    }

    MSFlexGrid grid{*this, "grdt"};
    TextBox editor{*this, "txtt"};
    MenuEntry menu{*this, "mnuEdicion", ""};
    MenuEntry insert{*this, "mnuEditInsertar", ""};
    MenuEntry remove{*this, "mnuEditEliminar", ""};
    Frame box{*this, "fraDatos", ""};
    TextBox value{*this, "txtx", "X:", "m"};
    Graph chart{*this, "Graph1"};
    Label axis{*this, "lblEje", ""};
    Frame group{*this, "Frame6", ""};
    Button command{*this, "bCalcular", ""};
    StatusBar status{*this, "StatusBar1", 1};

    static Layout row(std::vector<Layout> children) { return layout::row(std::move(children)); }
    static Layout control(Control& each) { return layout::control(each); }
    static Layout frame(Frame& each, Layout content) {
        return layout::frame(each, std::move(content));
    }
    static Layout fields(std::vector<Layout::FieldLine> lines) {
        return layout::fields(std::move(lines));
    }
};

TEST_F(WindowsTest, PlacesCountWhatStandsAtSomethingElse) {
    EXPECT_EQ(Places(Probe(program)).faults(), Faults());
}

TEST_F(WindowsTest, PlacesTellWhatIsLeftOutOrStandsTwice) {
    Probe probe(program);
    probe.layout = Probe::row({Probe::control(probe.grid), Probe::control(probe.grid),
                               Probe::frame(probe.box, Probe::fields({probe.value}))});
    EXPECT_EQ(Places(probe).faults(), (Faults{"grdt has 2 places", "Graph1 has 0 places"}));
    Probe menu(program);
    menu.menu.entries = {&menu.insert};
    menu.commands.clear();
    EXPECT_EQ(Places(menu).faults(), (Faults{"mnuEditEliminar has 0 places", "Frame6 has 0 places",
                                             "bCalcular has 0 places"}));
    Probe axis(program);
    axis.chart.xLabels = {&axis.axis};
    EXPECT_EQ(Places(axis).faults(), (Faults{"lblEje has 2 places"}));
}

TEST_F(WindowsTest, PlacesTellALabelApartFromItsField) {
    Probe probe(program);
    probe.layout = Probe::row(
        {Probe::control(probe.grid), Probe::control(probe.chart),
         Probe::frame(probe.box,
                      Probe::fields({{nullptr, {&probe.value}, nullptr},
                                     {nullptr, {probe.value.label()}, probe.value.unit()}}))});
    EXPECT_EQ(Places(probe).faults(), (Faults{"txtx.rótulo does not stand at its field",
                                              "txtx.unidad does not stand at its field"}));
}

TEST_F(WindowsTest, PlacesTellAControlOfAnotherWindow) {
    Probe probe(program);
    Probe other(program);
    probe.layout.children.push_back(Probe::control(other.value));
    EXPECT_EQ(Places(probe).faults(), (Faults{"txtx is of another window"}));
}

TEST_F(WindowsTest, PlacesTellAPageWithoutItsTitle) {
    Probe probe(program);
    Tabs tabs(probe, "SSTab1", {"Uno"});
    probe.layout = layout::tabs(tabs, {probe.layout, Layout()});
    EXPECT_EQ(Places(probe).faults(), (Faults{"SSTab1 has not one page a title"}));
}

TEST_F(WindowsTest, NamesThatStandTwiceAreFound) {
    Probe probe(program);
    EXPECT_EQ(badNames(probe), Faults());
    const Label twice(probe, "txtx", "");
    const Label nameless(probe, "", "");
    EXPECT_EQ(badNames(probe), (Faults{"'txtx'", "''"}));
}

} // namespace
} // namespace caudalera
