#pragma once

#include <functional>
#include <string>

#include "shell/forms/data_grid.h"
#include "shell/suite.h"

namespace vantore {

/// Titles of the boxes that tell about rows, empty ones being the module's name, and the texts that not every
/// module words alike.
struct RowTitles {
    std::string question = {};             ///< "Insert at end of list? ..."
    std::string noRow = "Information";     ///< "Select a grid row before adding a record."
    std::string limit = "Add a Row";       ///< "Too many rows.  Limit is 500"
    std::string noDelete = "Delete a Row"; ///< "Select a row to be deleted."
    std::string empty = "Information";     ///< "Add a row before entering data."
    std::string questionText = "Insert at end of list?  If no, insertion is at the designated grid row.";
    std::string noRowText = "Select a grid row before adding a record.";
    std::string noDeleteText = "Select a row to be deleted.";
};

/// The rows of a grid that a user adds, deletes and types in, as every module does it. The grid's `rowCount`
/// is the count of its rows with data.
class GridRows {
  public:
    /// Takes over the grid's keys, its Insert key and the room for pasting.
    GridRows(Suite& suite, DataGrid& grid, int limit, RowTitles titles);
    GridRows(const GridRows&) = delete;
    GridRows& operator=(const GridRows&) = delete;

    DataGrid& grid() const { return grid_; }
    int limit() const { return limit_; }

    /// `AddGridRow`: asks whether at the end or at the current row, and inserts a blank row there.
    void add();

    /// `DeleteGridRow`: takes the current row out. The last row stays as a blank one with the number 0.
    void remove();

    /// `InsertKeyRow`: appends a row without a question and makes column 1 current. At the limit `rowCount`
    /// is left raised by one: the message comes after the count.
    void insertKey();

    /// `GridKeyPress`: one typed character; a grid without rows refuses it with a message.
    void keyPress(int code);

    /// Tells that no further row may be added.
    void reportLimit() const;

    /// Shapes the grid to a count of rows, when something with more rows is pasted. Rows that several grids
    /// share are shaped together by another function.
    std::function<void(int count)> setCount;

    /// The rows have been added to or deleted from.
    std::function<void()> onCount;

  private:
    bool makeRoom(int lastRow, int lastCol);
    void counted() const;

    Suite& suite_;
    DataGrid& grid_;
    int limit_;
    RowTitles titles_;
};

/// One character typed into a cell: Escape clears it, Backspace takes off its last character, comma, double
/// quote and Enter are ignored, any other is added at the end.
void cellKeyPress(DataGrid& grid, int code);

/// Makes nothing be pasted that reaches beyond the grid, with a message of that title.
void refusePasteBeyond(Suite& suite, DataGrid& grid, const std::string& title);

/// Numbers column 0 of the data rows 1, 2, ...
void renumberRows(DataGrid& grid);

/// Shapes the grid to `count` data rows with their numbers; 0 gives one blank row with the number 0.
void setDataRows(DataGrid& grid, int count);

/// Fills blanks for Save: an empty cell of a data row becomes one blank where column 1 is one of labels, else
/// 0.
void fillBlanks(DataGrid& grid);

} // namespace vantore
