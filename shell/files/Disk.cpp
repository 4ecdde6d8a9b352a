#include "shell/files/Disk.h"

#include <cerrno>
#include <fstream>

namespace caudalera {

std::error_code Disk::create(const std::filesystem::path& file) {
    errno = 0;
    const std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    if (stream)
        return {};
    // Streams tell no reason of their own; the system's call below them leaves it here.
    return {errno == 0 ? EIO : errno, std::generic_category()};
}

bool Disk::write(const std::filesystem::path& file, std::string_view content) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(content.data(), static_cast<std::streamsize>(content.size()));
    // What stands in the buffer reaches the disk, or is refused by it, on closing.
    stream.close();
    return !stream.fail();
}

std::error_code Disk::rename(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code error;
    std::filesystem::rename(from, to, error);
    return error;
}

Disk& Disk::real() {
    static Disk disk;
    return disk;
}

} // namespace caudalera
