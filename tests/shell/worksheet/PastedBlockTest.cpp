#include "shell/worksheet/PastedBlock.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace caudalera {
namespace {

/// The numbers of a block, cells parted by '|' and rows by '/', or why it is refused.
std::string read(const PastedBlock& block) {
    if (!block.refusal().empty())
        return block.refusal();
    std::string all;
    for (const auto& row : block.rows()) {
        if (!all.empty())
            all += "/";
        std::string cells;
        for (const std::string& cell : row)
            cells += (cells.empty() ? "" : "|") + cell;
        all += cells;
    }
    return all;
}

std::string noNumber(int row, int column, const std::string& cell) {
    return "No se pegó nada: el dato de la fila " + std::to_string(row) + ", columna " +
           std::to_string(column) + " no es un número: «" + cell + "»";
}

std::string emptyCell(int row, int column) {
    return "No se pegó nada: la celda de la fila " + std::to_string(row) + ", columna " +
           std::to_string(column) + " está vacía";
}

struct Case {
    std::string text;
    std::string result;
};

void expectRead(const std::vector<Case>& cases) {
    for (const auto& [text, result] : cases) {
        const PastedBlock block(text);
        EXPECT_EQ(read(block), result) << text;
        EXPECT_FALSE(block.undecided()) << text;
    }
}

TEST(PastedBlock, CellsAndRows) {
    expectRead({{"1.5\t-2\n.5\t+3.\n", "1.5|-2/.5|3."},
                {"1\r\n2\r\n", "1/2"},
                {"  1.5 \t 2 ", "1.5|2"},
                {"1e3\n2.5E-4\n1D2", "1e3/2.5E-4/1D2"},
                {"", ""}});
    EXPECT_EQ(PastedBlock("").columns(), 0U);
    EXPECT_EQ(PastedBlock("1\t2\t3\n4\t5\t6").columns(), 3U);
}

TEST(PastedBlock, DecimalCommasThatDecideThemselves) {
    expectRead({{"1,5\n2,25", "1.5/2.25"},
                {"1.234,5\n1.234.567\n12", "1234.5/1234567/12"},
                {"-1.234,5", "-1234.5"},
                {"1.234.567", "1234567"},
                // Three digits behind the comma, and no group before it.
                {"0,125", "0.125"},
                {"1234,567", "1234.567"},
                {",125", ".125"},
                {"1,234e2\n2,5", "1.234e2/2.5"}});
}

TEST(PastedBlock, CommasOfThousandsThatDecideThemselves) {
    expectRead(
        {{"1,234.5", "1234.5"}, {"1,234,567\n8", "1234567/8"}, {"-12,345.25\t6", "-12345.25|6"}});
}

// Another cell tells what the comma of "1,234" is.
TEST(PastedBlock, AnotherCellDecides) {
    expectRead({{"1,234\n2.5", "1234/2.5"},
                {"1,234\n2,5", "1.234/2.5"},
                {"1,234\t0,125", "1.234|0.125"},
                {"1.234\n2,5", "1234/2.5"}});
}

// Without any comma a point is the decimal one.
TEST(PastedBlock, PointsWithThreeDigitsBehindThemAreDecimal) {
    expectRead({{"1.234\n2.500", "1.234/2.500"}});
}

TEST(PastedBlock, CommasThatNothingDecidesHaveTwoReadings) {
    PastedBlock block("7\t1,234\n12,345\t-6,789");
    ASSERT_TRUE(block.undecided());
    EXPECT_EQ(block.undecided()->text, "1,234");
    EXPECT_EQ(block.undecided()->withPoint, "1234");
    EXPECT_EQ(block.undecided()->withComma, "1.234");
    EXPECT_EQ(read(block), "7|1.234/12.345|-6.789");
    block.read(DecimalSign::point);
    EXPECT_EQ(read(block), "7|1234/12345|-6789");
    block.read(DecimalSign::comma);
    EXPECT_EQ(read(block), "7|1.234/12.345|-6.789");
    // A point between groups of three tells nothing either.
    EXPECT_TRUE(PastedBlock("1,234\n5.678").undecided());
}

TEST(PastedBlock, AFirstRowWithoutANumberIsLeftOut) {
    const PastedBlock block("Año\tQ (m³/s)\n1990\t12,5\n1991\t14,25");
    EXPECT_TRUE(block.hasHeadings());
    EXPECT_EQ(read(block), "1990|12.5/1991|14.25");
    EXPECT_FALSE(PastedBlock("1990\tQ\n1991\t2").hasHeadings());
    EXPECT_EQ(read(PastedBlock("1990\tQ\n1991\t2")), noNumber(1, 2, "Q"));
    // Only the first, and not the only one; the rows are counted with it.
    EXPECT_EQ(read(PastedBlock("Año\nQ\n1")), noNumber(2, 1, "Q"));
    EXPECT_FALSE(PastedBlock("Año").hasHeadings());
    EXPECT_EQ(read(PastedBlock("Año")), noNumber(1, 1, "Año"));
    EXPECT_EQ(read(PastedBlock("A\tB\n1\t2\n3")), emptyCell(3, 2));
    EXPECT_TRUE(PastedBlock("Q\n1,234").undecided());
}

TEST(PastedBlock, RefusalsNameTheFirstCellThatIsNoNumber) {
    expectRead({{"1\t2\n3\t4\n5\tabc", noNumber(3, 2, "abc")},
                {"1,5\n2,25\nabc", noNumber(3, 1, "abc")},
                {"1,5\n2,25\n2.5", noNumber(3, 1, "2.5")},
                {"1.5\n2.25\n2,5", noNumber(3, 1, "2,5")},
                // As many either way: by the point.
                {"1,5\n2.5", noNumber(1, 1, "1,5")},
                {"1.23,5", noNumber(1, 1, "1.23,5")},
                {".123,5", noNumber(1, 1, ".123,5")},
                {"12 m", noNumber(1, 1, "12 m")},
                {"1x5", noNumber(1, 1, "1x5")},
                {"-", noNumber(1, 1, "-")},
                {".", noNumber(1, 1, ".")},
                {"1e", noNumber(1, 1, "1e")},
                {"1e+", noNumber(1, 1, "1e+")},
                {"1e5x", noNumber(1, 1, "1e5x")}});
}

TEST(PastedBlock, EmptyCellsAreCalledEmpty) {
    expectRead({{"1\t\n2\t3", emptyCell(1, 2)},
                {"1\t2\n3", emptyCell(2, 2)},
                {"1\n\n2", emptyCell(2, 1)}});
}

TEST(NumberAsPasted, ASingleNumberAndAnyOtherText) {
    EXPECT_EQ(numberAsPasted("1.234,5"), "1234.5");
    EXPECT_EQ(numberAsPasted(" 1,5\r\n"), "1.5");
    EXPECT_EQ(numberAsPasted("1\t2"), "1\t2");
    EXPECT_EQ(numberAsPasted("1\n2"), "1\n2");
    EXPECT_EQ(numberAsPasted("Q\n2"), "Q\n2");
    EXPECT_EQ(numberAsPasted("12 m"), "12 m");
    EXPECT_EQ(numberAsPasted(""), "");
}

} // namespace
} // namespace caudalera
