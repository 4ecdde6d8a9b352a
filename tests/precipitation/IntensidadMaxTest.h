#pragma once

#include "precipitation/frmIntensidadMax.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// The open window of the equation of the largest intensity.
class IntensidadMaxTest : public WindowTest {
protected:
    IntensidadMaxTest() : form(dynamic_cast<frmIntensidadMax&>(open("frmIntensidadMax"))) {}

    frmIntensidadMax& form;

    /// The return period and the duration of the design.
    void design(const std::string& T, const std::string& D) {
        enter("txtvT", T);
        enter("txtvD", D);
    }
    /// Fits the records and evaluates the equation.
    void calculate(const std::vector<std::vector<std::string>>& trios, const std::string& T,
                   const std::string& D) {
        rows(trios);
        design(T, D);
        click("bCalcular");
    }
    std::string equation() { return rowText("grdecua", 1); }
};

/// Four records on the surface 400 T^0.5 D^-0.25, exactly: 400*2/2, 400*2/4, 400*4/2, 400*4/4.
inline const std::vector<std::vector<std::string>> triosDeLaSuperficie = {
    {"4", "16", "400"}, {"4", "256", "200"}, {"16", "16", "800"}, {"16", "256", "400"}};

/// Five records near a surface. The fit with 40 digits: K = 307.417640779, m = 0.208484256284,
/// n = -0.536784711508, R = 0.998719354083, R2 = 0.997440348219, Se = 4.81210837428; for T = 25 and
/// D = 45 77.93958089.
inline const std::vector<std::vector<std::string>> cincoTrios = {{"2", "10", "100"},
                                                                 {"2", "60", "40"},
                                                                 {"10", "10", "150"},
                                                                 {"10", "60", "55"},
                                                                 {"50", "30", "110"}};
inline constexpr const char* ecuacionDeCinco =
    "Imáx = 307.4176*T^(0.2085) *D^(-0.5368)|0.9987|0.9974|4.8121";

inline constexpr const char* mensajeDePotencial =
    "Ingresó valores para T, D ó Imax iguales a 0 ó negativos. Estos valores no permiten la "
    "correlación potencial. ¡Hacer la corrección correspondiente!";

} // namespace caudalera
