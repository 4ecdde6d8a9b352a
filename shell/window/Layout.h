#pragma once

#include <initializer_list>
#include <utility>
#include <vector>

namespace caudalera {

class Control;
class Frame;
class List;
class Tabs;
class TextBox;

/// How a window's controls stand, as data: rows and columns of frames, fields, grids and charts.
/// A view builds any window from it; positions and sizes are the view's own.
struct Layout {
    enum class Kind {
        none,    ///< nothing
        control, ///< one control that fills its room (a grid, a chart) or takes its own size
        row,     ///< children side by side
        column,  ///< children one below the other
        frame,   ///< a group box around its one child
        tabs,    ///< one child a tab
        fields,  ///< lines of label, fields and unit, in columns that line up
        buttons, ///< commands side by side
    };
    struct FieldLine {
        Control* label = nullptr;
        std::vector<Control*> fields;
        Control* unit = nullptr;

        FieldLine(TextBox& box);
        FieldLine(List& list);
        FieldLine(Control* labelControl, std::vector<Control*> controls, Control* unitControl)
            : label(labelControl), fields(std::move(controls)), unit(unitControl) {}
    };

    Kind kind = Kind::none;
    Control* control = nullptr;
    std::vector<Layout> children;
    std::vector<FieldLine> lines;
    /// Share of the room that is left over; 0 takes what the content needs.
    int stretch = 0;

    Layout stretched(int share = 1) && {
        stretch = share;
        return std::move(*this);
    }
};

/// Builders; the nesting of the calls is that of the controls on the screen:
/// row({column({...}), frame(fraX, fields({...}))}).
namespace layout {

Layout row(std::vector<Layout> children);
Layout column(std::vector<Layout> children);
Layout control(Control& control);
Layout frame(Frame& frame, Layout content);
Layout tabs(Tabs& tabs, std::vector<Layout> pages);
Layout fields(std::vector<Layout::FieldLine> lines);
Layout buttons(const std::vector<Control*>& controls);
/// Options, labels or pictures one below the other.
Layout list(const std::vector<Control*>& controls);

} // namespace layout

} // namespace caudalera
