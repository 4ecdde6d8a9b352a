#pragma once

#include "tests/support/SeriesBytes.h"
#include "tests/support/TestSheet.h"

#include <string>

namespace caudalera {

/// File commands of a worksheet, with the answers of their dialogs.
class SheetFilesTest : public SheetTest {
protected:
    void save(const std::string& path) {
        platform.answers = {path};
        click("bCrear");
    }
    void load(const std::string& path) {
        platform.answers = {path};
        click("bAccesar");
    }
    /// A file of that many singles of 0.
    std::string zeros(std::size_t singles) {
        std::string path = file("zeros");
        writeBytes(path, Bytes(singles * 4));
        return path;
    }
};

} // namespace caudalera
