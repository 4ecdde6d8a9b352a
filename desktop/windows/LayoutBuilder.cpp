#include "desktop/windows/LayoutBuilder.h"

#include "desktop/controls/ContainerViews.h"
#include "desktop/style/Style.h"
#include "desktop/windows/Splitter.h"
#include "shell/window/MSFlexGrid.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <algorithm>

namespace caudalera {

namespace {

enum FieldColumn { labelColumn, fieldColumn, unitColumn, restColumn };

bool holdsOnlyControls(const Layout& layout) {
    return std::all_of(layout.children.begin(), layout.children.end(), [](const Layout& child) {
        return child.kind == Layout::Kind::control && child.stretch == 0;
    });
}

bool growsWithin(const Layout& layout) {
    return layout.stretch > 0 ||
           std::any_of(layout.children.begin(), layout.children.end(), growsWithin);
}

bool hasStretch(const Layout& layout) {
    return std::any_of(layout.children.begin(), layout.children.end(),
                       [](const Layout& child) { return child.stretch > 0; });
}

bool isChart(const Layout& layout) {
    return layout.kind == Layout::Kind::control && layout.control->kind() == ControlKind::chart;
}

/// A grid that is read, not filled in.
bool isResultGrid(const Layout& layout) {
    return layout.kind == Layout::Kind::control && layout.control->kind() == ControlKind::grid &&
           !static_cast<const MSFlexGrid*>(layout.control)->editor;
}

bool holdsResultGrid(const Layout& layout) {
    return isResultGrid(layout) ||
           std::any_of(layout.children.begin(), layout.children.end(), holdsResultGrid);
}

/// Which child is a chart with a grid of results before it; none if 0.
std::size_t chartBehindResults(const std::vector<Layout>& children) {
    const auto chart = std::find_if(children.begin(), children.end(), isChart);
    return chart != children.end() && std::any_of(children.begin(), chart, holdsResultGrid)
               ? static_cast<std::size_t>(chart - children.begin())
               : 0;
}

/// How a child of a column stands in its width. Frames in the column that gets the window's spare
/// room hug what they hold, and the ring around an option that has the keyboard hugs the option.
Qt::Alignment sideIn(const Layout& column, const Layout& child) {
    const bool frame =
        child.kind == Layout::Kind::frame && column.stretch > 0 && !growsWithin(child);
    const bool option =
        child.kind == Layout::Kind::control && child.control->kind() == ControlKind::option;
    return frame || option ? Qt::AlignLeft : Qt::Alignment();
}

int widestIn(const QGridLayout& grid, int column) {
    int width = 0;
    for (int row = 0; row < grid.rowCount(); ++row) {
        if (const QLayoutItem* item = grid.itemAtPosition(row, column);
            item && item != grid.itemAtPosition(row, column + 1))
            width = std::max(width, item->sizeHint().width());
    }
    return width;
}

void lineUp(const std::vector<QGridLayout*>& blocks) {
    for (const int column : {labelColumn, fieldColumn}) {
        int width = 0;
        for (const QGridLayout* block : blocks)
            width = std::max(width, widestIn(*block, column));
        for (QGridLayout* block : blocks)
            block->setColumnMinimumWidth(column, width);
    }
}

/// Frames beside or below each other end on one line; but one that holds much less than the largest
/// does not stretch around nothing.
void hugContent(QBoxLayout& box) {
    const bool upright = box.direction() == QBoxLayout::TopToBottom;
    const double muchLess = upright ? 0.66 : 0.75;
    const auto across = [&](const QLayoutItem& item) {
        return upright ? item.sizeHint().width() : item.sizeHint().height();
    };
    int largest = 0;
    for (int i = 0; i < box.count(); ++i)
        largest = std::max(largest, across(*box.itemAt(i)));
    for (int i = 0; i < box.count(); ++i) {
        QLayoutItem& item = *box.itemAt(i);
        const auto* frame = qobject_cast<QGroupBox*>(item.widget());
        // Options below each other read as one column.
        const bool options = upright && frame && frame->findChild<QRadioButton*>();
        if (frame && !options && !item.alignment() && !frame->findChild<QTableView*>() &&
            across(item) < muchLess * largest)
            item.setAlignment(upright ? Qt::AlignLeft : Qt::AlignTop);
    }
}

} // namespace

QLayout* LayoutBuilder::build(const Layout& layout) {
    FieldBlocks blocks;
    QLayout* built = content(layout, blocks);
    lineUp(blocks);
    return built;
}

QLayout* LayoutBuilder::content(const Layout& layout, FieldBlocks& blocks) {
    switch (layout.kind) {
    case Layout::Kind::row:
    case Layout::Kind::buttons:
        return box(layout, false, blocks);
    case Layout::Kind::column:
        return box(layout, true, blocks);
    case Layout::Kind::fields:
        return fields(layout, blocks);
    case Layout::Kind::control:
    case Layout::Kind::frame:
    case Layout::Kind::tabs:
    case Layout::Kind::none:
        break;
    }
    auto* single = new QVBoxLayout;
    single->setContentsMargins(0, 0, 0, 0);
    add(*single, layout, blocks);
    return single;
}

void LayoutBuilder::add(QBoxLayout& box, const Layout& child, FieldBlocks& blocks,
                        Qt::Alignment where) {
    switch (child.kind) {
    case Layout::Kind::none:
        break;
    case Layout::Kind::control:
        box.addWidget(&views_.of(*child.control).widget(), child.stretch, where);
        break;
    case Layout::Kind::frame: {
        QWidget* group = frame(child, blocks);
        // Below other things a frame is as high as its content; beside them it fills the row.
        if (box.direction() == QBoxLayout::TopToBottom && !growsWithin(child))
            group->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
        box.addWidget(group, child.stretch, where);
        break;
    }
    case Layout::Kind::tabs:
        box.addWidget(tabs(child), child.stretch);
        break;
    default:
        box.addLayout(content(child, blocks), child.stretch);
    }
}

QBoxLayout* LayoutBuilder::box(const Layout& layout, bool upright, FieldBlocks& blocks) {
    if (const std::size_t chart = chartBehindResults(layout.children))
        return split(layout, upright, chart, blocks);
    auto* box = new QBoxLayout(upright ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(upright && holdsOnlyControls(layout) ? style::halfUnit() : style::unit());
    const Layout* before = nullptr;
    for (const Layout& child : layout.children) {
        if (upright) {
            add(*box, child, blocks, sideIn(layout, child));
        } else {
            // A unit must not read as part of the label beside it.
            if (before && before->kind == Layout::Kind::fields &&
                child.kind == Layout::Kind::fields)
                box->addSpacing(2 * style::unit());
            before = &child;
            // Beside each other the columns of fields have their own widths.
            FieldBlocks own;
            add(*box, child, own);
            lineUp(own);
        }
    }
    hugContent(*box);
    if (!hasStretch(layout)) {
        box->addStretch(1);
    } else if (upright) {
        // Takes what is left when the stretched ones are as high as their content asks for.
        box->addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding));
    }
    return box;
}

QBoxLayout* LayoutBuilder::split(const Layout& layout, bool upright, std::size_t chart,
                                 FieldBlocks& blocks) {
    const auto border = layout.children.begin() + static_cast<std::ptrdiff_t>(chart);
    Layout results = layout;
    results.children.assign(layout.children.begin(), border);
    Layout drawing = layout;
    drawing.children.assign(border, layout.children.end());
    // The border is there to give the grid more rows or fewer.
    for (Layout& child : results.children) {
        if (holdsResultGrid(child))
            child.stretch = std::max(child.stretch, 1);
    }
    auto* splitter = new Splitter(upright ? Qt::Vertical : Qt::Horizontal);
    splitter->add(box(results, upright, blocks));
    splitter->add(box(drawing, upright, blocks));
    auto* single = new QVBoxLayout;
    single->setContentsMargins(0, 0, 0, 0);
    single->addWidget(splitter);
    return single;
}

QLayout* LayoutBuilder::fields(const Layout& layout, FieldBlocks& blocks) {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(style::unit());
    grid->setVerticalSpacing(style::halfUnit());
    grid->setColumnStretch(restColumn, 1);
    int row = 0;
    for (const Layout::FieldLine& line : layout.lines)
        addLine(*grid, row++, line);
    // Spare height stays below the last line.
    grid->setRowStretch(row, 1);
    blocks.push_back(grid);
    return grid;
}

void LayoutBuilder::addLine(QGridLayout& grid, int row, const Layout::FieldLine& line) {
    if (line.label)
        grid.addWidget(&views_.of(*line.label).widget(), row, labelColumn);
    Control& first = *line.fields.front();
    const bool text =
        !line.label && !line.unit && line.fields.size() == 1 && first.kind() == ControlKind::label;
    // Only fields with a unit say where the column of units stands.
    const int columns = line.unit ? 1 : 2;
    if (text) {
        grid.addWidget(&views_.of(first).widget(), row, labelColumn, 1, restColumn + 1);
    } else if (line.fields.size() == 1) {
        grid.addWidget(&views_.of(first).widget(), row, fieldColumn, 1, columns,
                       Qt::AlignLeft | Qt::AlignVCenter);
    } else {
        auto* side = new QHBoxLayout;
        side->setSpacing(style::halfUnit());
        for (Control* field : line.fields)
            side->addWidget(&views_.of(*field).widget());
        side->addStretch(1);
        grid.addLayout(side, row, fieldColumn, 1, columns);
    }
    if (line.unit)
        grid.addWidget(&views_.of(*line.unit).widget(), row, unitColumn);
}

QWidget* LayoutBuilder::frame(const Layout& layout, FieldBlocks& blocks) {
    QGroupBox& group = static_cast<FrameView&>(views_.of(*layout.control)).box();
    QLayout* inside = content(layout.children.front(), blocks);
    inside->setContentsMargins(style::unit(), style::unit(), style::unit(), style::unit());
    group.setLayout(inside);
    return &group;
}

QWidget* LayoutBuilder::tabs(const Layout& layout) {
    QTabWidget& widget = static_cast<TabsView&>(views_.of(*layout.control)).tabs();
    const auto& titles = static_cast<Tabs*>(layout.control)->titles();
    const QSignalBlocker quiet(widget);
    for (std::size_t i = 0; i < layout.children.size() && i < titles.size(); ++i) {
        auto* page = new QWidget(&widget);
        QLayout* inside = build(layout.children[i]);
        const int margin = style::unit();
        inside->setContentsMargins(margin, margin, margin, margin);
        page->setLayout(inside);
        widget.addTab(page, toQString(titles[i]));
    }
    return &widget;
}

} // namespace caudalera
