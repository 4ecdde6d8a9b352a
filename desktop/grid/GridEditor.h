#pragma once

#include "desktop/controls/FieldEdit.h"

#include <functional>

namespace caudalera {

/// The edit box of a grid, floating over the current cell while the model's box is visible.
class GridEditor : public FieldEdit {
    Q_OBJECT

public:
    /// `pasteBlock` enters a text of several cells into the grid.
    GridEditor(Session& session, TextBox& box, QWidget* viewport,
               std::function<void(const QString&)> pasteBlock);

    /// Shows it over a cell.
    void floatOver(const QRect& cell, Qt::Alignment alignment);

protected:
    void pasteText(const QString& text) override;

private:
    std::function<void(const QString&)> pasteBlock_;
};

} // namespace caudalera
