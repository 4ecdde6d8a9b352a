// makeManual SOURCE TARGET: the pages of the manual as a project that a compiler of help files
// takes. Ends with a non-zero status, saying why, at the first thing that is wrong with them.

#include "manual/maker/Book.h"

#include <cstdio>
#include <exception>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: makeManual SOURCE TARGET\n", stderr);
        return 2;
    }
    try {
        using namespace caudalera::manual;
        writeProject(readBook(argv[1]), argv[1], argv[2]);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "makeManual: %s\n", fault.what());
        return 1;
    }
    return 0;
}
