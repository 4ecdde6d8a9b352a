#include "shell/files/SeriesFile.h"

#include "shell/files/FilePath.h"
#include "shell/numbers/RuntimeFailure.h"

#include <array>
#include <bit>
#include <limits>
#include <utility>

namespace caudalera {

namespace {

std::array<char, 4> toBytes(float value) {
    const auto bits = std::bit_cast<std::uint32_t>(value);
    std::array<char, 4> bytes{};
    for (unsigned i = 0; i < 4; ++i)
        bytes[i] = static_cast<char>(static_cast<unsigned char>(bits >> (8 * i)));
    return bytes;
}

float fromBytes(const char* bytes) {
    std::uint32_t bits = 0;
    for (unsigned i = 0; i < 4; ++i)
        bits |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    return std::bit_cast<float>(bits);
}

} // namespace

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
        std::array<char, 4> bytes{};
        if (!stream_.read(bytes.data(), bytes.size()))
            throw RuntimeFailure(Failure::fileAccess);
        field = fromBytes(bytes.data());
    }
    return record_;
}

void SeriesFile::goTo(long record) {
    stream_.seekg(static_cast<std::streamoff>(4 * record_.size()) * (record - 1));
}

void SeriesFile::write(std::span<const float> record) {
    for (const float field : record) {
        const auto bytes = toBytes(field);
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
