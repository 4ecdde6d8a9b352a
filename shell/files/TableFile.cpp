#include "shell/files/TableFile.h"

#include "shell/files/SingleBytes.h"

#include <fstream>
#include <system_error>

namespace caudalera {

std::vector<float> readTable(const std::filesystem::path& file, std::size_t capacity) {
    std::vector<float> values;
    std::error_code error;
    // To open a pipe is to wait for its other end.
    if (!std::filesystem::is_regular_file(file, error))
        return values;
    std::ifstream stream(file, std::ios::binary);
    SingleBytes bytes{};
    while (values.size() < capacity && stream.read(bytes.data(), bytes.size()))
        values.push_back(singleOf(bytes));
    return values;
}

} // namespace caudalera
