#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The installed program as a system sees it.

namespace caudalera {
namespace {

namespace fs = std::filesystem;

const fs::path source = CAUDALERA_SOURCE_DIR;
const fs::path tree = CAUDALERA_TREE;
const std::string id = "org.caudalera.Caudalera";
const std::vector<int> iconSizes = {16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256, 512};

std::string contentOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The value of a line "key=value" of the desktop entry.
std::string entry(std::string_view key) {
    std::istringstream lines(contentOf(tree / "share/applications" / (id + ".desktop")));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(std::string(key) + '='))
            return line.substr(key.size() + 1);
    }
    return {};
}

std::string metainfo() {
    return contentOf(tree / "share/metainfo" / (id + ".metainfo.xml"));
}

/// What stands in the first group of the pattern, wherever it fits.
std::vector<std::string> found(const std::string& text, const std::string& pattern) {
    const std::regex regex(pattern);
    std::vector<std::string> all;
    for (std::sregex_iterator it(text.begin(), text.end(), regex), end; it != end; ++it)
        all.push_back((*it)[1]);
    return all;
}

/// Width and height as a PNG's header has them, at bytes 16 and 20, the highest byte in front.
std::pair<int, int> pngSize(const fs::path& file) {
    const std::string content = contentOf(file);
    if (content.size() < 24 || !content.starts_with("\x89PNG"))
        return {};
    const auto number = [&](std::size_t at) {
        int value = 0;
        for (std::size_t i = at; i < at + 4; ++i)
            value = value * 256 + static_cast<unsigned char>(content[i]);
        return value;
    };
    return {number(16), number(20)};
}

struct Outcome {
    /// What the command exits with.
    int status = 0;
    std::string output;
    std::string errors;
};

/// Runs a shell's command without a display.
Outcome run(const std::string& command) {
    const fs::path folder = fs::path(testing::TempDir()) / "caudalera-install-tree";
    fs::create_directories(folder);
    const auto quoted = [&](const char* name) { return "'" + (folder / name).string() + "'"; };
    const std::string whole = "(unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM; " + command + ") >" +
                              quoted("output") + " 2>" + quoted("errors");
    const int status = std::system(whole.c_str());
    Outcome outcome{status >> 8, contentOf(folder / "output"), contentOf(folder / "errors")};
    fs::remove_all(folder);
    return outcome;
}

std::string program(const std::string& name) {
    return "'" + (tree / "bin" / name).string() + "'";
}

TEST(InstallTree, HoldsWhatItHasToAndNothingElse) {
    std::set<std::string> expected = {
        "bin/caudalera",
        "bin/caudalera-ayuda",
        "share/applications/" + id + ".desktop",
        "share/caudalera/Ayuda.chm",
        "share/caudalera/FThornthwite.TF",
        "share/caudalera/InsolacionMaxN.NN",
        "share/caudalera/PBlaneyCriddle.BP",
        "share/caudalera/hh",
        "share/doc/caudalera/NOTICES.md",
        "share/doc/caudalera/copyright",
        "share/icons/hicolor/scalable/apps/" + id + ".svg",
        "share/metainfo/" + id + ".metainfo.xml",
    };
    if (CAUDALERA_DEBIAN) {
        expected.insert({"share/doc/caudalera/changelog.gz", "share/lintian/overrides/caudalera"});
    } else {
        expected.insert({"share/doc/caudalera/CHANGELOG.md", "share/doc/caudalera/LICENSE"});
    }
    for (const int size : iconSizes) {
        const std::string both = std::to_string(size) + 'x' + std::to_string(size);
        expected.insert("share/icons/hicolor/" + both + "/apps/" + id + ".png");
    }
    for (const std::string language : {"", "es/"}) {
        for (const std::string page : {"caudalera", "caudalera-ayuda"})
            expected.insert("share/man/" + language + "man1/" + page + ".1.gz");
    }
    for (const auto& sample : fs::directory_iterator(source / "samples"))
        expected.insert("share/caudalera/samples/" + sample.path().filename().string());

    std::set<std::string> installed;
    for (const auto& each : fs::recursive_directory_iterator(tree)) {
        if (!each.is_directory())
            installed.insert(fs::relative(each.path(), tree).generic_string());
    }
    EXPECT_EQ(installed, expected);
}

TEST(InstallTree, OnlyProgramsCanBeRun) {
    const std::set<std::string> programs = {"caudalera", "caudalera-ayuda", "hh"};
    for (const auto& each : fs::recursive_directory_iterator(tree)) {
        if (each.is_directory())
            continue;
        const std::string name = each.path().parent_path().filename() == "bin" ||
                                         each.path().parent_path().filename() == "caudalera"
                                     ? each.path().filename().string()
                                     : "";
        EXPECT_EQ((each.status().permissions() & fs::perms::others_exec) != fs::perms::none,
                  programs.contains(name))
            << each.path();
    }
}

TEST(InstallTree, IconsHaveTheSizesOfTheirFolders) {
    for (const int size : iconSizes) {
        const std::string both = std::to_string(size) + 'x' + std::to_string(size);
        EXPECT_EQ(pngSize(tree / "share/icons/hicolor" / both / "apps" / (id + ".png")),
                  std::pair(size, size));
    }
    EXPECT_EQ(contentOf(tree / "share/icons/hicolor/scalable/apps" / (id + ".svg")),
              contentOf(source / "desktop/resources/icons/app.svg"));
}

TEST(InstallTree, TheDesktopEntryNamesWhatIsThere) {
    EXPECT_EQ(entry("Icon"), id);
    EXPECT_EQ(entry("TryExec"), "caudalera");
    EXPECT_EQ(entry("Exec"), "env CAUDALERA_DECIMAL=. caudalera");
    EXPECT_TRUE(fs::exists(tree / "bin" / entry("TryExec")));
    for (const char* const key : {"Name", "GenericName", "Comment", "Keywords"}) {
        EXPECT_NE(entry(key), "") << key;
        EXPECT_NE(entry(std::string(key) + "[en]"), "") << key;
    }
}

TEST(InstallTree, TheProgramsSetTheNameOfTheDesktopEntry) {
    for (const char* const main : {"desktop/main.cpp", "viewer/main.cpp"}) {
        EXPECT_EQ(
            found(contentOf(source / main), "setDesktopFileName\\(QStringLiteral\\(\"(.*)\"\\)"),
            std::vector{id})
            << main;
    }
}

TEST(InstallTree, TheMetainfoSpeaksBothLanguages) {
    const std::string text = metainfo();
    EXPECT_EQ(found(text, "<id>(.*)</id>"), std::vector{id});
    EXPECT_EQ(found(text, "<launchable type=\"desktop-id\">(.*)</launchable>"),
              std::vector{id + ".desktop"});
    EXPECT_EQ(found(text, "<url type=\"homepage\">(.*)</url>"),
              std::vector<std::string>{CAUDALERA_HOMEPAGE});
    for (const std::string element : {"name", "summary", "p", "li", "caption", "keyword"}) {
        const auto spanish = found(text, "<" + element + ">(.*)</" + element + ">").size();
        const auto english =
            found(text, "<" + element + " xml:lang=\"en\">(.*)</" + element + ">").size();
        EXPECT_GT(spanish, 0U) << element;
        EXPECT_EQ(spanish, english) << element;
    }
}

TEST(InstallTree, TheScreenshotsAreTheManualsPictures) {
    const std::string text = metainfo();
    const std::regex image(
        "<image type=\"source\" width=\"([0-9]+)\" height=\"([0-9]+)\">(.*)/pictures/(.*)</image>");
    int images = 0;
    for (std::sregex_iterator it(text.begin(), text.end(), image), end; it != end; ++it, ++images) {
        EXPECT_EQ((*it)[3], CAUDALERA_HOMEPAGE);
        EXPECT_EQ(pngSize(source / "manual/pictures" / (*it)[4].str()),
                  std::pair(std::stoi((*it)[1]), std::stoi((*it)[2])))
            << (*it)[4];
    }
    EXPECT_EQ(images, 4);
    EXPECT_EQ(found(text, "<(image) ").size(), 4U);
}

TEST(InstallTree, TheNewestReleaseOfTheChangelogIsTheVersionEverywhere) {
    const std::string changelog = contentOf(source / "CHANGELOG.md");
    const auto versions = found(changelog, "(?:^|\n)## \\[([0-9.]+)\\] - [0-9-]{10}(?=\n)");
    const auto dates = found(changelog, "(?:^|\n)## \\[[0-9.]+\\] - ([0-9-]{10})(?=\n)");
    ASSERT_FALSE(versions.empty());
    EXPECT_EQ(versions.front(), CAUDALERA_VERSION);
    EXPECT_EQ(found(metainfo(), "<release version=\"(.*)\" date"), versions);
    EXPECT_EQ(found(metainfo(), "<release version=\".*\" date=\"(.*)\">"), dates);
    for (const char* const name : {"caudalera", "caudalera-ayuda"}) {
        const Outcome version = run(program(name) + " --version");
        EXPECT_EQ(version.status, 0) << name;
        EXPECT_EQ(version.output, "Caudalera " + versions.front() + "\n") << name;
        EXPECT_EQ(version.errors, "") << name;
    }
}

TEST(InstallTree, WhatIsNotKnownOfACommandLineIsRefused) {
    const Outcome refused = run(program("caudalera") + " -platform offscreen");
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.errors, "caudalera: no se admite «-platform»; vea caudalera --help\n");
}

TEST(InstallTree, AnAnswerThatCannotBeWrittenFails) {
    if (!fs::is_character_file("/dev/full"))
        GTEST_SKIP() << "no device that is always full";
    EXPECT_EQ(run(program("caudalera") + " --help >/dev/full").status, 1);
}

TEST(InstallTree, TheDataDirectoryStartsTheViewer) {
    const Outcome version = run("'" + (tree / "share/caudalera/hh").string() + "' --version");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output, "Caudalera " CAUDALERA_VERSION "\n");
}

} // namespace
} // namespace caudalera
