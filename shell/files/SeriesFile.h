#pragma once

#include "shell/files/SafeFile.h"
#include "shell/files/Variables.h"

#include <cstdint>
#include <fstream>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace caudalera {

/// File number 1 opened for random access: fixed-length records of little-endian singles with no
/// header. Closing is a step of its own: a command that fails before it leaves the number in use,
/// and the next opening fails and frees it.
class SeriesFile {
public:
    enum class Access { read, replace };

    /// Opens under number 1 with records of `fields` singles. To read, it must be a regular file
    /// that exists (failure 53); to replace, it stays as it is until the new one is closed. Failure
    /// 55 if the number is in use, 52 for an empty name, 75 for a file that cannot be opened.
    SeriesFile(Variables& variables, const std::string& path, int fields, Access access);

    /// Records that the file holds, a partial last one left out; failure 6 past 16 bits.
    Integer16 records() const;
    /// The next record, which stands until another is read. Failure 75 at the end.
    std::span<const float> read();
    /// Makes a record, counted from 1, the next one to read.
    void goTo(long record);
    /// Appends a record.
    void write(std::span<const float> record);
    /// Frees number 1 and puts what was written in the place of the file; failure 75 if the disk
    /// refuses it, and then a file of that name stays as it was.
    void close();

private:
    Variables& variables_;
    std::vector<float> record_;
    std::uintmax_t bytes_ = 0;
    std::ifstream stream_;
    std::optional<SafeFile> replacement_;
};

} // namespace caudalera
