#include "shell/files/SafeFile.h"

#include "shell/numbers/RuntimeFailure.h"

#include <fstream>
#include <random>

namespace caudalera {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void refuse() {
    throw RuntimeFailure(Failure::fileAccess);
}

/// The path behind symbolic links, also where the last of them leads to a file still to be made.
fs::path withoutLinks(fs::path path) {
    // As many links in a row as the common systems follow.
    constexpr int most = 40;
    std::error_code error;
    for (int i = 0; i < most; ++i) {
        if (!fs::is_symlink(fs::symlink_status(path, error)))
            return path;
        // A relative link counts from the folder in which it stands.
        path = path.parent_path() / fs::read_symlink(path, error);
        if (error)
            refuse();
    }
    refuse();
}

/// Opening for appending asks for the right to write and changes nothing.
bool isWritable(const fs::path& file) {
    return std::ofstream(file, std::ios::binary | std::ios::app).is_open();
}

bool isDevice(const fs::file_status& status) {
    return fs::is_character_file(status) || fs::is_block_file(status);
}

/// Whether it was the folder, and not the disk, that refused: the file itself may be written then.
/// A full disk must never come here, since writing directly would destroy the file first.
bool isOfTheFolder(const std::error_code& error) {
    return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
           error == std::errc::read_only_file_system ||
           error == std::errc::device_or_resource_busy || error == std::errc::cross_device_link;
}

/// A name that no file of this folder has, and short: it fits wherever the target's own fits.
fs::path unusedNameIn(const fs::path& folder) {
    std::random_device random;
    for (;;) {
        fs::path name = folder / (".caudalera-" + std::to_string(random()) + ".tmp");
        std::error_code error;
        if (!fs::exists(fs::symlink_status(name, error)))
            return name;
    }
}

} // namespace

SafeFile::SafeFile(const fs::path& path, Disk& disk) : disk_(disk), target_(withoutLinks(path)) {
    if (!target_.has_filename())
        refuse();
    std::error_code error;
    before_ = fs::status(target_, error);
    if (isDevice(before_)) {
        if (!isWritable(target_))
            refuse();
    } else if (before_.type() == fs::file_type::not_found ||
               (fs::is_regular_file(before_) && isWritable(target_))) {
        makeTemporary();
    } else {
        refuse();
    }
}

SafeFile::~SafeFile() {
    discardTemporary();
}

void SafeFile::makeTemporary() {
    temporary_ = unusedNameIn(target_.parent_path());
    const std::error_code refusal = disk_.create(temporary_);
    if (!refusal)
        return;
    temporary_.clear();
    if (!fs::exists(before_) || !isOfTheFolder(refusal))
        refuse();
}

void SafeFile::commit() {
    if (!temporary_.empty() && tryReplace())
        return;
    if (!disk_.write(target_, content_))
        refuse();
}

/// False if the folder lets no file be renamed over this one.
bool SafeFile::tryReplace() {
    std::error_code ignored;
    // Nobody reads here what only the owner could read there.
    if (fs::exists(before_))
        fs::permissions(temporary_, fs::perms::owner_read | fs::perms::owner_write, ignored);
    if (!disk_.write(temporary_, content_)) {
        discardTemporary();
        refuse();
    }
    if (fs::exists(before_))
        fs::permissions(temporary_, before_.permissions(), ignored);
    const std::error_code refusal = disk_.rename(temporary_, target_);
    if (!refusal) {
        temporary_.clear();
        return true;
    }
    // Its room on the disk is what writing directly will need.
    discardTemporary();
    if (!fs::exists(before_) || !isOfTheFolder(refusal))
        refuse();
    return false;
}

void SafeFile::discardTemporary() {
    if (temporary_.empty())
        return;
    std::error_code ignored;
    fs::remove(temporary_, ignored);
    temporary_.clear();
}

} // namespace caudalera
