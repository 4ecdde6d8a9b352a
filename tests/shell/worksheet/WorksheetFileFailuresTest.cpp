#include "shell/files/FileSizeSignal.h"
#include "tests/shell/worksheet/SheetFilesTest.h"
#include "tests/support/PosixFiles.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class WorksheetFileFailuresTest : public SheetFilesTest {};

TEST_F(WorksheetFileFailuresTest, WithALastRecordAFileOfNoRecordsFailsSilently) {
    auto& hoja = sheet("hojaUltimoUno");
    values({"1"});
    load(zeros(0));
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(marks(), "[?]");
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_FALSE(program.ended());
    EXPECT_TRUE(program.variables.archivoUnoEnUso);
}

TEST_F(WorksheetFileFailuresTest, AFileThatCannotBeOpenedFailsSilentlyAndLeavesAnEmptyGrid) {
    auto& hoja = sheet("hojaUno");
    for (const std::string& path : {file("none.X"), file(""), file("none/a.X")}) {
        values({"1"});
        load(path);
        EXPECT_EQ(hoja.grdt.Rows(), 2);
        EXPECT_EQ(marks(), "[?]");
        EXPECT_EQ(hoja.n, 0);
    }
    EXPECT_FALSE(std::filesystem::exists(file("none.X")));
    values({"1"});
    save(file("none/a.X"));
    save(file(""));
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_FALSE(program.variables.archivoUnoEnUso) << "nothing was open";
    save(file("a.X"));
    EXPECT_EQ(bytesOf(file("a.X")).size(), 4U);
}

TEST_F(WorksheetFileFailuresTest, OnlyTheDialogsOwnErrorHasAMessage) {
    auto& hoja = sheet("hojaUno");
    hoja.falloAlLeer = Failure::dialogCancelled;
    save(file("a.X"));
    expectMessage({"Error desconocido al salvar el archivo " + file("a.X"), ""});
    hoja.falloAlLeer = Failure::divisionByZero;
    save(file("a.X"));
    EXPECT_EQ(messages(), std::vector<Message>{});
    hoja.falloAlLeer.reset();
    save(file("a.X"));
    hoja.falloTrasAccesar = Failure::dialogCancelled;
    load(file("a.X"));
    expectMessage({"Error desconocido al abrir el archivo " + file("a.X"), ""});
    hoja.falloTrasAccesar = Failure::index;
    load(file("a.X"));
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_FALSE(program.ended());
}

TEST_F(WorksheetFileFailuresTest, RowsPastTheCapacityAreFatalInSpiteOfTheTrap) {
    sheet("hojaUno");
    values(std::vector<std::string>(TestSheet::capacidad + 1, "1"));
    save(file("a.X"));
    EXPECT_TRUE(fatal(9));
    EXPECT_EQ(platform.dialogsSeen.size(), 1U) << "the dialog comes first";
    EXPECT_FALSE(std::filesystem::exists(file("a.X")));
}

TEST_F(WorksheetFileFailuresTest, AValuePastTheSinglesLeavesTheFileWholeAndItsNumberInUse) {
    sheet("hojaUno");
    values({"1"});
    save(file("a.X"));
    const Bytes before = bytesOf(file("a.X"));
    values({"2", "1e39"});
    save(file("a.X"));
    EXPECT_TRUE(program.variables.archivoUnoEnUso);
    click("bCrear");
    save(file("new.X"));
    EXPECT_TRUE(program.variables.archivoUnoEnUso) << "freed, and left in use again";
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(bytesOf(file("a.X")), before);
    EXPECT_FALSE(std::filesystem::exists(file("new.X")));
}

TEST_F(WorksheetFileFailuresTest, ANumberLeftInUseFailsTheNextSaveOfAnyWindowOnly) {
    sheet("hojaUno");
    values({"1e39"});
    save(file("a.X"));
    EXPECT_TRUE(program.variables.archivoUnoEnUso);

    sheet("hojaDos");
    rows({{"1", "2"}});
    save(file("b.XY"));
    EXPECT_FALSE(std::filesystem::exists(file("b.XY")));
    save(file("b.XY"));
    EXPECT_EQ(bytesOf(file("b.XY")).size(), 8U);
    EXPECT_EQ(messages(), std::vector<Message>{});
}

TEST_F(WorksheetFileFailuresTest, ANumberLeftInUseFailsTheNextLoadOfAnyWindowOnly) {
    sheet("hojaDos");
    rows({{"1", "2"}});
    save(file("b.XY"));
    sheet("hojaUno");
    values({"1e39"});
    save(file("a.X"));

    window("hojaDos");
    load(file("b.XY"));
    EXPECT_EQ(data(), "");
    EXPECT_EQ(marks(), "[?]");
    load(file("b.XY"));
    EXPECT_EQ(data(), "1.0|2.0");
    EXPECT_EQ(messages(), std::vector<Message>{});
}

TEST_F(WorksheetFileFailuresTest, ANumberLeftInUseIsFreedByACancelledCommandToo) {
    sheet("hojaUno");
    values({"1e39"});
    save(file("a.X"));
    click("bAccesar");
    values({"1"});
    save(file("b.X"));
    EXPECT_EQ(bytesOf(file("b.X")).size(), 4U);
}

TEST_F(WorksheetFileFailuresTest, ARecordThatIsNoNumberEndsTheLoadWhereItStands) {
    auto& hoja = sheet("hojaUno");
    // 1, the quiet not-a-number 7FC00000, 2.5.
    writeBytes(file("nan.X"),
               {0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0xC0, 0x7F, 0x00, 0x00, 0x20, 0x40});
    load(file("nan.X"));
    EXPECT_EQ(hoja.grdt.Rows(), 5);
    EXPECT_EQ(data(), "1.0//");
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_TRUE(program.variables.archivoUnoEnUso);
}

TEST_F(WorksheetFileFailuresTest, AGridHoldsAsManyRowsAs16BitsCount) {
    auto& hoja = sheet("hojaUno");
    load(zeros(32765));
    EXPECT_EQ(hoja.grdt.Rows(), 32767);
    EXPECT_EQ(cellText("grdt", 32765, 0), " 32765");
    EXPECT_EQ(cellText("grdt", 32766, 0), "[->]");
    load(zeros(32766));
    EXPECT_EQ(hoja.grdt.Rows(), 2) << "two rows more than records are too many";
    EXPECT_EQ(program.variables.numRegistros, 32766);
    EXPECT_TRUE(program.variables.archivoUnoEnUso);
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(messages(), std::vector<Message>{});
}

TEST_F(WorksheetFileFailuresTest, MoreRecordsThan16BitsFailSilently) {
    auto& hoja = sheet("hojaUno");
    load(zeros(32768));
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(program.variables.numRegistros, 0);
    EXPECT_TRUE(program.variables.archivoUnoEnUso);
    EXPECT_FALSE(program.ended());
}

TEST_F(WorksheetFileFailuresTest, WithALastRecordTheGridHoldsOneRecordMore) {
    auto& hoja = sheet("hojaUltimoUno");
    load(zeros(32766));
    EXPECT_EQ(hoja.grdt.Rows(), 32767);
    EXPECT_EQ(hoja.n, 32765);
}

#ifdef CAUDALERA_POSIX_FILES
TEST_F(WorksheetFileFailuresTest, ADiskThatIsFullAtAnyByteLeavesTheFileWholeAndTheNumberFree) {
    ignoreFileSizeSignal();
    sheet("hojaTres");
    rows({{"1", "2", "3"}});
    save(file("a.XYZ"));
    const Bytes before = bytesOf(file("a.XYZ"));
    rows({{"4", "5", "6"}});
    for (std::size_t room = 0; room < 24; ++room) {
        {
            const FileSizeLimit limit(room);
            save(file("a.XYZ"));
            save(file("new.XYZ"));
        }
        ASSERT_EQ(bytesOf(file("a.XYZ")), before) << room;
        ASSERT_FALSE(std::filesystem::exists(file("new.XYZ"))) << room;
        ASSERT_FALSE(program.variables.archivoUnoEnUso) << room;
    }
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_FALSE(program.ended());
    save(file("a.XYZ"));
    EXPECT_EQ(bytesOf(file("a.XYZ")).size(), 24U) << "the next command works";
}

TEST_F(WorksheetFileFailuresTest, APipeHoldsNobody) {
    ASSERT_TRUE(makeNamedPipe(file("pipe")));
    sheet("hojaUno");
    values({"1"});
    save(file("pipe"));
    EXPECT_EQ(data(), "1.0");
    load(file("pipe"));
    EXPECT_EQ(marks(), "[?]");
    EXPECT_FALSE(program.variables.archivoUnoEnUso);
    EXPECT_EQ(messages(), std::vector<Message>{});
}
#endif

TEST_F(WorksheetFileFailuresTest, AppendingPastThe16BitsIsFatal) {
    sheet("hojaUno");
    load(zeros(32765));
    values({"1"});
    EXPECT_TRUE(fatal(6));
}

} // namespace
} // namespace caudalera
