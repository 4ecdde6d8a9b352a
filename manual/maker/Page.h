#pragma once

#include "manual/maker/Example.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace caudalera::manual {

/// A page of the manual. Its source is Markdown with tables; the first heading is its title, a line
/// "Palabras: a; b" below it gives its entries in the index. Blocks of code named "formula" and
/// "ejemplo" are what they say, and {{control}} in the text quotes what the example shows there.
struct Page {
    /// Of the file, without its suffix: that of the window, where it is about one.
    std::string name;
    std::string title;
    std::vector<std::string> words;
    /// The examples one behind the other.
    std::vector<Step> example;
    /// What stands within the body, the title left out.
    std::string body;
    /// Files that it shows, and pages (with their anchors) that it leads to.
    std::vector<std::string> pictures;
    std::vector<std::string> links;
    /// Anchors of its headings.
    std::vector<std::string> anchors;
};

/// Reads a page. Throws std::runtime_error, naming the file, if it is not well made.
Page readPage(const std::filesystem::path& file);

/// All pages of a folder by their names.
std::map<std::string, Page> readPages(const std::filesystem::path& folder);

/// The whole of a file; throws std::runtime_error if it can't be read.
std::string readText(const std::filesystem::path& file);

} // namespace caudalera::manual
