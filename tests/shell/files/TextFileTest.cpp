#include "shell/files/TextFile.h"
#include "shell/files/FileSizeSignal.h"
#include "tests/support/FailureNumber.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <string>

namespace caudalera {
namespace {

using testing::failureNumber;

class TextFileTest : public ::testing::Test {
protected:
    int reading(const std::string& path) const {
        return failureNumber([&] { leerArchivo(path); });
    }
    int writing(const std::string& path, const std::string& content) const {
        return failureNumber([&] { escribirArchivo(path, content); });
    }

    TemporaryFolder folder;
};

TEST_F(TextFileTest, WhatIsWrittenIsReadByteForByte) {
    std::string content("\0\r\n\x1a\xff", 5);
    escribirArchivo(folder.file("año.rtf"), content);
    EXPECT_EQ(leerArchivo(folder.file("año.rtf")), content);
    // More than is read at a time, and no whole multiple of it.
    while (content.size() < 200000)
        content += content + "x";
    escribirArchivo(folder.file("año.rtf"), content);
    EXPECT_EQ(leerArchivo(folder.file("año.rtf")), content);
    escribirArchivo(folder.file("año.rtf"), "");
    EXPECT_EQ(leerArchivo(folder.file("año.rtf")), "");
}

TEST_F(TextFileTest, OnlyAFileIsRead) {
    EXPECT_EQ(reading(folder.file("none")), 53);
    EXPECT_EQ(reading(""), 53);
    EXPECT_EQ(reading(pathText(folder.path())), 75);
}

#ifdef CAUDALERA_POSIX_FILES
TEST_F(TextFileTest, APipeHoldsNobody) {
    const std::string pipe = folder.file("pipe");
    ASSERT_TRUE(makeNamedPipe(pipe));
    EXPECT_EQ(reading(pipe), 75);
    EXPECT_EQ(writing(pipe, "x"), 75);
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST_F(TextFileTest, AFileThatBreaksOffIsAFailure) {
    // A regular file by its looks, whose first bytes nobody can read.
    const std::string unreadable = "/proc/self/mem";
    if (!std::filesystem::is_regular_file(unreadable))
        GTEST_SKIP() << "there is no such file";
    EXPECT_EQ(reading(unreadable), 75);
}

TEST_F(TextFileTest, TheLimitOfTheSystemLeavesTheFileWholeAndTheProgramAlive) {
    // Where this does not hold, the first write past the limit ends the tests.
    std::signal(SIGXFSZ, SIG_DFL);
    ignoreFileSizeSignal();
    const std::string before(300, 'b');
    // More than a stream keeps before it turns to the disk.
    const std::string after(20000, 'a');
    const std::string path = folder.file("a.rtf");
    escribirArchivo(path, before);
    for (std::size_t room = 0; room < after.size(); room += 799) {
        {
            const FileSizeLimit limit(room);
            ASSERT_EQ(writing(path, after), 75) << room;
        }
        ASSERT_EQ(leerArchivo(path), before) << room;
    }
    const FileSizeLimit limit(after.size());
    EXPECT_EQ(writing(path, after), 0);
    EXPECT_EQ(leerArchivo(path), after);
}
#endif

} // namespace
} // namespace caudalera
