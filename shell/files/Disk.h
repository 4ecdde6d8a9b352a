#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace caudalera {

/// What a file that is written asks of the disk. Every step can be refused, so a test puts a disk
/// of its own in this one's place that refuses the step it looks at.
class Disk {
public:
    virtual ~Disk() = default;

    /// Makes an empty file; the reason if it cannot be made.
    virtual std::error_code create(const std::filesystem::path& file);
    /// Makes `content` all that the file holds; false if not every byte was taken.
    virtual bool write(const std::filesystem::path& file, std::string_view content);
    /// Gives a file another name, in the place of a file that has it; the reason if it cannot.
    virtual std::error_code rename(const std::filesystem::path& from,
                                   const std::filesystem::path& to);

    /// The disk that there is.
    static Disk& real();
};

} // namespace caudalera
