#pragma once

#include "shell/main/BBCalc.h"
#include "shell/window/Window.h"

#include <deque>
#include <string>

namespace caudalera {

/// The pocket calculator: keys, the options of the angle and the display. Keys of one kind are
/// named like members of an array, "cmdNum(7)", "cmdOp(1)" by the operation's code, "cmdSci(sin)".
/// The keyboard works them too, whatever has the focus.
class frmCalculadora : public Window {
public:
    explicit frmCalculadora(Program& program);

    Label lblDisplay{*this, "lblDisplay", ""};
    /// "M" while there is something in the memory.
    Label lblMemoria{*this, "lblMemoria", ""};
    /// First operand and operation while the display waits for the second operand.
    Label lblPendiente{*this, "lblPendiente", ""};
    MenuEntry mnuCopy{*this, "mnuCopy", "Copy"};
    MenuEntry mnuPaste{*this, "mnuPaste", "Paste"};

    OptionGroup angulo;
    Option OptDegree{*this, "OptDegree", "deg", angulo};
    Option OptRadian{*this, "OptRadian", "rad", angulo};

    Button cmdDecimal{*this, "cmdDecimal", ".", "Punto decimal"};
    Button cmdValue{*this, "cmdValue", "±", "Convertir positivo/negativo"};
    Button cmdBackSpace{*this, "cmdBackSpace", "<<", "Backspace"};
    Button cmdEquals{*this, "cmdEquals", "="};

private:
    /// Has a key do a step of the calculator's, and what follows each: the display, the message of
    /// a step that was refused.
    template <typename Step>
    void alPulsar(Button& boton, Step paso);
    template <typename Step>
    void agregar(const std::string& nombre, const std::string& rotulo, const std::string& ayuda,
                 Step paso);
    void agregarCifras();
    void agregarOperaciones();
    void agregarFunciones();
    void agregarMemoria();
    void agregarBorrado();
    void mostrar();

    bool pulsar(Key tecla);
    Control* botonDe(Key tecla) const;

    BBCalc calculadora_;
    std::deque<Button> teclas_;
};

} // namespace caudalera
