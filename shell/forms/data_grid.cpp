#include "shell/forms/data_grid.h"

#include <algorithm>
#include <utility>

#include "shell/base/table.h"

namespace vantore {

namespace {

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

DataGrid::DataGrid(std::string controlName, Rect place)
    : Control(std::move(controlName), place), cells_(2, std::vector<std::string>(2)),
      colWidths_(2, designColWidth), rowHeights_(2, designRowHeight) {}

void DataGrid::setRows(int count) {
    rows_ = std::max(count, 1);
    cells_.resize(at(rows_), std::vector<std::string>(at(cols_)));
    rowHeights_.resize(at(rows_), designRowHeight);
    if (selection_.endRow >= rows_) setCurrent(std::min(row_, rows_ - 1), col_);
}

void DataGrid::setCols(int count) {
    cols_ = std::max(count, 1);
    for (auto& row : cells_) row.resize(at(cols_));
    colWidths_.resize(at(cols_), designColWidth);
    if (selection_.endCol >= cols_) setCurrent(row_, std::min(col_, cols_ - 1));
}

const std::string& DataGrid::cell(int row, int col) const {
    checkIndex(row, 0, rows_ - 1);
    checkIndex(col, 0, cols_ - 1);
    return cells_[at(row)][at(col)];
}

void DataGrid::setCell(int row, int col, std::string text) {
    checkIndex(row, 0, rows_ - 1);
    checkIndex(col, 0, cols_ - 1);
    cells_[at(row)][at(col)] = std::move(text);
}

void DataGrid::removeItem(int row) {
    checkIndex(row, 1, rows_ - 1);
    cells_.erase(cells_.begin() + row);
    rowHeights_.erase(rowHeights_.begin() + row);
    --rows_;
    if (selection_.endRow >= rows_) setCurrent(std::min(row_, rows_ - 1), col_);
}

void DataGrid::clearRow(int row) {
    checkIndex(row, 0, rows_ - 1);
    std::fill(cells_[at(row)].begin() + 1, cells_[at(row)].end(), std::string());
}

void DataGrid::setCurrent(int row, int col) {
    select({.startRow = row, .endRow = row, .startCol = col, .endCol = col});
}

void DataGrid::select(const CellBlock& block) {
    checkIndex(block.startRow, 0, rows_ - 1);
    checkIndex(block.endRow, 0, rows_ - 1);
    checkIndex(block.startCol, 0, cols_ - 1);
    checkIndex(block.endCol, 0, cols_ - 1);
    row_ = block.startRow;
    col_ = block.startCol;
    selection_ = {.startRow = std::min(block.startRow, block.endRow),
                  .endRow = std::max(block.startRow, block.endRow),
                  .startCol = std::min(block.startCol, block.endCol),
                  .endCol = std::max(block.startCol, block.endCol)};
    if (onMove) onMove();
}

double DataGrid::colWidth(int col) const {
    checkIndex(col, 0, cols_ - 1);
    return colWidths_[at(col)];
}

void DataGrid::setColWidth(int col, double width) {
    checkIndex(col, 0, cols_ - 1);
    colWidths_[at(col)] = width;
}

double DataGrid::rowHeight(int row) const {
    checkIndex(row, 0, rows_ - 1);
    return rowHeights_[at(row)];
}

void DataGrid::setRowHeight(int row, double height) {
    checkIndex(row, 0, rows_ - 1);
    rowHeights_[at(row)] = height;
}

} // namespace vantore
