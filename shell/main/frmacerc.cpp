#include "shell/main/frmacerc.h"

#include "shell/window/Program.h"

namespace caudalera {

frmacerc::frmacerc(Program& program)
    : Window(program, "frmacerc", "Acerca de Caudalera para Windows") {
    lblProducto.wraps = true;
    bsalir.onClick = [this] {
        this->program().unload(*this);
        this->program().show("frmCaudalera");
    };
    mainAction = &bsalir;
    setFocus(bsalir);
    layout = layout::row({layout::control(imgLogo), layout::list({&lblProducto})});
    commands = {{nullptr, {&bsalir}}};
}

} // namespace caudalera
