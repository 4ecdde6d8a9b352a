#include "shell/window/Control.h"
#include "tests/support/FailureNumber.h"
#include "tests/support/WindowTest.h"

#include <algorithm>
#include <string>
#include <vector>

namespace caudalera {
namespace {

using testing::failureNumber;

/// A window with one control of each kind that takes events, which notes them.
class ControlTest : public WindowTest {
protected:
    ControlTest() {
        for (Control* control : std::vector<Control*>{&box, &plain, &button, &optA, &list}) {
            control->onGotFocus = [this, control] { events.push_back("+" + control->name()); };
            control->onLostFocus = [this, control] { events.push_back("-" + control->name()); };
        }
        box.onChange = [this] { events.push_back("change " + box.text()); };
        box.onEnter = [this] { events.emplace_back("enter"); };
        button.onClick = [this] { events.emplace_back("click"); };
        optA.onClick = [this] { events.emplace_back("option A"); };
        optB.onClick = [this] { events.emplace_back("option B"); };
        list.onChange = [this] { events.push_back("list " + list.text()); };
        list.onEnter = [this] { events.emplace_back("list enter"); };
        tabs.onClick = [this] { events.push_back("tab " + std::to_string(tabs.tab())); };
    }

    std::vector<std::string> taken() { return std::exchange(events, {}); }

    Window window{program, "frmControles", ""};
    TextBox box{window, "txt", "Caudal", "m3/s"};
    TextBox plain{window, "txt2"};
    Button button{window, "b", "&Botón", "Consejo"};
    OptionGroup group;
    Option optA{window, "optA", "A", group};
    Option optB{window, "optB", "B", group};
    List list{window, "cbo", {"uno", "dos"}, "uno", "Número"};
    Tabs tabs{window, "SSTab1", {"Cero", "Uno"}};
    Label label{window, "lbl", "texto"};
    std::vector<std::string> events;
};

using Events = std::vector<std::string>;

TEST_F(ControlTest, ControlsRegisterThemselvesInTheOrderOfTheForm) {
    std::vector<std::string> names;
    for (const Control* control : window.controls())
        names.push_back(control->name());
    EXPECT_EQ(names, (Events{"txt", "txt.rótulo", "txt.unidad", "txt2", "b", "optA", "optB", "cbo",
                             "cbo.rótulo", "SSTab1", "lbl"}));
    EXPECT_EQ(window.find("txt2"), &plain);
    EXPECT_EQ(window.find("nada"), nullptr);
    EXPECT_EQ(box.label()->caption, "Caudal");
    EXPECT_EQ(box.unit()->caption, "m3/s");
    EXPECT_EQ(plain.label(), nullptr);
    EXPECT_EQ(plain.unit(), nullptr);
    EXPECT_EQ(button.toolTip, "Consejo");
}

TEST_F(ControlTest, AnEventGivesTheFocusFirstAndTheOtherControlIsLeft) {
    program.click(button);
    EXPECT_EQ(taken(), (Events{"+b", "click"}));
    program.changeText(box, "5");
    EXPECT_EQ(taken(), (Events{"-b", "+txt", "change 5"}));
    program.click(optA);
    EXPECT_EQ(taken(), (Events{"-txt", "+optA", "option A"}));
    program.choose(list, "dos");
    EXPECT_EQ(taken(), (Events{"-optA", "+cbo", "list dos"}));
    program.leave(box);
    EXPECT_EQ(taken(), Events{}) << "it did not have the focus";
    program.leave(list);
    EXPECT_EQ(taken(), Events{"-cbo"});
    EXPECT_EQ(window.focus(), nullptr);
}

TEST_F(ControlTest, ADisabledControlTakesNoEvent) {
    for (Control* control : std::vector<Control*>{&box, &button, &optA, &list})
        control->enabled = false;
    program.click(button);
    program.click(optA);
    program.changeText(box, "5");
    program.key(box, {Key::Kind::character, U'5'});
    program.choose(list, "dos");
    EXPECT_EQ(taken(), Events{});
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(list.text(), "uno");
    EXPECT_FALSE(optA.checked());
    EXPECT_EQ(window.focus(), nullptr);
}

TEST_F(ControlTest, AtMostOneOptionOfAGroupIsSet) {
    EXPECT_FALSE(optA.checked() || optB.checked());
    program.click(optA);
    EXPECT_TRUE(optA.checked() && !optB.checked());
    program.click(optB);
    EXPECT_TRUE(!optA.checked() && optB.checked());
    optA.preset(true);
    EXPECT_TRUE(optA.checked() && !optB.checked());
    group.clear();
    EXPECT_FALSE(optA.checked() || optB.checked());
}

TEST_F(ControlTest, AnOptionRunsItsEventAlsoWhenItWasSet) {
    program.click(optB);
    program.click(optB);
    EXPECT_EQ(taken(), (Events{"option B", "option B"}));
}

TEST_F(ControlTest, AStartValueRunsNoEvent) {
    optA.preset(true);
    optA.preset(false);
    group.clear();
    EXPECT_EQ(taken(), Events{});
    EXPECT_FALSE(optA.checked());
}

TEST_F(ControlTest, TypingReplacesTheSelectionByCharacters) {
    typeText(program, box, "año");
    EXPECT_EQ(box.text(), "año");
    EXPECT_EQ(box.selStart(), 3U) << "the caret counts characters, not bytes";
    program.select(box, 1, 1);
    typeText(program, box, "€1");
    EXPECT_EQ(box.text(), "a€1o");
    EXPECT_EQ(box.selStart(), 3U);
    EXPECT_EQ(box.selLength(), 0U);
}

TEST_F(ControlTest, BackspaceDeletesTheSelectionOrTheCharacterBefore) {
    program.changeText(box, "añ€😀");
    program.key(box, {Key::Kind::character, 8});
    EXPECT_EQ(box.text(), "añ€");
    program.select(box, 2, 0);
    program.key(box, {Key::Kind::character, 8});
    EXPECT_EQ(box.text(), "a€");
    EXPECT_EQ(box.selStart(), 1U);
    program.select(box, 0, 2);
    program.key(box, {Key::Kind::character, 8});
    EXPECT_EQ(box.text(), "");
    events.clear();
    program.key(box, {Key::Kind::character, 8});
    EXPECT_EQ(taken(), Events{}) << "nothing is left to delete";
}

TEST_F(ControlTest, ControlCharactersTypeNothing) {
    program.key(box, {Key::Kind::character, 1});
    program.key(list, {Key::Kind::character, 1});
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(list.text(), "uno");
}

TEST_F(ControlTest, DeleteTakesOutTheSelectionOrTheCharacterBehind) {
    program.changeText(box, "añ€😀");
    events.clear();
    program.key(box, {Key::Kind::forwardDelete});
    EXPECT_EQ(taken(), Events{}) << "nothing stands behind the caret";
    program.select(box, 1, 0);
    program.key(box, {Key::Kind::forwardDelete});
    EXPECT_EQ(box.text(), "a€😀");
    EXPECT_EQ(box.selStart(), 1U);
    program.select(box, 0, 2);
    program.key(box, {Key::Kind::forwardDelete});
    EXPECT_EQ(box.text(), "😀");
    EXPECT_EQ(taken(), (Events{"change a€😀", "change 😀"}));
}

TEST_F(ControlTest, TheCaretIsMovedWithoutAnEventAndNeverPastTheText) {
    program.changeText(box, "ñandú");
    events.clear();
    program.select(box, 2, 9);
    EXPECT_EQ(box.selStart(), 2U);
    EXPECT_EQ(box.selLength(), 3U);
    program.select(box, 9, 9);
    EXPECT_EQ(box.selStart(), 5U);
    EXPECT_EQ(box.selLength(), 0U);
    EXPECT_EQ(taken(), Events{});
}

/// At most one 'x', and no blank.
bool oneX(std::string_view text) {
    return text.find(' ') == text.npos && std::count(text.begin(), text.end(), 'x') <= 1;
}

TEST_F(ControlTest, AFilterJudgesTheTextThatEditingWouldLeadTo) {
    box.acceptable = oneX;
    typeText(program, box, "a xbx");
    EXPECT_EQ(box.text(), "axb");
    program.select(box, 1, 1);
    events.clear();
    typeText(program, box, "x");
    EXPECT_EQ(taken(), Events{"change axb"}) << "the one it replaces is gone";
    program.insertText(box, "cx");
    EXPECT_EQ(box.text(), "axb") << "not the half of it either";
    program.pasteText(box, "cx");
    EXPECT_EQ(box.text(), "axb");
    program.editText(box, "axbx");
    EXPECT_EQ(box.text(), "axb");
    EXPECT_EQ(box.selStart(), 2U) << "a refused change leaves the caret, too";
    EXPECT_EQ(taken(), Events{});
    program.pasteText(box, "cd");
    EXPECT_EQ(box.text(), "axcdb");
    EXPECT_EQ(box.selStart(), 4U);
    program.editText(box, "xdb");
    EXPECT_EQ(taken(), (Events{"change axcdb", "change xdb"}));
}

TEST_F(ControlTest, AFilterDoesNotHoldForAWholeTextAndWhatItWouldRefuseCanBeEdited) {
    box.acceptable = oneX;
    program.changeText(box, "a x x");
    EXPECT_EQ(box.text(), "a x x");
    typeText(program, box, "b c");
    EXPECT_EQ(box.text(), "a x xbc");
    program.key(box, {Key::Kind::character, 8});
    program.select(box, 1, 0);
    program.key(box, {Key::Kind::forwardDelete});
    program.editText(box, "ax");
    EXPECT_EQ(box.text(), "ax");
}

TEST_F(ControlTest, APastedTextComesInAsTheFieldReadsSuch) {
    box.asPasted = [](std::string_view text) { return "<" + std::string(text) + ">"; };
    program.changeText(box, "12");
    program.select(box, 1, 0);
    program.pasteText(box, "ñ");
    EXPECT_EQ(box.text(), "1<ñ>2");
    EXPECT_EQ(box.selStart(), 4U);
    program.insertText(box, "ñ");
    EXPECT_EQ(box.text(), "1<ñ>ñ2");
    program.changeText(box, "3");
    EXPECT_EQ(box.text(), "3");
}

TEST_F(ControlTest, ADisabledFieldIsNotEdited) {
    box.enabled = false;
    program.insertText(box, "1");
    program.pasteText(box, "1");
    program.editText(box, "1");
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(taken(), Events{});
}

TEST_F(ControlTest, ALongTextIsTypedAtOnce) {
    std::string expected;
    for (int i = 0; i < 20000; ++i) {
        typeText(program, plain, "ñ");
        expected += "ñ";
    }
    EXPECT_EQ(plain.text(), expected);
    EXPECT_EQ(plain.selStart(), 20000U);
}

TEST_F(ControlTest, AConsumedKeyGoesNoFurther) {
    box.onKey = [](Key key) { return key.kind == Key::Kind::enter || key.character == U'x'; };
    typeText(program, box, "axb");
    program.key(box, {Key::Kind::enter});
    EXPECT_EQ(taken(), (Events{"+txt", "change a", "change ab"}));
}

TEST_F(ControlTest, SettingTheSameTextFromAHandlerRunsNoChange) {
    box.setText("1");
    box.setText("1");
    EXPECT_EQ(taken(), Events{"change 1"});
    program.changeText(box, "1");
    EXPECT_EQ(taken(), (Events{"+txt", "change 1"})) << "pasting is a change in any case";
}

TEST_F(ControlTest, EnterRunsTheFieldsOwnEvent) {
    program.key(box, {Key::Kind::enter});
    EXPECT_EQ(taken(), (Events{"+txt", "enter"}));
    program.key(list, {Key::Kind::enter});
    EXPECT_EQ(taken(), (Events{"-txt", "+cbo", "list enter"}));
    program.key(plain, {Key::Kind::enter});
    EXPECT_EQ(plain.text(), "");
}

TEST_F(ControlTest, AListCanBeTypedInto) {
    typeText(program, list, "ñ!");
    EXPECT_EQ(list.text(), "unoñ!");
    program.key(list, {Key::Kind::character, 8});
    program.key(list, {Key::Kind::character, 8});
    EXPECT_EQ(list.text(), "uno");
    program.choose(list, "");
    program.key(list, {Key::Kind::character, 8});
    EXPECT_EQ(list.text(), "");
}

TEST_F(ControlTest, EnterAndBlankPressAButton) {
    program.key(button, {Key::Kind::enter});
    program.key(button, {Key::Kind::character, U' '});
    program.key(button, {Key::Kind::character, U'x'});
    EXPECT_EQ(taken(), (Events{"+b", "click", "click"}));
}

TEST_F(ControlTest, ATabThatIsNotThereIsFailure9) {
    program.chooseTab(tabs, 1);
    program.chooseTab(tabs, 1);
    EXPECT_EQ(taken(), (Events{"tab 1", "tab 1"}));
    EXPECT_EQ(tabs.tab(), 1);
    EXPECT_EQ(failureNumber([&] { tabs.choose(2); }), 9);
    EXPECT_EQ(failureNumber([&] { tabs.choose(-1); }), 9);
    EXPECT_EQ(tabs.tab(), 1);
}

TEST_F(ControlTest, AClickOnALabelDoesNothing) {
    program.click(button);
    events.clear();
    program.click(label);
    EXPECT_EQ(taken(), Events{});
    EXPECT_EQ(window.focus(), &button);
}

} // namespace
} // namespace caudalera
