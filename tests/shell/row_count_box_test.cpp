#include "shell/row_count_box.h"

#include <gtest/gtest.h>

#include "shell/grid_rows.h"

namespace vantore {
namespace {

/// A box and a grid of five rows whose only column holds a, b, c, d, e.
class RowCountBoxTest : public testing::Test {
  protected:
    RowCountBoxTest() {
        grid.rowLimit = 20;
        setDataRows(grid, 5);
        for (int row = 1; row <= 5; ++row)
            grid.setCell(row, 1, std::string(1, static_cast<char>('a' + row - 1)));
        count.settle();
    }

    void type(const char* text) { box.setText(text); }

    std::string cells() const {
        std::string text;
        for (int row = 1; row < grid.rows(); ++row)
            text += grid.cell(row, 1).empty() ? "-" : grid.cell(row, 1);
        return text;
    }

    TextBox box{"txtCount"};
    DataGrid grid{"Grid"};
    int limits = 0;
    RowCountBox count{box, {&grid}, [this] { ++limits; }};
};

TEST_F(RowCountBoxTest, ShowsTheCount) {
    EXPECT_EQ(box.text(), "5");
    grid.rowCount = 4;
    count.settle();
    EXPECT_EQ(box.text(), "4");
}

TEST_F(RowCountBoxTest, AddsBlankRowsAndCutsRows) {
    type("7");
    EXPECT_EQ(cells(), "abcde--");
    EXPECT_EQ(grid.cell(7, 0), "7");
    type("3");
    EXPECT_EQ(cells(), "abc");
    EXPECT_EQ(grid.rowCount, 3);
}

TEST_F(RowCountBoxTest, BringsCutRowsBackUntilTheBoxIsLeft) {
    type("1");
    EXPECT_EQ(cells(), "a");
    type("12");
    EXPECT_EQ(cells(), "abcde-------");
    type("2");
    box.onLeave();
    type("4");
    EXPECT_EQ(cells(), "ab--");
}

TEST_F(RowCountBoxTest, LeavesTheGridAloneWhereThereIsNoCountYet) {
    for (const char* text : {"", "-", " ", "many", "-3"}) {
        type(text);
        EXPECT_EQ(cells(), "abcde") << text;
    }
    box.onLeave();
    EXPECT_EQ(box.text(), "5");
}

TEST_F(RowCountBoxTest, GivesOneBlankRowForACountOfZero) {
    type("0");
    EXPECT_EQ(cells(), "-");
    EXPECT_EQ(grid.rowCount, 0);
    type("5");
    EXPECT_EQ(cells(), "abcde");
}

TEST_F(RowCountBoxTest, ShowsTheOldCountAboveTheLimit) {
    type("21");
    EXPECT_EQ(limits, 1);
    EXPECT_EQ(box.text(), "5");
    EXPECT_THROW(type("1E400"), std::exception);
    EXPECT_EQ(box.text(), "5");
    EXPECT_EQ(cells(), "abcde");
}

TEST_F(RowCountBoxTest, KeepsTheHighlightInsideTheGrid) {
    grid.select({.startRow = 2, .endRow = 5, .startCol = 1, .endCol = 1});
    type("3");
    EXPECT_EQ(grid.row(), 2);
    EXPECT_LE(grid.selection().endRow, 3);
}

} // namespace
} // namespace vantore
