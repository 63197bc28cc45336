#include <gtest/gtest.h>

#include <string>

#include "mathprog/matrix_grid.h"
#include "shell/base/runtime_error.h"
#include "shell/forms/keys.h"

namespace vantore {
namespace {

/// 2 constraints and 2 variables, with a row and two columns that have a role; each cell tells its place.
void fill(DataGrid& grid) {
    grid.setRows(4);
    grid.setCols(5);
    for (int row = 0; row < 4; ++row)
        for (int col = 0; col < 5; ++col) grid.setCell(row, col, std::to_string(row) + std::to_string(col));
}

TEST(ReshapeMatrix, MovesRolesToTheNewEnd) {
    DataGrid grid("Grid");
    fill(grid);
    reshapeMatrix(grid, 5, 6, 1, 2);
    EXPECT_EQ(grid.cell(1, 1), "11");
    EXPECT_EQ(grid.cell(2, 3), "");
    EXPECT_EQ(grid.cell(3, 1), "");
    EXPECT_EQ(grid.cell(4, 2), "32");
    EXPECT_EQ(grid.cell(2, 5), "24");
    EXPECT_EQ(grid.cell(0, 4), "03");
}

TEST(ReshapeMatrix, CutsTheBodyAndKeepsTheRoles) {
    DataGrid grid("Grid");
    fill(grid);
    reshapeMatrix(grid, 3, 4, 1, 2);
    EXPECT_EQ(grid.cell(1, 1), "11");
    EXPECT_EQ(grid.cell(2, 1), "31");
    EXPECT_EQ(grid.cell(1, 2), "13");
    EXPECT_EQ(grid.cell(2, 3), "34");
}

TEST(ReshapeMatrix, LeavesNoHighlightBeyondTheGrid) {
    DataGrid grid("Grid");
    fill(grid);
    grid.select({.startRow = 1, .endRow = 3, .startCol = 2, .endCol = 2});
    reshapeMatrix(grid, 3, 4, 1, 2);
    EXPECT_EQ(grid.row(), 1);
    EXPECT_EQ(grid.selection().endRow, 1);
}

TEST(ReshapeMatrix, RefusesAGridWithoutRoomForTheRoles) {
    DataGrid grid("Grid");
    fill(grid);
    EXPECT_THROW(reshapeMatrix(grid, 1, 4, 1, 2), RuntimeError);
}

TEST(WidthForText, GrowsWithTheLongestLine) {
    EXPECT_EQ(widthForText("", 4, 700), 700);
    EXPECT_EQ(widthForText("four", 4, 700), 700);
    EXPECT_EQ(widthForText("Type,\r\n<, =, >", 4, 700), 700 + 3 * 96);
}

TEST(RelationKeyPress, TakesRelationsOnly) {
    DataGrid grid("Grid");
    for (const char code : {'a', '<', '5', '='}) relationKeyPress(grid, code);
    EXPECT_EQ(grid.text(), "<=");
    relationKeyPress(grid, keys::backspace);
    EXPECT_EQ(grid.text(), "<");
    relationKeyPress(grid, keys::escape);
    EXPECT_EQ(grid.text(), "");
}

} // namespace
} // namespace vantore
