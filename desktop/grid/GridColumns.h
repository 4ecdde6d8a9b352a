#pragma once

#include "desktop/grid/GridModel.h"

#include <QTableView>
#include <vector>

namespace caudalera {

/// The widths of a grid's columns. They share the view's room in the grid's own proportions; none
/// is narrower than its titles and the values that were seen in it, and one that the user has
/// dragged keeps the width that it was given.
class GridColumns {
public:
    GridColumns(QTableView& view, const MSFlexGrid& grid, const GridModel& model)
        : view_(view), grid_(grid), model_(model) {}

    /// Shares the room out anew; other columns than before know nothing of the user's hand.
    void fit();
    /// The same if the room is another one.
    void fitToRoom();
    /// Takes the values in sight into account; where there are none, it forgets the earlier ones.
    void see();
    /// A column got another width: by the user's hand, if not by ours.
    void resized(int col, int width);

    /// What all of them take at their proportions, and at the least for their titles.
    int preferredTotal() const;
    int titlesTotal() const;

private:
    int count() const { return model_.columnCount(); }
    int titleWidth(int col) const;
    int preferredWidth(int col) const;
    int minimum(int col) const;
    void setWidth(int col, int width);

    QTableView& view_;
    const MSFlexGrid& grid_;
    const GridModel& model_;
    /// Widest value seen in each, and which were dragged.
    std::vector<int> seen_;
    std::vector<bool> dragged_;
    int room_ = -1;
    bool fitting_ = false;
};

} // namespace caudalera
