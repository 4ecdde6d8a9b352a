#include "desktop/CommandLine.h"

#include <cstddef>
#include <cstdio>
#include <string_view>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#endif

namespace caudalera::commandline {

namespace {

constexpr std::string_view helpOfProgram =
    R"(Uso: caudalera
     caudalera --version | --help

Cálculos hidrológicos y estadísticos aplicados a la hidrología. Sin argumentos
abre la ventana principal.

  --version  escribe la versión y termina
  --help     escribe esta ayuda y termina

Variables de entorno:
  CAUDALERA_DECIMAL  separador decimal con que se escriben los números; sin
                     ella, el del sistema (en Windows, el punto). Se leen
                     siempre con punto.
  CAUDALERA_DIR      carpeta de las tablas y del manual; sin ella,
                     share/caudalera al lado de la carpeta bin del programa (en
                     Windows, datos junto al programa, o bien C:\Caudalera\).

En la misma carpeta, samples tiene series de ejemplo.
)";

constexpr std::string_view helpOfViewer =
    R"(Uso: caudalera-ayuda [ARCHIVO[::/PÁGINA]]
     caudalera-ayuda --version | --help

Muestra un archivo de ayuda (.chm), en la página que se le diga o en la primera.
Si el archivo ya está abierto, lleva a la página la ventana que lo muestra.

  --version  escribe la versión y termina
  --help     escribe esta ayuda y termina
)";

struct Program {
    std::string_view name;
    std::string_view help;
    /// So many arguments that begin with no dash start it.
    std::size_t files;
};

Answer refusal(const Program& program, const std::string& argument) {
    std::string text(program.name);
    text.append(": no se admite «").append(argument).append("»; vea ");
    text.append(program.name).append(" --help\n");
    return {std::move(text), 2};
}

std::optional<Answer> answer(const Program& program, const std::vector<std::string>& arguments) {
    if (arguments.size() == 1 && arguments[0] == "--version")
        return Answer{"Caudalera " CAUDALERA_VERSION "\n"};
    if (arguments.size() == 1 && arguments[0] == "--help")
        return Answer{std::string(program.help)};
    std::size_t files = 0;
    for (const std::string& argument : arguments) {
        if (argument.starts_with('-') || ++files > program.files)
            return refusal(program, argument);
    }
    return {};
}

/// A program with windows has no console on Windows: unless what it writes is sent elsewhere, it
/// shows on the console that the program was started from, if there is one.
void reachConsole() {
#ifdef _WIN32
    const auto taken = [](DWORD stream) {
        return GetFileType(GetStdHandle(stream)) != FILE_TYPE_UNKNOWN;
    };
    if (taken(STD_OUTPUT_HANDLE) || taken(STD_ERROR_HANDLE) ||
        !AttachConsole(ATTACH_PARENT_PROCESS))
        return;
    SetConsoleOutputCP(CP_UTF8);
    static_cast<void>(std::freopen("CONOUT$", "w", stdout));
    static_cast<void>(std::freopen("CONOUT$", "w", stderr));
#endif
}

} // namespace

std::vector<std::string> argumentsOf(int argc, char** argv) {
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

std::optional<Answer> answerOfProgram(const std::vector<std::string>& arguments) {
    return answer({"caudalera", helpOfProgram, 0}, arguments);
}

std::optional<Answer> answerOfViewer(const std::vector<std::string>& arguments) {
    return answer({"caudalera-ayuda", helpOfViewer, 1}, arguments);
}

int say(const Answer& answer) {
    reachConsole();
    std::FILE* const output = answer.status == 0 ? stdout : stderr;
    const bool written = std::fputs(answer.text.c_str(), output) >= 0 && std::fflush(output) == 0;
    return written ? answer.status : 1;
}

} // namespace caudalera::commandline
