#include "shell/window/Program.h"
#include "shell/report/frmPadre.h"
#include "tests/support/TestSheet.h"

#include <memory>
#include <new>
#include <string>
#include <vector>

namespace caudalera {
namespace {

class ProgramTest : public SheetTest {
protected:
    std::vector<std::string> loaded() const {
        std::vector<std::string> names;
        for (const auto& each : program.windows())
            names.push_back(each->name());
        return names;
    }
    bool exited() const {
        return platform.ending && platform.ending->reason == Ending::Reason::exit;
    }
};

using Names = std::vector<std::string>;

TEST_F(ProgramTest, StartsWithTheMainWindowAlone) {
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
    EXPECT_TRUE(program.find("frmCaudalera")->visible);
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(ventanaDeReportes(program), nullptr);
}

TEST_F(ProgramTest, AnUnknownWindowIsNotShown) {
    Window* shown = program.find("frmCaudalera");
    program.act([&] { shown = program.show("frmNinguna"); });
    EXPECT_EQ(shown, nullptr);
    EXPECT_FALSE(program.knows("frmNinguna"));
    EXPECT_TRUE(program.knows("hojaTres"));
    EXPECT_TRUE(program.knows("frmacerc"));
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
}

TEST_F(ProgramTest, ShowingAnOpenWindowBringsItForwardWithItsDataUntouched) {
    TestSheet& first = sheet("hojaUno");
    values({"3", "5"});
    sheet("hojaTres");
    EXPECT_EQ(program.front()->name(), "hojaTres");
    const auto shownBefore = first.shown;
    EXPECT_EQ(&sheet("hojaUno"), &first);
    EXPECT_EQ(program.front(), &first);
    EXPECT_GT(first.shown, shownBefore);
    EXPECT_EQ(data(), "3.0/5.0");
    EXPECT_EQ(loaded(), (Names{"frmCaudalera", "hojaUno", "hojaTres"}));
}

TEST_F(ProgramTest, SeveralWorksheetsStandOpenAndShareNothing) {
    sheet("hojaUno");
    values({"1"});
    sheet("hojaDos");
    EXPECT_EQ(data(), "");
    rows({{"7", "8"}});
    window("hojaUno");
    EXPECT_EQ(data(), "1.0");
}

TEST_F(ProgramTest, MenuPrincipalUnloadsTheWorksheetAndShowsTheMainWindow) {
    sheet("hojaUno");
    values({"3", "5"});
    click("bMenu");
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
    EXPECT_EQ(program.front()->name(), "frmCaudalera");
    sheet("hojaUno");
    EXPECT_EQ(data(), "") << "the next opening starts from the load state";
    EXPECT_EQ(marks(), "[?]");
}

TEST_F(ProgramTest, LoadingResetsTheGridAndThenTheResults) {
    EXPECT_EQ(sheet().pasos, Names{"reiniciarResultados con 2 filas"});
}

TEST_F(ProgramTest, ClosingByTheFrameUnloads) {
    sheet("hojaUno");
    values({"3"});
    program.close(window("hojaUno"));
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
    EXPECT_FALSE(program.ended());
    sheet("hojaUno");
    EXPECT_EQ(data(), "");
}

TEST_F(ProgramTest, ClosingTheMainWindowLeavesTheOthersOpen) {
    sheet("hojaUno");
    values({"3"});
    program.close(*program.find("frmCaudalera"));
    EXPECT_EQ(loaded(), Names{"hojaUno"});
    EXPECT_FALSE(program.ended());
    EXPECT_EQ(data(), "3.0");
    click("bMenu");
    EXPECT_EQ(loaded(), Names{"frmCaudalera"}) << "the menu command makes a new one";
    EXPECT_FALSE(program.ended());
}

TEST_F(ProgramTest, ClosingTheLastWindowEndsTheProgram) {
    program.close(*program.find("frmCaudalera"));
    EXPECT_TRUE(exited());
    EXPECT_TRUE(program.ended());
}

TEST_F(ProgramTest, SalirEndsAtOnceWithoutAnyQuestion) {
    sheet("hojaUno");
    values({"3"});
    click("bReporte");
    window("frmCaudalera");
    click("bsalir");
    EXPECT_TRUE(exited());
    EXPECT_EQ(messages(), std::vector<Message>{});
    EXPECT_TRUE(platform.dialogsSeen.empty());
    EXPECT_TRUE(platform.settings.empty()) << "the report window is discarded, not closed";
}

TEST_F(ProgramTest, TheMenusSalirDoesTheSame) {
    click("mparasalir");
    EXPECT_TRUE(exited());
}

TEST_F(ProgramTest, AFailureWithoutATrapIsFatal) {
    sheet("hojaUno");
    click("bCalcular");
    EXPECT_TRUE(fatal(11)) << "the mean of no values divides by 0";
    EXPECT_EQ(program.ended()->number, 11);
    EXPECT_EQ(messages(), std::vector<Message>{});
}

TEST_F(ProgramTest, AFatalFailureLeavesWhatWasWrittenBefore) {
    auto& hoja = sheet("hojaUno");
    for (long i = 0; i < TestSheet::capacidad + 1; ++i)
        values({"1"});
    EXPECT_FALSE(program.ended()) << "the grid itself has no limit";
    click("bCalcular");
    EXPECT_TRUE(fatal(9));
    EXPECT_EQ(hoja.valor(1, TestSheet::capacidad).value(), 1.0);
}

TEST_F(ProgramTest, AfterTheEndNothingRunsAndThePlatformIsToldOnce) {
    auto& hoja = sheet("hojaUno");
    click("bCalcular");
    platform.ending.reset();
    values({"1"});
    click("bMenu");
    program.close(hoja);
    EXPECT_EQ(data(), "");
    EXPECT_EQ(program.find("hojaUno"), &hoja);
    EXPECT_FALSE(platform.ending);
}

TEST_F(ProgramTest, AFailureDuringTheLoadOfAWindowIsFatal) {
    platform.settings["MainLeft"] = "1e999";
    program.act([&] { program.show("frmPadre"); });
    EXPECT_TRUE(fatal(6));
}

TEST_F(ProgramTest, AnActInsideAnActIsTheSameEvent) {
    sheet("hojaUno");
    const Window* const hoja = program.find("hojaUno");
    program.act([&] {
        click("bMenu");
        EXPECT_EQ(hoja->name(), "hojaUno") << "what the running event stands on is kept";
    });
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
}

TEST_F(ProgramTest, AWindowThatIsHeldBeyondItsUnloadingTakesNoMoreActs) {
    sheet("hojaUno");
    values({"3", "5"});
    const std::shared_ptr<Window> held = program.windows().back();
    auto& hoja = dynamic_cast<TestSheet&>(*held);
    EXPECT_TRUE(held->loaded());
    click("bMenu");
    EXPECT_FALSE(held->loaded());
    hoja.pasos.clear();
    const auto shown = program.find("frmCaudalera")->shown;
    const Control* const focus = hoja.focus();

    program.click(hoja.bMenu);
    program.click(hoja.bLimpiar);
    program.click(hoja.optB);
    program.click(hoja.mnuEditEliminar);
    program.changeText(hoja.txtotro, "7");
    program.key(hoja.txtotro, {Key::Kind::character, U'7'});
    program.key(hoja.bMenu, {Key::Kind::enter});
    program.key(hoja.grdt, {Key::Kind::up});
    program.choose(hoja.lista, "dos");
    program.selectCell(hoja.grdt, 1, 1);
    program.rightClick(hoja.grdt);
    program.scroll(hoja.grdt, 2);
    program.focus(hoja.txtotro);
    program.leave(hoja.grdt);
    program.close(hoja);

    EXPECT_EQ(hoja.pasos, Names{});
    EXPECT_EQ(program.find("frmCaudalera")->shown, shown) << "bMenu does not run again";
    EXPECT_FALSE(hoja.optB.checked());
    EXPECT_EQ(hoja.txtotro.text(), "");
    EXPECT_EQ(hoja.lista.text(), "uno");
    EXPECT_EQ(hoja.grdt.Rows(), 4) << "two values and the append row stand as they were left";
    EXPECT_EQ(hoja.grdt.Row(), 3);
    EXPECT_EQ(hoja.focus(), focus);
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
    EXPECT_FALSE(program.ended());
}

TEST_F(ProgramTest, ADocumentThatIsHeldOutlivesItsClosing) {
    program.act([&] { program.show("frmPadre"); });
    frmPadre& padre = *ventanaDeReportes(program);
    const std::shared_ptr<frmDocumento> held = padre.documents().front();
    program.act([&] { padre.closeDocument(*held); });
    EXPECT_EQ(padre.active(), nullptr);
    EXPECT_EQ(held->caption, "Documento 1");
    program.act([&] { padre.closeDocument(*held); });
    EXPECT_TRUE(padre.documents().empty());
}

TEST_F(ProgramTest, AnExceptionThatIsNoFailureGoesOnAndTheNextActIsAnEventOfItsOwn) {
    sheet("hojaUno");
    EXPECT_THROW(program.act([] { throw std::bad_alloc(); }), std::bad_alloc);
    EXPECT_THROW(program.act([&] { program.act([] { throw std::bad_alloc(); }); }), std::bad_alloc);
    EXPECT_FALSE(program.ended());
    click("bCalcular");
    EXPECT_TRUE(fatal(11)) << "the end is told as soon as the act is over";
}

TEST_F(ProgramTest, AFaultEndsTheProgramAtOnceAndIsToldOnce) {
    program.act([&] {
        program.fail("memoria agotada");
        ASSERT_TRUE(platform.ending);
        EXPECT_EQ(platform.ending->reason, Ending::Reason::fault);
        EXPECT_EQ(platform.ending->what, "memoria agotada");
        platform.ending.reset();
    });
    program.fail("otra");
    EXPECT_FALSE(platform.ending);
    EXPECT_EQ(program.ended()->what, "memoria agotada");
    click("mayuacerca");
    EXPECT_EQ(loaded(), Names{"frmCaudalera"});
}

TEST_F(ProgramTest, PrintingSendsTheWindowWithoutADialog) {
    sheet("hojaUno");
    click("bImprimir");
    ASSERT_EQ(platform.printed.size(), 1U);
    EXPECT_EQ(platform.printed[0].what, "window");
    EXPECT_EQ(platform.printed[0].name, "hojaUno");
    EXPECT_TRUE(platform.dialogsSeen.empty());
}

TEST_F(ProgramTest, LimpiarReturnsToTheLoadState) {
    auto& hoja = sheet("hojaUno");
    values({"3", "5"});
    click("bCalcular");
    EXPECT_EQ(text("txtres"), "4.00");
    EXPECT_EQ(cellText("grdres", 1, 0), "4.00");
    click("bLimpiar");
    EXPECT_EQ(text("txtres"), "");
    EXPECT_EQ(cellText("grdres", 1, 0), "");
    EXPECT_EQ(hoja.grdt.Rows(), 2);
    EXPECT_EQ(marks(), "[?]");
    EXPECT_FALSE(program.ended());
}

TEST_F(ProgramTest, ResultsStandUntilTheNextCalculation) {
    sheet("hojaUno");
    values({"3", "5"});
    click("bCalcular");
    values({"10"});
    EXPECT_EQ(text("txtres"), "4.00");
    click("bCalcular");
    EXPECT_EQ(text("txtres"), "6.00");
}

TEST_F(ProgramTest, TheCalculatorOpensFromEveryWorksheetAsOneInstance) {
    sheet("hojaUno");
    EXPECT_EQ(control<Button>("bCalculadora").enabled, program.knows("frmCalculadora"));
    if (!program.knows("frmCalculadora"))
        return;
    click("bCalculadora");
    const Window* const calculator = program.find("frmCalculadora");
    sheet("hojaDos");
    click("bCalculadora");
    EXPECT_EQ(program.front(), calculator);
}

TEST_F(ProgramTest, TheCommandsReadAsTheFormsDo) {
    auto& hoja = sheet();
    const std::vector<std::pair<const Button*, std::array<std::string, 2>>> told = {
        {&hoja.bCalcular, {"Calc&ular", "Efectuar cálculos"}},
        {&hoja.bLimpiar, {"&Limpiar", "Limpiar pantalla"}},
        {&hoja.bImprimir, {"&Imprimir", "Imprimir pantalla"}},
        {&hoja.bMenu, {"&Menú Principal", "Retornar menú principal"}},
        {&hoja.bReporte, {"&Reporte", "Generar reporte"}},
        {&hoja.bCrear, {"&Crear", "Crear archivo"}},
        {&hoja.bAccesar, {"&Accesar", "Cargar archivo"}},
        {&hoja.bCalculadora, {"Calculadora", ""}},
    };
    for (const auto& [button, texts] : told) {
        EXPECT_EQ(button->caption, texts[0]);
        EXPECT_EQ(button->toolTip, texts[1]);
    }
    EXPECT_EQ(hoja.Frame7.caption, "Archivos y resultados:");
    EXPECT_EQ(hoja.mnuEdicion.caption, "Edición");
    EXPECT_EQ(hoja.mnuEditInsertar.caption, "Insertar Fila");
    EXPECT_EQ(hoja.mnuEditEliminar.caption, "Eliminar Fila");
}

} // namespace
} // namespace caudalera
