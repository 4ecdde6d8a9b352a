#pragma once

#include "desktop/controls/FieldViews.h"

#include <functional>

namespace caudalera {

/// The edit box of a grid, floating over the current cell while the model's box is visible.
class GridEditor : public FieldEdit {
    Q_OBJECT

public:
    /// `pasteBlock` enters a clipboard text of several cells into the grid.
    GridEditor(Session& session, TextBox& box, QWidget* viewport, std::function<void()> pasteBlock);

    /// Shows it over a cell.
    void floatOver(const QRect& cell, Qt::Alignment alignment);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::function<void()> pasteBlock_;
};

} // namespace caudalera
