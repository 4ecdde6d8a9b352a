#include "shell/worksheet/PastedBlock.h"
#include "tests/support/TestSheet.h"

#include <string>

namespace caudalera {
namespace {

// A grid counts its rows in 16 bits: 32767 with the header and the append row, so that 32765 rows
// of data find room.
class PastedBlockRowsTest : public SheetTest {
protected:
    /// A grid of so many rows of data, the append row current.
    MSFlexGrid& filled(const std::string& name, long data) {
        MSFlexGrid& grid = sheet(name).grdt;
        grid.setRows(data + 2);
        grid.setRow(grid.Rows() - 1);
        return grid;
    }
    static PastedBlock block(long rows, const std::string& row) {
        std::string text;
        for (long i = 0; i < rows; ++i)
            text += row + "\n";
        return PastedBlock(text);
    }
};

TEST_F(PastedBlockRowsTest, ABlockThatPassesTheLastRowIsRefused) {
    const MSFlexGrid& grid = filled("hojaUno", 0);
    EXPECT_EQ(block(32765, "1").refusalFor(grid), "");
    EXPECT_EQ(block(32766, "1").refusalFor(grid),
              "No se pegó nada: con el bloque habría 32766 filas de datos y en la cuadrícula caben "
              "32765");
}

TEST_F(PastedBlockRowsTest, TheRowsThatItReplacesAreNotCounted) {
    MSFlexGrid& grid = filled("hojaDos", 32760);
    EXPECT_EQ(block(5, "1\t2").refusalFor(grid), "");
    EXPECT_NE(block(6, "1\t2").refusalFor(grid), "");
    grid.setRow(32751);
    EXPECT_EQ(block(15, "1\t2").refusalFor(grid), "");
    EXPECT_EQ(block(16, "1\t2").refusalFor(grid),
              "No se pegó nada: con el bloque habría 32766 filas de datos y en la cuadrícula caben "
              "32765");
    grid.setCol(2);
    EXPECT_EQ(block(10, "2").refusalFor(grid), "") << "it ends with the last row of data";
}

TEST_F(PastedBlockRowsTest, ARowThatIsNotCompletedIsNoNewOne) {
    MSFlexGrid& grid = filled("hojaDos", 32765);
    EXPECT_EQ(block(1, "1").refusalFor(grid), "");
    grid.setCol(2);
    EXPECT_NE(block(1, "2").refusalFor(grid), "");
}

TEST_F(PastedBlockRowsTest, NewRowsMustBeWhole) {
    MSFlexGrid& grid = filled("hojaDos", 3);
    const std::string incomplete =
        "No se pegó nada: cada fila nueva lleva 2 datos y las del bloque tienen 1";
    EXPECT_EQ(block(2, "7").refusalFor(grid), incomplete);
    EXPECT_EQ(block(1, "7").refusalFor(grid), "") << "a value into the append row";
    grid.setRow(3);
    EXPECT_EQ(block(1, "7").refusalFor(grid), "") << "over data";
    EXPECT_EQ(block(2, "7").refusalFor(grid), incomplete) << "the second one is new";
    grid.setRow(2);
    EXPECT_EQ(block(2, "7").refusalFor(grid), "");
    EXPECT_EQ(block(3, "7").refusalFor(grid), incomplete);
}

TEST_F(PastedBlockRowsTest, ABlockThatIsTooWideIsRefused) {
    MSFlexGrid& grid = filled("hojaDos", 1);
    EXPECT_EQ(block(1, "1\t2\t3").refusalFor(grid),
              "No se pegó nada: el bloque tiene 3 columnas y desde la celda actual caben 2");
    grid.setCol(2);
    EXPECT_EQ(block(1, "1\t2").refusalFor(grid),
              "No se pegó nada: el bloque tiene 2 columnas y desde la celda actual cabe 1");
    EXPECT_EQ(block(1, "1").refusalFor(grid), "");
}

TEST_F(PastedBlockRowsTest, WhatIsNoBlockOfNumbersIsRefusedFirst) {
    const MSFlexGrid& grid = filled("hojaDos", 1);
    EXPECT_EQ(block(1, "1\tx\t3").refusalFor(grid),
              "No se pegó nada: el dato de la fila 1, columna 2 no es un número: «x»");
}

TEST_F(PastedBlockRowsTest, TheLastRowsThatFindRoomAreEntered) {
    MSFlexGrid& grid = filled("hojaDos", 32764);
    const PastedBlock last = block(1, "1\t2");
    ASSERT_EQ(last.refusalFor(grid), "");
    last.enter(program, grid);
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(grid.Rows(), 32767);
    EXPECT_EQ(rowText("grdt", 32765), " 32765|1.0|2.0");
}

} // namespace
} // namespace caudalera
