#include "mathprog/matrix_grid.h"

#include <string>
#include <vector>

#include "shell/base/table.h"
#include "shell/grid_rows.h"

namespace vantore {

namespace {

/// Where a row or column of the old grid stands in the new one, -1 where it is cut off.
int newPlace(int place, int oldCount, int newCount, int roles) {
    const int oldBody = oldCount - roles;
    if (place >= oldBody) return newCount - oldCount + place;
    return place < newCount - roles ? place : -1;
}

} // namespace

void reshapeMatrix(DataGrid& grid, int rows, int cols, int roleRows, int roleCols) {
    checkIndex(roleRows + 1, 1, rows);
    checkIndex(roleCols + 1, 1, cols);
    const int oldRows = grid.rows();
    const int oldCols = grid.cols();
    std::vector<std::vector<std::string>> cells(static_cast<std::size_t>(rows),
                                                std::vector<std::string>(static_cast<std::size_t>(cols)));
    for (int row = 0; row < oldRows; ++row)
        for (int col = 0; col < oldCols; ++col) {
            const int toRow = newPlace(row, oldRows, rows, roleRows);
            const int toCol = newPlace(col, oldCols, cols, roleCols);
            if (toRow < 0 || toCol < 0) continue;
            cells[static_cast<std::size_t>(toRow)][static_cast<std::size_t>(toCol)] = grid.cell(row, col);
        }
    grid.setRows(rows);
    grid.setCols(cols);
    for (int row = 0; row < rows; ++row)
        for (int col = 0; col < cols; ++col)
            grid.setCell(row, col, cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)]);
    grid.setCurrent(grid.row(), grid.col());
}

void relationKeyPress(DataGrid& grid, int code) {
    const bool relation = code == '<' || code == '=' || code == '>';
    if (relation || code == keys::escape || code == keys::backspace) cellKeyPress(grid, code);
}

} // namespace vantore
