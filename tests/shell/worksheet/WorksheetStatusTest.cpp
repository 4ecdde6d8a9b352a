// What a worksheet tells of its data at the foot of its window, and when its results are older than
// they are.

#include "tests/shell/worksheet/SheetFilesTest.h"
#include "tests/support/TestSheet.h"

namespace caudalera {
namespace {

using Names = std::vector<std::string>;

constexpr const char* older = "Los datos cambiaron: los resultados son del cálculo anterior";

class WorksheetStatus : public SheetTest {
protected:
    TestSheet& one() { return *(sheet_ = &sheet("hojaUno")); }
    std::string status() const { return sheet_->status(); }
    Names stale() const {
        Names names;
        for (const Control* control : sheet_->staleResults())
            names.push_back(control->name());
        return names;
    }
    /// Puts another value into a row.
    void change(long row, const std::string& value) {
        cell("grdt", row, 1);
        type("grdt", value);
        key("txtt", Key::Kind::enter);
    }

private:
    TestSheet* sheet_ = nullptr;
};

TEST_F(WorksheetStatus, TellsHowManyDataThereAre) {
    one();
    EXPECT_EQ(status(), "Sin datos");
    values({"4"});
    EXPECT_EQ(status(), "1 dato");
    values({"6", "8"});
    EXPECT_EQ(status(), "3 datos");
    // What stands in the append row is no data yet.
    type("grdt", "5");
    EXPECT_EQ(status(), "3 datos");
    EXPECT_EQ(text("StatusBar1"), "");
}

TEST_F(WorksheetStatus, TellsWhatWasDoneLastUntilTheDataChange) {
    one();
    values({"4", "6"});
    click("bCalcular");
    EXPECT_EQ(status(), "2 datos · calculado");
    click("bReporte");
    EXPECT_EQ(status(), "2 datos · reporte listo");
    platform.answers = {file("aforo año 1.X")};
    click("bCrear");
    EXPECT_EQ(status(), "2 datos · guardado en aforo año 1.X");
    click("bLimpiar");
    EXPECT_EQ(status(), "Sin datos · pantalla limpia");
    platform.answers = {file("aforo año 1.X")};
    click("bAccesar");
    EXPECT_EQ(status(), "2 datos · cargado de aforo año 1.X");
    values({"9"});
    EXPECT_EQ(status(), "3 datos");
    EXPECT_EQ(stale(), Names{});
}

TEST_F(WorksheetStatus, AFailedFileCommandIsNotTold) {
    one();
    values({"4", "6"});
    click("bCalcular");
    platform.answers = {file("no/hay/carpeta.X")};
    click("bCrear");
    EXPECT_EQ(status(), "2 datos · calculado");
    platform.answers = {file("no hay.X")};
    click("bAccesar");
    EXPECT_EQ(status(), "Sin datos");
}

TEST_F(WorksheetStatus, ResultsAreOlderOnceTheDataHaveChanged) {
    one();
    values({"4", "6"});
    EXPECT_EQ(stale(), Names{});
    click("bCalcular");
    EXPECT_EQ(stale(), Names{});
    change(2, "7");
    EXPECT_EQ(stale(), Names{"grdres"});
    EXPECT_EQ(status(), std::string("2 datos · ") + older);
    EXPECT_EQ(text("txtres"), "5.00");
    click("bCalcular");
    EXPECT_EQ(stale(), Names{});
    EXPECT_EQ(status(), "2 datos · calculado");
    values({"10"});
    EXPECT_EQ(stale(), Names{"grdres"});
    EXPECT_EQ(status(), std::string("3 datos · ") + older);
    click("bLimpiar");
    EXPECT_EQ(stale(), Names{});
    EXPECT_EQ(status(), "Sin datos · pantalla limpia");
}

TEST_F(WorksheetStatus, AChangeTakenBackMakesTheResultsThoseOfTheDataAgain) {
    one();
    values({"4", "6"});
    click("bCalcular");
    change(2, "7");
    change(2, "6");
    EXPECT_EQ(stale(), Names{});
    EXPECT_EQ(status(), "2 datos · calculado");
    cell("grdt", 1, 1);
    click("mnuEditEliminar");
    EXPECT_EQ(stale(), Names{"grdres"});
    // Two values that change places are other data.
    cell("grdt", 1, 1);
    change(1, "6");
    values({"4"});
    EXPECT_EQ(stale(), Names{"grdres"});
}

TEST_F(WorksheetStatus, ACellThatIsMovedToTheNextIsAnotherContent) {
    TestSheet& two = sheet("hojaDos");
    rows({{"1", "12"}});
    const auto put = [&](const char* a, const char* b) {
        program.act([&] {
            two.grdt.setTextMatrix(1, 1, a);
            two.grdt.setTextMatrix(1, 2, b);
        });
    };
    put("1", "12");
    click("bCalcular");
    EXPECT_TRUE(two.staleResults().empty());
    put("11", "2");
    EXPECT_FALSE(two.staleResults().empty());
    put("1", "12");
    EXPECT_TRUE(two.staleResults().empty());
}

TEST_F(WorksheetStatus, ResultsThatComeOutTheSameAreNewAllTheSame) {
    one();
    values({"4", "6"});
    click("bCalcular");
    change(1, "6");
    change(2, "4");
    EXPECT_EQ(stale(), Names{"grdres"});
    click("bCalcular");
    EXPECT_EQ(text("txtres"), "5.00");
    EXPECT_EQ(stale(), Names{});
}

TEST_F(WorksheetStatus, OlderAreTheResultsThatStand) {
    TestSheet& sheet = one();
    sheet.txtres.result = true;
    values({"4", "6"});
    click("bCalcular");
    sheet.Graph1.visible = true;
    change(1, "5");
    EXPECT_EQ(stale(), (Names{"grdres", "txtres", "Graph1"}));
    sheet.grdres.visible = false;
    sheet.Graph1.visible = false;
    EXPECT_EQ(stale(), Names{"txtres"});
    sheet.txtres.setText({});
    EXPECT_EQ(stale(), Names{});
    EXPECT_EQ(status(), "2 datos");
}

} // namespace
} // namespace caudalera
