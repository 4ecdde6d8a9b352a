#pragma once

#include "shell/window/Window.h"

namespace caudalera {

/// The about box.
class frmacerc : public Window {
public:
    explicit frmacerc(Program& program);

    Picture imgLogo{*this, "imgLogo", "logo"};
    Label lblProducto{*this, "lblProducto",
                      "Caudalera: cálculos hidrológicos y estadísticos aplicados a la hidrología."};
    Button bsalir{*this, "bsalir", "&Cerrar"};
};

} // namespace caudalera
