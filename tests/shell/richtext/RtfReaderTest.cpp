#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/richtext/RichText.h"
#include "tests/shell/richtext/RichTextShow.h"

namespace caudalera {
namespace {

using Cases = std::vector<std::pair<std::string, std::string>>;

/// Of the text inside a minimal file.
std::string textOf(const std::string& inner) {
    return readRtf("{\\rtf1\\ansi " + inner + "}").text();
}

std::string shown(const std::string& inner) {
    return show(readRtf("{\\rtf1\\ansi " + inner + "}"));
}

void expectTexts(const Cases& cases) {
    for (const auto& [source, text] : cases) {
        EXPECT_EQ(textOf(source), text) << source;
    }
}

void expectShown(const Cases& cases) {
    for (const auto& [source, lines] : cases) {
        EXPECT_EQ(shown(source), lines) << source;
    }
}

TEST(RtfReaderTest, KnowsRtfByItsBeginning) {
    EXPECT_TRUE(looksLikeRtf("{\\rtf1\\ansi}"));
    EXPECT_TRUE(looksLikeRtf("{\\rtf"));
    EXPECT_FALSE(looksLikeRtf("{\\rt"));
    EXPECT_FALSE(looksLikeRtf(" {\\rtf1}"));
    EXPECT_FALSE(looksLikeRtf(""));
}

TEST(RtfReaderTest, ReadsAnythingElseAsPlainText) {
    EXPECT_EQ(show(readRtf("")), "l0/0 \n");
    EXPECT_EQ(show(readRtf("Año\r\n{\\b x}\r\n")), "l0/0 [Año]\nl0/0 [{\\b x}]\nl0/0 \n");
    EXPECT_EQ(readRtf("\xEF\xBB\xBFseñal").text(), "señal");
    // F1 is ñ and 80 the euro in Windows-1252; as UTF-8 the bytes are broken.
    EXPECT_EQ(readRtf("se\xF1"
                      "al \x80")
                  .text(),
              "señal €");
    EXPECT_EQ(readRtf("abc").selStart(), 0U);
}

TEST(RtfReaderTest, ParagraphsEndWithPar) {
    expectTexts({{"", ""},
                 {"a", "a"},
                 {"a\\par", "a"},
                 {"a\\par ", "a"},
                 {"a\\par\\par", "a\n"},
                 {"\\par a", "\na"},
                 {"\\par", ""},
                 {"a\\par b", "a\nb"},
                 {"a\\\nb\\\r\nc", "a\nb\nc"},
                 {"{a\\par}{b\\par}", "a\nb"},
                 {"a\\line b\\line", "a\nb\n"},
                 {"a\\page b\\sect c\\par\\sect\\pard", "ab\nc"}});
}

TEST(RtfReaderTest, LineEndsOfTheSourceAreNoText) {
    EXPECT_EQ(textOf("a\r\nb\nc \r\n d"), "abc  d");
    EXPECT_EQ(textOf("a\\b\nb\\par\r\nc"), "ab\nc");
    EXPECT_EQ(textOf("\\tab\n\\\nx"), "\t\nx");
}

TEST(RtfReaderTest, WordsEndAtTheFirstOtherCharacter) {
    expectTexts({{"a\\b b", "ab"},
                 {"a\\b  b", "a b"},
                 {"a\\b0b", "ab"},
                 {"a\\b-b", "a-b"},
                 {"a\\li-5b", "ab"},
                 {"\\unknownword12 a\\Another-3 b", "ab"},
                 {"a\\tab1", "a\t"},
                 {"a\\tab 1", "a\t1"}});
}

TEST(RtfReaderTest, SymbolsAndNamedCharacters) {
    expectTexts({{"\\{\\}\\\\", "{}\\"},
                 {"a\\~b\\_c\\-d", "a\u00A0b\u2011c\u00ADd"},
                 {"\\lquote a\\rquote\\ldblquote b\\rdblquote", "‘a’“b”"},
                 {"1\\endash 2\\emdash 3\\bullet", "1–2—3•"},
                 {"a\\emspace b\\enspace c\\qmspace d", "a\u2003b\u2002c\u2005d"},
                 {"a\\:b\\|c\\^d", "abcd"},
                 {"a\\\tb\tc", "a\tb\tc"}});
}

TEST(RtfReaderTest, BytesOfTheCodePage) {
    expectTexts({{"se\\'f1al \\'80 \\'95\\'Fa", "señal € •ú"},
                 {"se\xF1"
                  "al \x80",
                  "señal €"},
                 {"a\\'00\\'0db", "ab"},
                 {"a\\'zzb", "azzb"}});
    EXPECT_EQ(readRtf("{\\rtf1\\mac\\ansicpg1251 A\\'f1}").text(), "Añ");
}

TEST(RtfReaderTest, UnicodeAndItsFallbacks) {
    expectTexts({{"\\u241?o", "ño"},
                 {"\\u241 ?o", "ño"},
                 {"\\u241\\'f1o", "ño"},
                 {"\\uc0\\u241 o", "ño"},
                 {"\\uc2\\u955\\'a6\\'cbx", "λx"},
                 {"\\uc2 \\u955 <>x", "λx"},
                 {"{\\uc0\\u241 a}\\u241 ab", "ñañb"},
                 {"\\uc3\\u241 a}b", "ñ"},
                 {"{\\uc3\\u241 a}b", "ñb"},
                 {"\\uc3\\u241 a{bcd}", "ñbcd"},
                 {"\\uc1\\u241\\tab x", "ñx"},
                 {"\\uc2\\u241\\u243 ?!x", "ñóx"}});
    // 8364 - 65536 = -57172 is below the signed range and -3 = 65533 - 65536 within it.
    expectTexts({{"\\u-3?", "\uFFFD"}, {"\\u-57172?", "\uFFFD"}, {"\\u65533?", "\uFFFD"}});
}

TEST(RtfReaderTest, SurrogatePairs) {
    expectTexts({{"\\u-10179?\\u-8704?x", "😀x"},
                 {"\\u55357?\\u56832?x", "😀x"},
                 {"\\u128512?x", "😀x"},
                 {"\\u55296?\\u56320?x", "\U00010000x"},
                 {"\\u56319?\\u57343?x", "\U0010FFFFx"},
                 {"\\u55296?\\u57344?x", "\uFFFD\uE000x"},
                 {"\\u55295?\\u56320?x", "\uD7FF\uFFFDx"},
                 {"\\u-10179?x", "\uFFFDx"},
                 {"\\u-8704?x", "\uFFFDx"},
                 {"\\u-10179?\\u-10179?\\u-8704?", "\uFFFD😀"},
                 {"{\\u-10179?}\\u-8704?", "\uFFFD\uFFFD"},
                 {"\\u-10179?\\par x", "\uFFFD\nx"},
                 {"\\u9999999?x", "\uFFFDx"}});
}

TEST(RtfReaderTest, ParagraphFormats) {
    expectShown({{"\\qc a\\par b\\par\\pard c", "c0/0 [a]\nc0/0 [b]\nl0/0 [c]\n"},
                 {"\\qr\\li200\\ri300 a\\par\\qj\\li-50 b\\par\\ql c\\par",
                  "r200/300 [a]\nj-50/300 [b]\nl-50/300 [c]\n"},
                 {"\\lin720\\rin360 a", "l720/360 [a]\n"},
                 {"{\\pard\\qc a\\par}b\\par", "c0/0 [a]\nl0/0 [b]\n"},
                 {"{\\pard\\qc a}", "c0/0 [a]\n"},
                 {"\\qc\\par\\pard\\par", "c0/0 \nl0/0 \n"},
                 {"a\\qc\\par", "c0/0 [a]\n"},
                 {"\\li\\ri99999999999999\\par", "l0/31680 \n"},
                 {"\\qc a\\line b", "c0/0 [a]\nc0/0 [b]\n"}});
}

TEST(RtfReaderTest, CharacterFormats) {
    expectShown({{"a\\b b\\i c\\b0 d\\plain e", "l0/0 [a][b|b][c|bi][d|i][e]\n"},
                 {"{\\b a}b{\\i c}", "l0/0 [a|b][b][c|i]\n"},
                 {"\\ul a\\ulnone b\\uld c\\ul0 d", "l0/0 [a|u][b][c|u][d]\n"},
                 {"\\fs17 a\\fs24 b\\fs c", "l0/0 [a|,17][b|,24][c]\n"},
                 {"\\fs999999999999 a\\fs-5 b", "l0/0 [a|,3276][b]\n"},
                 {"a{\\b }b{\\b\\b0 c}", "l0/0 [abc]\n"},
                 {"\\b a\\par b\\pard\\par", "l0/0 [a|b]\nl0/0 [b|b]\n"},
                 {"a{\\v oculto}b", "l0/0 [ab]\n"}});
}

TEST(RtfReaderTest, Fonts) {
    const std::string table = "{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}"
                              "{\\f2\\froman{\\*\\panose 0102}Pe\\'f1a {\\*\\falt Other;}Sans;}"
                              "{\\f7 Sin punto}}";
    expectShown({{table + "a\\f0 b\\f2 c\\f7 d\\f1 e\\plain f",
                  "l0/0 [a][b|,Arial][c|,Peña Sans][d|,Sin punto][ef]\n"},
                 {"{\\fonttbl\\f0\\fnil Arial;\\f1\\fswiss Courier New;}\\f1 a\\f0 b",
                  "l0/0 [a|,Courier New][b|,Arial]\n"}});
}

TEST(RtfReaderTest, Colors) {
    const std::string table = "{\\colortbl;\\red192\\green10\\blue32;\\red0\\green0\\blue0;"
                              "\\blue999\\red-1;}";
    expectShown({{table + "a\\cf1 b\\cf2 c\\cf3 d\\cf0 e\\cf4 f\\cf-1 g",
                  "l0/0 [a][b|,#c00a20][c|,#0][d|,#ff][efg]\n"}});
}

TEST(RtfReaderTest, OtherMatterIsNoText) {
    expectTexts({{"{\\stylesheet{\\s0 Normal;}{\\*\\cs1 X;}}a", "a"},
                 {"{\\info{\\title T}{\\author A}}a", "a"},
                 {"a{\\*\\unknowndestination b{c}d}e", "ae"},
                 {"a{\\*\nunusual}b", "aunusualb"},
                 {"{\\pict\\wmetafile8 0102abcd}a", "a"},
                 {"{\\header h\\par}{\\footerl f\\par}a{\\footnote n}\\par", "a"},
                 {"{\\listtext\\'b7\\tab}a\\par{\\pntext 1.\\tab}b", "a\nb"},
                 {"{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt aqu\\'ed}}.", "aquí."},
                 {"{\\field{\\fldinst PAGE}{\\fldrslt 1}}", "1"},
                 {"{\\upr{ab}{\\*\\ud{cd}}}", "ab"}});
    EXPECT_EQ(shown("{\\stylesheet{\\qc\\b\\li50 X;}}a"), "l0/0 [a]\n");
}

TEST(RtfReaderTest, BinaryDataIsPassedOver) {
    EXPECT_EQ(textOf("a{\\pict\\bin5 }}{\\x}b"), "ab");
    EXPECT_EQ(textOf("a\\bin3 \\{}b"), "ab");
    EXPECT_EQ(textOf("a\\bin0 b\\bin-7 c\\bin d"), "abcd");
    EXPECT_EQ(textOf("a\\bin4000000000 bcd"), "a");
}

TEST(RtfReaderTest, TablesBecomeLinesWithTabs) {
    EXPECT_EQ(textOf("\\trowd\\cellx100\\cellx200\\pard\\intbl A\\cell B\\cell\\row "
                     "\\pard\\intbl 1\\cell 2\\cell\\row\\pard fin\\par"),
              "A\tB\t\n1\t2\t\nfin");
}

TEST(RtfReaderTest, TheTextEndsWithItsGroup) {
    EXPECT_EQ(readRtf("{\\rtf1 a}b{c}").text(), "a");
    EXPECT_EQ(readRtf(std::string_view("{\\rtf1 a}\0\0", 11)).text(), "a");
}

} // namespace
} // namespace caudalera
