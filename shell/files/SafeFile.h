#pragma once

#include "shell/files/Disk.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace caudalera {

/// A file that is replaced whole or not at all: until `commit` has succeeded, the file of that name
/// stays as it was, whatever the disk refuses and whenever the program ends.
///
/// What is written is kept in memory. `commit` puts it into a temporary file beside the target and
/// renames that over it; symbolic links are followed, and permissions kept. Where this cannot be
/// done (a device, a folder in which nothing may be made) `commit` writes into the target itself.
class SafeFile {
public:
    /// Opens the file for replacing, which changes nothing in it. Failure 75 if it can be neither
    /// written nor made, and for what is neither a file nor a device: a folder, or a pipe, which
    /// would hold the program until somebody reads it.
    explicit SafeFile(const std::filesystem::path& path, Disk& disk = Disk::real());
    /// Without a `commit` nothing has happened.
    ~SafeFile();
    SafeFile(const SafeFile&) = delete;
    SafeFile& operator=(const SafeFile&) = delete;

    void write(std::string_view bytes) { content_ += bytes; }
    /// Puts what was written in the place of the file; failure 75 if the disk refuses it.
    void commit();

private:
    void makeTemporary();
    bool tryReplace();
    void discardTemporary();

    Disk& disk_;
    std::filesystem::path target_;
    /// Empty where the target is written directly.
    std::filesystem::path temporary_;
    std::filesystem::file_status before_;
    std::string content_;
};

} // namespace caudalera
