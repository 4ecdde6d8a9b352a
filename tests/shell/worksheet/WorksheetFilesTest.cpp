#include "tests/shell/worksheet/SheetFilesTest.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

class WorksheetFilesTest : public SheetFilesTest {};

TEST_F(WorksheetFilesTest, SavingWritesTheRowsInColumnOrder) {
    sheet("hojaDos");
    rows({{"1", "2.5"}, {"-2", "0.1"}});
    save(file("a.XY"));
    // 1 = 3F800000, 2.5 = 40200000, -2 = C0000000, 0.1 = 3DCCCCCD.
    EXPECT_EQ(bytesOf(file("a.XY")), (Bytes{0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0x20, 0x40, 0x00,
                                            0x00, 0x00, 0xC0, 0xCD, 0xCC, 0xCC, 0x3D}));
    EXPECT_EQ(data(), "1.0|2.5/-2.0|0.1") << "the grid stays as it was";
    EXPECT_EQ(messages(), std::vector<Message>{});
}

TEST_F(WorksheetFilesTest, EveryWidthGoesOutAndComesBack) {
    for (const auto& [name, row] : std::vector<std::pair<std::string, std::vector<std::string>>>{
             {"hojaUno", {"1.5"}},
             {"hojaDos", {"1.5", "2.5"}},
             {"hojaTres", {"1.5", "2.5", "3.5"}},
             {"hojaCuatro", {"1.5", "2.5", "3.5", "4.5"}}}) {
        sheet(name);
        rows({row, row, row});
        const std::string before = data();
        save(file(name));
        EXPECT_EQ(bytesOf(file(name)).size(), 3 * row.size() * 4);
        click("bLimpiar");
        EXPECT_EQ(data(), "");
        load(file(name));
        EXPECT_EQ(data(), before);
    }
}

TEST_F(WorksheetFilesTest, AnEmptyGridIsAFileOfNoLength) {
    auto& hoja = sheet("hojaUno");
    save(file("empty.X"));
    ASSERT_TRUE(std::filesystem::exists(file("empty.X")));
    EXPECT_EQ(bytesOf(file("empty.X")), Bytes{});
    values({"1", "2"});
    load(file("empty.X"));
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(marks(), "[->]");
    EXPECT_EQ(hoja.n, 0);
}

TEST_F(WorksheetFilesTest, SavingAgainWithFewerRowsLeavesAShorterFile) {
    sheet("hojaUno");
    values({"1", "2", "3"});
    save(file("a.X"));
    cell("grdt", 1, 1);
    click("mnuEditEliminar");
    save(file("a.X"));
    EXPECT_EQ(bytesOf(file("a.X")), (Bytes{0x00, 0x00, 0x00, 0x40, 0x00, 0x00, 0x40, 0x40}))
        << "2 = 40000000, 3 = 40400000";
}

TEST_F(WorksheetFilesTest, LoadingReplacesTheRowsAndGoesToTheAppendRow) {
    auto& hoja = sheet("hojaUno");
    values({"1", "2"});
    save(file("a.X"));
    values({"3", "4"});
    cell("grdt", 2, 1);
    load(file("a.X"));
    EXPECT_EQ(data(), "1.0/2.0");
    EXPECT_EQ(marks(), " 1| 2|[->]");
    EXPECT_EQ(hoja.grdt.Row(), 3);
    EXPECT_EQ(hoja.grdt.Col(), 1);
    EXPECT_EQ(hoja.n, 2);
    EXPECT_EQ(program.variables.numRegistros, 2);
    EXPECT_EQ(program.variables.nombreArchivo, file("a.X"));
    values({"9"});
    EXPECT_EQ(data(), "1.0/2.0/9.0");
}

TEST_F(WorksheetFilesTest, AValueComesBackAsTheSingleThatItIs) {
    sheet("hojaUno");
    values({"0.1", "123456.789", "16777217", "0.333333333", "1e10", "0.000000012"});
    save(file("a.X"));
    load(file("a.X"));
    // Seven significant digits of the nearest single: 123456.789 is 123456.7890625, 16777217 is
    // 16777216; 0.000000012 has no digit within eight decimals but one.
    EXPECT_EQ(data(), "0.1/123456.8/16777220.0/0.3333333/10000000000.0/0.00000001");
}

TEST_F(WorksheetFilesTest, APartialLastRecordIsIgnored) {
    sheet("hojaUno");
    writeBytes(file("ten.X"), {0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0x20, 0x40, 0x00, 0x00});
    load(file("ten.X"));
    EXPECT_EQ(data(), "1.0/2.5");
}

TEST_F(WorksheetFilesTest, AFileOfAnotherWindowIsReadByItsOwnRecordLength) {
    sheet("hojaUno");
    values({"1", "2", "3", "4", "5"});
    save(file("five.X"));
    sheet("hojaDos");
    load(file("five.X"));
    EXPECT_EQ(data(), "1.0|2.0/3.0|4.0");
    sheet("hojaMeses");
    load(file("five.X"));
    EXPECT_EQ(data(), "1.0/2.0/3.0/4.0/5.0");
    EXPECT_EQ(marks(), "Ene|Feb|Mar|Abr|May|[->]");
}

TEST_F(WorksheetFilesTest, TheTemperatureWindowsHaveAMaskOfTheirOwn) {
    sheet("hojaMascara");
    values({"12.346", "7", "20.5"});
    save(file("a.TM"));
    load(file("a.TM"));
    EXPECT_EQ(data(), "12.35/7.0/20.5");
}

TEST_F(WorksheetFilesTest, TheLastRecordStandsBehindTheRows) {
    auto& hoja = sheet("hojaUltimoUno");
    values({"1", "2"});
    hoja.registroFinal = {1970};
    save(file("a.Q"));
    // 1970 = 44F64000.
    EXPECT_EQ(bytesOf(file("a.Q")),
              (Bytes{0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0x00, 0x40, 0x00, 0x40, 0xF6, 0x44}));
    values({"3"});
    load(file("a.Q"));
    EXPECT_EQ(data(), "1.0/2.0");
    EXPECT_EQ(text("txtultimo"), "1970.0");
    EXPECT_EQ(hoja.n, 2);
    EXPECT_EQ(program.variables.numRegistros, 3);
}

TEST_F(WorksheetFilesTest, WithALastRecordAnEmptyGridIsAFileOfOne) {
    for (const auto& [name, bytes] : std::vector<std::pair<std::string, std::size_t>>{
             {"hojaUltimoUno", 4}, {"hojaUltimoDos", 8}, {"hojaUltimoTres", 12}}) {
        auto& hoja = sheet(name);
        hoja.registroFinal[0] = 7;
        save(file(name));
        EXPECT_EQ(bytesOf(file(name)).size(), bytes);
        load(file(name));
        EXPECT_EQ(hoja.grdt.Rows(), 2);
        EXPECT_EQ(text("txtultimo"), "7.0");
        EXPECT_EQ(marks(), "[->]");
    }
}

TEST_F(WorksheetFilesTest, TheDialogsReadAsTold) {
    sheet("hojaUltimoUno");
    click("bCrear");
    click("bAccesar");
    ASSERT_EQ(platform.dialogsSeen.size(), 2U);
    EXPECT_EQ(platform.dialogsSeen[0].kind, "save");
    EXPECT_EQ(platform.dialogsSeen[0].title,
              "Ubicar directorio y escribir el nombre archivo a crear");
    EXPECT_EQ(platform.dialogsSeen[0].filter, "Valores uno|*.U");
    EXPECT_EQ(platform.dialogsSeen[0].fileName, "");
    EXPECT_EQ(platform.dialogsSeen[1].kind, "open");
    EXPECT_EQ(platform.dialogsSeen[1].title, "Seleccionar el archivo a cargar");
    EXPECT_EQ(platform.dialogsSeen[1].filter, "Abrir uno|*.U");
}

TEST_F(WorksheetFilesTest, ALoadCancelledOnFirstUseHasLostGridAndResults) {
    auto& hoja = sheet("hojaUno");
    values({"2", "4"});
    click("bCalcular");
    EXPECT_EQ(cellText("grdres", 1, 0), "3.00");
    click("bAccesar");
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(marks(), "[?]");
    EXPECT_EQ(cellText("grdres", 1, 0), "");
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_FALSE(program.variables.archivoUnoEnUso);
}

TEST_F(WorksheetFilesTest, ResultsAreResetBeforeTheDialogAndTheGridAfterIt) {
    auto& hoja = sheet("hojaUno");
    values({"2", "4", "6"});
    save(file("a.X"));
    values({"8"});
    hoja.pasos.clear();
    load(file("a.X"));
    EXPECT_EQ(hoja.pasos,
              (std::vector<std::string>{"reiniciarResultados con 6 filas", "trasAccesar"}));
    hoja.pasos.clear();
    load(file("none.X"));
    EXPECT_EQ(hoja.pasos, (std::vector<std::string>{"reiniciarResultados con 5 filas"}));
}

TEST_F(WorksheetFilesTest, ACancelledDialogGivesBackTheNameChosenLastInIt) {
    sheet("hojaUno");
    values({"1"});
    save(file("a.X"));
    values({"2"});
    click("bCrear");
    EXPECT_EQ(bytesOf(file("a.X")).size(), 8U) << "saved again under the earlier name";
    EXPECT_EQ(platform.dialogsSeen.back().fileName, file("a.X"));
    click("bAccesar");
    EXPECT_EQ(data(), "") << "the other dialog has no name yet";
    load(file("a.X"));
    click("bLimpiar");
    click("bAccesar");
    EXPECT_EQ(data(), "1.0/2.0");
    sheet("hojaDos");
    click("bAccesar");
    EXPECT_EQ(data(), "") << "nor has that of another window";
}

TEST_F(WorksheetFilesTest, AReopenedWindowHasForgottenTheName) {
    sheet("hojaUno");
    values({"1"});
    save(file("a.X"));
    click("bMenu");
    sheet("hojaUno");
    std::filesystem::remove(file("a.X"));
    click("bCrear");
    EXPECT_FALSE(std::filesystem::exists(file("a.X")));
}

TEST_F(WorksheetFilesTest, ASaveCancelledOnFirstUseIsSilentAndReadsTheGridAllTheSame) {
    auto& hoja = sheet("hojaUno");
    values({"1", "2"});
    hoja.pasos.clear();
    click("bCrear");
    EXPECT_EQ(hoja.pasos, std::vector<std::string>{"leerCuadricula"});
    EXPECT_EQ(hoja.n, 2);
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_FALSE(program.variables.archivoUnoEnUso);
}

TEST_F(WorksheetFilesTest, LoadingHasNoCapacity) {
    auto& hoja = sheet("hojaUno");
    load(zeros(TestSheet::capacidad + 1));
    EXPECT_EQ(hoja.grdt.Rows(), TestSheet::capacidad + 3);
    EXPECT_EQ(hoja.n, TestSheet::capacidad + 1);
}

TEST_F(WorksheetFilesTest, LoadingUnderACommaLocaleWritesCommas) {
    auto& hoja = sheet("hojaUno");
    writeBytes(file("a.X"), {0x00, 0x00, 0x20, 0x40});
    platform.separator = ",";
    load(file("a.X"));
    EXPECT_EQ(data(), "2,5");
    save(file("b.X"));
    EXPECT_EQ(hoja.valor(1, 1).value(), 2.0);
    EXPECT_EQ(bytesOf(file("b.X")), (Bytes{0x00, 0x00, 0x00, 0x40}));
}

TEST_F(WorksheetFilesTest, LoadingWhileEditingDropsTheBox) {
    auto& hoja = sheet("hojaUno");
    values({"1"});
    save(file("a.X"));
    type("grdt", "77");
    load(file("a.X"));
    EXPECT_FALSE(hoja.txtt.visible);
    program.focus(hoja.grdt);
    EXPECT_EQ(data(), "1.0");
    EXPECT_EQ(rowText("grdt", 2), "[->]|");
}

} // namespace
} // namespace caudalera
