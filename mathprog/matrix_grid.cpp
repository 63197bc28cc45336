#include "mathprog/matrix_grid.h"

#include <algorithm>
#include <string>
#include <utility>

#include "shell/base/table.h"
#include "shell/base/text.h"
#include "shell/forms/keys.h"
#include "shell/grid_rows.h"

namespace vantore {

namespace {

constexpr double characterWidth = 96; // twips of the design

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
    GridCells cells(rows, cols);
    for (int row = 0; row < oldRows; ++row)
        for (int col = 0; col < oldCols; ++col) {
            const int toRow = newPlace(row, oldRows, rows, roleRows);
            const int toCol = newPlace(col, oldCols, cols, roleCols);
            if (toRow >= 0 && toCol >= 0) cells.edit(toRow, toCol) = grid.cell(row, col);
        }
    grid.setCells(std::move(cells));
}

double widthForText(std::string_view text, std::size_t room, double width) {
    std::size_t longest = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
        longest = std::max(longest, length(text.substr(start, end - start)));
        start = end + 1;
    }
    return longest <= room ? width : width + static_cast<double>(longest - room) * characterWidth;
}

void relationKeyPress(DataGrid& grid, int code) {
    const bool relation = code == '<' || code == '=' || code == '>';
    if (relation || code == keys::escape || code == keys::backspace) cellKeyPress(grid, code);
}

} // namespace vantore
