#include "shell/richtext/RichText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "shell/text/Utf8.h"
#include "tests/shell/richtext/RichTextShow.h"

namespace caudalera {
namespace {

CharacterFormat bold() {
    CharacterFormat format;
    format.bold = true;
    return format;
}

ParagraphFormat centered() {
    return {Alignment::center, 200, 300};
}

Paragraph line(std::vector<TextRun> runs, ParagraphFormat format = {}) {
    return {std::move(runs), format};
}

RichText textOf(std::vector<Paragraph> paragraphs) {
    return RichText(std::move(paragraphs));
}

TEST(RichTextTest, IsOneEmptyParagraphAtFirst) {
    const RichText text;
    EXPECT_EQ(show(text), "l0/0 \n");
    EXPECT_EQ(text.text(), "");
    EXPECT_EQ(text.length(), 0U);
    EXPECT_EQ(show(RichText(std::vector<Paragraph>{})), "l0/0 \n");
}

TEST(RichTextTest, GrowsForwardFromTheCaret) {
    RichText text;
    text.setSelText("Resultados");
    text.setSelText("\n");
    text.setSelText("\n");
    text.setSelText("señal");
    EXPECT_EQ(text.text(), "Resultados\n\nseñal");
    EXPECT_EQ(text.length(), 17U);
    EXPECT_EQ(text.selStart(), 17U);
    EXPECT_EQ(text.selLength(), 0U);
}

TEST(RichTextTest, CountsCharactersAndNotBytes) {
    RichText text;
    text.setSelText("áé\n😀ñ€z");
    EXPECT_EQ(text.length(), 7U);
    text.select(3, 2);
    EXPECT_EQ(text.selText(), "😀ñ");
    text.setSelText("x");
    EXPECT_EQ(text.text(), "áé\nx€z");
    EXPECT_EQ(text.selStart(), 4U);
}

TEST(RichTextTest, CutsTheSelectionToTheText) {
    RichText text;
    text.setSelText("abc\nd");
    text.select(3, 100);
    EXPECT_EQ(text.selStart(), 3U);
    EXPECT_EQ(text.selText(), "\nd");
    text.select(100, 1);
    EXPECT_EQ(text.selStart(), 5U);
    EXPECT_EQ(text.selLength(), 0U);
    EXPECT_EQ(text.selText(), "");
}

TEST(RichTextTest, NewParagraphsTakeTheFormatOfTheOneTheySplit) {
    RichText text;
    text.setSelIndent(200);
    text.setSelRightIndent(300);
    text.setSelAlignment(Alignment::center);
    text.setSelText("título\n\n");
    text.setSelAlignment(Alignment::left);
    text.setSelText("\nx");
    EXPECT_EQ(show(text), "c200/300 [título]\n"
                          "c200/300 \n"
                          "l200/300 \n"
                          "l200/300 [x]\n");
}

TEST(RichTextTest, NewCharactersTakeTheFormatInFrontOfThem) {
    const std::vector<Paragraph> content = {line({{"ab", {}}, {"cd", bold()}}),
                                            line({{"ef", bold()}})};
    const std::vector<std::pair<std::size_t, std::string>> expected = {
        {0, "l0/0 [Xab][cd|b]\nl0/0 [ef|b]\n"}, {2, "l0/0 [abX][cd|b]\nl0/0 [ef|b]\n"},
        {3, "l0/0 [ab][cXd|b]\nl0/0 [ef|b]\n"}, {4, "l0/0 [ab][cdX|b]\nl0/0 [ef|b]\n"},
        {5, "l0/0 [ab][cd|b]\nl0/0 [Xef|b]\n"},
    };
    for (const auto& [position, shown] : expected) {
        RichText text(content);
        text.select(position, 0);
        text.setSelText("X");
        EXPECT_EQ(show(text), shown) << position;
    }
    RichText text(content);
    text.select(0, 3);
    text.setSelText("X\nY");
    EXPECT_EQ(show(text), "l0/0 [X]\nl0/0 [Y][d|b]\nl0/0 [ef|b]\n");
}

TEST(RichTextTest, DropsReturnsAndNulsAndReplacesWhatIsNotUtf8) {
    RichText text;
    text.setSelText(std::string_view("a\r\nb\0c\xFF\xC3", 8));
    EXPECT_EQ(text.text(), "a\nbc\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(text.length(), 6U);
    const RichText given =
        textOf({line({{"x\r\ny", bold()}, {"", {}}, {"z", bold()}}, centered())});
    EXPECT_EQ(show(given), "c200/300 [x|b]\nc200/300 [yz|b]\n");
}

TEST(RichTextTest, MayBeFedFromItself) {
    RichText text;
    text.setSelText("un texto que no cabe en el propio objeto");
    text.select(0, text.length());
    text.setSelText(text.paragraphs().front().runs.front().text);
    EXPECT_EQ(text.text(), "un texto que no cabe en el propio objeto");
    text.select(2, 0);
    text.setSelRich(text);
    EXPECT_EQ(text.length(), 80U);
}

TEST(RichTextTest, JoinsParagraphsOnRemoval) {
    const std::vector<Paragraph> content = {line({{"abc", {}}}, centered()), line({{"de", bold()}}),
                                            line({{"fg", {}}})};
    RichText inner(content);
    inner.select(2, 3);
    inner.setSelText("");
    EXPECT_EQ(show(inner), "c200/300 [ab][e|b]\nl0/0 [fg]\n");
    EXPECT_EQ(inner.length(), 6U);
    EXPECT_EQ(inner.selStart(), 2U);
    // A whole line is removed: the next one is left as it was.
    RichText wholeLine(content);
    wholeLine.select(0, 4);
    wholeLine.setSelText("");
    EXPECT_EQ(show(wholeLine), "l0/0 [de|b]\nl0/0 [fg]\n");
    RichText everything(content);
    everything.select(0, 100);
    everything.setSelText("");
    EXPECT_EQ(show(everything), "c200/300 \n");
}

TEST(RichTextTest, SelectionKeepsFormats) {
    RichText text = textOf({line({{"ab", {}}, {"cd", bold()}}, centered()), line({{"ef", {}}})});
    text.select(1, 2);
    EXPECT_EQ(show(text.selection()), "c200/300 [b][c|b]\n");
    text.select(3, 3);
    EXPECT_EQ(show(text.selection()), "c200/300 [d|b]\nl0/0 [e]\n");
    EXPECT_EQ(text.selText(), "d\ne");
    text.select(4, 0);
    EXPECT_EQ(show(text.selection()), "c200/300 \n");
}

TEST(RichTextTest, RichInsertionBringsItsParagraphs) {
    const RichText word = textOf({line({{"X", bold()}}, centered())});
    RichText inLine = textOf({line({{"abcd", {}}})});
    inLine.select(1, 2);
    inLine.setSelRich(word);
    EXPECT_EQ(show(inLine), "l0/0 [a][X|b][d]\n");
    EXPECT_EQ(inLine.selStart(), 2U);

    const RichText two =
        textOf({line({{"X", {}}}, centered()), line({{"Y", bold()}}, {Alignment::right, 1, 2})});
    RichText inside = textOf({line({{"ab", {}}})});
    inside.select(1, 0);
    inside.setSelRich(two);
    EXPECT_EQ(show(inside), "c200/300 [aX]\nr1/2 [Y|b][b]\n");
    EXPECT_EQ(inside.selStart(), 4U);
    EXPECT_EQ(inside.length(), 5U);
}

TEST(RichTextTest, EmptyEndsOfARichInsertionLeaveTheTextTheyJoin) {
    const RichText between =
        textOf({line({}, centered()), line({{"X", {}}}, centered()), line({}, centered())});
    RichText text = textOf({line({{"ab", {}}})});
    text.select(1, 0);
    text.setSelRich(between);
    EXPECT_EQ(show(text), "l0/0 [a]\nc200/300 [X]\nl0/0 [b]\n");
    EXPECT_EQ(text.selStart(), 4U);
    RichText empty;
    empty.setSelRich(between);
    EXPECT_EQ(show(empty), show(between));
}

TEST(RichTextTest, ParagraphFormatsGoToWhatTheSelectionTouches) {
    const std::vector<Paragraph> content = {line({{"ab", {}}}), line({{"cd", {}}}), line({})};
    RichText inner(content);
    inner.select(1, 3);
    inner.setSelIndent(10);
    inner.setSelRightIndent(20);
    inner.setSelAlignment(Alignment::justify);
    EXPECT_EQ(show(inner), "j10/20 [ab]\nj10/20 [cd]\nl0/0 \n");
    // With its line feed a line ends where the next begins, which it doesn't touch.
    RichText wholeLine(content);
    wholeLine.select(0, 3);
    wholeLine.setSelIndent(10);
    EXPECT_EQ(show(wholeLine), "l10/0 [ab]\nl0/0 [cd]\nl0/0 \n");
    RichText caret(content);
    caret.select(6, 0);
    caret.setSelIndent(10);
    EXPECT_EQ(show(caret), "l0/0 [ab]\nl0/0 [cd]\nl10/0 \n");
}

TEST(RichTextTest, AfterAssignThePlaceIsTheStartOfTheNewContent) {
    RichText text({line({{"ab", {}}}), line({{"cd", {}}}), line({{"ef", {}}})});
    text.select(7, 0);
    text.assign({line({{"uno", {}}}), line({{"dos", {}}}), line({{"tres", {}}})});
    text.setSelText("x");
    EXPECT_EQ(text.text(), "xuno\ndos\ntres");
}

TEST(RichTextTest, AssignReplacesEverything) {
    RichText text;
    text.setSelText("abc");
    text.assign({line({{"x", {}}}, centered()), line({})});
    EXPECT_EQ(show(text), "c200/300 [x]\nl0/0 \n");
    EXPECT_EQ(text.selStart(), 0U);
    EXPECT_EQ(text.length(), 2U);
}

TEST(RichTextTest, EveryChangeRaisesTheRevision) {
    RichText text;
    std::uint64_t last = text.revision();
    const auto grew = [&] { return text.revision() > std::exchange(last, text.revision()); };
    text.setSelText("ab");
    EXPECT_TRUE(grew());
    text.select(0, 1);
    EXPECT_TRUE(grew());
    text.setSelIndent(5);
    EXPECT_TRUE(grew());
    text.setSelRightIndent(5);
    EXPECT_TRUE(grew());
    text.setSelAlignment(Alignment::right);
    EXPECT_TRUE(grew());
    text.setSelRich(RichText());
    EXPECT_TRUE(grew());
    text.setSelParagraphs(text.selParagraphs());
    EXPECT_TRUE(grew());
    text.assign({});
    EXPECT_TRUE(grew());
    EXPECT_EQ(text.text(), "");
    EXPECT_FALSE(grew());
}

/// The same operations on a plain list of characters, every position being counted from the start.
struct Naive {
    std::u32string characters;
    std::size_t start = 0;
    std::size_t length = 0;

    void select(std::size_t from, std::size_t count) {
        start = std::min(from, characters.size());
        length = std::min(count, characters.size() - start);
    }
    void replace(const std::u32string& text) {
        characters.replace(start, length, text);
        start += text.size();
        length = 0;
    }
    std::string utf8(std::size_t from, std::size_t count) const {
        std::string text;
        for (const char32_t character : characters.substr(from, count)) {
            utf8::append(text, character);
        }
        return text;
    }
};

TEST(RichTextTest, AgreesWithAPlainListOfCharacters) {
    std::mt19937 random(20240611);
    const auto below = [&random](std::size_t n) { return random() % n; };
    const std::u32string alphabet = U"abñ€😀\n\n";
    RichText text;
    Naive naive;
    for (int step = 0; step < 4000; ++step) {
        if (below(3) == 0) {
            const std::size_t from = below(naive.characters.size() + 4);
            const std::size_t count = below(4) == 0 ? below(30) : 0;
            text.select(from, count);
            naive.select(from, count);
        }
        ASSERT_EQ(text.selText(), naive.utf8(naive.start, naive.length)) << step;
        std::u32string piece;
        for (std::size_t i = below(5); i > 0; --i) {
            piece += alphabet[below(alphabet.size())];
        }
        std::string bytes;
        for (const char32_t character : piece) {
            utf8::append(bytes, character);
        }
        if (below(2) == 0) {
            text.setSelText(bytes);
        } else {
            RichText rich;
            rich.setSelText(bytes);
            text.setSelRich(rich);
        }
        naive.replace(piece);
        ASSERT_EQ(text.text(), naive.utf8(0, naive.characters.size())) << step;
        ASSERT_EQ(text.length(), naive.characters.size()) << step;
        ASSERT_EQ(text.selStart(), naive.start) << step;
        ASSERT_EQ(text.selLength(), 0U) << step;
    }
    EXPECT_GT(text.paragraphs().size(), 100U);
}

TEST(RichTextTest, SelectedParagraphsAreATextOfTheirOwn) {
    RichText text = textOf({line({{"ab", {}}}), line({{"cd", bold()}}, centered()),
                            line({{"ef", {}}}), line({{"gh", {}}})});
    // "d", the line feed and "e".
    text.select(4, 3);
    const RichText touched = text.selParagraphs();
    EXPECT_EQ(show(touched), "c200/300 [cd|b]\nl0/0 [ef]\n");
    EXPECT_EQ(touched.selStart(), 1U);
    EXPECT_EQ(touched.selLength(), 3U);
}

TEST(RichTextTest, WorkOnTheSelectedParagraphsAloneGivesTheSameText) {
    std::mt19937 random(11);
    const auto below = [&random](std::size_t n) { return random() % n; };
    const std::vector<std::string> pieces = {"", "a", "ñ\n", "\n", "😀b\n\nc", "\n1\n2\n3\n4\n"};
    RichText direct;
    RichText apart;
    for (int step = 0; step < 2000; ++step) {
        const std::size_t from = below(direct.length() + 1);
        const std::size_t count = below(3) == 0 ? below(25) : 0;
        direct.select(from, count);
        apart.select(from, count);
        RichText touched = apart.selParagraphs();
        const auto both = [&](auto change) {
            change(direct);
            change(touched);
        };
        for (std::size_t i = below(4); i > 0; --i) {
            const auto number = static_cast<int>(below(3));
            both([&](RichText& text) { text.setSelIndent(100 * number); });
            const std::string& piece = pieces[below(pieces.size())];
            both([&](RichText& text) { text.setSelText(piece); });
            both([&](RichText& text) { text.setSelAlignment(static_cast<Alignment>(number)); });
        }
        apart.setSelParagraphs(std::move(touched));
        ASSERT_EQ(show(apart), show(direct)) << step;
        ASSERT_EQ(apart.length(), direct.length()) << step;
        ASSERT_EQ(apart.selStart(), direct.selStart()) << step;
        ASSERT_EQ(apart.selLength(), direct.selLength()) << step;
    }
    EXPECT_GT(direct.paragraphs().size(), 100U);
}

} // namespace
} // namespace caudalera
