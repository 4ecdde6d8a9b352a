#pragma once

#include "shell/window/Graph.h"
#include "shell/window/MSFlexGrid.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera::testing {

/// The window of the duration curve, open.
class CurvaDuracionWindow : public WindowTest {
protected:
    using Texts = std::vector<std::string>;

    CurvaDuracionWindow() { open("frmCurvaDuracion"); }

    void calculate(const Texts& flows) {
        values(flows);
        click("bCalcular");
    }
    /// Q for a probability, or what the field holds when there is none.
    std::string flowOf(const std::string& P) {
        enter("txtxp", P);
        click("bQ");
        return text("txtxq");
    }
    Graph& chart() { return control<Graph>("Graph1"); }
    void keepRows(long kept) {
        auto& grdt = control<MSFlexGrid>("grdt");
        while (grdt.Rows() - 2 > kept) {
            cell("grdt", grdt.Rows() - 2, 1);
            click("mnuEditEliminar");
        }
    }

    const Message badProbability{"Ingresar un valor adecuado para la probabilidad",
                                 "Error de ingreso de dato", Icon::information};
    const Message notCalculated{"Efectuar cálculos antes de graficar", "Mensaje de Error",
                                Icon::information};
    const Message twoPoints{"Para graficar se requiere por lo menos dos puntos", "Mensaje de Error",
                            Icon::information};
    const std::string headers =
        "Nº|Q ordenado (m3/s)|Q considerado|Q adimensional|Probabilidad Q >=";
};

} // namespace caudalera::testing
