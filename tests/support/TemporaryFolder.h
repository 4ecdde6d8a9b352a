#pragma once

#include "shell/files/FilePath.h"

#include <filesystem>
#include <random>
#include <string>

namespace caudalera {

/// An empty folder that no other test has, also not one of another run; gone with this object.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() /
                    ("caudalera-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    /// A name in it, in UTF-8 as the program takes names.
    std::string file(const std::string& name) const { return pathText(path_ / filePath(name)); }

private:
    std::filesystem::path path_;
};

} // namespace caudalera
