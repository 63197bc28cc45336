#pragma once

#include <algorithm>
#include <span>
#include <vector>

#include "shell/base/table.h"
#include "shell/grid_columns.h"
#include "shell/grid_rows.h"

namespace vantore::router {

/// A table of the problem as the grid in which a user edits it.
template <class Row>
class Sheet {
  public:
    Sheet() = default;

    /// `headings` begin with that of column 0, the row number.
    Sheet(GridRows& rows, std::span<const Field<Row>> fields, const std::vector<ColumnHeading>& headings)
        : grid_(&rows.grid()), columns_(rows.grid(), fields, headings) {}

    DataGrid& grid() const { return *grid_; }

    /// The rows that hold data.
    int count() const { return std::min(grid_->rowCount(), grid_->rows() - 1); }

    void put(const CountedTable<Row>& table) const {
        setDataRows(*grid_, table.count());
        for (int i = 1; i <= table.count(); ++i) columns_.put(i, table(i));
    }

    /// The errors of `GridColumns::take`.
    CountedTable<Row> take() const {
        CountedTable<Row> table;
        for (int i = 1; i <= count(); ++i) {
            Row row;
            columns_.take(i, row);
            table.add(std::move(row));
        }
        return table;
    }

  private:
    DataGrid* grid_ = nullptr;
    GridColumns<Row> columns_;
};

} // namespace vantore::router
