#pragma once

#include "shell/files/Variables.h"

#include <cstdint>
#include <fstream>
#include <span>
#include <string>

namespace caudalera {

/// File number 1 opened for random access: fixed-length records of little-endian singles with no
/// header. Closing is a step of its own: a command that fails before it leaves the number in use,
/// and every later opening fails.
class SeriesFile {
public:
    enum class Access { read, replace };

    /// Opens under number 1 with records of `fields` singles. To read, the file must exist (failure
    /// 53); to replace, it is created or emptied. Failure 55 while the number is in use, 52 for an
    /// empty name, 75 for a file that cannot be opened.
    SeriesFile(Variables& variables, const std::string& path, int fields, Access access);

    /// Records that the file holds, a partial last one left out; failure 6 past 16 bits.
    Integer16 records() const;
    /// The next record; the buffer of `variables` for this width holds it. Failure 75 at the end.
    std::span<const float> read();
    /// Appends a record; failure 75 if it cannot be written.
    void write(std::span<const float> record);
    /// Frees number 1; failure 75 if what was written cannot be stored.
    void close();

private:
    std::span<float> buffer();

    Variables& variables_;
    int fields_;
    std::uintmax_t bytes_ = 0;
    std::fstream stream_;
};

} // namespace caudalera
