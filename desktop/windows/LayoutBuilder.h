#pragma once

#include "desktop/windows/ViewSet.h"
#include "shell/window/Layout.h"

#include <Qt>
#include <cstddef>

class QBoxLayout;
class QGridLayout;
class QLayout;

namespace caudalera {

/// Turns a window's layout data into widgets in Qt layouts.
class LayoutBuilder {
public:
    explicit LayoutBuilder(ViewSet& views) : views_(views) {}

    QLayout* build(const Layout& layout);

private:
    /// Blocks of fields below each other, whose columns line up.
    using FieldBlocks = std::vector<QGridLayout*>;

    void add(QBoxLayout& box, const Layout& child, FieldBlocks& blocks, Qt::Alignment where = {});
    QLayout* content(const Layout& layout, FieldBlocks& blocks);
    QBoxLayout* box(const Layout& layout, bool upright, FieldBlocks& blocks);
    /// Results and their chart in two parts, the chart and what follows it in the second one.
    QBoxLayout* split(const Layout& layout, bool upright, std::size_t chart, FieldBlocks& blocks);
    QLayout* fields(const Layout& layout, FieldBlocks& blocks);
    void addLine(QGridLayout& grid, int row, const Layout::FieldLine& line);
    QWidget* frame(const Layout& layout, FieldBlocks& blocks);
    QWidget* tabs(const Layout& layout);

    ViewSet& views_;
};

} // namespace caudalera
