#include "shell/worksheet/PastedBlock.h"

#include "shell/numbers/Integer16.h"

#include <algorithm>

namespace caudalera {

namespace {

constexpr std::string_view nothingPasted = "No se pegó nada: ";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

/// Takes the digits in front off the text.
std::string_view takeDigits(std::string_view& text) {
    const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
    const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

/// Takes the integer part off the text: digits, or groups of three behind points.
std::string takeGroupedDigits(std::string_view& text) {
    std::string digits(takeDigits(text));
    const bool mayGroup = !digits.empty() && digits.size() <= 3;
    while (mayGroup && text.size() > 3 && text[0] == '.' &&
           std::all_of(text.begin() + 1, text.begin() + 4, isDigit)) {
        digits += text.substr(1, 3);
        text.remove_prefix(4);
    }
    return digits;
}

bool isExponent(std::string_view text) {
    if (text.empty() || std::string_view("eEdD").find(text[0]) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    if (!text.empty() && (text[0] == '+' || text[0] == '-'))
        text.remove_prefix(1);
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

/// The number that the whole cell is, with a decimal point; empty if it is none.
std::string numberOf(std::string_view cell, char decimal) {
    std::string number;
    if (!cell.empty() && (cell[0] == '-' || cell[0] == '+')) {
        if (cell[0] == '-')
            number = "-";
        cell.remove_prefix(1);
    }
    const std::string whole =
        decimal == ',' ? takeGroupedDigits(cell) : std::string(takeDigits(cell));
    number += whole;
    std::string_view decimals;
    if (!cell.empty() && cell[0] == decimal) {
        cell.remove_prefix(1);
        decimals = takeDigits(cell);
        (number += '.') += decimals;
    }
    if (whole.empty() && decimals.empty())
        return {};
    if (!cell.empty() && !isExponent(cell))
        return {};
    return number += cell;
}

} // namespace

PastedBlock::PastedBlock(std::string_view text) {
    std::vector<std::vector<std::string_view>> cells;
    std::size_t width = 0;
    for (const std::string_view line : split(text, '\n')) {
        cells.push_back(split(line, '\t'));
        for (std::string_view& cell : cells.back())
            cell = trimmed(cell);
        width = std::max(width, cells.back().size());
    }
    if (cells.back().size() == 1 && cells.back().front().empty())
        cells.pop_back();

    // The separator by which more of it reads as numbers, so that a refusal names the cell that is
    // wrong by either.
    const auto unread = [&cells](char decimal) {
        std::ptrdiff_t count = 0;
        for (const auto& row : cells) {
            count += std::count_if(row.begin(), row.end(), [decimal](std::string_view cell) {
                return numberOf(cell, decimal).empty();
            });
        }
        return count;
    };
    const bool hasComma = text.find(',') != std::string_view::npos;
    const bool commas = hasComma && (unread(',') == 0 || unread(',') < unread('.'));
    for (std::size_t i = 0; i < cells.size(); ++i) {
        cells[i].resize(width);
        std::vector<std::string>& row = rows_.emplace_back();
        for (std::size_t j = 0; j < width; ++j) {
            row.push_back(numberOf(cells[i][j], commas ? ',' : '.'));
            if (row.back().empty() && refusal_.empty()) {
                refusal_ = std::string(nothingPasted) + "el dato de la fila " +
                           std::to_string(i + 1) + ", columna " + std::to_string(j + 1) +
                           " no es un número: «" + std::string(cells[i][j]) + "»";
            }
        }
    }
}

std::string PastedBlock::refusalFor(const MSFlexGrid& grid) const {
    if (!refusal_.empty())
        return refusal_;
    const auto width = static_cast<long>(columns());
    const auto height = static_cast<long>(rows_.size());
    const long room = grid.Cols() - grid.Col();
    if (width > room) {
        return std::string(nothingPasted) + "el bloque tiene " + std::to_string(width) +
               " columnas y desde la celda actual " + (room == 1 ? "cabe " : "caben ") +
               std::to_string(room);
    }
    const long alta = grid.Rows() - 1;
    const long added = grid.Row() + height - alta;
    const bool completesOneRow = grid.Row() == alta && height == 1;
    const long dataColumns = grid.Cols() - grid.FixedCols();
    if (added > 0 && !completesOneRow && width < dataColumns) {
        return std::string(nothingPasted) + "cada fila nueva lleva " + std::to_string(dataColumns) +
               " datos y las del bloque tienen " + std::to_string(width);
    }
    const bool appends = added > 0 && width == room;
    if (appends && grid.Rows() + added > Integer16::max) {
        const long others = grid.FixedRows() + 1;
        return std::string(nothingPasted) + "con el bloque habría " +
               std::to_string(grid.Rows() + added - others) +
               " filas de datos y en la cuadrícula caben " +
               std::to_string(Integer16::max - others);
    }
    return {};
}

void PastedBlock::enter(Program& program, MSFlexGrid& grid) const {
    const long firstRow = grid.Row();
    const long firstCol = grid.Col();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const long row = firstRow + static_cast<long>(i);
        for (std::size_t j = 0; j < rows_[i].size(); ++j) {
            const long col = firstCol + static_cast<long>(j);
            if (program.ended() || !grid.canSelect(row, col))
                return;
            if (grid.Row() != row || grid.Col() != col)
                program.selectCell(grid, row, col);
            for (const char character : rows_[i][j])
                program.key(grid, {Key::Kind::character, static_cast<char32_t>(character)});
            program.key(grid, {Key::Kind::enter});
        }
    }
}

std::string numberAsPasted(std::string_view text) {
    const PastedBlock block(text);
    const bool isNumber =
        block.refusal().empty() && block.rows().size() == 1 && block.columns() == 1;
    return isNumber ? block.rows().front().front() : std::string(text);
}

} // namespace caudalera
