#include "desktop/grid_model.h"

#include "drawing/fonts.h"

namespace vantore {

GridModel::GridModel(const DataGrid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {
    refresh();
}

void GridModel::refresh() {
    const int rows = grid_.rows() - 1;
    const int cols = grid_.cols() - 1;
    if (cols != cols_) {
        beginResetModel();
        cols_ = cols;
        rows_ = rows;
        endResetModel();
    } else if (rows > rows_) {
        beginInsertRows({}, rows_, rows - 1);
        rows_ = rows;
        endInsertRows();
    } else if (rows < rows_) {
        beginRemoveRows({}, rows, rows_ - 1);
        rows_ = rows;
        endRemoveRows();
    }
    if (rows_ > 0 && cols_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, cols_ - 1));
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : cols_;
}

/// Between two steps a handler may have cut the grid; the next refresh follows at once.
QString GridModel::text(int gridRow, int gridCol) const {
    if (gridRow >= grid_.rows() || gridCol >= grid_.cols()) return {};
    return qtText(grid_.cell(gridRow, gridCol));
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1;
    const int col = index.column() + 1;
    switch (role) {
    case Qt::DisplayRole: return text(row, col);
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignVCenter | (grid_.numeric(col) ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::AccessibleTextRole: {
        // What is heard of a cell also where it is empty.
        const QString heading = text(0, col).simplified();
        const QString number = text(row, 0).simplified();
        return QString("%1 %2: %3").arg(heading, number, text(row, col)).simplified();
    }
    default: return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    const QString caption = orientation == Qt::Horizontal ? text(0, section + 1) : text(section + 1, 0);
    return QString(caption).replace("\r\n", "\n");
}

Qt::ItemFlags GridModel::flags(const QModelIndex& /*index*/) const {
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable; // typed into, without an editor
}

} // namespace vantore
