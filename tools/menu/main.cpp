// caudalera_menu DIRECTORY: what the main menu opens, for who walks through the program from
// outside. DIRECTORY holds the tables that windows read. One line an entry that opens a window, its
// columns parted by tabs: how many titles of the menu stand before its own, how many entries before
// itself below that, the window's name, the window's title.

#include "app/registry.h"
#include "recording/RecordingPlatform.h"
#include "shell/main/frmCaudalera.h"
#include "shell/window/Program.h"

#include <cstddef>
#include <cstdio>

namespace {

using namespace caudalera;

/// The window that an entry opens in a program of its own, or nothing.
void tell(const char* directory, std::size_t title, std::size_t entry, std::size_t counted) {
    RecordingPlatform platform;
    platform.directory = directory;
    Program program(platform, ventanas());
    program.start();
    auto* const main = dynamic_cast<frmCaudalera*>(program.find("frmCaudalera"));
    if (!main)
        return;
    const Window* const before = program.front();
    program.click(*main->menuBar[title]->entries[entry]);
    const Window* const opened = program.front();
    if (program.ended() || !opened || opened == before)
        return;
    std::printf("%zu\t%zu\t%s\t%s\n", title, counted, opened->name().c_str(),
                opened->caption.c_str());
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: caudalera_menu DIRECTORY\n", stderr);
        return 2;
    }
    RecordingPlatform platform;
    Program program(platform, ventanas());
    program.start();
    const auto* const main = dynamic_cast<const frmCaudalera*>(program.find("frmCaudalera"));
    if (!main)
        return 1;
    for (std::size_t title = 0; title < main->menuBar.size(); ++title) {
        std::size_t counted = 0;
        const auto& entries = main->menuBar[title]->entries;
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            // A separator is passed over by the keyboard.
            if (entries[entry])
                tell(argv[1], title, entry, counted++);
        }
    }
    return 0;
}
