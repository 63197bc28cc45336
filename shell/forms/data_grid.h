#pragma once

#include <string>
#include <vector>

#include "shell/forms/control.h"

namespace vantore {

/// A block of cells, both corners included.
struct CellBlock {
    int startRow = 1;
    int endRow = 1;
    int startCol = 1;
    int endCol = 1;
};

/// A grid of texts with a fixed header row 0 and a fixed left column 0.
///
/// It has no cell editor: a click makes a cell current and keys change its text. The current cell and the
/// highlighted block are a user's; row 0 as current row stands for no row selected.
class DataGrid : public Control {
  public:
    explicit DataGrid(std::string controlName, Rect place = {});

    /// Total counts with the header row and the left column.
    int rows() const { return rows_; }
    int cols() const { return cols_; }

    /// Adds blank rows at the end or cuts rows off; at least the header row stays. The same for columns.
    void setRows(int count);
    void setCols(int count);

    /// A cell's text; row 0 to rows() - 1, column 0 to cols() - 1, else SubscriptOutOfRange.
    const std::string& cell(int row, int col) const;
    void setCell(int row, int col, std::string text);

    /// Takes one row out; the rows under it move up.
    void removeItem(int row);

    /// Makes the texts of columns 1 on of a row empty.
    void clearRow(int row);

    /// The current cell. Setting it makes the highlight that one cell.
    int row() const { return row_; }
    int col() const { return col_; }
    void setCurrent(int row, int col);

    /// The current cell's text.
    const std::string& text() const { return cell(row_, col_); }
    void setText(std::string text) { setCell(row_, col_, std::move(text)); }

    /// The highlighted block, its first corner being the current cell.
    const CellBlock& selection() const { return selection_; }
    void select(const CellBlock& block);

    /// Width of a column and height of a row in twips of the design.
    double colWidth(int col) const;
    void setColWidth(int col, double width);
    double rowHeight(int row) const;
    void setRowHeight(int row, double height);

    /// Number of data rows; 0 for a new grid with its single blank row.
    int rowCount = 0;
    /// Most rows that a user may add.
    int rowLimit = 0;
    /// Typing needs a row that the user has added; pasting adds the rows that it needs.
    bool growsByRows = false;

    std::function<void(int code)> onKey; ///< A character typed into the current cell.
    std::function<void()> onInsertKey;
    std::function<void(int row, int col)> onCellClick;
    std::function<void()> onDoubleClick;
    std::function<void()> onMove; ///< The current cell has changed.

  private:
    int rows_ = 2;
    int cols_ = 2;
    int row_ = 1;
    int col_ = 1;
    CellBlock selection_;
    std::vector<std::vector<std::string>> cells_;
    std::vector<double> colWidths_;
    std::vector<double> rowHeights_;
};

/// Row heights and column widths of a new grid, in twips of the design.
constexpr double designRowHeight = 200;
constexpr double designColWidth = 960;

} // namespace vantore
