#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "shell/forms/data_grid.h"

namespace vantore {

/// What the grids of the programming modules share: a matrix whose last rows and columns have a role of their
/// own (objective, relation, right-hand side, supply, demand).

/// Gives the grid `rows` x `cols` cells in all, headings included. Body cells and headings stay in their row
/// and column; the last `roleRows` rows and `roleCols` columns, headings included, move with their role to
/// the new end. New cells are empty, and the
/// highlight is the current cell alone. SubscriptOutOfRange when the new grid has no room for the roles.
void reshapeMatrix(DataGrid& grid, int rows, int cols, int roleRows, int roleCols);

/// The width in twips of a column that shows a text: `width` has room for `room` characters, each further one
/// of the longest line takes 96 twips more.
double widthForText(std::string_view text, std::size_t room, double width);

/// One key in a cell that holds a relation: "<", "=" and ">" are added to it, Escape clears the
/// cell, Backspace takes off its last character, all others are ignored.
void relationKeyPress(DataGrid& grid, int code);

} // namespace vantore
