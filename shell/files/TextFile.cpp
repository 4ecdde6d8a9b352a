#include "shell/files/TextFile.h"

#include "shell/files/FilePath.h"
#include "shell/numbers/RuntimeFailure.h"

#include <fstream>
#include <iterator>

namespace caudalera {

std::string leerArchivo(const std::string& path) {
    const auto file = filePath(path);
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        throw RuntimeFailure(Failure::fileNotFound);
    std::ifstream stream(file, std::ios::binary);
    if (!stream || std::filesystem::is_directory(file, error))
        throw RuntimeFailure(Failure::fileAccess);
    std::string content{std::istreambuf_iterator<char>(stream), {}};
    if (stream.bad())
        throw RuntimeFailure(Failure::fileAccess);
    return content;
}

void escribirArchivo(const std::string& path, const std::string& contenido) {
    std::ofstream stream(filePath(path), std::ios::binary | std::ios::trunc);
    stream.write(contenido.data(), static_cast<std::streamsize>(contenido.size()));
    stream.close();
    if (!stream)
        throw RuntimeFailure(Failure::fileAccess);
}

} // namespace caudalera
