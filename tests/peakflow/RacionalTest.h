#pragma once

#include "peakflow/frmQmaxRacional.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// The open window of the rational method.
class RacionalTest : public WindowTest {
protected:
    RacionalTest() : form(dynamic_cast<frmQmaxRacional&>(open("frmQmaxRacional"))) {}

    frmQmaxRacional& form;

    void tab(int index) { program.chooseTab(form.SSTab1, index); }
    bool shown(const std::string& name) { return control<Control>(name).visible; }
    bool checked(const std::string& option) { return control<Option>(option).checked(); }

    /// A duration that the user knows, and a return period.
    void duration(const std::string& D, const std::string& T) {
        click("optDuracionAdiSi");
        enter("txtDuracionAdi", D);
        enter("txtTi", T);
    }
    /// An area group of the land that is not urban.
    void group(const std::string& area, const std::string& cover, const std::string& texture,
               const std::string& slope) {
        enter("txtac", area);
        choose("cboCobertura", cover);
        choose("cboTextura", texture);
        enter("txts", slope);
        click("bAgregar");
    }
    void urbanGroup(const std::string& area, const std::string& surface) {
        enter("txtac", area);
        choose("cboZUrbana", surface);
        click("bAgregar");
    }
    /// Chooses the user's records as the source and types them.
    void records(const std::vector<std::vector<std::string>>& trios) {
        click("optRegistros");
        rows(trios);
    }
    /// tc, I and the I handed to the first tab, joined by '|'.
    std::string results() { return text("txttci") + "|" + text("txtImaxi") + "|" + text("txtiq"); }
};

/// Four records on the surface 400 T^0.5 D^-0.25, exactly: 400*2/2, 400*2/4, 400*4/2, 400*4/4.
inline const std::vector<std::vector<std::string>> triosDeLaSuperficie = {
    {"4", "16", "400"}, {"4", "256", "200"}, {"16", "16", "800"}, {"16", "256", "400"}};

inline constexpr const char* mensajeDePotencial =
    "Ingresó valores para T, D ó Imáx iguales a 0 ó negativos. Estos valores no permiten la "
    "correlación potencial. ¡Hacer la corrección correspondiente!";

} // namespace caudalera
