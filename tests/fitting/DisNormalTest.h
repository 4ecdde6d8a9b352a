#pragma once

#include "shell/window/Graph.h"
#include "shell/window/MSFlexGrid.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera::testing {

/// The window of the normal distribution, open.
class DisNormalTest : public WindowTest {
protected:
    using Texts = std::vector<std::string>;

    DisNormalTest() { open("frmDisNormal"); }

    void fit(const Texts& series) {
        values(series);
        click("bCalcular");
    }

    /// Takes all rows of data out but the first `kept`, as the pop-up does.
    void keepRows(long kept) {
        auto& grdt = control<MSFlexGrid>("grdt");
        while (grdt.Rows() - 2 > kept) {
            cell("grdt", grdt.Rows() - 2, 1);
            click("mnuEditEliminar");
        }
    }

    void load(const std::vector<float>& series) {
        writeSingles(file("serie.X"), series);
        platform.answers = {file("serie.X")};
        click("bAccesar");
    }

    /// 1, 2, 3 and so on.
    static std::vector<float> countingSeries(int n) {
        std::vector<float> series;
        for (int i = 1; i <= n; ++i)
            series.push_back(static_cast<float>(i));
        return series;
    }

    /// Xm, S, Xl, Sl.
    Texts parameters() { return {text("txtux"), text("txtSX"), text("txtmedial"), text("txtsl")}; }
    const Texts noParameters = Texts(4, "");

    /// The result of a command that reads one field and writes another.
    std::string ask(const std::string& field, const std::string& value, const std::string& button,
                    const std::string& answer) {
        enter(field, value);
        click(button);
        return text(answer);
    }
    std::string flowOf(const std::string& T) { return ask("txtxt", T, "bQ", "txtxq"); }
    std::string periodOf(const std::string& q) { return ask("txtxq", q, "bT", "txtxt"); }
    std::string above(const std::string& q) { return ask("txtxq", q, "bPmayor", "txtxp"); }
    std::string below(const std::string& q) { return ask("txtxq", q, "bPmenor", "txtxp"); }

    const std::vector<Message> badData = {
        {"Ingresar datos adecuadamente ", "Mensaje de error", Icon::information}};
};

} // namespace caudalera::testing
