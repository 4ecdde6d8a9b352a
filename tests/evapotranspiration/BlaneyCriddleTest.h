#pragma once

#include "tests/evapotranspiration/MonthlyTest.h"

#include <string>

namespace caudalera {

/// The open Blaney-Criddle window.
class BlaneyCriddleTest : public MonthlyTest {
protected:
    BlaneyCriddleTest() { open("frmBlaneyCriddle"); }

    bool shown(const std::string& name) { return control<Control>(name).visible; }

    void estimate() {
        choose("cobInsolacion", "Despejado (0.85-0.95)");
        choose("cobHumedad", "Media (20-50)");
        choose("cobViento", "Moderado (7.2-18)");
        choose("cobKc", "Alfalfa (0.85)");
    }
    void measure(const std::string& n, const std::string& HRmin, const std::string& U) {
        click("OptMedido");
        enter("txtcn", n);
        enter("txtchrmin", HRmin);
        enter("txtcv", U);
    }

    const Message twelveMonths =
        told("Ingresar las temperaturas promedios mensuales, para los 12 meses");
    const Year noResults = Year(12, "|||||");
};

// By another program with the same singles. January: f = (0.46 x 22.6 + 8.13) 0.26 = 4.81676, ETo =
// -2.5 + 1.61 f = 5.25498, times 0.85 = 4.46674, times 31 = 138.469.
inline const Year estimatedAtTenNorth = {
    "Ene|22.6|0.26|5.255|4.467|138.47", "Feb|23.1|0.27|5.653|4.805|134.55",
    "Mar|23.9|0.27|5.813|4.941|153.18", "Abr|24.4|0.28|6.225|5.291|158.73",
    "May|24.1|0.28|6.163|5.238|162.38", "Jun|23.6|0.29|6.365|5.41|162.3",
    "Jul|23.4|0.29|6.322|5.373|166.57", "Ago|23.5|0.28|6.038|5.132|159.11",
    "Set|23.2|0.28|5.976|5.08|152.39",  "Oct|22.9|0.27|5.613|4.771|147.91",
    "Nov|22.5|0.26|5.236|4.45|133.51",  "Dic|22.3|0.26|5.197|4.418|136.95"};

} // namespace caudalera
