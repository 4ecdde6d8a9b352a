#include "shell/files/TextFile.h"

#include "shell/files/FilePath.h"
#include "shell/files/SafeFile.h"
#include "shell/numbers/RuntimeFailure.h"

#include <array>
#include <fstream>

namespace caudalera {

std::string leerArchivo(const std::string& path) {
    const auto file = filePath(path);
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found)
        throw RuntimeFailure(Failure::fileNotFound);
    // Opening a pipe would hold the program until somebody writes to it.
    if (!std::filesystem::is_regular_file(status))
        throw RuntimeFailure(Failure::fileAccess);
    std::ifstream stream(file, std::ios::binary);
    std::string content;
    std::array<char, 65536> block{};
    while (stream.read(block.data(), block.size()) || stream.gcount() > 0)
        content.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    if (!stream.is_open() || stream.bad())
        throw RuntimeFailure(Failure::fileAccess);
    return content;
}

void escribirArchivo(const std::string& path, const std::string& contenido) {
    SafeFile file(filePath(path));
    file.write(contenido);
    file.commit();
}

} // namespace caudalera
