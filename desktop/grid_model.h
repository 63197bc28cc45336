#pragma once

#include <QAbstractTableModel>

#include "shell/forms/data_grid.h"

namespace vantore {

/// A grid's cells as the toolkit's tables read them: row 0 and column 0 of the grid are the headings, so that
/// the model's row and column are the grid's less 1.
class GridModel : public QAbstractTableModel {
  public:
    GridModel(const DataGrid& grid, QObject* parent);

    /// Tells the views what has changed since the last time.
    void refresh();

    QModelIndex at(int gridRow, int gridCol) const { return index(gridRow - 1, gridCol - 1); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    QString text(int gridRow, int gridCol) const;

    const DataGrid& grid_;
    int rows_ = 0; ///< as the views know them
    int cols_ = 0;
};

} // namespace vantore
