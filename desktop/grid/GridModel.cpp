#include "desktop/grid/GridModel.h"

#include "desktop/richtext/QtText.h"

#include <algorithm>

namespace caudalera {

GridModel::GridModel(const MSFlexGrid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid) {
    sync();
}

void GridModel::sync() {
    if (revision_ == grid_.revision())
        return;
    revision_ = grid_.revision();
    const int fixedRows = static_cast<int>(grid_.FixedRows());
    const int rows = static_cast<int>(grid_.Rows()) - fixedRows;
    const int cols = static_cast<int>(grid_.Cols());
    filledRows_ = countFilledRows();
    if (cols != cols_ || fixedRows != fixedRows_) {
        beginResetModel();
        rows_ = rows;
        cols_ = cols;
        fixedRows_ = fixedRows;
        endResetModel();
        return;
    }
    if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
    if (rows_ > 0 && cols_ > 0)
        emit dataChanged(index(0, 0), index(rows_ - 1, cols_ - 1));
    emit headerDataChanged(Qt::Horizontal, 0, std::max(cols_ - 1, 0));
}

int GridModel::countFilledRows() const {
    for (long row = grid_.Rows() - 1; row >= grid_.FixedRows(); --row) {
        for (long col = 0; col < grid_.Cols(); ++col) {
            if (!grid_.TextMatrix(row, col).empty())
                return static_cast<int>(row - grid_.FixedRows() + 1);
        }
    }
    return 0;
}

QModelIndex GridModel::indexOf(long row, long col) const {
    return index(static_cast<int>(row) - fixedRows_, static_cast<int>(col));
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cols_;
}

QString GridModel::text(long row, long col) const {
    if (row < 0 || row >= grid_.Rows() || col < 0 || col >= grid_.Cols())
        return {};
    return toQString(grid_.TextMatrix(row, col));
}

Qt::Alignment GridModel::alignment(int col) const {
    using Column = MSFlexGrid::ColumnAlignment;
    const auto i = static_cast<std::size_t>(col);
    const Column column =
        i < grid_.columnAlignments.size() ? grid_.columnAlignments[i] : Column::center;
    switch (column) {
    case Column::left:
        return Qt::AlignLeft | Qt::AlignVCenter;
    case Column::right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case Column::center:
        break;
    }
    return Qt::AlignCenter;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return text(gridRow(index.row()), index.column());
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column()).toInt();
    return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || fixedRows_ == 0)
        return {};
    if (role == Qt::DisplayRole) {
        QString lines = text(0, section);
        for (long row = 1; row < fixedRows_; ++row)
            lines += u'\n' + text(row, section);
        return lines;
    }
    if (role == Qt::TextAlignmentRole)
        return alignment(section).toInt();
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    if (grid_.canSelect(gridRow(index.row()), index.column()))
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return Qt::ItemIsEnabled;
}

} // namespace caudalera
