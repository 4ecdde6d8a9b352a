#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "shell/richtext/CodePages.h"
#include "shell/richtext/RichText.h"
#include "tests/shell/richtext/RichTextShow.h"
#include "tests/support/TemporaryFolder.h"

namespace caudalera {
namespace {

/// What stands behind the tables and the line of paper and size.
std::string body(const RichText& text) {
    const std::string rtf = writeRtf(text);
    const std::size_t paper = rtf.find("\\paperw");
    const std::size_t begin = rtf.find("\r\n", paper) + 2;
    return rtf.substr(begin);
}

/// Tab stops of a paragraph: every eight characters from its indent to the end of the line. By the
/// default font that is every 8 * 0.6 * 9 points, 864 twips; the text on A4 is 16838 - 2 * 360
/// = 16118 twips wide.
std::string stops(int indent) {
    std::string all;
    for (int at = indent + 864; at < 16118; at += 864) {
        all += "\\tx" + std::to_string(at);
    }
    return all;
}

/// The number behind a control word, the first time that the source has it; -1 if it has it not.
int number(const std::string& rtf, const std::string& word) {
    std::smatch found;
    const bool has = std::regex_search(rtf, found, std::regex("\\\\" + word + "(-?\\d+)"));
    return has ? std::stoi(found[1]) : -1;
}

RichText plain(std::string_view text) {
    RichText result;
    result.setSelText(text);
    return result;
}

TEST(RtfWriterTest, BeginsAndEndsAsRtfDoes) {
    const std::string rtf = writeRtf(plain("señal"));
    EXPECT_EQ(rtf.substr(0, 27), "{\\rtf1\\ansi\\ansicpg1252\\def");
    EXPECT_EQ(rtf.substr(rtf.size() - 3), "}\r\n");
    EXPECT_TRUE(looksLikeRtf(rtf));
    EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(),
                            [](char byte) { return static_cast<unsigned char>(byte) < 0x80; }));
}

TEST(RtfWriterTest, EndsEveryParagraph) {
    EXPECT_EQ(body(plain("")), "\\pard\\ql\\li0\\ri0\\par\r\n}\r\n");
    EXPECT_EQ(body(plain("a\n\nb\n")), "\\pard\\ql\\li0\\ri0 a\\par\r\n"
                                       "\\par\r\n"
                                       "b\\par\r\n"
                                       "\\par\r\n}\r\n");
}

TEST(RtfWriterTest, EscapesWhatRtfReserves) {
    EXPECT_EQ(body(plain("{a}\\\tb\x01")),
              "\\pard\\ql\\li0\\ri0 \\{a\\}\\\\\\tab b\\'01\\par\r\n}\r\n");
}

TEST(RtfWriterTest, WritesUnicodeWithAFallback) {
    // U+00F1 = 241 and U+20AC = 8364 are F1 and 80 in Windows-1252; U+FFFD = 65533 counts as
    // 65533 - 65536; U+1F600 is the pair D83D DE00, 55357 - 65536 and 56832 - 65536.
    EXPECT_EQ(body(plain("ñ€λ\uFFFD\U0001F600")),
              "\\pard\\ql\\li0\\ri0 \\u241\\'f1\\u8364\\'80\\u955?\\u-3?\\u-10179?\\u-8704?"
              "\\par\r\n}\r\n");
}

TEST(RtfWriterTest, WritesParagraphFormatsWhereTheyChange) {
    const RichText text({{{{"a", {}}}, {Alignment::center, 200, 300}},
                         {{{"b", {}}}, {Alignment::center, 200, 300}},
                         {{}, {Alignment::right, -5, 0}},
                         {{{"c", {}}}, {Alignment::justify, 0, 0}}});
    EXPECT_EQ(body(text), "\\pard\\qc\\li200\\ri300" + stops(200) +
                              " a\\par\r\n"
                              "b\\par\r\n"
                              "\\pard\\qr\\li-5\\ri0" +
                              stops(-5) +
                              "\\par\r\n"
                              "\\pard\\qj\\li0\\ri0 c\\par\r\n}\r\n");
}

TEST(RtfWriterTest, WritesCharacterFormatsByTheTables) {
    CharacterFormat first;
    first.bold = true;
    first.italic = true;
    first.font = "Courier New";
    first.halfPoints = 17;
    CharacterFormat second;
    second.underline = true;
    second.font = "Peña; {x}";
    second.color = 0xC00A20;
    const RichText text({{{{"a", first}, {"b", second}, {"c", {}}}, {}}});
    const std::string rtf = writeRtf(text);
    EXPECT_NE(rtf.find("{\\f1\\fnil\\fcharset0 Courier New;}"
                       "{\\f2\\fnil\\fcharset0 Pe\\u241\\'f1a  \\{x\\};}}\r\n"
                       "{\\colortbl ;\\red192\\green10\\blue32;}\r\n"),
              std::string::npos)
        << rtf;
    EXPECT_EQ(body(text), "\\pard\\ql\\li0\\ri0 {\\f1\\fs17\\b\\i a}"
                          "{\\f2\\cf1\\ul b}c\\par\r\n}\r\n");
}

TEST(RtfWriterTest, TheBoxesFontIsThatOfTheWholeFileAndOfNoPiece) {
    FixedFont box;
    box.name = "Liberation Mono; {x}";
    box.halfPoints = 20;
    CharacterFormat heavy;
    heavy.bold = true;
    const RichText text({{{{"a", {}}, {"b", heavy}}, {Alignment::left, 200, 200}}});
    const std::string rtf = writeRtf(text, box);
    EXPECT_NE(rtf.find("\\deff0"), std::string::npos);
    EXPECT_NE(rtf.find("{\\fonttbl{\\f0\\fmodern\\fprq1\\fcharset0 Liberation Mono  \\{x\\};}}"),
              std::string::npos)
        << rtf;
    EXPECT_NE(rtf.find("{\\stylesheet{\\s0\\f0\\fs20 Normal;}}"), std::string::npos) << rtf;
    const std::size_t body = rtf.find("\\pard");
    EXPECT_EQ(rtf.substr(body - 7, 7), "\\fs20\r\n");
    EXPECT_FALSE(std::regex_search(rtf.substr(body), std::regex("\\\\(f|fs|plain)[0-9 \\\\]")));
    EXPECT_EQ(show(readRtf(rtf)), "l200/200 [a][b|b]\n");
}

TEST(RtfWriterTest, TheBoxesSizeIsLeftOpenInOurOwnFilesAlone) {
    const std::string others = "\\fs18\r\n\\pard a{\\fs17 b}\\par}";
    EXPECT_EQ(show(readRtf("{\\rtf1{\\*\\generator Caudalera;}" + others)), "l0/0 [a][b|,17]\n");
    EXPECT_EQ(show(readRtf("{\\rtf1" + others)), "l0/0 [a|,18][b|,17]\n");
    EXPECT_EQ(show(readRtf("{\\rtf1{\\*\\generator Caudaleras;}" + others)),
              "l0/0 [a|,18][b|,17]\n");
}

TEST(RtfWriterTest, A130HyphensStandOnALine) {
    // Widths of common fixed-pitch fonts, as parts of their size.
    for (const double width : {0.55, 0.6, 0.602}) {
        for (const int halfPoints : {16, 17, 18, 19, 20, 21, 22, 24, 28}) {
            FixedFont box;
            box.halfPoints = halfPoints;
            box.width = width;
            RichText text;
            text.setSelIndent(200);
            text.setSelRightIndent(200);
            text.setSelText(std::string(130, '-'));
            const std::string rtf = writeRtf(text, box);
            const int line = number(rtf, "paperw") - number(rtf, "margl") - number(rtf, "margr") -
                             number(rtf, "li") - number(rtf, "ri");
            // A point is 20 twips.
            const double needed = 130 * width * number(rtf, "fs") / 2 * 20;
            EXPECT_LE(needed, line) << width << " " << halfPoints;
            EXPECT_NE(rtf.find("\\landscape"), std::string::npos);
            EXPECT_GT(number(rtf, "paperw"), number(rtf, "paperh"));
            // At up to 10 points A4 does: 130 * 0.602 * 200 = 15652 of 16838 - 720 - 400 = 15718.
            EXPECT_EQ(number(rtf, "paperw"), needed > 15718 ? 23811 : 16838);
        }
    }
}

TEST(RtfWriterTest, WiderTablesTakeWiderPaper) {
    const auto paperOf = [](std::string_view line) {
        return number(writeRtf(plain(line)), "paperw");
    };
    // The default font has 108 twips a character: 149 of them are 16092 and stand in the 16118 of
    // A4, 150 are 16200. 18 tabs reach column 144.
    EXPECT_EQ(paperOf(std::string(149, '-')), 16838);
    EXPECT_EQ(paperOf(std::string(150, '-')), 23811);
    EXPECT_EQ(paperOf(std::string(18, '\t') + "12345"), 16838);
    EXPECT_EQ(paperOf(std::string(18, '\t') + "123456"), 23811);
    // Prose may be broken.
    EXPECT_EQ(paperOf(std::string(400, 'a')), 16838);
}

TEST(RtfWriterTest, TabStopsStandEveryEightCharacters) {
    FixedFont box;
    box.halfPoints = 20;
    box.width = 0.602;
    // 8 * 0.602 * 200 = 963.2
    EXPECT_EQ(number(writeRtf(plain("\ta"), box), "deftab"), 963);
    RichText indented;
    indented.setSelIndent(200);
    indented.setSelText("\ta");
    const std::string rtf = writeRtf(indented, box);
    EXPECT_NE(rtf.find("\\li200\\ri0\\tx1163\\tx2126\\tx3090\\tx4053"), std::string::npos) << rtf;
}

TEST(RtfWriterTest, TextsComeBackAsTheyWere) {
    for (const std::string_view text :
         {"", "\n", "a", "a\n", "\n\na", "a\n\n\n", "{\\rtf1}", "\\par", " a  b ", "\ta\t", "1\n2",
          "ñ1\n😀😀2?", "\x01\x02\x7F", "\u00A0\u00AD\u2011", "\\'f1"}) {
        EXPECT_EQ(show(readRtf(writeRtf(plain(text)))), show(plain(text)));
    }
}

RichText randomText(std::mt19937& random) {
    const auto below = [&random](unsigned n) { return static_cast<int>(random() % n); };
    const std::vector<std::string> words = {"a", "Año", " ", "\t", "{", "}", "\\", "1990", "-",
                                            "€", "λ",   "😀", "?",  ";", "'", "*",  "\\u1 "};
    const std::vector<std::string> fonts = {"", "", "Arial", "Courier New", "Ñandú \\ {1}"};
    std::vector<Paragraph> paragraphs(static_cast<std::size_t>(1 + below(6)));
    for (Paragraph& paragraph : paragraphs) {
        paragraph.format = {static_cast<Alignment>(below(4)), below(3) * 200, below(3) * -100};
        for (int i = below(5); i > 0; --i) {
            CharacterFormat format;
            format.bold = below(2) != 0;
            format.italic = below(3) == 0;
            format.underline = below(3) == 0;
            format.font = fonts[static_cast<std::size_t>(below(5))];
            format.halfPoints = below(3) * 17;
            format.color = below(2) == 0 ? -1 : below(3) * 0x123456;
            std::string text;
            for (int j = 1 + below(4); j > 0; --j) {
                text += words[static_cast<std::size_t>(below(17))];
            }
            paragraph.runs.push_back({text, format});
        }
    }
    return RichText(std::move(paragraphs));
}

TEST(RtfWriterTest, DocumentsComeBackAsTheyWere) {
    std::mt19937 random(7);
    for (int i = 0; i < 1000; ++i) {
        const RichText text = randomText(random);
        ASSERT_EQ(show(readRtf(writeRtf(text))), show(text)) << writeRtf(text);
    }
}

std::string joinedByBlanks(const std::string& text) {
    std::istringstream words(text);
    std::string joined;
    for (std::string word; words >> word;) {
        joined += word + ' ';
    }
    return joined;
}

TEST(RtfWriterTest, AnotherReaderFindsTheSameText) {
    const TemporaryFolder folder;
    const std::string source = folder.file("test.rtf");
    const std::string result = folder.file("test.txt");
    if (std::system(("unrtf --version > \"" + result + "\" 2>&1").c_str()) != 0) {
        GTEST_SKIP() << "unrtf is not installed";
    }
    RichText text;
    text.setSelIndent(200);
    text.setSelAlignment(Alignment::center);
    text.setSelText("Resultados\n\nDistribución de Gumbel: señal {y} año \\ 100 %\n\n");
    text.setSelAlignment(Alignment::left);
    text.setSelText("\nMes\tÁrea (km²)\tPeríodo\n");
    for (int i = 0; i < 40; ++i) {
        text.setSelText("-");
    }
    for (int i = 1; i <= 12; ++i) {
        text.setSelText("\n" + std::to_string(i) + "\t" + std::to_string(i * i) + ".5\t¿" +
                        std::to_string(1990 + i) + "?");
    }
    std::ofstream(source, std::ios::binary) << writeRtf(text);
    ASSERT_EQ(std::system(("unrtf --text \"" + source + "\" > \"" + result + "\"").c_str()), 0);
    std::ifstream file(result, std::ios::binary);
    const std::string output{std::istreambuf_iterator<char>(file), {}};

    // Its own heading ends in a rule. It writes Latin-1, which is Windows-1252 for all that this
    // text holds, and blanks and line ends of its own around tabs.
    const std::string_view rule = "-----------------\n";
    const std::size_t begin = output.find(rule);
    ASSERT_NE(begin, std::string::npos) << output;
    const std::string found = decodeWindows1252(output.substr(begin + rule.size()));
    EXPECT_EQ(joinedByBlanks(found), joinedByBlanks(text.text()));
}

} // namespace
} // namespace caudalera
