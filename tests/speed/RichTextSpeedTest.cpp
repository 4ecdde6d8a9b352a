// Time limits of the rich text, far above what it takes and far below what a quadratic algorithm
// would take. Tests that measure time stand in this program, which runs alone.

#include "tests/speed/Stopwatch.h"

#include "shell/report/ReportWriter.h"
#include "shell/richtext/RichText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {
namespace {

std::string repeated(std::string_view piece, std::size_t times) {
    std::string all;
    all.reserve(piece.size() * times);
    for (std::size_t i = 0; i < times; ++i)
        all += piece;
    return all;
}

TEST(RichTextSpeed, ReadingTimeIsLinear) {
    // Each of these is some megabytes; a quadratic reader would need minutes.
    const Stopwatch watch;
    EXPECT_EQ(readRtf("{\\rtf1 " + repeated("\\par ", 500'000) + "}").length(), 499'999U);
    EXPECT_EQ(readRtf("{\\rtf1 " + repeated("\\u241?", 500'000) + "}").length(), 500'000U);
    EXPECT_EQ(readRtf("{\\rtf1 " + repeated("{\\*\\x a{b}}", 300'000) + "}").length(), 0U);
    EXPECT_EQ(readRtf("{\\rtf1 " + repeated("\xF1", 1'000'000) + "}").length(), 1'000'000U);
    EXPECT_LT(watch.seconds(), 10.0);
}

TEST(RichTextSpeed, InsertionAtTheEndDoesNotSlowDownWithTheText) {
    // Walking the text for each of these pieces would be 1.8e11 bytes, a matter of half a minute
    // or more; without it they take some hundredths of a second.
    constexpr int pieces = 600000;
    const Stopwatch watch;
    RichText text;
    for (int i = 0; i < pieces; ++i)
        text.setSelText("-");
    for (int i = 0; i < 20000; ++i) {
        text.setSelText("\n");
        text.setSelText("\t");
    }
    EXPECT_EQ(text.length(), 640000U);
    EXPECT_LT(watch.seconds(), 5.0);
}

TEST(RichTextSpeed, AReportAtTheStartOfALongDocumentCostsNoMoreThanAtItsEnd) {
    // Were the paragraphs behind moved for each line of the report, 1.3e9 of them would be moved, a
    // matter of several seconds or, without optimisation, of minutes.
    RichText text(std::vector<Paragraph>(65000));
    const Stopwatch watch;
    {
        ReportWriter writer(text);
        for (int i = 0; i < 20000; ++i)
            writer << "122.0" << ReportWriter::LF;
    }
    EXPECT_LT(watch.seconds(), 2.0);
    EXPECT_EQ(text.paragraphs().size(), 85000U);
    EXPECT_EQ(text.selStart(), 120000U);
}

} // namespace
} // namespace caudalera
