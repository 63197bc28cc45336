#include "shell/grid_columns.h"

#include <algorithm>

namespace vantore {

void shapeColumns(DataGrid& grid, const std::vector<ColumnHeading>& headings) {
    grid.setCols(static_cast<int>(headings.size()));
    std::size_t most = 1;
    int col = 0;
    for (const ColumnHeading& heading : headings) {
        grid.setCell(0, col, heading.caption);
        grid.setColWidth(col++, heading.width);
        most = std::max(most, lines(heading.caption).size());
    }
    grid.setRowHeight(0, static_cast<double>(most) * designRowHeight);
}

} // namespace vantore
