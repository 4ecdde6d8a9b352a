#pragma once

#include "shell/window/MSFlexGrid.h"

#include <QAbstractTableModel>

namespace caudalera {

/// The cells of a grid below its fixed rows, read straight from the model's own table. The fixed
/// rows are the lines of the horizontal header.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    GridModel(const MSFlexGrid& grid, QObject* parent);

    /// Takes over size and texts if the grid's revision has moved on.
    void sync();

    /// Where a cell of the grid stands here, and back.
    QModelIndex indexOf(long row, long col) const;
    long gridRow(int row) const { return row + fixedRows_; }
    /// How many rows there are up to the last one that holds something.
    int filledRows() const { return filledRows_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    int countFilledRows() const;
    QString text(long row, long col) const;
    Qt::Alignment alignment(int col) const;

    const MSFlexGrid& grid_;
    /// What the views have been told of; the grid may be ahead of it until the next sync.
    int rows_ = 0;
    int cols_ = 0;
    int fixedRows_ = 0;
    int filledRows_ = 0;
    std::uint64_t revision_ = 0;
};

} // namespace caudalera
