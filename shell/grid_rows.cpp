#include "shell/grid_rows.h"

#include <algorithm>
#include <utility>

#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/forms/keys.h"

namespace vantore {

namespace {

constexpr int labelColumn = 1;

/// The blank row of a grid without rows becomes row 1.
void takeBlankRow(DataGrid& grid) {
    grid.setRowCount(1);
    grid.setCell(1, 0, "1");
}

/// Makes room at `position` by moving the rows from there on down by one.
void openRow(DataGrid& grid, int position) {
    grid.setRows(grid.rowCount() + 1);
    renumberRows(grid);
    for (int row = grid.rowCount(); row > position; --row)
        for (int col = 1; col < grid.cols(); ++col) grid.setCell(row, col, grid.cell(row - 1, col));
    grid.clearRow(position);
    grid.setRowHeight(grid.rowCount(), designRowHeight);
}

int lastDataRow(const DataGrid& grid) {
    return std::min(grid.rowCount(), grid.rows() - 1);
}

bool isWideEnough(Suite& suite, const DataGrid& grid, int lastCol, const std::string& title) {
    if (lastCol < grid.cols()) return true;
    suite.messageBx(
        "What is to be pasted has more columns than there are from this cell on.  Nothing has been "
        "pasted.",
        title);
    return false;
}

} // namespace

GridRows::GridRows(Suite& suite, DataGrid& grid, int limit, RowTitles titles)
    : setCount([&grid](int count) { setDataRows(grid, count); }), suite_(suite), grid_(grid), limit_(limit),
      titles_(std::move(titles)) {
    grid_.onKey = [this](int code) { keyPress(code); };
    grid_.onInsertKey = [this] { insertKey(); };
    grid_.makesRoom = [this](int lastRow, int lastCol) { return makeRoom(lastRow, lastCol); };
}

void GridRows::reportLimit() const {
    suite_.messageBx("Too many rows.  Limit is" + str(limit_), titles_.limit);
}

void GridRows::counted() const {
    if (onCount) onCount();
}

void GridRows::add() {
    if (grid_.row() < 1) return suite_.messageBx(titles_.noRowText, titles_.noRow);
    if (grid_.rowCount() + 1 > limit_) return reportLimit();
    const bool atEnd = suite_.asksYes(titles_.questionText, titles_.question);
    const int position = atEnd ? grid_.rowCount() + 1 : grid_.row();
    if (grid_.rowCount() == 0) {
        takeBlankRow(grid_);
    } else {
        grid_.setRowCount(grid_.rowCount() + 1);
        openRow(grid_, position);
    }
    counted();
}

void GridRows::remove() {
    if (grid_.rowCount() - 1 < 0) return;
    if (grid_.row() < 1) return suite_.messageBx(titles_.noDeleteText, titles_.noDelete);
    grid_.setRowCount(std::max(grid_.rowCount() - 1, 0));
    if (grid_.rowCount() == 0) {
        grid_.clearRow(1);
        grid_.setCell(1, 0, "0");
    } else {
        grid_.removeItem(grid_.row());
        renumberRows(grid_);
    }
    counted();
}

void GridRows::insertKey() {
    if (grid_.rowCount() == 0) {
        takeBlankRow(grid_);
    } else {
        grid_.setRowCount(grid_.rowCount() + 1);
        if (grid_.rowCount() > limit_) return reportLimit();
        openRow(grid_, grid_.rowCount());
    }
    grid_.setCurrent(grid_.row(), 1);
    counted();
}

void GridRows::keyPress(int code) {
    if (grid_.rowCount() <= 0) return suite_.messageBx("Add a row before entering data.", titles_.empty);
    cellKeyPress(grid_, code);
}

bool GridRows::makeRoom(int lastRow, int lastCol) {
    if (grid_.rowCount() <= 0) {
        suite_.messageBx("Add a row before entering data.", titles_.empty);
        return false;
    }
    if (!isWideEnough(suite_, grid_, lastCol, titles_.limit)) return false;
    if (lastRow > limit_) {
        suite_.messageBx("Too many rows.  Limit is" + str(limit_) + ".  Nothing has been pasted.",
                         titles_.limit);
        return false;
    }
    if (lastRow > grid_.rowCount()) {
        setCount(lastRow);
        counted();
    }
    return true;
}

void cellKeyPress(DataGrid& grid, int code) {
    switch (code) {
    case keys::escape: grid.editText().clear(); return;
    case keys::backspace: grid.editText() = withoutLast(grid.text()); return;
    case keys::comma:
    case keys::doubleQuote:
    case keys::enter: return;
    default: break;
    }
    if (code > 0) grid.editText() += utf8(static_cast<char32_t>(code));
}

void refusePasteBeyond(Suite& suite, DataGrid& grid, const std::string& title) {
    grid.makesRoom = [&suite, &grid, title](int lastRow, int lastCol) {
        if (!isWideEnough(suite, grid, lastCol, title)) return false;
        if (lastRow < grid.rows()) return true;
        suite.messageBx(
            "What is to be pasted has more rows than there are from this cell on.  Nothing has been "
            "pasted.",
            title);
        return false;
    };
}

void renumberRows(DataGrid& grid) {
    for (int row = 1; row <= lastDataRow(grid); ++row) grid.setCell(row, 0, std::to_string(row));
}

void setDataRows(DataGrid& grid, int count) {
    grid.setRowCount(count);
    grid.setRows(std::max(count, 1) + 1);
    if (count > 0) return renumberRows(grid);
    grid.clearRow(1);
    grid.setCell(1, 0, "0");
}

void fillBlanks(DataGrid& grid) {
    for (int row = 1; row <= lastDataRow(grid); ++row)
        for (int col = 1; col < grid.cols(); ++col)
            if (grid.cell(row, col).empty())
                grid.setCell(row, col, col == labelColumn && !grid.numeric(col) ? " " : "0");
}

} // namespace vantore
