#pragma once

#include "manual/maker/Contents.h"
#include "manual/maker/Page.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace caudalera::manual {

/// The whole manual.
struct Book {
    std::vector<Entry> contents;
    std::map<std::string, Page> pages;
};

/// Reads contents.txt and the pages of a folder; entries get the titles of their pages. Throws
/// std::runtime_error at an entry without its page, at a page that is no entry, and at a link or a
/// picture that leads nowhere.
Book readBook(const std::filesystem::path& folder);

/// A page as a file of HTML, with links to its neighbours in the contents.
std::string htmlOf(const Book& book, const Page& page);

/// Writes what a compiler of help files takes: the pages, style and pictures, contents and index
/// (in Windows-1252, as readers of such files expect these two) and the project "Ayuda.hhp".
void writeProject(const Book& book, const std::filesystem::path& source,
                  const std::filesystem::path& target);

} // namespace caudalera::manual
