#include "shell/files/SeriesFile.h"

#include "shell/files/FilePath.h"
#include "shell/files/SingleBytes.h"
#include "shell/numbers/RuntimeFailure.h"

#include <limits>
#include <utility>

namespace caudalera {

SeriesFile::SeriesFile(Variables& variables, const std::string& path, int fields, Access access)
    : variables_(variables), record_(static_cast<std::size_t>(fields)) {
    if (std::exchange(variables.archivoUnoEnUso, false))
        throw RuntimeFailure(Failure::fileInUse);
    if (path.empty())
        throw RuntimeFailure(Failure::fileNumber);
    const auto file = filePath(path);
    if (access == Access::read) {
        std::error_code error;
        if (!std::filesystem::is_regular_file(file, error))
            throw RuntimeFailure(Failure::fileNotFound);
        bytes_ = std::filesystem::file_size(file, error);
        stream_.open(file, std::ios::binary);
        if (error || !stream_)
            throw RuntimeFailure(Failure::fileAccess);
    } else {
        replacement_.emplace(file);
    }
    variables.archivoUnoEnUso = true;
}

Integer16 SeriesFile::records() const {
    const auto count = bytes_ / (std::uintmax_t{4} * record_.size());
    if (count > static_cast<std::uintmax_t>(std::numeric_limits<std::int16_t>::max()))
        throw RuntimeFailure(Failure::overflow);
    return {static_cast<long>(count)};
}

std::span<const float> SeriesFile::read() {
    for (float& field : record_) {
        SingleBytes bytes{};
        if (!stream_.read(bytes.data(), bytes.size()))
            throw RuntimeFailure(Failure::fileAccess);
        field = singleOf(bytes);
    }
    return record_;
}

void SeriesFile::goTo(long record) {
    stream_.seekg(static_cast<std::streamoff>(4 * record_.size()) * (record - 1));
}

void SeriesFile::write(std::span<const float> record) {
    for (const float field : record) {
        const auto bytes = bytesOfSingle(field);
        replacement_->write({bytes.data(), bytes.size()});
    }
}

void SeriesFile::close() {
    // A fault of the disk leaves nothing open.
    variables_.archivoUnoEnUso = false;
    stream_.close();
    if (replacement_)
        replacement_->commit();
}

} // namespace caudalera
