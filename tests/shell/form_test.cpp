#include <gtest/gtest.h>

#include "shell/forms/form.h"
#include "shell/grid_rows.h"

namespace vantore {
namespace {

/// A window with one control of each kind that a user changes.
class SmallForm : public Form {
  public:
    SmallForm() : Form("SmallForm", {1, 1}) {
        grid.setRows(4);
        grid.setCols(4);
        grid.onKey = [this](int code) { cellKeyPress(grid, code); };
        box.onChange = [this] { ++changes; };
        option1.container = option2.container = &frame;
    }

    Container& frame = add<Container>("fraChoice");
    Option& option1 = add<Option>("optOne");
    Option& option2 = add<Option>("optTwo");
    Option& stranger = add<Option>("optElsewhere");
    Container& tabs = add<Container>("Tabs");
    Button& button = add<Button>("cmdPress");
    CheckBox& check = add<CheckBox>("chkNotes");
    TextBox& box = add<TextBox>("txtLabel");
    DataGrid& grid = add<DataGrid>("Grid");
    int changes = 0;
};

TEST(Form, FindsControlsWithoutRegardToCase) {
    SmallForm form;
    EXPECT_EQ(form.find("TXTLABEL"), &form.box);
    EXPECT_EQ(form.find("none"), nullptr);
}

TEST(Form, SelectsOneOptionOfAFrame) {
    SmallForm form;
    form.press(form.stranger);
    form.press(form.option1);
    form.press(form.option2);
    EXPECT_FALSE(form.option1.selected);
    EXPECT_TRUE(form.option2.selected);
    EXPECT_TRUE(form.stranger.selected);
}

TEST(Form, IgnoresWhatAUserCanNotReach) {
    SmallForm form;
    form.check.usable = [] { return false; };
    form.press(form.check);
    EXPECT_FALSE(form.check.selected);
    form.frame.seen = [] { return false; };
    form.press(form.option1);
    EXPECT_FALSE(form.option1.selected);
}

TEST(Form, HidesWhatStandsOnAnotherPage) {
    Container tabs("Tabs");
    tabs.pages = {"Stops", "Vehicles"};
    TextBox box("txtStop");
    box.container = &tabs;
    box.page = 1;
    EXPECT_FALSE(box.shown());
    tabs.selected = 1;
    EXPECT_TRUE(box.shown());
}

TEST(Form, TellsAChangeEvenWhenTheTextIsTheSame) {
    SmallForm form;
    form.type(form.box, "a");
    form.type(form.box, "a");
    EXPECT_EQ(form.changes, 2);
}

TEST(Undo, MergesTheKeysOfOneCell) {
    SmallForm form;
    form.select(form.grid, {1, 1, 1, 1});
    for (const char c : {'1', '2', '3'}) form.key(form.grid, c);
    form.select(form.grid, {2, 2, 2, 2});
    form.key(form.grid, '9');
    form.undo();
    EXPECT_EQ(form.grid.cell(2, 2), "");
    EXPECT_EQ(form.grid.cell(1, 1), "123");
    form.undo();
    EXPECT_EQ(form.grid.cell(1, 1), "");
    form.redo();
    EXPECT_EQ(form.grid.cell(1, 1), "123");
}

TEST(Undo, ForgetsWhatWasUndoneAtTheNextEdit) {
    SmallForm form;
    form.type(form.box, "first");
    form.undo();
    EXPECT_EQ(form.box.text(), "");
    form.type(form.box, "second");
    form.redo();
    EXPECT_EQ(form.box.text(), "second");
}

TEST(Undo, TakesBackWhatAnActionDidToSeveralControls) {
    SmallForm form;
    form.box.show("kept");
    form.type(form.box, "typed");
    form.button.onPress = [&form] {
        form.grid.setRows(2);
        form.box.show("by the button");
        form.option2.selected = true;
    };
    form.press(form.button);
    form.undo();
    EXPECT_EQ(form.grid.rows(), 4);
    EXPECT_EQ(form.box.text(), "typed");
    EXPECT_FALSE(form.option2.selected);
    form.undo();
    EXPECT_EQ(form.box.text(), "kept");
    form.redo();
    form.redo();
    EXPECT_EQ(form.grid.rows(), 2);
    EXPECT_EQ(form.box.text(), "by the button");
    EXPECT_TRUE(form.option2.selected);
}

TEST(Undo, CountsWhatLeavingABoxChangesToTheStepBefore) {
    SmallForm form;
    form.box.onLeave = [&form] { form.box.show(form.box.text() + " miles"); };
    form.type(form.box, "12");
    form.leave(form.box);
    form.type(form.box, "13");
    form.undo();
    EXPECT_EQ(form.box.text(), "12 miles");
    form.undo();
    EXPECT_EQ(form.box.text(), "");
}

TEST(Undo, LeadsToThePageOfWhatItChanges) {
    SmallForm form;
    form.tabs.pages = {"Stops", "Vehicles"};
    form.box.container = &form.tabs;
    form.box.page = 1;
    form.selectPage(form.tabs, 1);
    form.type(form.box, "van");
    form.selectPage(form.tabs, 0);
    form.undo();
    EXPECT_EQ(form.tabs.selected, 1);
    EXPECT_EQ(form.focus, &form.box);
    EXPECT_EQ(form.box.text(), "");
}

TEST(Undo, LeavesResultsAlone) {
    SmallForm form;
    form.check.result = true;
    form.type(form.box, "a");
    form.check.selected = true;
    form.undo();
    EXPECT_TRUE(form.check.selected);
}

TEST(Keys, AreIgnoredOutsideTheGridAndWhereItIsHidden) {
    SmallForm form;
    form.typeCell(form.grid, 9, 1, "x");
    form.click(form.grid, 1, 9);
    form.select(form.grid, {1, 9, 1, 1});
    EXPECT_EQ(form.grid.row(), 1);
    form.grid.seen = [] { return false; };
    form.select(form.grid, {2, 2, 2, 2});
    EXPECT_EQ(form.grid.row(), 1);
    form.key(form.grid, 'x');
    form.paste(form.grid, "x");
    EXPECT_EQ(form.grid.cell(1, 1), "");
}

TEST(Keys, EnterMovesDownAsFarAsTheLastRow) {
    SmallForm form;
    form.select(form.grid, {2, 2, 1, 1});
    form.enterKey(form.grid);
    EXPECT_EQ(form.grid.row(), 3);
    form.enterKey(form.grid);
    EXPECT_EQ(form.grid.row(), 3);
    EXPECT_EQ(form.grid.cell(2, 1), "");
}

TEST(Paste, FillsABlockFromTheCurrentCellAndUndoesAsOne) {
    SmallForm form;
    form.grid.setCell(2, 2, "old");
    form.select(form.grid, {2, 2, 2, 2});
    form.paste(form.grid, "1\t2\n3\t4\n");
    EXPECT_EQ(form.grid.cell(2, 2), "1");
    EXPECT_EQ(form.grid.cell(3, 3), "4");
    EXPECT_EQ(form.grid.row(), 2);
    form.undo();
    EXPECT_EQ(form.grid.cell(2, 2), "old");
    EXPECT_EQ(form.grid.cell(3, 3), "");
}

TEST(Paste, TakesAllOrNothing) {
    SmallForm form;
    form.select(form.grid, {3, 3, 3, 3});
    form.paste(form.grid, "1\t2\n");
    form.paste(form.grid, "1\n2\n");
    EXPECT_EQ(form.grid.cell(3, 3), "");
    form.grid.makesRoom = [&form](int lastRow, int /*lastCol*/) {
        form.grid.setRows(lastRow + 1);
        return true;
    };
    form.paste(form.grid, "1\n2\n");
    EXPECT_EQ(form.grid.cell(4, 3), "2");
    form.undo();
    EXPECT_EQ(form.grid.rows(), 4);
}

TEST(Paste, RefusesCommasAndQuotesAsTypingDoes) {
    SmallForm form;
    form.select(form.grid, {1, 1, 1, 1});
    form.paste(form.grid, "North, main\t5\" pipe\r\n");
    EXPECT_EQ(form.grid.cell(1, 1), "North main");
    EXPECT_EQ(form.grid.cell(1, 2), "5 pipe");
}

TEST(Paste, ReadsNumbersInColumnsOfNumbersAlone) {
    SmallForm form;
    form.grid.holdsNumbers = [](int col) { return col == 2; };
    form.select(form.grid, {1, 1, 1, 1});
    form.paste(form.grid, "1.234\t1.234,5", {.decimal = ','});
    EXPECT_EQ(form.grid.cell(1, 1), "1.234");
    EXPECT_EQ(form.grid.cell(1, 2), "1234.5");
}

TEST(Copy, SeparatesCellsByTabs) {
    SmallForm form;
    form.grid.setCell(1, 1, "a");
    form.grid.setCell(2, 2, "d");
    form.select(form.grid, {1, 2, 1, 2});
    EXPECT_EQ(Form::copied(form.grid), "a\t\n\td\n");
}

TEST(DataGrid, KeepsItsCurrentCellInside) {
    DataGrid grid("Grid");
    grid.setRows(10);
    grid.setCurrent(9, 1);
    grid.setRows(3);
    EXPECT_EQ(grid.row(), 2);
    EXPECT_THROW(grid.cell(3, 0), RuntimeError);
    EXPECT_THROW(grid.setCurrent(3, 0), RuntimeError);
}

TEST(DataGrid, TakesNoKeyOnItsHeadings) {
    SmallForm form;
    int keys = 0;
    form.grid.onKey = [&](int) { ++keys; };
    for (const auto& [row, col] : {std::pair(0, 1), std::pair(1, 0)}) {
        form.grid.setCurrent(row, col);
        form.key(form.grid, 'x');
    }
    EXPECT_EQ(keys, 0);
    form.grid.setCurrent(1, 1);
    form.key(form.grid, 'x');
    EXPECT_EQ(keys, 1);
}

TEST(DataGrid, HasColumnsWithinItsWidthOnly) {
    DataGrid grid("Grid");
    grid.setCols(3);
    grid.setColWidth(2, 900);
    EXPECT_EQ(grid.colWidth(2), 900);
    EXPECT_THROW(grid.setColWidth(3, 900), RuntimeError);
    EXPECT_THROW(static_cast<void>(grid.colWidth(3)), RuntimeError);
}

TEST(DataGrid, RemovesTheRowsUnderItsHeadingOnly) {
    DataGrid grid("Grid");
    grid.setRows(4);
    grid.setCell(2, 1, "the second");
    EXPECT_THROW(grid.removeItem(0), RuntimeError);
    EXPECT_THROW(grid.removeItem(4), RuntimeError);
    grid.removeItem(1);
    EXPECT_EQ(grid.rows(), 3);
    EXPECT_EQ(grid.cell(1, 1), "the second");
    grid.removeItem(2);
    EXPECT_EQ(grid.rows(), 2);
}

} // namespace
} // namespace vantore
