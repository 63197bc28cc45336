#include <QListWidget>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/desktop/sample_form.h"

namespace vantore::tests {
namespace {

class ListViewTest : public testing::Test {
  protected:
    SampleForm form;
    OpenWindow<SampleForm> open{form};
    QListWidget& list = open.widget<QListWidget>(form.list);
};

TEST_F(ListViewTest, ShowsTheItemsAndTheSelectedOne) {
    form.list.selected = 1;
    open.window.refresh();
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(list.currentItem()->text(), "south");
    form.list.items = {"east"};
    form.list.selected = -1;
    open.window.refresh();
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.currentItem(), nullptr);
    EXPECT_EQ(form.log, "") << "nothing was a user's";
}

TEST_F(ListViewTest, KeysAndClicksSelect) {
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(2)).center());
    EXPECT_EQ(form.list.selected, 2);
    EXPECT_EQ(form.log, "selected selected ");
}

TEST_F(ListViewTest, EnterAndADoubleClickOpenTheSelectedItem) {
    form.list.selected = 0;
    open.window.refresh();
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(form.log, "opened ");
    const QPoint second = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(form.log, "opened selected opened ");
}

} // namespace
} // namespace vantore::tests
