// Writes a table file of the program from its text: writeTable TABLE.csv FILE
//
// A line that begins with '#' tells the source; the first other line names the columns; each line
// behind it is a latitude and its twelve values, January first. The file holds the values as
// singles, line after line.

#include "shell/files/SingleBytes.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

constexpr int months = 12;

std::string bytesOfLine(const std::string& line) {
    std::istringstream cells(line);
    std::string cell;
    std::getline(cells, cell, ',');
    std::string bytes;
    int values = 0;
    while (std::getline(cells, cell, ',')) {
        std::size_t read = 0;
        const auto single = caudalera::bytesOfSingle(std::stof(cell, &read));
        if (read != cell.size())
            throw std::runtime_error("no number: " + cell);
        bytes.append(single.begin(), single.end());
        ++values;
    }
    if (values != months)
        throw std::runtime_error("not twelve values: " + line);
    return bytes;
}

std::string bytesOfTable(const std::filesystem::path& table) {
    std::ifstream text(table);
    if (!text)
        throw std::runtime_error("cannot read " + table.string());
    std::string bytes;
    bool header = true;
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.starts_with('#'))
            continue;
        if (!header)
            bytes += bytesOfLine(line);
        header = false;
    }
    return bytes;
}

void write(const std::filesystem::path& file, const std::string& bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << bytes << std::flush;
    if (!stream)
        throw std::runtime_error("cannot write " + file.string());
}

} // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 3)
            throw std::runtime_error("usage: writeTable TABLE.csv FILE");
        write(argv[2], bytesOfTable(argv[1]));
        return 0;
    } catch (const std::exception& fault) {
        std::cerr << "writeTable: " << fault.what() << '\n';
        return 1;
    }
}
