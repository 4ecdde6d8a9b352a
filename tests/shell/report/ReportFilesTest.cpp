#include "shell/files/FileSizeSignal.h"
#include "shell/files/TextFile.h"
#include "shell/report/frmPadre.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

/// The commands of the report window, opened by itself with one document.
class ReportFilesTest : public WindowTest {
protected:
    ReportFilesTest() { open("frmPadre"); }

    frmPadre& padre() { return *ventanaDeReportes(program); }
    frmDocumento& document() { return *padre().active(); }
    void write(const std::string& text) {
        program.act([&] { document().rtfText.setSelText(text); });
    }
    void select(std::size_t start, std::size_t length) {
        program.act([&] { document().rtfText.select(start, length); });
    }
    void closeAll() {
        while (padre().active())
            program.act([&] { padre().closeDocument(document()); });
    }
    /// Clicks with these answers of the dialogs.
    void click(const std::string& entry, std::vector<std::optional<std::string>> answers = {}) {
        platform.answers.assign(answers.begin(), answers.end());
        WindowTest::click(entry);
    }
    std::string seen() {
        std::string all;
        for (const auto& each : std::exchange(platform.dialogsSeen, {}))
            all += each.kind + ":" + each.title + ":" + each.filter + ";";
        return all;
    }
    std::string saved(const std::string& path) { return readRtf(leerArchivo(path)).text(); }
};

constexpr const char* saving = "save:Guardar:Archivos (*.RTF)|*.RTF;";
constexpr const char* savingAs = "save:Guardar como:Archivos RTF(*.RTF)|*.RTF;";
constexpr const char* opening = "open:Abrir:Archivos (*.RTF)|*.RTF;";
constexpr const char* printing = "print:Imprimir:;";

TEST_F(ReportFilesTest, SavingANewDocumentAsksEachTimeAndKeepsItsCaption) {
    write("uno\nañ€");
    click("mnuFileSave", {file("a.rtf")});
    EXPECT_EQ(seen(), saving);
    EXPECT_TRUE(looksLikeRtf(leerArchivo(file("a.rtf"))));
    EXPECT_EQ(saved(file("a.rtf")), "uno\nañ€");
    EXPECT_EQ(document().caption, "Documento 1");
    click("mnuFileSave", {file("b.rtf")});
    EXPECT_EQ(seen(), saving);
    EXPECT_EQ(saved(file("b.rtf")), "uno\nañ€");
}

TEST_F(ReportFilesTest, WhatIsSavedOrCopiedNamesTheBoxesFont) {
    platform.font.name = "Fuente del recuadro";
    platform.font.halfPoints = 17;
    write("uno");
    click("mnuFileSave", {file("a.rtf")});
    click("mnuFileSaveAs", {file("b.rtf")});
    select(0, 3);
    click("mnuEditCopy");
    for (const std::string& rtf :
         {leerArchivo(file("a.rtf")), leerArchivo(file("b.rtf")), platform.clipboard}) {
        EXPECT_NE(rtf.find(" Fuente del recuadro;"), std::string::npos) << rtf;
        EXPECT_NE(rtf.find("\\fs17 Normal;"), std::string::npos) << rtf;
    }
    click("mnuFileOpen", {file("a.rtf")});
    EXPECT_EQ(document().rtfText.paragraphs().front().runs.front().format, CharacterFormat{});
}

TEST_F(ReportFilesTest, ACancelledSaveDoesNothing) {
    write("uno");
    click("mnuFileSave", {std::nullopt});
    click("mnuFileSaveAs", {std::nullopt});
    click("mnuFileSave", {""});
    EXPECT_EQ(document().caption, "Documento 1");
    EXPECT_FALSE(program.ended());
}

TEST_F(ReportFilesTest, SaveAsNamesTheDocumentAndSaveGoesToItWithoutADialog) {
    write("uno");
    click("mnuFileSaveAs", {file("a.rtf")});
    EXPECT_EQ(seen(), savingAs);
    EXPECT_EQ(document().caption, file("a.rtf"));
    write(" dos");
    click("mnuFileSave");
    EXPECT_EQ(seen(), "");
    EXPECT_EQ(saved(file("a.rtf")), "uno dos");
}

TEST_F(ReportFilesTest, AFileWhosePathStartsWithDocumentStillAsks) {
    write("uno");
    document().caption = "Documents/a.rtf";
    click("mnuFileSave", {file("b.rtf")});
    EXPECT_EQ(seen(), saving);
    EXPECT_EQ(saved(file("b.rtf")), "uno");
    EXPECT_EQ(document().caption, "Documents/a.rtf");
    document().caption = file("documento.rtf");
    click("mnuFileSave");
    EXPECT_EQ(seen(), "");
    EXPECT_EQ(saved(file("documento.rtf")), "uno");
}

TEST_F(ReportFilesTest, SavingWithoutADocumentIsFatal) {
    closeAll();
    click("mnuFileSave");
    EXPECT_TRUE(fatal(91));
}

TEST_F(ReportFilesTest, ASaveThatCannotBeWrittenIsFatal) {
    click("mnuFileSave", {file("none/a.rtf")});
    EXPECT_TRUE(fatal(75));
}

TEST_F(ReportFilesTest, ASaveAsThatCannotBeWrittenIsFatal) {
    click("mnuFileSaveAs", {file("none/a.rtf")});
    EXPECT_TRUE(fatal(75));
}

#ifdef CAUDALERA_POSIX_FILES
TEST_F(ReportFilesTest, ASaveThatTheDiskBreaksOffIsFatalAndLeavesTheFileWhole) {
    ignoreFileSizeSignal();
    write("uno");
    click("mnuFileSaveAs", {file("a.rtf")});
    const std::string before = leerArchivo(file("a.rtf"));
    write(" dos");
    {
        const FileSizeLimit limit(before.size());
        click("mnuFileSave");
    }
    EXPECT_TRUE(fatal(75));
    EXPECT_EQ(leerArchivo(file("a.rtf")), before);
}

TEST_F(ReportFilesTest, OpeningAPipeIsFatalAndHoldsNobody) {
    ASSERT_TRUE(makeNamedPipe(file("pipe")));
    click("mnuFileOpen", {file("pipe")});
    EXPECT_TRUE(fatal(75));
}

TEST_F(ReportFilesTest, SavingToAPipeIsFatalAndHoldsNobody) {
    ASSERT_TRUE(makeNamedPipe(file("pipe")));
    click("mnuFileSaveAs", {file("pipe")});
    EXPECT_TRUE(fatal(75));
}
#endif

TEST_F(ReportFilesTest, WithoutADocumentTheOtherCommandsDoNothing) {
    closeAll();
    for (const char* entry :
         {"mnuFileSaveAs", "mnuFilePrint", "mnuEditCut", "mnuEditCopy", "mnuEditPaste"})
        click(entry, {file("a.rtf")});
    EXPECT_EQ(seen(), "");
    EXPECT_EQ(platform.clipboard, "");
    EXPECT_TRUE(platform.printed.empty());
    EXPECT_FALSE(program.ended());
    EXPECT_TRUE(padre().documents().empty());
}

TEST_F(ReportFilesTest, OpeningReplacesTheContentAndNamesTheDocument) {
    write("uno");
    padre().active()->rtfText.setSelAlignment(Alignment::center);
    click("mnuFileSave", {file("a.rtf")});
    click("mnuFileNew");
    write("otro");
    seen();
    click("mnuFileOpen", {file("a.rtf")});
    EXPECT_EQ(seen(), opening);
    EXPECT_EQ(padre().documents().size(), 2U);
    EXPECT_EQ(document().caption, file("a.rtf"));
    EXPECT_EQ(document().rtfText.text(), "uno");
    EXPECT_EQ(document().rtfText.paragraphs()[0].format.alignment, Alignment::center);
    EXPECT_EQ(padre().documents()[0]->caption, "Documento 1");
}

TEST_F(ReportFilesTest, ACancelledOpenChangesNothing) {
    write("uno");
    click("mnuFileOpen", {std::nullopt});
    EXPECT_EQ(document().rtfText.text(), "uno");
    EXPECT_EQ(document().caption, "Documento 1");
}

TEST_F(ReportFilesTest, OpeningWithoutADocumentMakesOneBeforeTheDialog) {
    closeAll();
    click("mnuFileOpen", {std::nullopt});
    ASSERT_NE(padre().active(), nullptr);
    EXPECT_EQ(document().caption, "Documento 2");
    EXPECT_EQ(seen(), opening);
}

TEST_F(ReportFilesTest, AFileThatIsNotRtfLoadsAsPlainText) {
    escribirArchivo(file("a.txt"), "línea 1\r\nlínea 2");
    click("mnuFileOpen", {file("a.txt")});
    EXPECT_EQ(document().rtfText.text(), "línea 1\nlínea 2");
}

TEST_F(ReportFilesTest, AFileThatIsNotThereIsFatal) {
    click("mnuFileOpen", {file("none.rtf")});
    EXPECT_TRUE(fatal(53));
}

TEST_F(ReportFilesTest, AFolderCannotBeOpenedAndIsFatal) {
    click("mnuFileOpen", {file("")});
    EXPECT_TRUE(fatal(75));
}

TEST_F(ReportFilesTest, PrintingSendsTheSelectionOrTheWholeText) {
    write("uno dos");
    click("mnuFilePrint", {"ok"});
    EXPECT_EQ(seen(), printing);
    select(0, 3);
    click("mnuFilePrint", {"ok"});
    click("mnuFilePrint", {std::nullopt});
    ASSERT_EQ(platform.printed.size(), 2U) << "a cancelled dialog prints nothing";
    EXPECT_EQ(platform.printed[0].what, "document");
    EXPECT_EQ(platform.printed[0].name, "Documento 1");
    EXPECT_FALSE(platform.printed[0].selection);
    EXPECT_TRUE(platform.printed[1].selection);
}

TEST_F(ReportFilesTest, CopyingPutsTheSelectionsRtfOnTheClipboard) {
    platform.clipboard = "old";
    write("uno dos tres");
    select(4, 3);
    click("mnuEditCopy");
    EXPECT_TRUE(looksLikeRtf(platform.clipboard));
    EXPECT_EQ(readRtf(platform.clipboard).text(), "dos");
    EXPECT_EQ(document().rtfText.text(), "uno dos tres");
}

TEST_F(ReportFilesTest, CopyingNothingEmptiesTheClipboardOfText) {
    platform.clipboard = "old";
    write("uno");
    click("mnuEditCopy");
    EXPECT_EQ(readRtf(platform.clipboard).text(), "");
}

TEST_F(ReportFilesTest, CuttingCopiesAndTakesAway) {
    write("uno dos tres");
    select(3, 4);
    click("mnuEditCut");
    EXPECT_EQ(readRtf(platform.clipboard).text(), " dos");
    EXPECT_EQ(document().rtfText.text(), "uno tres");
    EXPECT_EQ(document().rtfText.selStart(), 3U);
}

TEST_F(ReportFilesTest, PastingReplacesTheSelectionByTheClipboardsRichText) {
    write("uno dos tres");
    select(4, 3);
    click("mnuEditCut");
    select(0, 3);
    click("mnuEditPaste");
    EXPECT_EQ(document().rtfText.text(), "dos  tres");
    EXPECT_EQ(document().rtfText.selStart(), 3U);
    EXPECT_EQ(document().rtfText.selLength(), 0U);
}

TEST_F(ReportFilesTest, AClipboardThatIsNotRtfIsInsertedAsItStands) {
    write("ab");
    select(1, 0);
    platform.clipboard = "{x}\\par €";
    click("mnuEditPaste");
    EXPECT_EQ(document().rtfText.text(), "a{x}\\par €b");
}

} // namespace
} // namespace caudalera
