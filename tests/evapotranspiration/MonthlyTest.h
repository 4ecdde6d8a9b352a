#pragma once

#include "tests/support/SeriesBytes.h"
#include "tests/support/WindowTest.h"

#include <filesystem>
#include <string>
#include <vector>

namespace caudalera {

/// What a window writes for the months of a year, as its cells joined by '|'.
using Year = std::vector<std::string>;

/// A year of a tropical valley, which the samples have too.
inline const std::vector<std::string> temperatures = {
    "22.6", "23.1", "23.9", "24.4", "24.1", "23.6", "23.4", "23.5", "23.2", "22.9", "22.5", "22.3"};
inline const std::vector<std::string> rains = {"8",   "12",  "15",  "55",  "220", "265",
                                               "190", "235", "310", "305", "130", "32"};

inline const std::vector<std::string> monthLabels = {"Ene", "Feb", "Mar", "Abr", "May", "Jun",
                                                     "Jul", "Ago", "Set", "Oct", "Nov", "Dic"};

/// The table files that the windows read are those of the build, until a test says otherwise.
class MonthlyTest : public WindowTest {
protected:
    MonthlyTest() { platform.directory = CAUDALERA_DATA_DIR; }

    /// Rows of a grid from `first` on.
    Year yearOf(const std::string& grid, long first = 1) {
        Year year;
        for (long row = first; row < first + 12; ++row)
            year.push_back(rowText(grid, row));
        return year;
    }
    /// One column of a grid, months from row 1 on.
    Year columnOf(const std::string& grid, long column) {
        Year year;
        for (long row = 1; row <= 12; ++row)
            year.push_back(cellText(grid, row, column));
        return year;
    }
    /// Puts a text into a cell of `grdt` as if it had been typed and left with Down.
    void put(long row, long col, const std::string& text) {
        cell("grdt", row, col);
        type("grdt", text);
        key("grdt", Key::Kind::down);
    }
    void load(const std::string& path) {
        platform.answers.emplace_back(path);
        click("bAccesar");
    }
    void save(const std::string& path) {
        platform.answers.emplace_back(path);
        click("bCrear");
    }
    /// Loads the window anew, with the table files of this folder.
    void reopen(const std::string& name, const std::filesystem::path& folder) {
        platform.directory = folder;
        if (program.find(name)) {
            window(name);
            click("bMenu");
        }
        open(name);
    }

    static Message told(const std::string& text) {
        return {text, "Mensaje de error", Icon::information};
    }
    const Message inadequate = told("Ingresar datos adecuadamente ");
    const Message notCalculated = {"Efectuar cálculos antes de graficar", "Mensaje de Error",
                                   Icon::error};
};

} // namespace caudalera
