#include "shell/size_box.h"

#include <gtest/gtest.h>

#include "shell/grid_rows.h"

namespace vantore {
namespace {

/// A box and a grid of five rows whose only column holds a, b, c, d, e.
class SizeBoxTest : public testing::Test {
  protected:
    SizeBoxTest() {
        setDataRows(grid, 5);
        for (int row = 1; row <= 5; ++row)
            grid.setCell(row, 1, std::string(1, static_cast<char>('a' + row - 1)));
        size.settle();
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
    int excesses = 0;
    int shorts = 0;
    bool held = false;
    SizeBox size{box,
                 {&grid},
                 {.least = 0,
                  .most = 20,
                  .present = [this] { return grid.rowCount(); },
                  .shape = [this](int count) { setDataRows(grid, count); },
                  .onExcess = [this] { ++excesses; },
                  .onShort = [this] { ++shorts; },
                  .takes = [this] { return !held; }}};
};

TEST_F(SizeBoxTest, ShowsTheSize) {
    EXPECT_EQ(box.text(), "5");
    grid.setRowCount(4);
    size.settle();
    EXPECT_EQ(box.text(), "4");
}

TEST_F(SizeBoxTest, AddsBlankRowsAndCutsRows) {
    type("7");
    EXPECT_EQ(cells(), "abcde--");
    EXPECT_EQ(grid.cell(7, 0), "7");
    type("3");
    EXPECT_EQ(cells(), "abc");
    EXPECT_EQ(grid.rowCount(), 3);
}

TEST_F(SizeBoxTest, BringsCutRowsBackWhileASizeIsTyped) {
    type("1");
    EXPECT_EQ(cells(), "a");
    type("12");
    EXPECT_EQ(cells(), "abcde-------");
    type("1");
    EXPECT_EQ(cells(), "a");
    type("15");
    EXPECT_EQ(cells(), "abcde----------");
}

TEST_F(SizeBoxTest, ComesBackToTheSizeBeforeTheTypingAboveTheLimit) {
    type("6");
    type("60");
    EXPECT_EQ(excesses, 1);
    EXPECT_EQ(box.text(), "5");
    EXPECT_EQ(cells(), "abcde");
    type("2");
    type("21");
    EXPECT_EQ(cells(), "abcde");
    EXPECT_EQ(grid.rowCount(), 5);
    type("1E400");
    EXPECT_EQ(excesses, 3);
    EXPECT_EQ(shorts, 0);
}

TEST_F(SizeBoxTest, ForgetsCutRowsWhenTheTextIsReplacedTheBoxLeftOrAnotherControlUsed) {
    type("2");
    type("4");
    EXPECT_EQ(cells(), "ab--");
    type("1");
    box.onLeave();
    type("12");
    EXPECT_EQ(cells(), "a-----------");
    type("1");
    size.forget();
    type("13");
    EXPECT_EQ(cells(), "a------------");
}

TEST_F(SizeBoxTest, LeavesTheGridAloneWhereThereIsNoSizeYet) {
    TextBox patient("txtPatient");
    SizeBox lone(patient, {&grid},
                 {.most = 20,
                  .present = [this] { return grid.rowCount(); },
                  .shape = [this](int count) { setDataRows(grid, count); }});
    for (const char* text : {"", "-", " ", "many"}) {
        patient.setText(text);
        EXPECT_EQ(cells(), "abcde") << text;
    }
    patient.onLeave();
    EXPECT_EQ(patient.text(), "5");
}

TEST_F(SizeBoxTest, TakesAnyTextForASizeWhereOneTooSmallIsToldOf) {
    type("");
    EXPECT_EQ(cells(), "abcde");
    type("many");
    EXPECT_EQ(grid.rowCount(), 0);
}

TEST_F(SizeBoxTest, TellsOfASizeBelowTheLeast) {
    type("-3");
    EXPECT_EQ(shorts, 1);
    EXPECT_EQ(box.text(), "5");
    EXPECT_EQ(cells(), "abcde");
}

TEST_F(SizeBoxTest, DoesNotReachTheGridWhileItIsHeld) {
    held = true;
    type("3");
    EXPECT_EQ(box.text(), "3");
    EXPECT_EQ(cells(), "abcde");
}

TEST_F(SizeBoxTest, ShapesTheGridToTheSameSizeToo) {
    grid.setRows(4); // a row has gone behind the box's back
    type("5");
    EXPECT_EQ(grid.rows(), 6);
}

TEST_F(SizeBoxTest, GivesOneBlankRowForASizeOfZero) {
    type("0");
    EXPECT_EQ(cells(), "-");
    EXPECT_EQ(grid.rowCount(), 0);
}

} // namespace
} // namespace vantore
