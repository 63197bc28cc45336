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
    : Control(std::move(controlName), place), content_{.cells = GridCells(2, 2),
                                                       .colWidths = {designColWidth, designColWidth},
                                                       .rowHeights = {designRowHeight, designRowHeight},
                                                       .selection = {}} {}

void DataGrid::setRows(int count) {
    content_.cells.resize(std::max(count, 1), cols());
    content_.rowHeights.resize(at(rows()), designRowHeight);
    if (selection().endRow >= rows()) setCurrent(std::min(row(), rows() - 1), col());
}

void DataGrid::setCols(int count) {
    content_.cells.resize(rows(), std::max(count, 1));
    content_.colWidths.resize(at(cols()), designColWidth);
    if (selection().endCol >= cols()) setCurrent(row(), std::min(col(), cols() - 1));
}

void DataGrid::setCells(GridCells cells) {
    content_.cells = std::move(cells);
    content_.rowHeights.resize(at(rows()), designRowHeight);
    content_.colWidths.resize(at(cols()), designColWidth);
    setCurrent(std::min(row(), rows() - 1), std::min(col(), cols() - 1));
}

void DataGrid::removeItem(int row) {
    checkIndex(row, 1, rows() - 1);
    content_.cells.erase(row);
    content_.rowHeights.erase(content_.rowHeights.begin() + row);
    if (selection().endRow >= rows()) setCurrent(std::min(this->row(), rows() - 1), col());
}

void DataGrid::clearRow(int row) {
    checkIndex(row, 0, rows() - 1);
    for (int col = 1; col < cols(); ++col) setCell(row, col, {});
}

void DataGrid::setCurrent(int row, int col) {
    select({.startRow = row, .endRow = row, .startCol = col, .endCol = col});
}

void DataGrid::select(const CellBlock& block) {
    checkIndex(block.startRow, 0, rows() - 1);
    checkIndex(block.endRow, 0, rows() - 1);
    checkIndex(block.startCol, 0, cols() - 1);
    checkIndex(block.endCol, 0, cols() - 1);
    content_.row = block.startRow;
    content_.col = block.startCol;
    content_.selection = {.startRow = std::min(block.startRow, block.endRow),
                          .endRow = std::max(block.startRow, block.endRow),
                          .startCol = std::min(block.startCol, block.endCol),
                          .endCol = std::max(block.startCol, block.endCol)};
    if (onMove) onMove();
}

double DataGrid::colWidth(int col) const {
    checkIndex(col, 0, cols() - 1);
    return content_.colWidths[at(col)];
}

void DataGrid::setColWidth(int col, double width) {
    checkIndex(col, 0, cols() - 1);
    content_.colWidths[at(col)] = width;
}

double DataGrid::rowHeight(int row) const {
    checkIndex(row, 0, rows() - 1);
    return content_.rowHeights[at(row)];
}

void DataGrid::setRowHeight(int row, double height) {
    checkIndex(row, 0, rows() - 1);
    content_.rowHeights[at(row)] = height;
}

} // namespace vantore
