#pragma once

#include "location/mark.h"
#include "shell/forms/data_grid.h"
#include "shell/forms/keys.h"

namespace vantore {

/// A column of a grid in which keys mark rows, or take the marks away.
class MarkColumn {
  public:
    MarkColumn() = default;
    MarkColumn(DataGrid& grid, int column) : grid_(&grid), column_(column) {}

    bool marked(int row) const { return grid_->cell(row, column_) == mark; }
    void set(int row, bool marked) { grid_->setCell(row, column_, marked ? mark : ""); }
    void turnOver(int row) { set(row, !marked(row)); }

    /// Whether a key in the current cell turns a mark over. Escape doesn't: it clears every cell; nor does
    /// Enter, which leaves every cell as it is.
    bool isTurnedOverBy(int code) const {
        return grid_->col() == column_ && code != keys::escape && code != keys::enter;
    }

  private:
    DataGrid* grid_ = nullptr;
    int column_ = 0;
};

} // namespace vantore
