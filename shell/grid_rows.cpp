#include "shell/grid_rows.h"

#include <algorithm>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore {

namespace {

/// The blank row of a grid without rows becomes row 1.
void takeBlankRow(DataGrid& grid) {
    grid.rowCount = 1;
    grid.setCell(1, 0, "1");
}

/// Makes room at `position` by moving the rows from there on down by one.
void openRow(DataGrid& grid, int position) {
    grid.setRows(grid.rowCount + 1);
    renumberRows(grid);
    for (int row = grid.rowCount; row > position; --row)
        for (int col = 1; col < grid.cols(); ++col) grid.setCell(row, col, grid.cell(row - 1, col));
    grid.clearRow(position);
    grid.setRowHeight(grid.rowCount, designRowHeight);
}

void reportLimit(Suite& suite, const DataGrid& grid, const RowTitles& titles) {
    suite.messageBx("Too many rows.  Limit is" + str(grid.rowLimit), titles.limit);
}

} // namespace

void addGridRow(Suite& suite, DataGrid& grid, const RowTitles& titles) {
    if (grid.row() < 1) return suite.messageBx("Select a grid row before adding a record.", titles.noRow);
    if (grid.rowCount + 1 > grid.rowLimit) return reportLimit(suite, grid, titles);
    const bool atEnd = suite.asksYes(
        "Insert at end of list?  If no, insertion is at the designated grid row.", titles.module);
    const int position = atEnd ? grid.rowCount + 1 : grid.row();
    if (grid.rowCount == 0) return takeBlankRow(grid);
    ++grid.rowCount;
    openRow(grid, position);
}

void deleteGridRow(Suite& suite, DataGrid& grid, const RowTitles& titles) {
    if (grid.rowCount - 1 < 0) return;
    if (grid.row() < 1) return suite.messageBx("Select a row to be deleted.", titles.noDelete);
    --grid.rowCount;
    if (grid.rowCount < 1) {
        grid.rowCount = 0;
        grid.clearRow(1);
        grid.setCell(1, 0, "0");
        return;
    }
    grid.removeItem(grid.row());
    renumberRows(grid);
}

void insertKeyRow(Suite& suite, DataGrid& grid, const RowTitles& titles) {
    if (grid.rowCount == 0) {
        takeBlankRow(grid);
    } else {
        ++grid.rowCount;
        if (grid.rowCount > grid.rowLimit) return reportLimit(suite, grid, titles);
        openRow(grid, grid.rowCount);
    }
    grid.setCurrent(grid.row(), 1);
}

void gridKeyPress(Suite& suite, DataGrid& grid, int code) {
    if (grid.rowCount <= 0) return suite.messageBx("Add a row before entering data.", "Information");
    cellKeyPress(grid, code);
}

void cellKeyPress(DataGrid& grid, int code) {
    switch (code) {
    case keys::escape: return grid.setText("");
    case keys::backspace: return grid.setText(withoutLast(grid.text()));
    case keys::comma:
    case keys::doubleQuote:
    case keys::enter: return;
    default: break;
    }
    if (code > 0) grid.setText(grid.text() + utf8(static_cast<char32_t>(code)));
}

void renumberRows(DataGrid& grid) {
    const int last = std::min(grid.rowCount, grid.rows() - 1);
    for (int row = 1; row <= last; ++row) grid.setCell(row, 0, std::to_string(row));
}

void setDataRows(DataGrid& grid, int count) {
    grid.rowCount = count;
    grid.setRows(std::max(count, 1) + 1);
    if (count > 0) return renumberRows(grid);
    grid.clearRow(1);
    grid.setCell(1, 0, "0");
}

void fillBlanks(DataGrid& grid) {
    const int last = std::min(grid.rowCount, grid.rows() - 1);
    for (int row = 1; row <= last; ++row)
        for (int col = 1; col < grid.cols(); ++col)
            if (grid.cell(row, col).empty()) grid.setCell(row, col, col == 1 ? " " : "0");
}

} // namespace vantore
