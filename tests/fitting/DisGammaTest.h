#pragma once

#include "shell/window/Graph.h"
#include "shell/window/MSFlexGrid.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera::testing {

/// One of the windows of the gamma family, open. Their expected values are computed with the
/// parameters' formulas and the exact incomplete gamma function in 30-digit arithmetic (mpmath),
/// linear moments from probability-weighted moments; the windows' own series is off by 3E-7 at
/// most.
class DisGammaTest : public WindowTest {
protected:
    using Texts = std::vector<std::string>;

    explicit DisGammaTest(const std::string& form) { open(form); }

    void fit(const Texts& series) {
        values(series);
        click("bCalcular");
    }

    /// Takes all rows of data out, as the pop-up does.
    void emptyRows() {
        auto& grdt = control<MSFlexGrid>("grdt");
        while (grdt.Rows() > 2) {
            cell("grdt", grdt.Rows() - 2, 1);
            click("mnuEditEliminar");
        }
    }

    /// In place of the series that stands there.
    void refit(const Texts& series) {
        emptyRows();
        fit(series);
    }

    void load(const std::vector<float>& series) {
        writeSingles(file("serie.X"), series);
        platform.answers = {file("serie.X")};
        click("bAccesar");
    }

    /// The rows of `grddis` that hold something.
    Texts resultRows() {
        Texts rows;
        for (long row = 1; row < control<MSFlexGrid>("grddis").Rows(); ++row)
            if (rowText("grddis", row) != "|||||")
                rows.push_back(rowText("grddis", row));
        return rows;
    }

    Texts texts(const Texts& fields) {
        Texts all;
        for (const std::string& field : fields)
            all.push_back(text(field));
        return all;
    }
    /// Position, shape and scale by ordinary and by linear moments.
    Texts three() {
        return texts({"txtxo", "txtgamma", "txtbeta", "txtxol", "txtgammal", "txtbetal"});
    }
    /// Shape and scale by ordinary and by linear moments.
    Texts two() { return texts({"txtgamma", "txtbeta", "txtgammal", "txtbetal"}); }

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

    const Message badData{"Ingresar datos adecuadamente ", "Mensaje de error", Icon::information};
    const Message badLogPearson{
        "Sus datos no se ajustan a la distribución log-Pearson tipo 3. Guarde sus datos y pruebe "
        "ajustar con otra distribución ",
        "Mensaje de error", Icon::information};

    /// Of flows: mean 37, S = 35.98611, Cs = 1.99723, l2 / l1 = 0.51351, t = 0.63158.
    const Texts skewed = {"10", "20", "30", "100", "25"};
};

} // namespace caudalera::testing
