#include "shell/files/SeriesFile.h"
#include "shell/files/FileSizeSignal.h"
#include "tests/support/FailureNumber.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace caudalera {
namespace {

using testing::failureNumber;

class SeriesFileTest : public ::testing::Test {
protected:
    std::string path(const std::string& name = "a.X") const { return folder.file(name); }
    void save(int fields, const std::vector<float>& values) {
        SeriesFile file(variables, path(), fields, SeriesFile::Access::replace);
        const auto width = static_cast<std::size_t>(fields);
        for (std::size_t i = 0; i < values.size(); i += width)
            file.write(std::span(values).subspan(i, width));
        file.close();
    }
    SeriesFile opened(int fields) {
        return SeriesFile(variables, path(), fields, SeriesFile::Access::read);
    }

    TemporaryFolder folder;
    Variables variables;
};

TEST_F(SeriesFileTest, RecordsAreLittleEndianSinglesWithNoGaps) {
    save(2, {1.0F, 2.5F, -0.1F, 0.0F});
    // IEEE 754: 1 = 3F800000, 2.5 = 40200000, the single nearest -0.1 = BDCCCCCD.
    EXPECT_EQ(bytesOf(path()), (Bytes{0x00, 0x00, 0x80, 0x3F, 0x00, 0x00, 0x20, 0x40, 0xCD, 0xCC,
                                      0xCC, 0xBD, 0x00, 0x00, 0x00, 0x00}));
}

TEST_F(SeriesFileTest, ReadingGivesTheSameRecordsInOrder) {
    save(3, {1, 2, 3, 4, 5, 6});
    SeriesFile file = opened(3);
    EXPECT_EQ(file.records(), 2);
    for (const auto& expected : {std::vector<float>{1, 2, 3}, std::vector<float>{4, 5, 6}}) {
        const auto record = file.read();
        EXPECT_EQ(std::vector<float>(record.begin(), record.end()), expected);
    }
    EXPECT_EQ(failureNumber([&] { file.read(); }), 75);
}

TEST_F(SeriesFileTest, AnyRecordCanBeTheNextOne) {
    save(2, {1, 2, 3, 4, 5, 6});
    SeriesFile file = opened(2);
    for (const long record : {3L, 1L, 2L}) {
        file.goTo(record);
        EXPECT_EQ(file.read().back(), static_cast<float>(2 * record));
    }
    EXPECT_EQ(file.read().back(), 6) << "and those behind it follow";
    file.goTo(4);
    EXPECT_EQ(failureNumber([&] { file.read(); }), 75);
}

TEST_F(SeriesFileTest, OneFileReadsInRecordsOfAnyWidth) {
    save(1, {1, 2, 3, 4});
    for (const int fields : {1, 2, 4}) {
        SeriesFile file = opened(fields);
        EXPECT_EQ(file.records(), 4 / fields);
        const auto record = file.read();
        ASSERT_EQ(record.size(), static_cast<std::size_t>(fields));
        EXPECT_EQ(record.back(), static_cast<float>(fields));
        file.close();
    }
}

TEST_F(SeriesFileTest, APartialLastRecordDoesNotCount) {
    writeBytes(path(), Bytes(10));
    SeriesFile four = opened(1);
    EXPECT_EQ(four.records(), 2);
    four.close();
    SeriesFile twelve = opened(3);
    EXPECT_EQ(twelve.records(), 0);
    twelve.close();
}

TEST_F(SeriesFileTest, MoreRecordsThan16BitsIsFailure6) {
    writeBytes(path(), Bytes(131068));
    SeriesFile most = opened(1);
    EXPECT_EQ(most.records(), 32767) << "of four bytes";
    most.close();
    writeBytes(path(), Bytes(131072));
    const SeriesFile more = opened(1);
    EXPECT_EQ(failureNumber([&] { more.records(); }), 6);
}

TEST_F(SeriesFileTest, ReplacingLeavesNothingOfALongerFile) {
    save(1, {1, 2, 3});
    save(1, {9});
    EXPECT_EQ(bytesOf(path()), (Bytes{0x00, 0x00, 0x10, 0x41})) << "9 = 41100000";
    save(1, {});
    EXPECT_EQ(bytesOf(path()), Bytes{});
}

TEST_F(SeriesFileTest, AFileThatCannotBeOpenedLeavesTheNumberFree) {
    const auto access = [&](const std::string& name, SeriesFile::Access how) {
        return failureNumber([&] { SeriesFile(variables, name, 1, how); });
    };
    EXPECT_EQ(access("", SeriesFile::Access::read), 52);
    EXPECT_EQ(access("", SeriesFile::Access::replace), 52);
    EXPECT_EQ(access(path("none.X"), SeriesFile::Access::read), 53);
    EXPECT_FALSE(std::filesystem::exists(path("none.X"))) << "reading creates nothing";
    EXPECT_EQ(access(pathText(folder.path()), SeriesFile::Access::read), 53);
    EXPECT_EQ(access(pathText(folder.path()), SeriesFile::Access::replace), 75);
    EXPECT_EQ(access(path("none/a.X"), SeriesFile::Access::replace), 75);
    EXPECT_FALSE(variables.archivoUnoEnUso);
}

TEST_F(SeriesFileTest, TheNumberIsInUseUntilTheFileIsClosed) {
    save(1, {1});
    SeriesFile file = opened(1);
    EXPECT_TRUE(variables.archivoUnoEnUso);
    file.close();
    EXPECT_FALSE(variables.archivoUnoEnUso);
}

TEST_F(SeriesFileTest, ANumberLeftInUseFailsTheNextOpeningOnly) {
    save(1, {1});
    { const SeriesFile left = opened(1); }
    EXPECT_TRUE(variables.archivoUnoEnUso) << "closing is a step of its own";
    EXPECT_EQ(failureNumber([&] { opened(1); }), 55);
    EXPECT_EQ(failureNumber([&] { opened(1); }), 0);
    EXPECT_EQ(failureNumber([&] { save(1, {2, 3}); }), 55) << "that one was not closed either";
    EXPECT_EQ(bytesOf(path()).size(), 4U);
    save(1, {2, 3});
    EXPECT_EQ(bytesOf(path()).size(), 8U);
}

TEST_F(SeriesFileTest, ANumberLeftInUseIsFreedAlsoByAnOpeningThatWouldFailAnyway) {
    save(1, {1});
    for (const std::string& other : {std::string(), path("none.X"), path("none/a.X")}) {
        { const SeriesFile left = opened(1); }
        EXPECT_EQ(failureNumber([&] { SeriesFile(variables, other, 1, SeriesFile::Access::read); }),
                  55);
        EXPECT_FALSE(variables.archivoUnoEnUso);
    }
}

TEST_F(SeriesFileTest, AFileThatIsNotClosedStaysAsItWas) {
    save(1, {1});
    const Bytes before = bytesOf(path());
    {
        SeriesFile file(variables, path(), 1, SeriesFile::Access::replace);
        file.write(std::array{2.0F});
        EXPECT_EQ(bytesOf(path()), before);
    }
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_TRUE(variables.archivoUnoEnUso);
}

#ifdef CAUDALERA_POSIX_FILES
TEST_F(SeriesFileTest, ADiskThatIsFullAtAnyByteLeavesTheFileWholeAndTheNumberFree) {
    ignoreFileSizeSignal();
    save(2, {1, 2, 3, 4});
    const Bytes before = bytesOf(path());
    for (std::size_t room = 0; room < 24; ++room) {
        {
            const FileSizeLimit limit(room);
            ASSERT_EQ(failureNumber([&] { save(2, {9, 8, 7, 6, 5, 4}); }), 75) << room;
        }
        ASSERT_EQ(bytesOf(path()), before) << room;
        ASSERT_FALSE(variables.archivoUnoEnUso) << room;
    }
    const FileSizeLimit limit(24);
    save(2, {9, 8, 7, 6, 5, 4});
    EXPECT_EQ(bytesOf(path()).size(), 24U);
}

TEST_F(SeriesFileTest, APipeHoldsNobody) {
    ASSERT_TRUE(makeNamedPipe(path("pipe")));
    EXPECT_EQ(
        failureNumber([&] { SeriesFile(variables, path("pipe"), 1, SeriesFile::Access::read); }),
        53);
    EXPECT_EQ(
        failureNumber([&] { SeriesFile(variables, path("pipe"), 1, SeriesFile::Access::replace); }),
        75);
    EXPECT_FALSE(variables.archivoUnoEnUso);
}
#endif

TEST_F(SeriesFileTest, NamesMayHoldAnyCharacter) {
    const std::string name = path("año ñandú €.X");
    SeriesFile file(variables, name, 1, SeriesFile::Access::replace);
    file.write(std::array{1.0F});
    file.close();
    EXPECT_TRUE(std::filesystem::exists(folder.path() / u8"año ñandú €.X"));
}

} // namespace
} // namespace caudalera
