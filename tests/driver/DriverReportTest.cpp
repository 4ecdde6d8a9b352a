#include "tests/driver/DriverProcess.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

/// The report window with one report of frmParamEsta, or with documents typed by hand.
class DriverReportTest : public DriverTest {
protected:
    void openReport() {
        open("mparanoagru", "frmParamEsta");
        click("frmParamEsta", "bReporte");
    }
    /// Replaces the active document's content.
    void write(const std::string& content) {
        ok("caret", {{"position", 0}, {"length", 1000000}});
        ok("clipboard", {{"text", content}});
        click("frmDocumento", "mnuEditPaste");
    }
    std::vector<std::string> captions() {
        std::vector<std::string> all;
        const json told = report();
        for (const json& document : told["documents"])
            all.push_back(document["caption"]);
        return all;
    }
    std::string activeText() {
        const json told = report();
        return told["documents"].at(told["active"].get<std::size_t>())["text"];
    }
};

using Captions = std::vector<std::string>;

TEST_F(DriverReportTest, WithoutTheReportWindowNothingIsOpen) {
    const json told = report();
    EXPECT_EQ(told["open"], false);
    EXPECT_EQ(told["documents"], json::array());
    EXPECT_EQ(told["active"], nullptr);
    error("activate", {{"document", 0}});
    error("caret", {{"position", 0}});
    error("rtf");
    error("move", {{"window", "frmPadre"}, {"left", 1}});
    error("close", {{"window", "frmDocumento"}});
}

TEST_F(DriverReportTest, AReportIsToldPieceByPiece) {
    openReport();
    const json told = report();
    EXPECT_EQ(told["open"], true);
    EXPECT_EQ(told["active"], 0);
    ASSERT_EQ(told["documents"].size(), 1U);
    const json& document = told["documents"][0];
    EXPECT_EQ(document["caption"], "Documento 1");
    const std::string text = document["text"];
    EXPECT_TRUE(text.starts_with("Resultados\n\nCálculo de parámetros estadísticos, comunes y con "
                                 "momentos lineales\n\n\nSerie de datos X:\n\n"))
        << text;
    const auto lineFeeds = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    ASSERT_EQ(document["paragraphs"].size(), lineFeeds + 1);
    EXPECT_EQ(document["paragraphs"][0],
              (json{{"align", "center"}, {"indent", 200}, {"rightIndent", 200}}));
    EXPECT_EQ(document["paragraphs"][5],
              (json{{"align", "left"}, {"indent", 200}, {"rightIndent", 200}}));
    EXPECT_EQ(document["paragraphs"].back()["align"], "left");
}

TEST_F(DriverReportTest, DocumentsAreMadeActivatedAndClosed) {
    openReport();
    click("frmPadre", "mnuFileNew");
    click("frmDocumento", "mnuFileNew");
    EXPECT_EQ(captions(), (Captions{"Documento 1", "Documento 2", "Documento 3"}));
    EXPECT_EQ(report()["active"], 2);
    ok("activate", {{"document", 1}});
    EXPECT_EQ(report()["active"], 1);
    error("activate", {{"document", 3}});
    ok("close", {{"window", "frmDocumento"}});
    EXPECT_EQ(captions(), (Captions{"Documento 1", "Documento 3"}));
    ok("close", {{"window", "frmDocumento"}});
    ok("close", {{"window", "frmDocumento"}});
    EXPECT_EQ(report()["active"], nullptr);
    EXPECT_EQ(report()["open"], true);
    error("close", {{"window", "frmDocumento"}});
    error("click", {{"window", "frmDocumento"}, {"control", "mnuFileNew"}});
    error("rtf");
    error("caret", {{"position", 0}});
    click("frmParamEsta", "bReporte");
    EXPECT_EQ(captions(), Captions{"Documento 4"});
    EXPECT_NE(activeText(), "");
}

TEST_F(DriverReportTest, ASecondReportStandsAtTheCaret) {
    openReport();
    const std::string once = activeText();
    click("frmParamEsta", "bReporte");
    EXPECT_EQ(activeText(), once + once);
    write("antes después");
    ok("caret", {{"position", 5}, {"length", 1}});
    click("frmParamEsta", "bReporte");
    EXPECT_EQ(activeText(), "antes" + once + "después");
    error("caret", {{"position", -1}});
    error("caret", {{"position", 0}, {"length", -1}});
    error("caret");
}

TEST_F(DriverReportTest, CutCopyAndPasteGoThroughTheClipboardByCharacters) {
    openReport();
    write("añ€ dos");
    ok("caret", {{"position", 1}, {"length", 2}});
    click("frmPadre", "mnuEditCopy");
    const std::string source = ok("clipboard")["text"];
    EXPECT_TRUE(source.starts_with("{\\rtf"));
    click("frmPadre", "mnuEditCut");
    EXPECT_EQ(activeText(), "a dos");
    ok("caret", {{"position", 5}});
    click("frmDocumento", "mnuEditPaste");
    EXPECT_EQ(activeText(), "a dosñ€");
    EXPECT_TRUE(ok("rtf")["rtf"].get<std::string>().starts_with("{\\rtf"));
    error("click", {{"window", "frmDocumento"}, {"control", "sbStatusBar"}});
    error("click", {{"window", "frmDocumento"}, {"control", "none"}});
}

TEST_F(DriverReportTest, FilesAreSavedAndOpened) {
    openReport();
    write("uno\ndos");
    ok("dialog", {{"answers", {file("a.rtf"), nullptr}}});
    click("frmPadre", "mnuFileSaveAs");
    EXPECT_EQ(captions(), Captions{file("a.rtf")});
    click("frmPadre", "mnuFileSaveAs");
    write("tres");
    ok("dialog", {{"answers", {file("a.rtf")}}});
    click("frmPadre", "mnuFileOpen");
    EXPECT_EQ(activeText(), "uno\ndos");
    write("cuatro");
    click("frmPadre", "mnuFileSave");
    EXPECT_EQ(ok("dialog", {{"answers", {file("a.rtf")}}})["seen"],
              (json{{{"kind", "open"}, {"title", "Abrir"}, {"filter", "Archivos (*.RTF)|*.RTF"}}}))
        << "a document with a file is saved without asking";
    click("frmPadre", "mnuFileNew");
    click("frmPadre", "mnuFileOpen");
    EXPECT_EQ(activeText(), "cuatro");
    EXPECT_EQ(captions().size(), 2U);
}

TEST_F(DriverReportTest, AFileThatCannotBeOpenedIsFatal) {
    openReport();
    ok("dialog", {{"answers", {file("none.rtf")}}});
    EXPECT_EQ(click("frmPadre", "mnuFileOpen")["ended"],
              (json{{"reason", "fatal"}, {"number", 53}}));
}

TEST_F(DriverReportTest, ADocumentIsPrintedWholeOrByItsSelection) {
    openReport();
    write("uno dos");
    ok("dialog", {{"answers", {"yes", "", nullptr}}});
    click("frmPadre", "mnuFilePrint");
    ok("caret", {{"position", 0}, {"length", 3}});
    click("frmPadre", "mnuFilePrint");
    click("frmPadre", "mnuFilePrint");
    click("frmParamEsta", "bImprimir");
    EXPECT_EQ(ok("printed")["printed"],
              (json{{{"what", "document"}, {"name", "Documento 1"}, {"selection", false}},
                    {{"what", "document"}, {"name", "Documento 1"}, {"selection", true}},
                    {{"what", "window"}, {"name", "frmParamEsta"}, {"selection", false}}}));
    EXPECT_EQ(ok("dialog", {{"answers", json::array()}})["seen"],
              json(3, {{"kind", "print"}, {"title", "Imprimir"}, {"filter", ""}}));
}

TEST_F(DriverReportTest, ThePlaceIsKeptInTheSettings) {
    openReport();
    EXPECT_EQ(ok("settings")["settings"], json::object());
    ok("move", {{"window", "frmPadre"},
                {"left", 300},
                {"top", -15.5},
                {"width", 9000},
                {"height", 7000},
                {"minimized", false}});
    click("frmPadre", "mnuFileExit");
    const json kept = {
        {"MainLeft", "300"}, {"MainTop", "-15.5"}, {"MainWidth", "9000"}, {"MainHeight", "7000"}};
    EXPECT_EQ(ok("settings")["settings"], kept);
    EXPECT_EQ(report()["open"], false);
    click("frmParamEsta", "bReporte");
    ok("move", {{"window", "frmPadre"}, {"left", 1}, {"minimized", true}});
    ok("close", {{"window", "frmPadre"}});
    EXPECT_EQ(ok("settings")["settings"], kept) << "minimised at closing, the former ones stay";
    error("move", {{"window", "frmParamEsta"}, {"left", 1}});
}

TEST_F(DriverReportTest, MoveReadsItsMembersBeforeItMoves) {
    openReport();
    error("move", {{"window", "frmPadre"}, {"left", 5}, {"top", "x"}});
    error("move", {{"window", "frmPadre"}, {"left", 5}, {"minimized", 1}});
    click("frmPadre", "mnuFileExit");
    EXPECT_EQ(ok("settings")["settings"]["MainLeft"], "1000");
}

} // namespace
} // namespace caudalera
