#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "shell/richtext/RichText.h"
#include "shell/text/Utf8.h"
#include "tests/shell/richtext/RichTextShow.h"

namespace caudalera {
namespace {

std::string repeated(std::string_view piece, std::size_t times) {
    std::string all;
    all.reserve(piece.size() * times);
    for (std::size_t i = 0; i < times; ++i) {
        all += piece;
    }
    return all;
}

std::string fileContent(const std::string& name) {
    const std::string path =
        std::string(CAUDALERA_SOURCE_DIR) + "/tests/shell/richtext/data/" + name;
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return std::string{std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> validFiles() {
    RichText report;
    report.setSelIndent(200);
    report.setSelAlignment(Alignment::center);
    report.setSelText("Resultados\n\nDistribución {de} 😀\t12.5\n\n\nfin\n");
    return {writeRtf(report), fileContent("informe-libreoffice.rtf"),
            fileContent("muestra-html.rtf"), fileContent("carta-odt.rtf")};
}

/// What holds for every RichText.
void expectSound(const RichText& text) {
    std::size_t length = text.paragraphs().size() - 1;
    for (const Paragraph& paragraph : text.paragraphs()) {
        length += paragraph.length();
        for (std::size_t i = 0; i < paragraph.runs.size(); ++i) {
            const TextRun& run = paragraph.runs[i];
            ASSERT_FALSE(run.text.empty());
            ASSERT_TRUE(utf8::isValid(run.text));
            ASSERT_EQ(run.text.find_first_of(std::string_view("\n\r\0", 3)), std::string::npos);
            ASSERT_LE(run.format.font.size(), 70U);
            ASSERT_TRUE(i == 0 || run.format != paragraph.runs[i - 1].format);
        }
    }
    ASSERT_EQ(text.length(), length);
    ASSERT_EQ(show(readRtf(writeRtf(text))), show(text));
}

TEST(RtfHostileTest, AFileCutAnywhereGivesTheBeginningOfItsText) {
    for (const std::string& source : validFiles()) {
        const RichText whole = readRtf(source);
        const std::string text = whole.text();
        std::size_t before = 0;
        for (std::size_t size = 5; size <= source.size(); ++size) {
            const RichText cut = readRtf(std::string_view(source).substr(0, size));
            const std::string found = cut.text();
            ASSERT_EQ(found, text.substr(0, found.size())) << size;
            // Nothing that was read is lost again by reading on.
            ASSERT_GE(found.size(), before) << size;
            before = found.size();
            // All but the last paragraph are as in the whole file.
            const std::size_t complete = cut.paragraphs().size() - 1;
            ASSERT_TRUE(std::equal(cut.paragraphs().begin(),
                                   cut.paragraphs().begin() + static_cast<std::ptrdiff_t>(complete),
                                   whole.paragraphs().begin()))
                << size;
        }
        EXPECT_EQ(before, text.size());
    }
}

TEST(RtfHostileTest, DepthBombs) {
    constexpr std::size_t deep = 10'000'000;
    EXPECT_EQ(readRtf("{\\rtf1 a" + std::string(deep, '{') + "b").text(), "ab");
    EXPECT_EQ(
        readRtf("{\\rtf1 a" + std::string(deep, '{') + "b" + std::string(deep, '}') + "c}d").text(),
        "abc");
    EXPECT_EQ(readRtf("{\\rtf1 a" + std::string(deep, '}') + "b").text(), "a");
    EXPECT_EQ(readRtf("{\\rtf1 " + repeated("{\\b a", 100'000) + repeated("}", 100'000) + "c}")
                  .paragraphs()
                  .front()
                  .length(),
              100'001U);
}

TEST(RtfHostileTest, FormatsComeBackAfterADepthBomb) {
    const std::string source =
        "{\\rtf1 a{\\b b" + std::string(50'000, '{') + "\\i c" + std::string(50'000, '}') + "d}e}";
    EXPECT_EQ(show(readRtf(source)), "l0/0 [a][b|b][c|bi][d|b][e]\n");
    const std::string skipped =
        "{\\rtf1 a{\\*\\x b" + std::string(50'000, '{') + "c" + std::string(50'000, '}') + "d}e}";
    EXPECT_EQ(readRtf(skipped).text(), "ae");
}

TEST(RtfHostileTest, UnbalancedBraces) {
    EXPECT_EQ(readRtf("{\\rtf1 a{\\b b").text(), "ab");
    EXPECT_EQ(readRtf("{\\rtf1 {\\fonttbl{\\f0 Arial;a\\par b").text(), "");
    EXPECT_EQ(readRtf("{\\rtf1 a}}}}b").text(), "a");
    EXPECT_EQ(readRtf("{\\rtf1").text(), "");
    EXPECT_EQ(readRtf("{\\rtf1 a\\").text(), "a");
    EXPECT_EQ(readRtf("{\\rtf1 a\\'").text(), "a");
    EXPECT_EQ(readRtf("{\\rtf1 a\\'f").text(), "a");
    EXPECT_EQ(readRtf("{\\rtf1 a\\u24").text(), "a");
    EXPECT_EQ(readRtf("{\\rtf1 a\\u-").text(), "a");
}

TEST(RtfHostileTest, NumbersOutOfAllRange) {
    const std::string huge(100'000, '9');
    for (const std::string_view word :
         {"fs", "f", "cf", "li", "ri", "uc", "b", "li-", "fs-", "cf-", "uc-", "red", "fcharset",
          "ansicpg", "deff", "nosuchword"}) {
        std::string source = "{\\rtf1 a\\";
        source.append(word).append(huge).append(" b\\u241?c}");
        const RichText text = readRtf(source);
        EXPECT_EQ(text.text(), "abñc") << word;
        expectSound(text);
    }
    EXPECT_EQ(readRtf("{\\rtf1 a\\u" + huge + "?b\\u-" + huge + "?c}").text(), "a\uFFFDb\uFFFDc");
    EXPECT_EQ(readRtf("{\\rtf1 a\\bin" + huge + " b}").text(), "a");
    EXPECT_EQ(readRtf("{\\rtf1 a\\bin-" + huge + " b}").text(), "ab");
    EXPECT_EQ(readRtf("{\\rtf1 a\\uc200\\u241 " + std::string(150, 'x') + "}").text(), "añ");
    // As many as one byte tells, and no more.
    EXPECT_EQ(readRtf("{\\rtf1 a\\uc255\\u241 " + std::string(255, 'x') + "b}").text(), "añb");
    EXPECT_EQ(readRtf("{\\rtf1 a\\uc256\\u241 xb}").text(), "añb");
}

TEST(RtfHostileTest, NulBytesAndEndlessWords) {
    const std::string source("{\\rtf1 a\0b\\b\0 c\\'00\\u0?d\0}", 26);
    EXPECT_EQ(readRtf(source).text(), "ab cd");
    EXPECT_EQ(readRtf("{\\rtf1 a\\" + std::string(1'000'000, 'b') + " c}").text(), "ac");
    EXPECT_EQ(readRtf("{\\rtf1 " + std::string(1'000'000, '\0') + "a}").text(), "a");
}

TEST(RtfHostileTest, EndlessTables) {
    std::string fonts = "{\\rtf1{\\fonttbl";
    for (int i = 0; i < 100'000; ++i) {
        fonts += "{\\f" + std::to_string(i) + " F" + std::to_string(i) + ";}";
    }
    EXPECT_EQ(show(readRtf(fonts + "}\\f99999 a}")), "l0/0 [a|,F99999]\n");
    EXPECT_EQ(show(readRtf("{\\rtf1{\\colortbl" + std::string(1'000'000, ';') +
                           "\\red1;}\\cf1000000 a}")),
              "l0/0 [a|,#10000]\n");
}

TEST(RtfHostileTest, ALongFontNameIsNotCopiedIntoEveryRun) {
    // With its whole name in each of the 200000 runs this would take 200 GB.
    const RichText text = readRtf("{\\rtf1{\\fonttbl{\\f0 " + repeated("ñ", 500'000) + ";}}\\f0 " +
                                  repeated("\\b a\\b0 b", 100'000) + "}");
    EXPECT_EQ(text.length(), 200'000U);
    EXPECT_LE(text.paragraphs().front().runs.front().format.font.size(), 70U);
    EXPECT_EQ(text.paragraphs().front().runs.size(), 200'000U);
}

/// One of the damages that files suffer or get inflicted.
void mutate(std::string& source, std::mt19937& random) {
    const std::vector<std::string> pieces = {"{",           "}",           "\\",
                                             "\\'",         "\\u-10179?",  "\\u",
                                             "\\uc9 ",      "\\bin9 ",     "\\bin99999999999 ",
                                             "\\par",       "{\\*\\x ",    "\\fs99999999999 ",
                                             "{\\fonttbl",  "{\\colortbl", "\\f3 ",
                                             "\\cf3 ",      ";",           "\\pard",
                                             "\\plain",     "\\v ",        "\xFF",
                                             "\\\n",        "\\sect ",     "\\cell ",
                                             "\\li-999999 "};
    const auto below = [&random](std::size_t n) { return random() % n; };
    const std::size_t at = below(source.size());
    const std::size_t count = std::min<std::size_t>(1 + below(40), source.size() - at);
    switch (below(5)) {
    case 0:
        source[at] = static_cast<char>(below(256));
        break;
    case 1:
        source.erase(at, count);
        break;
    case 2:
        source.insert(at, pieces[below(pieces.size())]);
        break;
    case 3:
        source.insert(below(source.size()), source.substr(at, count));
        break;
    default:
        source.insert(at, 1, '\0');
        break;
    }
}

TEST(RtfHostileTest, DamagedFilesGiveSoundTexts) {
    std::mt19937 random(1990);
    const std::vector<std::string> files = validFiles();
    std::size_t characters = 0;
    for (int i = 0; i < 5000; ++i) {
        std::string source = files[static_cast<std::size_t>(i) % files.size()];
        for (std::size_t left = 1 + random() % 8; left > 0; --left) {
            mutate(source, random);
        }
        const RichText text = readRtf(source);
        ASSERT_NO_FATAL_FAILURE(expectSound(text)) << i << '\n' << source;
        characters += text.length();
    }
    // Most of the text survives; an average of 50 characters is less than half of it.
    EXPECT_GT(characters, 5000U * 50U);
}

} // namespace
} // namespace caudalera
