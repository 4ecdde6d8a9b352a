#pragma once

#include <string>

namespace caudalera {

/// The whole content of a file; failure 53 if there is none of that name, 75 if it cannot be read
/// or is no regular file.
std::string leerArchivo(const std::string& path);

/// Replaces a file by that content; failure 75 if it cannot be written, and then a file of that
/// name stays as it was.
void escribirArchivo(const std::string& path, const std::string& contenido);

} // namespace caudalera
