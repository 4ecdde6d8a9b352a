#include "manual/maker/Book.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

namespace caudalera::manual {
namespace {

class BookTest : public ::testing::Test {
protected:
    BookTest() {
        write("contents.txt", "inicio\n+ Distribuciones\n  normal\n");
        write("style.css", "p { color: black; }\n");
        write("pages/inicio.md", "# Manual\n\nVea la [normal](normal.md#formulas).\n");
        write("pages/normal.md",
              "# Distribución\nPalabras: Gauss; campana\n\n## Fórmulas\n\nTexto.\n");
    }

    void write(const std::string& name, const std::string& text) {
        const auto file = folder() / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }
    std::filesystem::path folder() const { return folder_.path(); }
    Book book() const { return readBook(folder()); }
    std::string html(const std::string& page) const {
        return htmlOf(book(), book().pages.at(page));
    }

private:
    TemporaryFolder folder_;
};

TEST_F(BookTest, EntriesHaveTheTitlesOfTheirPages) {
    const Book made = book();
    ASSERT_EQ(made.contents.size(), 3U);
    EXPECT_EQ(made.contents[0].title, "Manual");
    EXPECT_EQ(made.contents[1].title, "Distribuciones");
    EXPECT_EQ(made.contents[1].page, "");
    EXPECT_EQ(made.contents[2].title, "Distribución");
    EXPECT_EQ(made.contents[2].level, 1);
    EXPECT_EQ(made.pages.at("normal").words, (std::vector<std::string>{"Gauss", "campana"}));
}

TEST_F(BookTest, LinksLeadToPagesAndHeadings) {
    EXPECT_NE(html("inicio").find("<a href=\"normal.html#formulas\">normal</a>"),
              std::string::npos);
    EXPECT_NE(html("normal").find("<h2><a id=\"formulas\"></a>Fórmulas</h2>"), std::string::npos);
    // The words of the index are none of the text.
    EXPECT_EQ(html("normal").find("campana"), std::string::npos);
}

TEST_F(BookTest, HeadingsAreNamedInSmallLettersWithoutAccents) {
    write("pages/normal.md",
          "# Distribución\n\n## Fórmulas\n\n## ¿Az, ñu y 0 o 9?: ¡ÁÉÍÓÚ ZA üéíúá!\n");
    EXPECT_EQ(book().pages.at("normal").anchors,
              (std::vector<std::string>{"formulas", "az-nu-y-0-o-9-aeiou-za-ueiua"}));
}

TEST_F(BookTest, TheFirstPageListsTheContents) {
    EXPECT_NE(html("inicio").find("<ul>\n<li>Distribuciones<ul>\n"
                                  "<li><a href=\"normal.html\">Distribución</a></li>\n"
                                  "</ul>\n</li>\n</ul>\n"),
              std::string::npos);
}

TEST_F(BookTest, LinksAndPicturesThatLeadNowhereAreRefused) {
    const auto refused = [&](const std::string& text) {
        write("pages/normal.md", "# Distribución\n\n## Fórmulas\n\n" + text);
        EXPECT_THROW(book(), std::runtime_error) << text;
    };
    refused("[x](falta.md)");
    refused("[x](inicio.md#falta)");
    refused("[x](#falta)");
    refused("[x](falta.html)");
    refused("![x](falta.png)");
    refused("El valor es {{txtxm}}.");
    refused("# Otro título");
}

TEST_F(BookTest, APageOutOfTheContentsAndAnEntryWithoutItsPageAreRefused) {
    write("pages/otra.md", "# Otra\n");
    EXPECT_THROW(book(), std::runtime_error);
    write("contents.txt", "inicio\nnormal\notra\nfalta\n");
    EXPECT_THROW(book(), std::runtime_error);
    write("contents.txt", "inicio\nnormal\n    otra\n");
    EXPECT_THROW(book(), std::runtime_error);
    write("contents.txt", "inicio\nnormal\n  otra\n");
    EXPECT_EQ(book().contents.size(), 3U);
}

TEST_F(BookTest, TheTextQuotesWhatTheExampleShows) {
    write("pages/normal.md", "# Distribución\n\n## Fórmulas\n\nLa media es {{txtxm}}.\n\n"
                             "```ejemplo\nresultado txtxm Media 1.5\n```\n");
    EXPECT_NE(html("normal").find("<p>La media es 1.5.</p>"), std::string::npos);
}

TEST_F(BookTest, TheProjectNamesEveryFileAndIsInLatinLetters) {
    const auto target = folder() / "project";
    writeProject(book(), folder(), target);
    const std::string project = readText(target / "Ayuda.hhp");
    for (const char* file : {"inicio.html", "normal.html", "style.css"}) {
        EXPECT_NE(project.find(std::string(file) + "\n"), std::string::npos);
        EXPECT_TRUE(std::filesystem::exists(target / file));
    }
    EXPECT_NE(readText(target / "Ayuda.hhc").find("value=\"Distribuci\xF3n\">"), std::string::npos);
    EXPECT_NE(readText(target / "Ayuda.hhk").find("value=\"Gauss\">"), std::string::npos);
}

} // namespace
} // namespace caudalera::manual
