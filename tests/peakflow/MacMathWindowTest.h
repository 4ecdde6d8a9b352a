#pragma once

#include "peakflow/frmQmaxMacMath.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// The open window of the method of Mac Math.
class MacMathWindowTest : public WindowTest {
protected:
    MacMathWindowTest() : form(dynamic_cast<frmQmaxMacMath&>(open("frmQmaxMacMath"))) {}

    frmQmaxMacMath& form;

    void tab(int index) { program.chooseTab(form.SSTab1, index); }
    bool shown(const std::string& name) { return control<Control>(name).visible; }

    void group(const std::string& area, const std::string& cover, const std::string& texture,
               const std::string& slope) {
        enter("txtac", area);
        choose("cboCobertura", cover);
        choose("cboTextura", texture);
        enter("txts", slope);
        click("bAgregar");
    }
    std::string flow(const std::string& C, const std::string& I, const std::string& A,
                     const std::string& S) {
        enter("txtcq", C);
        enter("txtiq", I);
        enter("txtaq", A);
        enter("txtsp", S);
        click("bCalcular");
        return text("txtqmax");
    }
    /// A duration that the user knows, and a return period.
    void duration(const std::string& D, const std::string& T) {
        click("optDuracionAdiSi");
        enter("txtDuracionAdi", D);
        enter("txtTi", T);
    }
    /// tc, I and the I handed to the first tab, joined by '|'.
    std::string results() { return text("txttci") + "|" + text("txtImaxi") + "|" + text("txtiq"); }
};

} // namespace caudalera
