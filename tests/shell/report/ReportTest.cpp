#include "shell/report/frmPadre.h"
#include "tests/support/TestSheet.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

const std::string bloque = "Resultados\n\nHoja de prueba\n\n\n";

/// Composing a report from a worksheet into the active document.
class ReportTest : public SheetTest {
protected:
    RichText& document() { return ventanaDeReportes(program)->active()->rtfText; }
    std::vector<std::string> captions() const {
        std::vector<std::string> all;
        for (const auto& each : ventanaDeReportes(program)->documents())
            all.push_back(each->caption);
        return all;
    }
    void select(std::size_t start, std::size_t length) {
        program.act([&] { document().select(start, length); });
    }
};

using Captions = std::vector<std::string>;

TEST_F(ReportTest, ReporteShowsTheReportWindowWithOneDocument) {
    sheet();
    EXPECT_EQ(ventanaDeReportes(program), nullptr);
    click("bReporte");
    ASSERT_NE(ventanaDeReportes(program), nullptr);
    EXPECT_EQ(ventanaDeReportes(program)->caption, "Guardar datos");
    EXPECT_EQ(program.front(), ventanaDeReportes(program));
    EXPECT_EQ(captions(), Captions{"Documento 1"});
    EXPECT_EQ(messages(), std::vector<Message>{});
}

TEST_F(ReportTest, TheTitleBlockIsCentredAndWhatFollowsIsLeft) {
    auto& hoja = sheet();
    hoja.piezas = {"uno\t", "dos\n"};
    click("bReporte");
    EXPECT_EQ(report(), bloque + "uno\tdos\n");
    const auto& paragraphs = document().paragraphs();
    ASSERT_EQ(paragraphs.size(), 7U);
    for (std::size_t i = 0; i < paragraphs.size(); ++i) {
        EXPECT_EQ(paragraphs[i].format.alignment, i < 4 ? Alignment::center : Alignment::left) << i;
        EXPECT_EQ(paragraphs[i].format.indent, 200) << i;
        EXPECT_EQ(paragraphs[i].format.rightIndent, 200) << i;
    }
    EXPECT_EQ(document().selStart(), document().length()) << "the caret stands behind";
}

TEST_F(ReportTest, TheSharedCountIsThatOfTheRowsOfData) {
    sheet();
    rows({{"1", "2", "3"}, {"4", "5", "6"}});
    click("bReporte");
    EXPECT_EQ(program.variables.contadorLineas, 2);
}

TEST_F(ReportTest, TwoReportsPileUpInOneDocument) {
    auto& hoja = sheet();
    hoja.piezas = {"uno\n"};
    click("bReporte");
    hoja.piezas = {"dos\n"};
    click("bReporte");
    EXPECT_EQ(report(), bloque + "uno\n" + bloque + "dos\n");
    EXPECT_EQ(captions(), Captions{"Documento 1"});
}

TEST_F(ReportTest, TheSecondReportStandsAtTheCaret) {
    auto& hoja = sheet();
    hoja.piezas = {"uno\n"};
    click("bReporte");
    select(0, 0);
    hoja.piezas = {"dos\n"};
    click("bReporte");
    EXPECT_EQ(report(), bloque + "dos\n" + bloque + "uno\n");
}

TEST_F(ReportTest, ASelectionIsReplacedByTheReport) {
    auto& hoja = sheet();
    hoja.piezas = {"uno"};
    click("bReporte");
    select(0, document().length());
    click("bReporte");
    EXPECT_EQ(report(), bloque + "uno");
}

TEST_F(ReportTest, ReportsOfSeveralWorksheetsShareTheDocument) {
    sheet("hojaUno");
    click("bReporte");
    sheet("hojaDos");
    click("bReporte");
    EXPECT_EQ(report(), bloque + bloque);
    EXPECT_EQ(captions(), Captions{"Documento 1"});
}

TEST_F(ReportTest, WithAllDocumentsClosedANewOneIsMade) {
    sheet();
    click("bReporte");
    program.act(
        [&] { ventanaDeReportes(program)->closeDocument(*ventanaDeReportes(program)->active()); });
    EXPECT_EQ(ventanaDeReportes(program)->active(), nullptr);
    click("bReporte");
    EXPECT_EQ(captions(), Captions{"Documento 2"});
    EXPECT_EQ(report(), bloque);
    EXPECT_EQ(messages(), std::vector<Message>{});
}

TEST_F(ReportTest, TheReportGoesIntoTheActiveDocument) {
    auto& hoja = sheet();
    click("bReporte");
    frmPadre& padre = *ventanaDeReportes(program);
    window("frmPadre");
    click("mnuFileNew");
    EXPECT_EQ(captions(), (Captions{"Documento 1", "Documento 2"}));
    EXPECT_EQ(padre.active(), padre.documents()[1].get());
    program.act([&] { padre.activate(*padre.documents()[0]); });
    hoja.piezas = {"x"};
    window("hojaTres");
    click("bReporte");
    EXPECT_EQ(padre.documents()[0]->rtfText.text(), bloque + bloque + "x");
    EXPECT_EQ(padre.documents()[1]->rtfText.text(), "");
}

TEST_F(ReportTest, AFailureEndsTheReportWithItsMessageAndLeavesWhatWasInserted) {
    auto& hoja = sheet();
    hoja.piezas = {"antes\n"};
    hoja.filaDelInforme = 2;
    click("bReporte");
    expectMessage(
        {"No se puede editar el reporte: Hoja de prueba", "Mensaje de error", Icon::information});
    EXPECT_EQ(report(), bloque + "antes\n");
    EXPECT_FALSE(program.ended());
    rows({{"1", "2", "3"}});
    hoja.piezas.clear();
    hoja.filaDelInforme = 1;
    click("bReporte");
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_EQ(report(), bloque + "antes\n" + bloque + " 1\t1.0\t2.0\t3.0\t\n");
}

TEST_F(ReportTest, ClosingADocumentMakesTheOneThatWasActiveBeforeActiveAgain) {
    sheet();
    click("bReporte");
    window("frmPadre");
    click("mnuFileNew");
    click("mnuFileNew");
    frmPadre& padre = *ventanaDeReportes(program);
    program.act([&] { padre.activate(*padre.documents()[0]); });
    program.act([&] { padre.activate(*padre.documents()[1]); });
    program.act([&] { padre.closeDocument(*padre.active()); });
    EXPECT_EQ(captions(), (Captions{"Documento 1", "Documento 3"}));
    EXPECT_EQ(padre.active()->caption, "Documento 1");
    program.act([&] { padre.closeDocument(*padre.documents()[1]); });
    EXPECT_EQ(padre.active()->caption, "Documento 1") << "another one was closed";
}

TEST_F(ReportTest, AfterItsExitTheWindowStartsAnewWithDocumentoOne) {
    sheet();
    click("bReporte");
    window("frmPadre");
    click("mnuFileNew");
    click("mnuFileExit");
    EXPECT_EQ(ventanaDeReportes(program), nullptr);
    EXPECT_FALSE(program.ended());
    window("hojaTres");
    click("bReporte");
    EXPECT_EQ(captions(), Captions{"Documento 1"});
    EXPECT_EQ(report(), bloque) << "unsaved text was lost without a question";
}

TEST_F(ReportTest, AFirstRunStandsAtItsDefaults) {
    sheet();
    click("bReporte");
    EXPECT_EQ(ventanaDeReportes(program)->place, (frmPadre::Place{1000, 1000, 6500, 6500, false}));
    EXPECT_TRUE(platform.settings.empty());
}

TEST_F(ReportTest, ThePlaceIsKeptFromClosingToOpening) {
    sheet();
    click("bReporte");
    ventanaDeReportes(program)->place = {1215, -60.5, 8000, 7005, false};
    program.close(*ventanaDeReportes(program));
    EXPECT_EQ(platform.settings, (std::map<std::string, std::string>{{"MainLeft", "1215"},
                                                                     {"MainTop", "-60.5"},
                                                                     {"MainWidth", "8000"},
                                                                     {"MainHeight", "7005"}}));
    click("bReporte");
    EXPECT_EQ(ventanaDeReportes(program)->place, (frmPadre::Place{1215, -60.5, 8000, 7005, false}));
}

TEST_F(ReportTest, ClosedMinimisedTheFormerPlaceStays) {
    platform.settings = {{"MainLeft", "300"}, {"MainWidth", "9000"}};
    sheet();
    click("bReporte");
    EXPECT_EQ(ventanaDeReportes(program)->place, (frmPadre::Place{300, 1000, 9000, 6500, false}));
    ventanaDeReportes(program)->place = {1, 2, 3, 4, true};
    window("frmPadre");
    click("mnuFileExit");
    EXPECT_EQ(platform.settings,
              (std::map<std::string, std::string>{{"MainLeft", "300"}, {"MainWidth", "9000"}}));
}

TEST_F(ReportTest, TheMenuReadsAsTold) {
    sheet();
    click("bReporte");
    std::vector<std::pair<std::string, std::string>> found;
    for (const MenuEntry* title : ventanaDeReportes(program)->menuBar) {
        found.emplace_back(title->name(), title->caption);
        for (const MenuEntry* entry : title->entries) {
            if (entry)
                found.emplace_back(entry->name(), entry->caption);
        }
    }
    EXPECT_EQ(found, (std::vector<std::pair<std::string, std::string>>{
                         {"mnuFile", "&Archivo"},
                         {"mnuFileNew", "&Nuevo"},
                         {"mnuFileOpen", "A&brir..."},
                         {"mnuFileSave", "&Guardar"},
                         {"mnuFileSaveAs", "Guardar &como ..."},
                         {"mnuFilePrint", "I&mprimir..."},
                         {"mnuFileExit", "&Salir"},
                         {"mnuEdit", "&Edición"},
                         {"mnuEditCut", "Cor&tar"},
                         {"mnuEditCopy", "&Copiar"},
                         {"mnuEditPaste", "&Pegar"},
                     }));
}

} // namespace
} // namespace caudalera
