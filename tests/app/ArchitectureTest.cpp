#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Every folder is a room, and what a room may use stands in one table.

namespace caudalera {
namespace {

/// Rooms by name, and what each may use beside itself and the C++ standard library. What a room may
/// use, those above it may use too: the names of `may` count with all that they may use themselves.
/// A name that ends in ".h" is a single routine of a room that is otherwise none of its business.
struct Room {
    std::string_view name;
    std::vector<std::string_view> may;
};

const std::vector<Room> rooms = {
    {"shell/numbers", {}},
    {"shell/text", {"shell/numbers"}},
    {"shell/files", {"shell/numbers"}},
    {"shell/richtext", {"shell/text"}},
    {"shell/window", {"shell/numbers", "shell/text", "shell/files"}},
    {"shell/report", {"shell/window", "shell/richtext", "shell/files", "shell/text"}},
    {"shell/worksheet", {"shell/report", "shell/window", "shell/files", "shell/text"}},
    {"shell/main", {"shell/window"}},
    {"shell", {"shell/worksheet", "shell/main"}},
    {"stats", {"shell"}},
    {"regression", {"shell"}},
    {"fitting", {"shell"}},
    {"curves", {"shell"}},
    {"precipitation", {"shell", "regression/gaussJordan.h", "regression/ajustePotencial.h"}},
    {"gauging", {"shell"}},
    {"peakflow", {"shell", "regression/gaussJordan.h", "regression/ajustePotencial.h"}},
    {"evapotranspiration", {"shell"}},
    {"app",
     {"stats", "regression", "fitting", "curves", "precipitation", "gauging", "peakflow",
      "evapotranspiration"}},
    {"recording", {"shell"}},
    {"desktop/words", {}},
    {"desktop/style", {"shell", "desktop/words"}},
    {"desktop/richtext", {"desktop/style"}},
    {"desktop/session", {"desktop/richtext"}},
    {"desktop/controls", {"desktop/session"}},
    {"desktop/grid", {"desktop/controls"}},
    {"desktop/chart", {"desktop/grid"}},
    {"desktop/windows", {"desktop/chart"}},
    {"desktop/report", {"desktop/windows"}},
    {"desktop", {"desktop/report", "app"}},
    {"manual/maker", {}},
    {"manual/player", {"manual/maker", "recording"}},
    {"viewer", {"desktop/style", "desktop/words", "desktop/CommandLine.h"}},
};

/// Rooms beside the desktop whose files may include a library's own headers.
const std::set<std::string_view> libraryRooms = {"manual/maker", "viewer"};

/// The room that a path stands in, by the longest name; nullptr if it is none.
const Room* roomOf(std::string_view path) {
    const std::string_view folder = path.substr(0, path.rfind('/'));
    const auto found = std::find_if(rooms.begin(), rooms.end(),
                                    [&](const Room& room) { return room.name == folder; });
    return found == rooms.end() ? nullptr : &*found;
}

bool mayUse(const Room& room, std::string_view path) {
    const Room* const target = roomOf(path);
    if (target == &room)
        return true;
    return std::any_of(room.may.begin(), room.may.end(), [&](std::string_view name) {
        if (name.ends_with(".h"))
            return name == path;
        const auto used = std::find_if(rooms.begin(), rooms.end(),
                                       [&](const Room& each) { return each.name == name; });
        return used != rooms.end() && mayUse(*used, path);
    });
}

/// Empty if the file may include this, otherwise what is wrong. `target` is what stands behind
/// #include, with its brackets or quotes.
std::string fault(std::string_view file, const std::string& target) {
    const Room* const room = roomOf(file);
    if (!room || target.size() < 3)
        return "not understood";
    const bool desktop = file.starts_with("desktop/") || libraryRooms.contains(room->name);
    const std::string path = target.substr(1, target.size() - 2);
    if (target.front() == '<') {
        // Headers of the standard library have no folder, no extension and no capitals.
        const bool standard = std::all_of(path.begin(), path.end(), [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
        });
        return standard || desktop ? "" : "not of the standard library";
    }
    if (desktop && path.ends_with(".moc"))
        return "";
    if (!roomOf(path))
        return "in no room";
    return mayUse(*room, path) ? "" : "not its business";
}

/// What stands behind #include in a line; empty if the line is none.
std::string included(std::string_view line) {
    const auto skip = [&line] {
        line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    };
    skip();
    if (!line.starts_with('#'))
        return {};
    line.remove_prefix(1);
    skip();
    if (!line.starts_with("include"))
        return {};
    line.remove_prefix(7);
    skip();
    if (line.empty())
        return "?";
    const auto end = line.find(line.front() == '<' ? '>' : '"', 1);
    return end == line.npos ? "?" : std::string(line.substr(0, end + 1));
}

/// Sources of a folder at the root of the project, as paths from there.
std::vector<std::string> sourcesOf(std::string_view folder) {
    const std::filesystem::path source = CAUDALERA_SOURCE_DIR;
    std::vector<std::string> files;
    if (!std::filesystem::exists(source / folder))
        return files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(source / folder)) {
        const auto extension = entry.path().extension();
        if (extension == ".h" || extension == ".cpp")
            files.push_back(std::filesystem::relative(entry, source).generic_string());
    }
    return files;
}

TEST(Architecture, EveryFileIncludesOnlyWhatItsRoomMayUse) {
    int includes = 0;
    std::set<std::string_view> folders;
    for (const Room& room : rooms)
        folders.insert(room.name.substr(0, room.name.find('/')));
    for (const std::string_view folder : folders) {
        for (const std::string& file : sourcesOf(folder)) {
            std::ifstream stream(std::filesystem::path(CAUDALERA_SOURCE_DIR) / file);
            for (std::string line; std::getline(stream, line);) {
                const std::string target = included(line);
                if (target.empty())
                    continue;
                ++includes;
                EXPECT_EQ(fault(file, target), "") << file << " includes " << target;
            }
        }
    }
    EXPECT_GT(includes, 500) << "the sources were not found under " << CAUDALERA_SOURCE_DIR;
}

TEST(Architecture, NoRoomUsesItselfByAWayRound) {
    for (const Room& room : rooms) {
        for (const std::string_view name : room.may) {
            const auto used = std::find_if(rooms.begin(), rooms.end(),
                                           [&](const Room& each) { return each.name == name; });
            if (used != rooms.end()) {
                EXPECT_LT(&*used, &room) << room.name << " stands above " << name;
            }
        }
    }
}

TEST(Architecture, TheRuleTellsWhatIsWrong) {
    EXPECT_EQ(fault("stats/a.cpp", "<vector>"), "");
    EXPECT_EQ(fault("stats/a.cpp", "\"shell/numbers/Real.h\""), "");
    EXPECT_EQ(fault("stats/a.cpp", "\"stats/b.h\""), "");
    EXPECT_EQ(fault("stats/a.cpp", "<QString>"), "not of the standard library");
    EXPECT_EQ(fault("stats/a.cpp", "<QtWidgets/QLabel>"), "not of the standard library");
    EXPECT_EQ(fault("stats/a.cpp", "<unistd.h>"), "not of the standard library");
    EXPECT_EQ(fault("app/a.cpp", "<qcustomplot.h>"), "not of the standard library");
    EXPECT_EQ(fault("recording/a.cpp", "\"qcustomplot.h\""), "in no room");
    EXPECT_EQ(fault("shell/main/a.cpp", "\"tests/support/Act.h\""), "in no room");
    EXPECT_EQ(fault("shell/a.cpp", "\"shell/Real.h\""), "");
    EXPECT_EQ(fault("somewhere/a.cpp", "<vector>"), "not understood");
    for (const auto& [file, target] : std::vector<std::pair<std::string_view, std::string>>{
             {"stats/a.cpp", "\"desktop/session/Session.h\""},
             {"stats/a.cpp", "\"fitting/normal.h\""},
             {"fitting/a.cpp", "\"regression/gaussJordan.h\""},
             {"peakflow/a.cpp", "\"regression/frmRegPoli2Gra.h\""},
             {"stats/a.cpp", "\"app/registry.h\""},
             {"shell/numbers/a.cpp", "\"shell/text/Text.h\""},
             {"shell/files/a.cpp", "\"shell/text/Text.h\""},
             {"shell/window/a.cpp", "\"shell/report/frmPadre.h\""},
             {"shell/window/a.cpp", "\"shell/main/frmCaudalera.h\""},
             {"shell/main/a.cpp", "\"shell/worksheet/Worksheet.h\""},
             {"recording/a.cpp", "\"app/registry.h\""},
             {"desktop/session/a.cpp", "\"desktop/controls/ControlView.h\""},
             {"desktop/windows/a.cpp", "\"app/registry.h\""},
             {"desktop/controls/a.cpp", "\"stats/parametros.h\""},
         })
        EXPECT_EQ(fault(file, target), "not its business") << file << " includes " << target;
    EXPECT_EQ(fault("peakflow/a.cpp", "\"regression/gaussJordan.h\""), "");
    EXPECT_EQ(fault("precipitation/a.cpp", "\"regression/ajustePotencial.h\""), "");
    EXPECT_EQ(fault("app/registry.cpp", "\"fitting/frmDisNormal.h\""), "");
    EXPECT_EQ(fault("desktop/main.cpp", "\"app/registry.h\""), "");
    EXPECT_EQ(fault("desktop/grid/a.cpp", "\"desktop/style/Style.h\""), "");
    EXPECT_EQ(fault("desktop/grid/a.cpp", "<QtWidgets/QLabel>"), "");
}

TEST(Architecture, IncludesAreFoundHoweverTheyAreSpaced) {
    EXPECT_EQ(included("#include <vector>"), "<vector>");
    EXPECT_EQ(included("  #  include\t\"shell/Real.h\" // why"), "\"shell/Real.h\"");
    EXPECT_EQ(included("#include MACRO"), "?");
    EXPECT_EQ(included("#define X"), "");
    EXPECT_EQ(included("int include;"), "");
    EXPECT_EQ(included(""), "");
}

} // namespace
} // namespace caudalera
