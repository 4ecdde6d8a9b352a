#include "shell/worksheet/PastedBlock.h"

#include "shell/numbers/Integer16.h"

#include <algorithm>

namespace caudalera {

namespace {

constexpr std::string_view nothingPasted = "No se pegó nada: ";

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

/// Whether a row has no number in it by either sign.
bool isHeading(const std::vector<std::string_view>& row) {
    return std::all_of(row.begin(), row.end(), [](std::string_view cell) {
        return foreignNumber(cell, DecimalSign::point).empty() &&
               foreignNumber(cell, DecimalSign::comma).empty();
    });
}

/// Why a cell can't be entered, its row and column counted from 1.
std::string refusalOf(const std::string& cell, std::size_t row, std::size_t column) {
    std::string text(nothingPasted);
    text += cell.empty() ? "la celda" : "el dato";
    text += " de la fila " + std::to_string(row) + ", columna " + std::to_string(column);
    if (cell.empty())
        return text += " está vacía";
    text += " no es un número: «";
    text += cell;
    return text += "»";
}

} // namespace

PastedBlock::PastedBlock(std::string_view text) {
    std::vector<std::vector<std::string_view>> lines;
    for (const std::string_view line : split(text, '\n')) {
        lines.push_back(split(line, '\t'));
        for (std::string_view& cell : lines.back())
            cell = trimmed(cell);
    }
    if (lines.back().size() == 1 && lines.back().front().empty())
        lines.pop_back();
    for (const auto& line : lines)
        columns_ = std::max(columns_, line.size());
    headings_ = lines.size() > 1 && isHeading(lines.front());
    if (headings_)
        lines.erase(lines.begin());
    for (auto& line : lines) {
        line.resize(columns_);
        cells_.emplace_back(line.begin(), line.end());
    }
    chooseSign();
}

void PastedBlock::chooseSign() {
    const bool hasComma = std::any_of(cells_.begin(), cells_.end(), [](const auto& row) {
        return std::any_of(row.begin(), row.end(), [](const std::string& cell) {
            return cell.find(',') != std::string::npos;
        });
    });
    const auto points = unread(DecimalSign::point);
    const auto commas = unread(DecimalSign::comma);
    if (points == 0 && commas == 0 && hasComma)
        findExample();
    // Where both fail, the sign by which more is read, so that the refusal names a cell that is
    // wrong by either.
    read(commas < points || (commas == points && example_) ? DecimalSign::comma
                                                           : DecimalSign::point);
}

std::ptrdiff_t PastedBlock::unread(DecimalSign sign) const {
    std::ptrdiff_t count = 0;
    for (const auto& row : cells_) {
        count += std::count_if(row.begin(), row.end(), [sign](const std::string& cell) {
            return foreignNumber(cell, sign).empty();
        });
    }
    return count;
}

void PastedBlock::findExample() {
    for (const auto& row : cells_) {
        for (const std::string& cell : row) {
            const std::string withPoint = foreignNumber(cell, DecimalSign::point);
            const std::string withComma = foreignNumber(cell, DecimalSign::comma);
            if (!example_ && withPoint != withComma)
                example_ = Example{cell, withPoint, withComma};
        }
    }
}

void PastedBlock::read(DecimalSign sign) {
    rows_.clear();
    refusal_.clear();
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        std::vector<std::string>& row = rows_.emplace_back();
        for (std::size_t j = 0; j < columns_; ++j) {
            const std::string& cell = cells_[i][j];
            row.push_back(foreignNumber(cell, sign));
            if (!row.back().empty() || !refusal_.empty())
                continue;
            refusal_ = refusalOf(cell, i + (headings_ ? 2 : 1), j + 1);
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

bool PastedBlock::isSingleNumber() const {
    return refusal_.empty() && !headings_ && rows_.size() == 1 && columns_ == 1;
}

std::string numberAsPasted(std::string_view text) {
    const PastedBlock block(text);
    return block.isSingleNumber() ? block.rows().front().front() : std::string(text);
}

} // namespace caudalera
