#pragma once

#include <string>
#include <vector>

#include "shell/forms/control.h"

namespace vantore {

/// A grid of texts with a fixed header row 0 and a fixed left column 0.
///
/// It has no cell editor: a click makes a cell current and keys change its text. The current cell and the
/// highlighted block are a user's; row 0 as current row stands for no row selected.
class DataGrid : public Control {
  public:
    explicit DataGrid(std::string controlName, Rect place = {});

    /// Total counts with the header row and the left column.
    int rows() const { return content_.cells.rows(); }
    int cols() const { return content_.cells.cols(); }

    /// Adds blank rows at the end or cuts rows off; at least the header row stays. The same for columns.
    void setRows(int count);
    void setCols(int count);

    /// A cell's text; row 0 to rows() - 1, column 0 to cols() - 1, else SubscriptOutOfRange.
    const std::string& cell(int row, int col) const { return content_.cells(row, col); }
    void setCell(int row, int col, std::string text) { content_.cells.edit(row, col) = std::move(text); }

    /// Gives the grid other cells, and their size; the highlight is the current cell alone.
    void setCells(GridCells cells);

    /// The number of data rows; 0 for a new grid with its single blank row.
    int rowCount() const { return content_.rowCount; }
    void setRowCount(int count) { content_.rowCount = count; }

    /// Takes one row out; the rows under it move up.
    void removeItem(int row);

    /// Makes the texts of columns 1 on of a row empty.
    void clearRow(int row);

    /// The current cell. Setting it makes the highlight that one cell.
    int row() const { return content_.row; }
    int col() const { return content_.col; }
    void setCurrent(int row, int col);

    /// The current cell's text, and the same to be changed.
    const std::string& text() const { return cell(row(), col()); }
    std::string& editText() { return content_.cells.edit(row(), col()); }

    /// The highlighted block, its first corner being the current cell.
    const CellBlock& selection() const { return content_.selection; }
    void select(const CellBlock& block);

    /// Width of a column and height of a row in twips of the design.
    double colWidth(int col) const;
    void setColWidth(int col, double width);
    double rowHeight(int row) const;
    void setRowHeight(int row, double height);

    /// True of a column of numbers, which stand at the right of their cells.
    bool numeric(int col) const { return holdsNumbers && holdsNumbers(col); }
    std::function<bool(int col)> holdsNumbers; ///< Empty: no column does.

    Content content() const override { return result ? Content{} : Content{content_}; }
    void restore(const Content& content) override { content_ = std::get<GridContent>(content); }

    std::function<void(int code)> onKey; ///< A character typed into the current cell.
    std::function<void()> onInsertKey;
    std::function<void(int row, int col)> onCellClick;
    std::function<void()> onDoubleClick;
    std::function<void()> onMove; ///< The current cell has changed.
    std::function<void()> onEdit; ///< A user's action that may have changed cells is over.

    /// Makes the grid's rows reach `lastRow`, where something is to be pasted as far as `lastCol`. False,
    /// after a message, when they can't: nothing is pasted then. Empty: the grid stays as it is.
    std::function<bool(int lastRow, int lastCol)> makesRoom;

  private:
    GridContent content_;
};

/// Row heights and column widths of a new grid, in twips of the design.
constexpr double designRowHeight = 200;
constexpr double designColWidth = 960;

} // namespace vantore
