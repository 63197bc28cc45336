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
        option1.frame = option2.frame = &frame;
    }

    Frame& frame = add<Frame>("fraChoice");
    Option& option1 = add<Option>("optOne");
    Option& option2 = add<Option>("optTwo");
    Option& stranger = add<Option>("optElsewhere");
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
    form.check.enabled = false;
    form.press(form.check);
    EXPECT_FALSE(form.check.selected);
    form.frame.visible = false;
    form.press(form.option1);
    EXPECT_FALSE(form.option1.selected);
}

TEST(Form, HidesWhatStandsOnAnotherPage) {
    TabControl tabs("Tabs");
    tabs.pages = {"Stops", "Vehicles"};
    TextBox box("txtStop");
    box.tabs = &tabs;
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

TEST(Paste, FillsABlockFromTheCurrentCellAndUndoesAsOne) {
    SmallForm form;
    form.grid.setCell(2, 2, "old");
    form.select(form.grid, {2, 2, 2, 2});
    form.paste(form.grid, "1\t2\n3\t4\nmore rows than there are\t\n");
    EXPECT_EQ(form.grid.cell(2, 2), "1");
    EXPECT_EQ(form.grid.cell(3, 3), "4");
    EXPECT_EQ(form.grid.row(), 2);
    form.undo();
    EXPECT_EQ(form.grid.cell(2, 2), "old");
    EXPECT_EQ(form.grid.cell(3, 3), "");
}

TEST(Paste, RefusesCommasAndQuotesAsTypingDoes) {
    SmallForm form;
    form.select(form.grid, {1, 1, 1, 1});
    form.paste(form.grid, "1,500\t5\" pipe\r\n");
    EXPECT_EQ(form.grid.cell(1, 1), "1500");
    EXPECT_EQ(form.grid.cell(1, 2), "5 pipe");
}

TEST(Paste, AddsTheRowsThatItNeedsUpToTheLimit) {
    SmallForm form;
    form.grid.growsByRows = true;
    form.grid.rowLimit = 4;
    form.grid.rowCount = 3;
    form.grid.onInsertKey = [&] { form.grid.setRows(++form.grid.rowCount + 1); };
    form.select(form.grid, {3, 3, 1, 1});
    form.paste(form.grid, "a\nb\nc\n");
    EXPECT_EQ(form.grid.rowCount, 4);
    EXPECT_EQ(form.grid.cell(3, 1), "a");
    EXPECT_EQ(form.grid.cell(4, 1), "b");
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

} // namespace
} // namespace vantore
