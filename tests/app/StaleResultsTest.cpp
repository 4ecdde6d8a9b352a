// When the results of every window with a data grid are older than its data.

#include "shell/worksheet/Worksheet.h"
#include "tests/support/WindowTest.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace caudalera {
namespace {

/// Twelve rows of data that every window can calculate with.
std::vector<std::vector<std::string>> dataFor(const Worksheet& sheet) {
    static constexpr const char* values[] = {"21.5", "23",   "24.25", "26", "22.75", "20",
                                             "25.5", "27.5", "19.25", "28", "33.5",  "46.5"};
    std::vector<std::vector<std::string>> rows;
    const std::size_t columns = sheet.seriesLayout().fields.size();
    for (std::size_t i = 0; i < 12; ++i) {
        rows.emplace_back();
        // No column is a multiple of another.
        for (std::size_t column = 0; column < columns; ++column)
            rows.back().emplace_back(values[(i * (column + 1) + column * column) % 12]);
    }
    return rows;
}

class StaleResults : public WindowTest {
protected:
    void change(const std::string& value) {
        cell("grdt", 3, 1);
        type("grdt", value);
        key("txtt", Key::Kind::enter);
    }
    /// What some windows ask for beside the grid.
    void fillInputs(const Window& sheet) {
        for (const auto& [field, value] : {std::pair{"txtTdato", "50"},
                                           {"txtUltimaIsoyeta", "30"},
                                           {"txtanno", "1990"},
                                           {"txtvT", "25"},
                                           {"txtLi", "800"},
                                           {"txtHi", "60"},
                                           {"txtTi", "25"}}) {
            if (sheet.find(field))
                enter(field, value);
        }
        if (sheet.name() == "frmIntensidadMax")
            enter("txtvD", "30");
        for (const char* name : {"cobInsolacion", "cobHumedad", "cobViento", "cobKc"}) {
            if (const auto* list = dynamic_cast<const List*>(sheet.find(name)))
                choose(name, list->items().front());
        }
    }
};

TEST_F(StaleResults, AreThoseOfEveryWindowWhoseDataHaveChanged) {
    int calculated = 0;
    for (const WindowEntry& entry : ventanas()) {
        auto* sheet = dynamic_cast<Worksheet*>(&open(std::string(entry.name)));
        if (!sheet)
            continue;
        SCOPED_TRACE(entry.name);
        const auto* const option = sheet->find("optRegistros");
        EXPECT_EQ(sheet->status(), option ? "Listo" : "Sin datos");
        // In two windows the grid is the third tab's.
        if (option) {
            program.chooseTab(control<Tabs>("SSTab1"), 2);
            click("optRegistros");
        }
        rows(dataFor(*sheet));
        EXPECT_EQ(sheet->status(), "12 datos");
        fillInputs(*sheet);
        click(option ? "bcalcularI" : "bCalcular");
        if (sheet->status() != "12 datos · calculado")
            ADD_FAILURE() << sheet->status()
                          << (platform.messages.empty() ? ""
                                                        : "; " + platform.messages.back().text);
        ++calculated;
        EXPECT_TRUE(sheet->staleResults().empty());
        const std::string before = cellText("grdt", 3, 1);
        change("24.5");
        EXPECT_FALSE(sheet->staleResults().empty());
        EXPECT_EQ(sheet->status(),
                  "12 datos · Los datos cambiaron: los resultados son del cálculo anterior");
        change(before);
        EXPECT_TRUE(sheet->staleResults().empty());
        EXPECT_EQ(sheet->status(), "12 datos · calculado");
        change("24.5");
        click("bLimpiar");
        EXPECT_TRUE(sheet->staleResults().empty());
        program.close(*sheet);
    }
    EXPECT_EQ(calculated, 32);
}

TEST_F(StaleResults, ARefusedCalculationMakesNothingNewer) {
    const Window& sheet = open("frmParamEsta");
    values({"4", "6", "5", "8"});
    click("bCalcular");
    for (int i = 0; i < 3; ++i) {
        cell("grdt", 1, 1);
        click("mnuEditEliminar");
    }
    click("bCalcular");
    EXPECT_EQ(messages().size(), 1U);
    EXPECT_EQ(sheet.status(),
              "1 dato · Los datos cambiaron: los resultados son del cálculo anterior");
}

TEST_F(StaleResults, TheVerdictIsOneOfThem) {
    const Window& sheet = open("frmDisNormal");
    values({"4", "6", "5", "7"});
    click("bCalcular");
    values({"8"});
    const auto stale = sheet.staleResults();
    EXPECT_NE(std::find(stale.begin(), stale.end(), sheet.find("lblmensaje")), stale.end());
}

TEST_F(StaleResults, ASortedListIsOfTheDataThatWereSorted) {
    const Window& sheet = open("frmParamEsta");
    values({"6", "4", "5", "9"});
    click("bCalcular");
    click("bOrdenar");
    values({"8"});
    const auto stale = sheet.staleResults();
    EXPECT_FALSE(stale.empty());
    EXPECT_EQ(std::find(stale.begin(), stale.end(), sheet.find("grdorden")), stale.end());
}

// The intensity of a province goes by no grid, and none is shown then.
TEST_F(StaleResults, AnIntensityWithoutRecordsIsNeverOlder) {
    const Window& sheet = open("frmQmaxRacional");
    click("optProvincias");
    click("optSanJose");
    enter("txtLi", "800");
    enter("txtHi", "60");
    enter("txtTi", "25");
    click("bcalcularI");
    EXPECT_EQ(sheet.status(), "calculado");
    EXPECT_TRUE(sheet.staleResults().empty());
}

// Fewer than twelve months are refused, and the results come from the year that was read before.
TEST_F(StaleResults, WhatIsCalculatedWithoutReadingTheGridIsOlderStill) {
    const auto& sheet = dynamic_cast<Worksheet&>(open("frmThornthwaite"));
    rows(dataFor(sheet));
    click("bCalcular");
    cell("grdt", 12, 1);
    click("mnuEditEliminar");
    click("bCalcular");
    EXPECT_FALSE(sheet.staleResults().empty());
}

} // namespace
} // namespace caudalera
