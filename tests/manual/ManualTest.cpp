#include "manual/maker/Book.h"
#include "manual/player/ExamplePlayer.h"
#include "manual/player/PictureRecord.h"
#include "tests/support/WindowTest.h"

#include <gtest/gtest.h>

#include <filesystem>

// The manual and the program must not part: every window has its page, every example gives what the
// page says.

namespace caudalera::manual {
namespace {

const std::filesystem::path source = CAUDALERA_SOURCE_DIR;

TEST(Manual, EveryWindowHasAPageAndEveryPageIsInTheContents) {
    // Reading it refuses pages out of the contents, and links and pictures that are not there.
    const Book book = readBook(source / "manual");
    for (const WindowEntry& window : ventanas())
        EXPECT_TRUE(book.pages.contains(std::string(window.name))) << window.name;
}

class Windows : public WindowTest {};

// `cmake --build build/release --target manual_pictures` makes them anew.
TEST_F(Windows, LookAsWhenTheirPicturesWereMade) {
    for (const WindowEntry& entry : ventanas()) {
        const std::string name(entry.name);
        const auto pictures = source / "manual" / "pictures";
        ASSERT_TRUE(std::filesystem::exists(pictures / (name + ".png"))) << name;
        const Page page = readPage(source / "manual" / "pages" / (name + ".md"));
        EXPECT_EQ(readText(pictures / (name + ".txt")), pictureRecord(open(name), page.example))
            << name;
    }
}

class Example : public WindowTest, public ::testing::WithParamInterface<std::string> {
protected:
    Example() { platform.directory = CAUDALERA_DATA_DIR; }
};

TEST_P(Example, GivesWhatThePageSays) {
    const Page page = readPage(source / "manual" / "pages" / (GetParam() + ".md"));
    ExamplePlayer player(program, [this](const std::string& sample) {
        const auto file = source / "samples" / sample;
        ASSERT_TRUE(std::filesystem::exists(file)) << sample;
        platform.answers = {file.string()};
    });
    if (page.example.front().kind != Step::Kind::open)
        player.open(page.name);
    for (const Step& step : page.example) {
        SCOPED_TRACE(step.control + " " + step.caption);
        if (step.kind == Step::Kind::message) {
            ASSERT_FALSE(platform.messages.empty());
            EXPECT_EQ(platform.messages.front().text, step.value());
            platform.messages.erase(platform.messages.begin());
        } else {
            EXPECT_EQ(player.play(step), "");
        }
        ASSERT_FALSE(program.ended());
    }
    EXPECT_EQ(messages(), std::vector<Message>());
}

std::vector<std::string> pagesWithExample() {
    std::vector<std::string> names;
    for (const auto& [name, page] : readPages(source / "manual" / "pages")) {
        if (!page.example.empty())
            names.push_back(name);
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(Pages, Example, ::testing::ValuesIn(pagesWithExample()),
                         [](const auto& page) {
                             std::string name = page.param;
                             std::erase_if(name, [](char c) { return c == '-'; });
                             return name;
                         });

} // namespace
} // namespace caudalera::manual
