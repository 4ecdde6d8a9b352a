#include "shell/main/frmCalculadora.h"

#include "shell/window/Program.h"

#include <array>
#include <type_traits>

namespace caudalera {

namespace {

struct TeclaDeOperacion {
    Operacion operacion;
    const char* rotulo;
    const char* ayuda;
};

constexpr std::array operaciones = {
    TeclaDeOperacion{Operacion::division, "÷", "Operación - división"},
    TeclaDeOperacion{Operacion::multiplicacion, "×", "Operación - multiplicación"},
    TeclaDeOperacion{Operacion::resta, "−", "Operación - subtracción"},
    TeclaDeOperacion{Operacion::suma, "+", "Operación - adición"},
    TeclaDeOperacion{Operacion::raizCuadrada, "√x", "Operación - raiz cuadrada"},
    TeclaDeOperacion{Operacion::porcentaje, "%",
                     "Operación - porcentaje - 30 (como) % (de) 300 = 1"},
    TeclaDeOperacion{Operacion::inversa, "1/x", "Operación - inversa"},
    TeclaDeOperacion{Operacion::potencia, "xⁿ", "Operación - potencia n"},
    TeclaDeOperacion{Operacion::cubo, "x³", "Operación - elevar al cubo"},
    TeclaDeOperacion{Operacion::cuadrado, "x²", "Operación - elevar al cuadrado"},
    TeclaDeOperacion{Operacion::modulo, "mod", "Operación - (16 mod 5 = 1),(74  mod 10 = 4)"},
    TeclaDeOperacion{Operacion::entero, "ent", "Operación - valor entero"},
    TeclaDeOperacion{Operacion::raizN, "ⁿ√x", "Operación - raiz n"},
    TeclaDeOperacion{Operacion::raizCubica, "³√x", "Operación - raiz cúbica"},
};

struct TeclaDeFuncion {
    Funcion funcion;
    const char* rotulo;
};

constexpr std::array funciones = {
    TeclaDeFuncion{Funcion::seno, "sin"},         TeclaDeFuncion{Funcion::coseno, "cos"},
    TeclaDeFuncion{Funcion::tangente, "tan"},     TeclaDeFuncion{Funcion::arcoSeno, "sin-1"},
    TeclaDeFuncion{Funcion::arcoCoseno, "cos-1"}, TeclaDeFuncion{Funcion::arcoTangente, "tan-1"},
};

std::string miembro(const char* arreglo, const std::string& indice) {
    return std::string(arreglo) + "(" + indice + ")";
}

std::string nombreDe(Operacion operacion) {
    return miembro("cmdOp", std::to_string(static_cast<int>(operacion)));
}

const char* rotuloDe(Operacion operacion) {
    return operaciones[static_cast<std::size_t>(operacion) - 1].rotulo;
}

const Message noSePuede{"No se puede cumplir con su petición.\r\nEsta operación ha sido cancelada.",
                        "Error en cálculo", Icon::error};

} // namespace

frmCalculadora::frmCalculadora(Program& program)
    : Window(program, "frmCalculadora", "Calculadora científica") {
    OptDegree.preset(true);
    agregarCifras();
    agregarOperaciones();
    agregarFunciones();
    agregarMemoria();
    agregarBorrado();
    alPulsar(cmdDecimal, [this] { calculadora_.punto(); });
    alPulsar(cmdValue, [this] { calculadora_.cambiarSigno(); });
    alPulsar(cmdBackSpace, [this] { calculadora_.retroceso(); });
    alPulsar(cmdEquals, [this] { return calculadora_.igual(); });
    mnuCopy.onClick = [this] { platform().setClipboardText(calculadora_.pantalla()); };
    mnuPaste.onClick = [this] {
        calculadora_.pegar(platform().clipboardText());
        mostrar();
    };
    onKey = [this](Key tecla) { return pulsar(tecla); };
    mainAction = &cmdEquals;
    mostrar();
}

template <typename Step>
void frmCalculadora::alPulsar(Button& boton, Step paso) {
    boton.onClick = [this, paso] {
        if constexpr (std::is_same_v<decltype(paso()), bool>) {
            const bool hecho = paso();
            mostrar();
            if (!hecho)
                mensaje(noSePuede);
        } else {
            paso();
            mostrar();
        }
    };
}

template <typename Step>
void frmCalculadora::agregar(const std::string& nombre, const std::string& rotulo,
                             const std::string& ayuda, Step paso) {
    alPulsar(teclas_.emplace_back(*this, nombre, rotulo, ayuda), paso);
}

void frmCalculadora::agregarCifras() {
    for (int cifra = 0; cifra <= 9; ++cifra) {
        const std::string rotulo = std::to_string(cifra);
        agregar(miembro("cmdNum", rotulo), rotulo, "Entrada numérica",
                [this, cifra] { calculadora_.cifra(cifra); });
    }
}

void frmCalculadora::agregarOperaciones() {
    for (const TeclaDeOperacion& tecla : operaciones) {
        agregar(nombreDe(tecla.operacion), tecla.rotulo, tecla.ayuda,
                [this, pedida = tecla.operacion] { return calculadora_.operacion(pedida); });
    }
}

void frmCalculadora::agregarFunciones() {
    for (const TeclaDeFuncion& tecla : funciones) {
        agregar(miembro("cmdSci", tecla.rotulo), tecla.rotulo, {}, [this, pedida = tecla.funcion] {
            return calculadora_.funcion(pedida,
                                        OptDegree.checked() ? Angulo::grados : Angulo::radianes);
        });
    }
    agregar("cmdSci(pi)", "Pi", {}, [this] { calculadora_.pi(); });
    agregar("cmdSci(ran)", "ran", {}, [this] { calculadora_.alAzar(); });
}

void frmCalculadora::agregarMemoria() {
    agregar("cmdMem(M+)", "M+", "Adicionar valor corriente a la memoria",
            [this] { calculadora_.sumarEnMemoria(); });
    agregar("cmdMem(MS)", "MS", "Almacenar valor corriente en la memoria",
            [this] { calculadora_.guardarEnMemoria(); });
    agregar("cmdMem(MR)", "MR", "Mostrar contenido memoria",
            [this] { calculadora_.mostrarMemoria(); });
    agregar("cmdMem(MC)", "MC", "Limpiar memoria", [this] { calculadora_.limpiarMemoria(); });
}

void frmCalculadora::agregarBorrado() {
    agregar("cmdClear(C)", "C",
            "Resets de constante corriente y valores, cancelando toda operación",
            [this] { calculadora_.limpiarTodo(); });
    agregar("cmdClear(CE)", "CE", "Limpiar última operación",
            [this] { calculadora_.limpiarOperacion(); });
}

void frmCalculadora::mostrar() {
    lblDisplay.caption = calculadora_.pantalla();
    lblMemoria.caption = calculadora_.memoria() == 0 ? "" : "M";
    const auto pendiente = calculadora_.pendiente();
    lblPendiente.caption =
        pendiente ? calculadora_.primerOperando() + " " + rotuloDe(*pendiente) : "";
}

bool frmCalculadora::pulsar(Key tecla) {
    Control* boton = botonDe(tecla);
    if (boton)
        program().click(*boton);
    return boton != nullptr;
}

Control* frmCalculadora::botonDe(Key tecla) const {
    switch (tecla.kind) {
    case Key::Kind::enter:
        return find("cmdEquals");
    case Key::Kind::escape:
        return find("cmdClear(C)");
    case Key::Kind::forwardDelete:
        return find("cmdClear(CE)");
    case Key::Kind::up:
    case Key::Kind::down:
        return nullptr;
    case Key::Kind::character:
        break;
    }
    if (tecla.character >= U'0' && tecla.character <= U'9')
        return find(miembro("cmdNum", std::string(1, static_cast<char>(tecla.character))));
    switch (tecla.character) {
    case U'\b':
        return find("cmdBackSpace");
    case U'.':
    case U',':
        return find("cmdDecimal");
    case U'=':
        return find("cmdEquals");
    case U'/':
        return find(nombreDe(Operacion::division));
    case U'*':
        return find(nombreDe(Operacion::multiplicacion));
    case U'-':
        return find(nombreDe(Operacion::resta));
    case U'+':
        return find(nombreDe(Operacion::suma));
    case U'%':
        return find(nombreDe(Operacion::porcentaje));
    case U'^':
        return find(nombreDe(Operacion::potencia));
    default:
        return nullptr;
    }
}

} // namespace caudalera
