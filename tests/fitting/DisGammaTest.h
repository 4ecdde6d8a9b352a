#pragma once

#include "tests/fitting/FitTest.h"

namespace caudalera::testing {

/// One of the windows of the gamma family, open; its parameters are shape and scale of both kinds
/// of moments, the position before them where there is one. Their expected values are computed with
/// the parameters' formulas and the exact incomplete gamma function in 30-digit arithmetic
/// (mpmath), linear moments from probability-weighted moments; the windows' own series is off by
/// 3E-7 at most.
class DisGammaTest : public FitTest {
protected:
    explicit DisGammaTest(const std::string& form) : FitTest(form, parametersOf(form)) {}

    static Texts parametersOf(const std::string& form) {
        if (form == "frmDisGamma2par")
            return {"txtgamma", "txtbeta", "txtgammal", "txtbetal"};
        return {"txtxo", "txtgamma", "txtbeta", "txtxol", "txtgammal", "txtbetal"};
    }

    Texts texts(const Texts& fields) {
        Texts all;
        for (const std::string& field : fields)
            all.push_back(text(field));
        return all;
    }

    const std::vector<Message> badLogPearson = {
        {"Sus datos no se ajustan a la distribución log-Pearson tipo 3. Guarde sus datos y pruebe "
         "ajustar con otra distribución ",
         "Mensaje de error", Icon::information}};

    /// Of flows: mean 37, S = 35.98611, Cs = 1.99723, l2 / l1 = 0.51351, t = 0.63158.
    const Texts skewed = {"10", "20", "30", "100", "25"};
};

} // namespace caudalera::testing
