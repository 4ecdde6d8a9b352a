#pragma once

#include "shell/window/Graph.h"
#include "shell/window/MSFlexGrid.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera::testing {

/// The window of the gauging, open.
class AforoCorrenTest : public WindowTest {
protected:
    using Texts = std::vector<std::string>;
    using Rows = std::vector<Texts>;

    AforoCorrenTest() { open("frmAforoCorren"); }

    /// Three stretches whose areas are 1.5, 4.5 and 1.25 m2, velocities 0.375, 0.625 and 0.5 m/s
    /// and flows 0.5625, 2.8125 and 0.625 m3/s from a margin of 0.5 m and 0.25 m/s; together 4.
    const Rows threeStretches = {{"2", "1", "0.5"}, {"3", "2", "0.75"}, {"1", "0.5", "0.25"}};

    void calculate(const Rows& stretches) {
        rows(stretches);
        click("bCalcular");
    }
    void calculateThreeStretches() {
        enter("txtho", "0.5");
        enter("txtvo", "0.25");
        calculate(threeStretches);
    }
    /// Stretches of 1 m, 1 m and 1 m/s.
    static Rows equalStretches(std::size_t count) { return Rows(count, Texts{"1", "1", "1"}); }

    Graph& chart() { return control<Graph>("Graph1"); }
    void expectProfile(const std::vector<double>& x, const std::vector<double>& y) {
        ASSERT_TRUE(chart().x().has_value());
        EXPECT_EQ(*chart().x(), x);
        ASSERT_EQ(chart().series().size(), 1U);
        EXPECT_EQ(chart().series()[0].y, y);
        EXPECT_EQ(chart().points(), static_cast<long>(x.size()));
    }
    void expectNoResults() {
        EXPECT_EQ(control<MSFlexGrid>("grdavq").Rows(), 50);
        EXPECT_EQ(rowText("grdavq", 0), "Tramo|Area (m2)|Velocidad (m/s)|Caudal (m3/s)");
        EXPECT_EQ(rowText("grdavq", 1), "|||");
        for (const char* field : {"txtQ", "txtNR", "txtTiempo", "txtA", "txtB", "txtV"})
            EXPECT_EQ(text(field), "") << field;
        EXPECT_FALSE(chart().visible);
        EXPECT_TRUE(chart().series().empty());
    }

    const Message unsuitable{"Ingresó valores inadecuados. ¡Hacer la corrección correspondiente!"};
    const Message notCalculated{"Efectuar cálculos antes de graficar", "Mensaje de Error",
                                Icon::error};
};

} // namespace caudalera::testing
