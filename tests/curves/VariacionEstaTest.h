#pragma once

#include "shell/window/Graph.h"
#include "shell/window/MSFlexGrid.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera::testing {

/// The window of the seasonal variation curve, open.
class VariacionEstaTest : public WindowTest {
protected:
    using Texts = std::vector<std::string>;

    VariacionEstaTest() { open("frmVariacionEsta"); }

    const Texts firstYear = {"12.5", "10", "8.25", "6",  "15", "40",
                             "62.5", "80", "110",  "95", "50", "22"};
    const Texts secondYear = {"10", "9",   "7.5", "7",   "30",   "55",
                              "50", "100", "90",  "120", "38.5", "18"};
    /// What two years give, as e to the power mean + z s of the logarithms with the approximated
    /// variates z, in 40-digit decimal arithmetic.
    const Texts curves = {
        "Ene|10.29|10.05|9.79|9.49|9.13|8.62",     "Feb|9.12|9.02|8.91|8.78|8.62|8.39",
        "Mar|7.59|7.52|7.43|7.34|7.22|7.04",       "Abr|6.12|6.02|5.91|5.79|5.64|5.42",
        "May|16.41|15.24|14.04|12.76|11.32|9.47",  "Jun|41.68|40.3|38.81|37.14|35.15|32.38",
        "Jul|51.47|50.26|48.95|47.47|45.67|43.12", "Ago|82.35|80.42|78.32|75.95|73.07|68.99",
        "Set|92.37|90.42|88.3|85.89|82.95|78.78",  "Oct|97.92|95.52|92.91|89.97|86.4|81.36",
        "Nov|39.83|38.73|37.56|36.23|34.62|32.37", "Dic|18.47|18.08|17.66|17.18|16.59|15.76"};
    const Texts noCurves = Texts(12, "||||||");

    void calculateTwoYears() {
        values(firstYear);
        values(secondYear);
        click("bCalcular");
    }

    Texts results() {
        Texts rows;
        for (long row = 1; row <= 12; ++row)
            rows.push_back(rowText("grddis", row));
        return rows;
    }
    Graph& chart() { return control<Graph>("Graph1"); }

    /// Sets the text of a data cell, whose row the pop-up and the arrows reach as well.
    void setCell(long row, const std::string& text) {
        cell("grdt", row, 1);
        type("grdt", text);
        key("txtt", Key::Kind::up);
    }
    void deleteRow(long row) {
        cell("grdt", row, 1);
        click("mnuEditEliminar");
    }

    const Message incomplete{"Ingresar los datos de años completos", "Datos mensuales incompletos",
                             Icon::information};
    const Message zeros{
        "Los valores de la serie no pueden ser iguales a 0, ¡Revisar y corregir valores¡",
        "Mensaje de error", Icon::information};
    const Message failed{"Ingresar datos adecuadamente ", "Mensaje de error", Icon::information};
    const Message notCalculated{"Efectuar cálculos antes de graficar", "Mensaje de Error",
                                Icon::error};
};

} // namespace caudalera::testing
