#include "shell/files/SafeFile.h"
#include "tests/support/FailureNumber.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

namespace caudalera {
namespace {

using testing::failureNumber;

namespace fs = std::filesystem;

/// The real disk, but for the steps that a test has it refuse.
class RefusingDisk : public Disk {
public:
    std::error_code refusalToCreate;
    std::error_code refusalToRename;
    /// Bytes that still find room.
    std::size_t room = std::string::npos;
    /// Runs when the room has come to its end.
    std::function<void()> onFull = [] {};
    int written = 0;

    std::error_code create(const fs::path& file) override {
        return refusalToCreate ? refusalToCreate : Disk::create(file);
    }
    bool write(const fs::path& file, std::string_view content) override {
        ++written;
        const bool fits = content.size() <= room;
        const bool took = Disk::write(file, content.substr(0, room));
        if (!fits)
            onFull();
        return took && fits;
    }
    std::error_code rename(const fs::path& from, const fs::path& to) override {
        return refusalToRename ? refusalToRename : Disk::rename(from, to);
    }
};

constexpr const char* before = "what stood there before";
constexpr const char* after = "what takes its place";

class SafeFileTest : public ::testing::Test {
protected:
    SafeFileTest() { put(target, before); }

    static void put(const fs::path& file, const std::string& content) {
        std::ofstream(file, std::ios::binary) << content;
    }
    static std::string contentOf(const fs::path& file) {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    /// Saves `after`; the number of the failure, 0 if there is none.
    int save(const fs::path& file) {
        return failureNumber([&] {
            SafeFile safe(file, disk);
            safe.write(after);
            safe.commit();
        });
    }
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }
    static std::error_code error(std::errc code) { return std::make_error_code(code); }

    TemporaryFolder folder;
    const fs::path target = folder.path() / "a.X";
    const fs::path fresh = folder.path() / "b.X";
    RefusingDisk disk;
};

TEST_F(SafeFileTest, TakesThePlaceOfTheFileOrMakesIt) {
    EXPECT_EQ(save(target), 0);
    EXPECT_EQ(contentOf(target), after);
    EXPECT_EQ(save(fresh), 0);
    EXPECT_EQ(contentOf(fresh), after);
    EXPECT_EQ(filesInFolder(), 2U) << "and nothing else is left";
}

TEST_F(SafeFileTest, PiecesFollowEachOther) {
    {
        SafeFile safe(target);
        safe.write("one,");
        safe.write(std::string_view("\0\r\n", 3));
        safe.write({});
        safe.write("two");
        safe.commit();
    }
    EXPECT_EQ(contentOf(target), std::string("one,\0\r\ntwo", 10));
}

TEST_F(SafeFileTest, WithoutACommitNothingHasHappened) {
    for (const fs::path& file : {target, fresh}) {
        SafeFile safe(file);
        safe.write(after);
        EXPECT_EQ(contentOf(target), before);
    }
    EXPECT_EQ(contentOf(target), before);
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(SafeFileTest, ADiskThatIsFullAtAnyByteLeavesTheFileWhole) {
    for (disk.room = 0; disk.room < std::string(after).size(); ++disk.room) {
        ASSERT_EQ(save(target), 75) << disk.room;
        ASSERT_EQ(contentOf(target), before) << disk.room;
        ASSERT_EQ(save(fresh), 75) << disk.room;
        ASSERT_EQ(filesInFolder(), 1U) << disk.room;
    }
    EXPECT_EQ(save(target), 0) << "with room for all of it";
    EXPECT_EQ(contentOf(target), after);
}

TEST_F(SafeFileTest, AProgramThatDiesAtAnyByteLeavesTheFileWhole) {
    disk.onFull = [] { std::_Exit(3); };
    for (disk.room = 0; disk.room < std::string(after).size(); ++disk.room) {
        ASSERT_EXIT(save(target), ::testing::ExitedWithCode(3), "") << disk.room;
        ASSERT_EQ(contentOf(target), before) << disk.room;
    }
}

TEST_F(SafeFileTest, ADiskThatTakesNoOtherFileOrNameLeavesTheFileWhole) {
    disk.refusalToCreate = error(std::errc::no_space_on_device);
    EXPECT_EQ(save(target), 75);
    EXPECT_EQ(save(fresh), 75);
    disk.refusalToCreate = {};
    disk.refusalToRename = error(std::errc::io_error);
    EXPECT_EQ(save(target), 75);
    EXPECT_EQ(save(fresh), 75);
    EXPECT_EQ(contentOf(target), before);
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(SafeFileTest, AFolderThatTakesNoOtherFileLetsTheFileBeWrittenDirectly) {
    disk.refusalToCreate = error(std::errc::permission_denied);
    EXPECT_EQ(save(target), 0);
    EXPECT_EQ(contentOf(target), after);
    EXPECT_EQ(disk.written, 1);
    EXPECT_EQ(save(fresh), 75) << "nor does it take a new one";
    EXPECT_EQ(filesInFolder(), 1U);
    put(target, before);
    { SafeFile(target, disk).write(after); }
    EXPECT_EQ(contentOf(target), before) << "not before the commit";
}

TEST_F(SafeFileTest, AFileThatNoneMayTakeThePlaceOfIsWrittenDirectly) {
    for (const std::errc refusal :
         {std::errc::permission_denied, std::errc::operation_not_permitted,
          std::errc::device_or_resource_busy, std::errc::cross_device_link}) {
        put(target, before);
        disk.refusalToRename = error(refusal);
        EXPECT_EQ(save(target), 0);
        EXPECT_EQ(contentOf(target), after);
        EXPECT_EQ(save(fresh), 75);
        EXPECT_EQ(filesInFolder(), 1U);
    }
}

TEST_F(SafeFileTest, AFolderOrNoNameIsRefused) {
    EXPECT_EQ(save(folder.path()), 75);
    EXPECT_EQ(save(folder.path() / ""), 75);
    EXPECT_EQ(save(folder.path() / "none" / ""), 75);
    EXPECT_EQ(save(folder.path() / "none" / "a.X"), 75);
    EXPECT_EQ(save(target / "a.X"), 75) << "a file is no folder";
    EXPECT_EQ(save({}), 75);
    EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(SafeFileTest, TheLongestNameThatTheFolderTakesIsTakenToo) {
    const fs::path longest = folder.path() / std::string(250, 'n');
    EXPECT_EQ(save(longest), 0);
    EXPECT_EQ(contentOf(longest), after);
}

#ifndef _WIN32
TEST_F(SafeFileTest, PermissionsAreKept) {
    const auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(target, mode);
    EXPECT_EQ(save(target), 0);
    EXPECT_EQ(fs::status(target).permissions(), mode);
    fs::permissions(target, mode | fs::perms::others_all);
    EXPECT_EQ(save(target), 0);
    EXPECT_EQ(fs::status(target).permissions(), mode | fs::perms::others_all);
}

TEST_F(SafeFileTest, AFileThatMayNotBeWrittenIsRefused) {
    fs::permissions(target, fs::perms::owner_read);
    if (std::ofstream(target, std::ios::app).is_open())
        GTEST_SKIP() << "who runs this may write any file";
    EXPECT_EQ(save(target), 75);
    EXPECT_EQ(contentOf(target), before);
}

TEST_F(SafeFileTest, LinksAreFollowed) {
    fs::create_directory(folder.path() / "links");
    const fs::path link = folder.path() / "links" / "link.X";
    fs::create_symlink("../hop.X", link);
    fs::create_symlink(target, folder.path() / "hop.X");
    EXPECT_EQ(save(link), 0);
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(link)));
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(folder.path() / "hop.X")));
    EXPECT_FALSE(fs::is_symlink(fs::symlink_status(target)));
    EXPECT_EQ(contentOf(target), after);
}

TEST_F(SafeFileTest, ALinkToAFileStillToBeMadeMakesIt) {
    const fs::path link = folder.path() / "link.X";
    fs::create_symlink("b.X", link);
    EXPECT_EQ(save(link), 0);
    EXPECT_TRUE(fs::is_symlink(fs::symlink_status(link)));
    EXPECT_EQ(contentOf(fresh), after);
}

TEST_F(SafeFileTest, LinksThatLeadNowhereAreRefused) {
    fs::create_symlink("two.X", folder.path() / "one.X");
    fs::create_symlink("one.X", folder.path() / "two.X");
    EXPECT_EQ(save(folder.path() / "one.X"), 75);
    fs::create_symlink("none/a.X", folder.path() / "three.X");
    EXPECT_EQ(save(folder.path() / "three.X"), 75);
}

TEST_F(SafeFileTest, ADeviceIsWrittenDirectly) {
    if (!fs::is_character_file("/dev/null"))
        GTEST_SKIP() << "there is no such device";
    EXPECT_EQ(save("/dev/null"), 0);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    fs::create_symlink("/dev/null", folder.path() / "null");
    EXPECT_EQ(save(folder.path() / "null"), 0);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    if (fs::is_character_file("/dev/full")) {
        EXPECT_EQ(save("/dev/full"), 75);
    }
}
#endif

} // namespace
} // namespace caudalera
