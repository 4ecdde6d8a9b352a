#pragma once

#include "shell/window/Graph.h"
#include "shell/window/MSFlexGrid.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <utility>
#include <vector>

namespace caudalera::testing {

/// The window of a distribution, open.
class FitTest : public WindowTest {
protected:
    using Texts = std::vector<std::string>;

    /// `fields`: those of the parameters, in their order.
    FitTest(const std::string& window, Texts fields)
        : noParameters(fields.size()), fields_(std::move(fields)) {
        open(window);
    }

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

    /// Fits these data in place of those that are there.
    void refit(const Texts& series) {
        keepRows(0);
        fit(series);
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

    /// The rows of `grddis` that hold something.
    Texts resultRows() {
        Texts rows;
        for (long row = 1; row < control<MSFlexGrid>("grddis").Rows(); ++row)
            if (rowText("grddis", row) != "|||||")
                rows.push_back(rowText("grddis", row));
        return rows;
    }

    Texts parameters() {
        Texts shown;
        for (const std::string& field : fields_)
            shown.push_back(text(field));
        return shown;
    }
    const Texts noParameters;

    std::string labelOf(const std::string& field) {
        const Label* label = control<TextBox>(field).label();
        return label ? label->caption : std::string();
    }
    std::string unitOf(const std::string& field) {
        const Label* unit = control<TextBox>(field).unit();
        return unit ? unit->caption : std::string();
    }

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

    /// The message boxes of one click.
    std::vector<Message> messagesOf(const std::string& button) {
        messages();
        click(button);
        return messages();
    }
    static std::vector<Message> error(const std::string& text) {
        return {{text, "Mensaje de Error", Icon::error}};
    }

    const std::vector<Message> badData = {
        {"Ingresar datos adecuadamente ", "Mensaje de error", Icon::information}};

private:
    Texts fields_;
};

} // namespace caudalera::testing
