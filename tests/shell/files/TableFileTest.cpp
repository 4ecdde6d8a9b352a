#include "shell/files/TableFile.h"
#include "shell/files/SingleBytes.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <vector>

namespace caudalera {
namespace {

using Values = std::vector<float>;

class TableFileTest : public ::testing::Test {
protected:
    std::string path() const { return folder.file("a.TF"); }
    TemporaryFolder folder;
};

// IEEE 754: 1 = 3F800000, the single nearest -0.1 = BDCCCCCD.
TEST(SingleBytesTest, TheLowestByteStandsFirst) {
    EXPECT_EQ(bytesOfSingle(1), (SingleBytes{0, 0, '\x80', '\x3F'}));
    EXPECT_EQ(bytesOfSingle(-0.1F), (SingleBytes{'\xCD', '\xCC', '\xCC', '\xBD'}));
    EXPECT_EQ(singleOf({'\xCD', '\xCC', '\xCC', '\xBD'}), -0.1F);
}

TEST_F(TableFileTest, ReadsTheFirstSinglesUpToTheCapacity) {
    writeSingles(path(), {1.5F, -2, 3});
    EXPECT_EQ(readTable(path(), 0), Values());
    EXPECT_EQ(readTable(path(), 2), (Values{1.5F, -2}));
    EXPECT_EQ(readTable(path(), 3), (Values{1.5F, -2, 3}));
    EXPECT_EQ(readTable(path(), 4), (Values{1.5F, -2, 3}));
}

TEST_F(TableFileTest, LeavesAPartOfASingleOut) {
    writeBytes(path(), {0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0x80});
    EXPECT_EQ(readTable(path(), 9), Values{1});
}

TEST_F(TableFileTest, WhatCannotBeReadHasNone) {
    EXPECT_EQ(readTable(path(), 9), Values());
    EXPECT_EQ(readTable(folder.path(), 9), Values());
    EXPECT_EQ(readTable(folder.path() / "none" / "a.TF", 9), Values());
    writeSingles(path(), {});
    EXPECT_EQ(readTable(path(), 9), Values());
}

#ifdef CAUDALERA_POSIX_FILES
TEST_F(TableFileTest, APipeIsNotWaitedFor) {
    ASSERT_TRUE(makeNamedPipe(path()));
    EXPECT_EQ(readTable(path(), 9), Values());
}
#endif

} // namespace
} // namespace caudalera
