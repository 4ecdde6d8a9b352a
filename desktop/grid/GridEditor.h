#pragma once

#include "desktop/controls/FieldEdit.h"

#include <QIcon>
#include <functional>

namespace caudalera {

/// The edit box of a grid, floating over the current cell while the model's box is visible. What
/// stands in it is not in the cell yet: its ground, its frame and a pencil tell it from a stored
/// value, also while the keyboard is elsewhere.
class GridEditor : public FieldEdit {
    Q_OBJECT

public:
    /// `pasteBlock` enters a text of several cells into the grid.
    GridEditor(Session& session, TextBox& box, QWidget* viewport,
               std::function<void(const QString&)> pasteBlock);

    /// Shows it over a cell.
    void floatOver(const QRect& cell, Qt::Alignment alignment);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void pasteText(const QString& text) override;

private:
    /// Where the pencil stands.
    QRect mark() const;

    std::function<void(const QString&)> pasteBlock_;
    QIcon pencil_;
};

} // namespace caudalera
