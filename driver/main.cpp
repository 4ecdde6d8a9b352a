// caudalera-driver [--fixed-dir DIR] [--decimal-separator C]: the whole program without a
// windowing platform, driven by JSON lines on standard input and answering on standard output.

#include "driver/Driver.h"

#include "shell/files/FilePath.h"
#include "shell/files/FileSizeSignal.h"
#include "shell/text/Utf8.h"

#include <iostream>
#include <optional>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace {

/// Lines end as they are written, where the system would put its own ends in their place.
void keepLineEnds() {
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
}

std::optional<caudalera::DriverOptions> optionsOf(const std::vector<std::string>& arguments) {
    caudalera::DriverOptions options;
    options.fixedDirectory = caudalera::filePath(CAUDALERA_DATA_DIR);
    for (std::size_t i = 0; i < arguments.size(); i += 2) {
        if (i + 1 == arguments.size())
            return std::nullopt;
        const std::string& value = arguments[i + 1];
        if (arguments[i] == "--fixed-dir") {
            options.fixedDirectory = caudalera::filePath(value);
        } else if (arguments[i] == "--decimal-separator" && caudalera::utf8::isValid(value) &&
                   caudalera::utf8::count(value) == 1) {
            options.decimalSeparator = value;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

} // namespace

int main(int argc, char** argv) {
    caudalera::ignoreFileSizeSignal();
    auto options = optionsOf({argv + 1, argv + argc});
    if (!options) {
        std::cerr << "usage: caudalera-driver [--fixed-dir DIR] [--decimal-separator C]\n";
        return 2;
    }
    keepLineEnds();
    caudalera::Driver driver(std::move(*options));
    for (std::string line; std::getline(std::cin, line);)
        std::cout << driver.answer(line) << '\n' << std::flush;
    return 0;
}
