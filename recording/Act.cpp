#include "recording/Act.h"

#include "shell/text/Utf8.h"

namespace caudalera {

void typeText(Program& program, Control& control, std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const utf8::Decoded next = utf8::decode(text, at);
        program.key(control, {Key::Kind::character, next.character});
        at += next.bytes;
    }
}

void typeRows(Program& program, MSFlexGrid& grid,
              const std::vector<std::vector<std::string>>& rows) {
    const long alta = grid.Rows() - 1;
    program.focus(grid);
    if (grid.Row() != alta || grid.Col() != 1)
        program.selectCell(grid, alta, 1);
    for (const auto& row : rows) {
        for (const auto& value : row) {
            typeText(program, grid, value);
            program.key(grid, {Key::Kind::enter});
        }
    }
}

} // namespace caudalera
