#pragma once

#include "shell/main/operaciones.h"

#include <optional>
#include <random>
#include <string>
#include <string_view>

namespace caudalera {

/// The pocket calculator behind its keys: a display, two operands, the operation that waits for the
/// second one, a memory. Each routine is one key. Those that can refuse say so by `false`: the
/// display stands as it was then. A value past the double range is failure 6, in what is typed too.
class BBCalc {
public:
    const std::string& pantalla() const { return pantalla_; }
    Real memoria() const { return memoria_; }
    /// The operation that waits for its second operand.
    std::optional<Operacion> pendiente() const { return pendiente_; }
    /// The first operand as the display would show it.
    std::string primerOperando() const { return textoDe(primero_); }

    /// A digit, 0 to 9.
    void cifra(int valor);
    void punto();
    /// Drops the last character of the display.
    void retroceso();
    void cambiarSigno();
    /// "C": everything but the memory.
    void limpiarTodo();
    /// "CE": the operation that waits; the display shows the first operand again.
    void limpiarOperacion();

    /// An operation of one operand is done on the display at once, one of two waits for the second.
    bool operacion(Operacion pedida);
    /// The operation that waits, if any.
    bool igual();
    /// A function of the display.
    bool funcion(Funcion pedida, Angulo angulo);
    void pi();
    /// A number between 0 and 1, without its ends.
    void alAzar();

    void sumarEnMemoria();
    void guardarEnMemoria();
    void mostrarMemoria();
    void limpiarMemoria();

    /// Takes the numeric reading of a text from elsewhere.
    void pegar(std::string_view texto);

private:
    /// A number for the display: its plain text, with a point in any case.
    static std::string textoDe(Real valor);
    Real valorMostrado() const;
    Real& operando() { return pendiente_ ? segundo_ : primero_; }
    void agregar(char caracter);
    void leer() { operando() = valorMostrado(); }
    void mostrar(Real valor);
    /// Shows a result; without one what waits is given up.
    bool resolver(std::optional<Real> resultado);
    void olvidarOperacion();

    Real primero_;
    /// 0 as long as no operation waits for it.
    Real segundo_;
    std::optional<Operacion> pendiente_;
    /// The next digit or point begins a number instead of going on with the one on display.
    bool numeroNuevo_ = true;
    Real memoria_;
    std::string pantalla_ = "0.";
    std::mt19937_64 azar_{std::random_device{}()};
};

} // namespace caudalera
