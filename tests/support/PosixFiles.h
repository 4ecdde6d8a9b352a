#pragma once

// What only systems of the POSIX family have: tests that need it stand within
// CAUDALERA_POSIX_FILES. Nothing else in the project but the tests' runner of the driver calls
// POSIX.

#ifndef _WIN32
#define CAUDALERA_POSIX_FILES

#include <string>
#include <sys/resource.h>
#include <sys/stat.h>

namespace caudalera {

/// A pipe with a name; opening one waits for its other end. False if the folder takes none.
inline bool makeNamedPipe(const std::string& path) {
    return ::mkfifo(path.c_str(), 0600) == 0;
}

/// No file of this process, nor of those that it starts, grows past so many bytes while this lives:
/// the disk that a test makes full at the byte it likes.
class FileSizeLimit {
public:
    explicit FileSizeLimit(std::size_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
};

} // namespace caudalera

#endif
