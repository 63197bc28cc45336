#include <QAccessible>
#include <gtest/gtest.h>

#include "drawing/fonts.h"
#include "tests/desktop/sample_form.h"

namespace vantore::tests {
namespace {

class AccessibilityTest : public testing::Test {
  protected:
    QAccessibleInterface& of(const Control& control) {
        return *QAccessible::queryAccessibleInterface(&open.widget(control));
    }
    std::string nameOf(const Control& control) { return utf8Text(of(control).text(QAccessible::Name)); }

    SampleForm form;
    OpenWindow<SampleForm> open{form};
};

TEST_F(AccessibilityTest, EveryControlHasAName) {
    for (const auto& control : form.controls()) {
        if (!control->shown()) continue;
        EXPECT_NE(nameOf(*control), "") << control->name;
    }
}

TEST_F(AccessibilityTest, ABoxIsCalledByItsLabel) {
    EXPECT_EQ(nameOf(form.txtName), "Name of the problem:");
    EXPECT_EQ(of(form.txtName).role(), QAccessible::EditableText);
    bool labelled = false;
    for (const auto& [other, relation] : of(form.txtName).relations())
        labelled = labelled || (relation.testFlag(QAccessible::Label) && other == &of(form.lblName));
    EXPECT_TRUE(labelled);
}

TEST_F(AccessibilityTest, ButtonsAndOptionsAreWhatTheyAre) {
    EXPECT_EQ(nameOf(form.cmdSolve), "Solve");
    EXPECT_EQ(of(form.cmdSolve).role(), QAccessible::Button);
    EXPECT_EQ(of(form.option1).role(), QAccessible::RadioButton);
    EXPECT_TRUE(of(form.option1).state().checked);
    EXPECT_EQ(of(form.check).role(), QAccessible::CheckBox);
    EXPECT_EQ(of(form.option1).parent(), &of(form.frame));
    EXPECT_EQ(nameOf(form.frame), "Method");
}

TEST_F(AccessibilityTest, EveryCellHasAName) {
    form.grid.setCell(2, 2, "12.5");
    open.window.refresh();
    QAccessibleTableInterface& table = *of(form.grid).tableInterface();
    EXPECT_EQ(table.rowCount(), 40);
    EXPECT_EQ(table.columnCount(), 4);
    EXPECT_EQ(table.cellAt(1, 1)->text(QAccessible::Name), "X coor- dinate 2: 12.5");
    EXPECT_EQ(table.cellAt(0, 0)->text(QAccessible::Name), "Label 1:");
    EXPECT_EQ(table.cellAt(0, 0)->role(), QAccessible::Cell);
    EXPECT_TRUE(table.cellAt(0, 0)->state().selectable);
    EXPECT_EQ(table.columnDescription(1), "X coor-\ndinate");
}

TEST_F(AccessibilityTest, AMarkedCellIsMarkedForAScreenReaderToo) {
    form.grid.select({.startRow = 2, .endRow = 3, .startCol = 1, .endCol = 2});
    open.window.refresh();
    EXPECT_EQ(of(form.grid).tableInterface()->selectedCellCount(), 4);
}

TEST_F(AccessibilityTest, TabsAndListsTellTheirTexts) {
    QAccessibleInterface* bar = nullptr;
    for (int i = 0; i < of(form.tabs).childCount(); ++i)
        if (of(form.tabs).child(i)->role() == QAccessible::PageTabList) bar = of(form.tabs).child(i);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->child(0)->text(QAccessible::Name), "Points");
    EXPECT_EQ(of(form.list).tableInterface()->cellAt(1, 0)->text(QAccessible::Name), "south");
}

} // namespace
} // namespace vantore::tests
