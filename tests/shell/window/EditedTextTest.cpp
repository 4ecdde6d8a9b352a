#include "shell/window/EditedText.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace caudalera {
namespace {

constexpr char32_t backspace = 8;

EditedText with(std::string text, std::size_t start, std::size_t length = 0) {
    EditedText edited(std::move(text));
    edited.select(start, length);
    return edited;
}

/// The text after a key, its selection between brackets, the caret alone as '|'.
std::string after(EditedText text, Key key) {
    if (const auto edit = editByKey(text, key))
        text.apply(*edit);
    const EditedText& result = text;
    const std::size_t end = result.selStart() + result.selLength();
    EditedText shown = result;
    if (result.selLength() > 0)
        shown.apply({end, 0, "]"});
    shown.apply({result.selStart(), 0, result.selLength() > 0 ? "[" : "|"});
    return shown.text();
}

Key typed(char32_t character) {
    return {Key::Kind::character, character};
}

TEST(EditedTextTest, BeginsWithTheCaretBehindTheText) {
    const EditedText text("año 😀");
    EXPECT_EQ(text.length(), 5U);
    EXPECT_EQ(text.selStart(), 5U);
    EXPECT_EQ(text.selLength(), 0U);
    EXPECT_EQ(EditedText().text(), "");
}

TEST(EditedTextTest, ACharacterReplacesTheSelection) {
    EXPECT_EQ(after(with("", 0), typed(U'a')), "a|");
    EXPECT_EQ(after(with("aé", 1), typed(U'€')), "a€|é");
    EXPECT_EQ(after(with("a€é😀", 1, 2), typed(U'1')), "a1|😀");
    EXPECT_EQ(after(with("abc", 0, 3), typed(U' ')), " |");
}

TEST(EditedTextTest, BackspaceTakesOutTheSelectionOrTheCharacterBefore) {
    EXPECT_EQ(after(with("a€😀", 3), typed(backspace)), "a€|");
    EXPECT_EQ(after(with("a€😀", 2), typed(backspace)), "a|😀");
    EXPECT_EQ(after(with("a€😀", 1, 2), typed(backspace)), "a|");
    EXPECT_EQ(after(with("a€😀", 0, 1), typed(backspace)), "|€😀");
}

TEST(EditedTextTest, DeleteTakesOutTheSelectionOrTheCharacterBehind) {
    constexpr Key del{Key::Kind::forwardDelete};
    EXPECT_EQ(after(with("a€😀", 2), del), "a€|");
    EXPECT_EQ(after(with("a€😀", 0), del), "|€😀");
    EXPECT_EQ(after(with("a€😀", 0, 2), del), "|😀");
}

TEST(EditedTextTest, AKeyWithNothingToDoIsNoEdit) {
    EXPECT_FALSE(editByKey(with("ab", 0), typed(backspace)));
    EXPECT_FALSE(editByKey(with("ab", 2), {Key::Kind::forwardDelete}));
    EXPECT_FALSE(editByKey(with("ab", 0, 2), typed(1)));
    for (const auto kind : {Key::Kind::enter, Key::Kind::escape, Key::Kind::up, Key::Kind::down})
        EXPECT_FALSE(editByKey(with("ab", 0, 2), {kind}));
}

TEST(EditedTextTest, SelectionAndChangeAreCutToTheText) {
    EditedText text = with("añb", 2, 7);
    EXPECT_EQ(text.selStart(), 2U);
    EXPECT_EQ(text.selLength(), 1U);
    text.select(7, 1);
    EXPECT_EQ(text.selStart(), 3U);
    EXPECT_EQ(text.selLength(), 0U);
    text.apply({1, 9, "€€"});
    EXPECT_EQ(text.text(), "a€€");
    EXPECT_EQ(text.selStart(), 3U);
}

TEST(EditedTextTest, TheWayTowardsAnotherTextIsTheMiddleInWhichTheyDiffer) {
    struct Case {
        std::string from, to;
        std::size_t start, length;
        std::string inserted;
    };
    const std::vector<Case> cases = {
        {"", "", 0, 0, ""},
        {"12.5", "12.5", 4, 0, ""},
        {"12.5", "1.5", 1, 1, ""},
        {"1.5", "12.5", 1, 0, "2"},
        {"11", "111", 2, 0, "1"},
        {"111", "11", 2, 1, ""},
        {"abc", "xyz", 0, 3, "xyz"},
        {"", "ñ", 0, 0, "ñ"},
        // Each pair shares the first bytes of a character, the second also the last ones.
        {"aéb", "aèb", 1, 1, "è"},
        {"aàb", "a̠b", 1, 1, "̠"},
        {"a😀b", "a😁b", 1, 1, "😁"},
    };
    for (const Case& each : cases) {
        const TextEdit edit = editTowards(EditedText(each.from), each.to);
        EXPECT_EQ(edit.start, each.start) << each.from << " " << each.to;
        EXPECT_EQ(edit.length, each.length) << each.from << " " << each.to;
        EXPECT_EQ(edit.inserted, each.inserted) << each.from << " " << each.to;
    }
}

// Every step is done on a list of characters as well, which has no bytes to lose its way in.
TEST(EditedTextTest, AnyRowOfChangesIsThatOfAListOfCharacters) {
    const std::vector<std::string> alphabet = {"a", "ñ", "€", "😀", "1"};
    std::mt19937 random(7);
    const auto upTo = [&random](std::size_t last) { return random() % (last + 1); };
    EditedText text;
    std::vector<std::string> naive;
    for (int step = 0; step < 5000; ++step) {
        const std::size_t start = upTo(naive.size());
        const std::size_t length = upTo(std::min<std::size_t>(naive.size() - start, 6));
        TextEdit edit{start, length, {}};
        const auto at = static_cast<std::ptrdiff_t>(start);
        naive.erase(naive.begin() + at, naive.begin() + at + static_cast<std::ptrdiff_t>(length));
        const std::size_t count = upTo(6);
        for (std::size_t i = 0; i < count; ++i) {
            const std::string& character = alphabet[upTo(alphabet.size() - 1)];
            edit.inserted += character;
            naive.insert(naive.begin() + at + static_cast<std::ptrdiff_t>(i), character);
        }
        const EditedText before = text;
        text.apply(edit);
        std::string expected;
        for (const std::string& character : naive)
            expected += character;
        ASSERT_EQ(text.text(), expected) << step;
        ASSERT_EQ(text.length(), naive.size()) << step;
        ASSERT_EQ(text.selStart(), start + count) << step;
        EditedText again = before;
        again.apply(editTowards(before, expected));
        ASSERT_EQ(again.text(), expected) << step;
        text.select(upTo(naive.size()), upTo(6));
    }
}

} // namespace
} // namespace caudalera
