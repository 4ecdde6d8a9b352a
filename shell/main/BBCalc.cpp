#include "shell/main/BBCalc.h"

#include "shell/text/Text.h"

#include <cstdint>

namespace caudalera {

namespace {

/// As many steps between 0 and 1 as the display has digits for.
constexpr std::int64_t pasosAlAzar = 1'000'000'000'000'000;

} // namespace

std::string BBCalc::textoDe(Real valor) {
    std::string texto = textoPlano(valor.value());
    if (texto.find('.') == std::string::npos)
        texto += '.';
    return texto;
}

Real BBCalc::valorMostrado() const {
    return Val(pantalla_);
}

void BBCalc::mostrar(Real valor) {
    operando() = valor;
    pantalla_ = textoDe(valor);
    numeroNuevo_ = true;
}

void BBCalc::agregar(char caracter) {
    if (numeroNuevo_)
        pantalla_.clear();
    numeroNuevo_ = false;
    pantalla_ += caracter;
    leer();
}

void BBCalc::cifra(int valor) {
    agregar(static_cast<char>('0' + valor));
}

void BBCalc::punto() {
    if (numeroNuevo_ || pantalla_.find('.') == std::string::npos)
        agregar('.');
}

void BBCalc::retroceso() {
    if (!pantalla_.empty())
        pantalla_.pop_back();
    numeroNuevo_ = false;
    leer();
}

void BBCalc::cambiarSigno() {
    // While a number is typed, its sign may come before its first digit that is not 0.
    const bool sinSigno = numeroNuevo_ && valorMostrado() == 0;
    if (pantalla_.empty() || sinSigno)
        return;
    if (pantalla_.front() == '-') {
        pantalla_.erase(0, 1);
    } else {
        pantalla_.insert(0, 1, '-');
    }
    leer();
}

void BBCalc::olvidarOperacion() {
    pendiente_.reset();
    segundo_ = 0;
}

void BBCalc::limpiarTodo() {
    olvidarOperacion();
    mostrar(0);
}

void BBCalc::limpiarOperacion() {
    olvidarOperacion();
    // What is typed next goes on with it, unless a new number was about to begin.
    pantalla_ = textoDe(primero_);
}

bool BBCalc::resolver(std::optional<Real> resultado) {
    if (!resultado) {
        olvidarOperacion();
        return false;
    }
    mostrar(*resultado);
    return true;
}

bool BBCalc::igual() {
    numeroNuevo_ = true;
    if (!pendiente_)
        return true;
    const auto resultado = operar(*pendiente_, primero_, segundo_);
    olvidarOperacion();
    return resolver(resultado);
}

bool BBCalc::operacion(Operacion pedida) {
    numeroNuevo_ = true;
    if (deUnOperando(pedida))
        return resolver(operar(pedida, valorMostrado(), 0));
    if (!igual())
        return false;
    // A result stays as exact as it is behind the digits shown. After a refusal the display may
    // hold another number than the operand, and what is seen is what counts.
    if (pantalla_ != textoDe(primero_))
        leer();
    pendiente_ = pedida;
    pantalla_.clear();
    return true;
}

bool BBCalc::funcion(Funcion pedida, Angulo angulo) {
    numeroNuevo_ = true;
    const auto resultado = evaluar(pedida, valorMostrado(), angulo);
    if (resultado)
        mostrar(*resultado);
    return resultado.has_value();
}

void BBCalc::pi() {
    mostrar(piDeCalculadora);
}

void BBCalc::alAzar() {
    std::uniform_int_distribution<std::int64_t> pasos(1, pasosAlAzar - 1);
    mostrar(static_cast<double>(pasos(azar_)) / static_cast<double>(pasosAlAzar));
}

void BBCalc::sumarEnMemoria() {
    numeroNuevo_ = true;
    memoria_ += valorMostrado();
}

void BBCalc::guardarEnMemoria() {
    numeroNuevo_ = true;
    memoria_ = valorMostrado();
}

void BBCalc::mostrarMemoria() {
    mostrar(memoria_);
}

void BBCalc::limpiarMemoria() {
    numeroNuevo_ = true;
    memoria_ = 0;
}

void BBCalc::pegar(std::string_view texto) {
    mostrar(Val(texto));
}

} // namespace caudalera
