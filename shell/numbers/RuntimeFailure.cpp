#include "shell/numbers/RuntimeFailure.h"

namespace caudalera {

std::string nombreFallo(int number) {
    switch (static_cast<Failure>(number)) {
    case Failure::invalidArgument:
        return "Llamada a procedimiento o argumento no válidos";
    case Failure::overflow:
        return "Desbordamiento";
    case Failure::index:
        return "El subíndice está fuera del intervalo";
    case Failure::divisionByZero:
        return "División por cero";
    case Failure::fileNumber:
        return "Nombre o número de archivo incorrecto";
    case Failure::fileNotFound:
        return "No se ha encontrado el archivo";
    case Failure::fileInUse:
        return "El archivo ya está abierto";
    case Failure::fileAccess:
        return "Error de acceso a la ruta o al archivo";
    case Failure::noActiveChild:
        return "Variable de objeto no establecida";
    case Failure::dialogCancelled:
        return "Se seleccionó Cancelar";
    }
    return "Error definido por la aplicación";
}

} // namespace caudalera
