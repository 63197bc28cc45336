#include "mathprog/matrix_grid.h"

#include <algorithm>
#include <string>
#include <vector>

#include "shell/base/table.h"
#include "shell/base/text.h"
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

using Cells = std::vector<std::vector<std::string>>;

Cells cellsOf(const DataGrid& grid) {
    Cells cells(static_cast<std::size_t>(grid.rows()));
    for (int row = 0; row < grid.rows(); ++row)
        for (int col = 0; col < grid.cols(); ++col)
            cells[static_cast<std::size_t>(row)].push_back(grid.cell(row, col));
    return cells;
}

/// Gives the grid the size and the texts of these cells.
void putCells(DataGrid& grid, const Cells& cells) {
    grid.setRows(static_cast<int>(cells.size()));
    grid.setCols(static_cast<int>(cells.front().size()));
    for (int row = 0; row < grid.rows(); ++row)
        for (int col = 0; col < grid.cols(); ++col)
            grid.setCell(row, col, cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)]);
    grid.setCurrent(grid.row(), grid.col());
}

} // namespace

void reshapeMatrix(DataGrid& grid, int rows, int cols, int roleRows, int roleCols) {
    checkIndex(roleRows + 1, 1, rows);
    checkIndex(roleCols + 1, 1, cols);
    const int oldRows = grid.rows();
    const int oldCols = grid.cols();
    Cells cells(static_cast<std::size_t>(rows), std::vector<std::string>(static_cast<std::size_t>(cols)));
    for (int row = 0; row < oldRows; ++row)
        for (int col = 0; col < oldCols; ++col) {
            const int toRow = newPlace(row, oldRows, rows, roleRows);
            const int toCol = newPlace(col, oldCols, cols, roleCols);
            if (toRow < 0 || toCol < 0) continue;
            cells[static_cast<std::size_t>(toRow)][static_cast<std::size_t>(toCol)] = grid.cell(row, col);
        }
    putCells(grid, cells);
}

bool TypedReshape::goesOn(const std::string& typed) const {
    return !typed_.empty() && typed.size() > typed_.size() && typed.starts_with(typed_);
}

TypedReshape::Size TypedReshape::sizeBefore(const DataGrid& grid, const std::string& typed) const {
    if (!goesOn(typed)) return {grid.rows(), grid.cols()};
    return {static_cast<int>(before_.size()), static_cast<int>(before_.front().size())};
}

void TypedReshape::operator()(DataGrid& grid, const std::string& typed, int rows, int cols, int roleRows,
                              int roleCols) {
    const bool bringsBack = goesOn(typed);
    if (!bringsBack) before_ = cellsOf(grid);
    typed_ = typed;
    const int oldBodyRows = grid.rows() - roleRows;
    const int oldBodyCols = grid.cols() - roleCols;
    reshapeMatrix(grid, rows, cols, roleRows, roleCols);
    if (!bringsBack) return;
    DataGrid scratch(grid.name);
    putCells(scratch, before_);
    reshapeMatrix(scratch, rows, cols, roleRows, roleCols);
    for (int row = 0; row < rows; ++row)
        for (int col = 0; col < cols; ++col) {
            const bool newRow = row >= oldBodyRows && row < rows - roleRows;
            const bool newCol = col >= oldBodyCols && col < cols - roleCols;
            if (newRow || newCol) grid.setCell(row, col, scratch.cell(row, col));
        }
}

double widthForText(std::string_view text, std::size_t room, double width) {
    std::size_t longest = 0;
    for (const std::string& line : lines(text)) longest = std::max(longest, length(line));
    return longest <= room ? width : width + static_cast<double>(longest - room) * characterWidth;
}

void relationKeyPress(DataGrid& grid, int code) {
    const bool relation = code == '<' || code == '=' || code == '>';
    if (relation || code == keys::escape || code == keys::backspace) cellKeyPress(grid, code);
}

} // namespace vantore
