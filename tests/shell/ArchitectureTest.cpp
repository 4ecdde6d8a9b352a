#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The rooms of the model know the standard library, the shell and themselves.

namespace caudalera {
namespace {

const std::vector<std::string> rooms = {"shell",   "stats",    "regression",
                                        "fitting", "curves",   "precipitation",
                                        "gauging", "peakflow", "evapotranspiration"};

/// Empty if a file of a room may include this, otherwise what is wrong. `target` is what stands
/// behind #include, with its brackets or quotes.
std::string fault(const std::string& room, const std::string& file, const std::string& target) {
    if (target.size() < 3)
        return "not understood";
    const std::string path = target.substr(1, target.size() - 2);
    if (target.front() == '<') {
        // Headers of the standard library have no folder, no extension and no capitals.
        const bool standard = std::all_of(path.begin(), path.end(), [](char c) {
            return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
        });
        return standard ? "" : "not of the standard library";
    }
    const std::string from = path.substr(0, path.find('/'));
    if (from == room || from == "shell")
        return "";
    if (std::find(rooms.begin(), rooms.end(), from) == rooms.end())
        return "outside the model";
    // The one file that lists the windows.
    if (file == "shell/registry.cpp")
        return "";
    // Rainfall fits are solved by the regressions' elimination.
    const bool solves = room == "precipitation" || room == "peakflow";
    if (solves && (path == "regression/gaussJordan.h" || path == "regression/ajustePotencial.h"))
        return "";
    return "points sideways";
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

TEST(Architecture, TheModelIncludesOnlyWhatItsRoomsMayKnow) {
    const std::filesystem::path source = CAUDALERA_SOURCE_DIR;
    int includes = 0;
    for (const std::string& room : rooms) {
        if (!std::filesystem::exists(source / room))
            continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(source / room)) {
            const auto extension = entry.path().extension();
            if (extension != ".h" && extension != ".cpp")
                continue;
            const std::string file = std::filesystem::relative(entry, source).generic_string();
            std::ifstream stream(entry.path());
            for (std::string line; std::getline(stream, line);) {
                const std::string target = included(line);
                if (target.empty())
                    continue;
                ++includes;
                EXPECT_EQ(fault(room, file, target), "") << file << " includes " << target;
            }
        }
    }
    EXPECT_GT(includes, 100) << "the sources were not found under " << source;
}

TEST(Architecture, TheRuleTellsWhatIsWrong) {
    EXPECT_EQ(fault("stats", "stats/a.cpp", "<vector>"), "");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "\"shell/Real.h\""), "");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "\"stats/b.h\""), "");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "<QString>"), "not of the standard library");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "<QtWidgets/QLabel>"), "not of the standard library");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "<unistd.h>"), "not of the standard library");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "<qcustomplot.h>"), "not of the standard library");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "\"qcustomplot.h\""), "outside the model");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "\"desktop/Session.h\""), "outside the model");
    EXPECT_EQ(fault("shell", "shell/a.cpp", "\"tests/support/Act.h\""), "outside the model");
    EXPECT_EQ(fault("stats", "stats/a.cpp", "\"fitting/normal.h\""), "points sideways");
    EXPECT_EQ(fault("shell", "shell/a.cpp", "\"fitting/normal.h\""), "points sideways");
    EXPECT_EQ(fault("shell", "shell/registry.cpp", "\"fitting/frmDisNormal.h\""), "");
    EXPECT_EQ(fault("peakflow", "peakflow/a.cpp", "\"regression/gaussJordan.h\""), "");
    EXPECT_EQ(fault("fitting", "fitting/a.cpp", "\"regression/gaussJordan.h\""), "points sideways");
    EXPECT_EQ(fault("peakflow", "peakflow/a.cpp", "\"regression/frmRegPoli2Gra.h\""),
              "points sideways");
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
