#pragma once

#include <string>

#include "shell/forms/data_grid.h"
#include "shell/suite.h"

namespace vantore {

/// Adding, deleting and typing in the rows of a grid, as every module does it. The grid's `rowCount` and
/// `rowLimit` are the module's count and limit.

/// Titles of the boxes; a module that names none of its own leaves them.
struct RowTitles {
    std::string module;                    ///< the module's name
    std::string noRow = "Information";     ///< "Select a grid row before adding a record."
    std::string limit = "Add a Row";       ///< "Too many rows.  Limit is 500"
    std::string noDelete = "Delete a Row"; ///< "Select a row to be deleted."
};

/// `AddGridRow`: asks whether at the end or at the current row, and inserts a blank row there.
void addGridRow(Suite& suite, DataGrid& grid, const RowTitles& titles);

/// `DeleteGridRow`: takes the current row out. The last row stays as a blank one with the number 0.
void deleteGridRow(Suite& suite, DataGrid& grid, const RowTitles& titles);

/// `InsertKeyRow`: appends a row without a question and makes column 1 current. At the limit `rowCount` is
/// left raised by one: the message comes after the count.
void insertKeyRow(Suite& suite, DataGrid& grid, const RowTitles& titles);

/// `GridKeyPress`: one typed character. Escape clears the cell, Backspace takes off its last character,
/// comma, double quote and Enter are ignored. A grid without rows refuses with a message.
void gridKeyPress(Suite& suite, DataGrid& grid, int code);

/// The same for a cell of a grid that needs no rows.
void cellKeyPress(DataGrid& grid, int code);

/// Character codes with a meaning of their own.
namespace keys {
constexpr int backspace = 8;
constexpr int enter = 13;
constexpr int escape = 27;
constexpr int doubleQuote = 34;
constexpr int comma = 44;
constexpr int minus = 45;
} // namespace keys

/// Numbers column 0 of the data rows 1, 2, ...
void renumberRows(DataGrid& grid);

/// Shapes the grid to `count` data rows with their numbers; 0 gives one blank row with the number 0.
void setDataRows(DataGrid& grid, int count);

/// Fills blanks for Save: an empty cell becomes one blank in the label column 1, else 0.
void fillBlanks(DataGrid& grid);

} // namespace vantore
