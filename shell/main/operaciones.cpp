#include "shell/main/operaciones.h"

#include <cmath>
#include <limits>

namespace caudalera {

namespace {

constexpr double vuelta = 360;
constexpr double mediaVuelta = 180;

/// The nearest integer, halves to the even one, of any size.
double redondeado(Real x) {
    return std::nearbyint(x.value());
}

std::int32_t entero32(Real x) {
    using Limites = std::numeric_limits<std::int32_t>;
    const double redondo = redondeado(x);
    if (redondo < Limites::min() || redondo > Limites::max())
        throw RuntimeFailure(Failure::overflow);
    return static_cast<std::int32_t>(redondo);
}

Real modulo(Real a, Real b) {
    const std::int64_t dividendo = entero32(a);
    const std::int64_t divisor = entero32(b);
    if (divisor == 0)
        throw RuntimeFailure(Failure::divisionByZero);
    return static_cast<double>(dividendo % divisor);
}

std::optional<Real> siCumple(bool condicion, auto&& calculo) {
    if (!condicion)
        return std::nullopt;
    return calculo();
}

/// An angle of the trigonometric keys in radians.
Real enRadianes(Real x, Angulo angulo) {
    if (angulo == Angulo::radianes)
        return x;
    const Real reducido = std::fmod(redondeado(x), vuelta);
    return Abs(reducido) * piDeCalculadora / mediaVuelta;
}

Real enUnidades(Real radianes, Angulo angulo) {
    return angulo == Angulo::radianes ? radianes : radianes * mediaVuelta / piDeCalculadora;
}

/// The quarter of a turn; exact in degrees, where the calculator's own constant falls short.
Real cuarto(Angulo angulo) {
    return angulo == Angulo::radianes ? Atn(1) * 2 : Real(mediaVuelta / 2);
}

/// The slopes below divide by zero at 1 and -1.
bool esExtremo(Real x) {
    return Abs(x) == 1;
}

Real arcoSeno(Real x, Angulo angulo) {
    if (esExtremo(x))
        return x * cuarto(angulo);
    return enUnidades(Atn(x / Sqr(1 - x * x)), angulo);
}

Real arcoCoseno(Real x, Angulo angulo) {
    if (esExtremo(x))
        return (1 - x) * cuarto(angulo);
    return enUnidades(Atn(-x / Sqr(1 - x * x)) + Atn(1) * 2, angulo);
}

} // namespace

bool deUnOperando(Operacion operacion) {
    switch (operacion) {
    case Operacion::raizCuadrada:
    case Operacion::inversa:
    case Operacion::cubo:
    case Operacion::cuadrado:
    case Operacion::entero:
    case Operacion::raizCubica:
        return true;
    default:
        return false;
    }
}

std::optional<Real> operar(Operacion operacion, Real a, Real b) {
    switch (operacion) {
    case Operacion::division:
        return siCumple(b != 0, [&] { return Abs(a / b); });
    case Operacion::multiplicacion:
        return a * b;
    case Operacion::resta:
        return a - b;
    case Operacion::suma:
        return a + b;
    case Operacion::raizCuadrada:
        return siCumple(a >= 0, [&] { return Sqr(a); });
    case Operacion::porcentaje:
        return siCumple(b != 0, [&] { return a / b * 100; });
    case Operacion::inversa:
        return siCumple(a != 0, [&] { return 1 / a; });
    case Operacion::potencia:
        return Pow(a, b);
    case Operacion::cubo:
        return Pow(a, 3);
    case Operacion::cuadrado:
        return Pow(a, 2);
    case Operacion::modulo:
        return modulo(a, b);
    case Operacion::entero:
        return Real(std::trunc(a.value()));
    case Operacion::raizN:
        return Pow(a, 1 / b);
    case Operacion::raizCubica:
        return Pow(a, Real(1) / 3);
    }
    return std::nullopt;
}

std::optional<Real> evaluar(Funcion funcion, Real x, Angulo angulo) {
    switch (funcion) {
    case Funcion::seno:
        return Sin(enRadianes(x, angulo));
    case Funcion::coseno:
        return Cos(enRadianes(x, angulo));
    case Funcion::tangente:
        return Tan(enRadianes(x, angulo));
    case Funcion::arcoSeno:
        return siCumple(Abs(x) <= 1, [&] { return arcoSeno(x, angulo); });
    case Funcion::arcoCoseno:
        return siCumple(Abs(x) <= 1, [&] { return arcoCoseno(x, angulo); });
    case Funcion::arcoTangente:
        return enUnidades(Atn(x), angulo);
    }
    return std::nullopt;
}

} // namespace caudalera
