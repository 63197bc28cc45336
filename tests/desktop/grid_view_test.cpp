#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

#include "desktop/grid_view.h"
#include "drawing/fonts.h"
#include "tests/desktop/sample_form.h"

namespace vantore::tests {
namespace {

class GridViewTest : public testing::Test {
  protected:
    GridViewTest() { view.setFocus(); }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, key, modifiers);
    }
    void type(const char* text) { QTest::keyClicks(&view, text); }

    QPoint middle(int row, int col) const { return view.cellRect(row, col).center(); }
    void click(int row, int col, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, middle(row, col));
    }
    void doubleClick(int row, int col) {
        click(row, col);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, middle(row, col));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, middle(row, col));
    }
    void drag(int row1, int col1, int row2, int col2) {
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, middle(row1, col1));
        QMouseEvent move(QEvent::MouseMove, middle(row2, col2),
                         view.viewport()->mapToGlobal(middle(row2, col2)), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &move);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, middle(row2, col2));
    }

    std::string selection() const {
        const CellBlock& block = form.grid.selection();
        return std::to_string(block.startRow) + "," + std::to_string(block.startCol) + " - " +
               std::to_string(block.endRow) + "," + std::to_string(block.endCol);
    }
    std::string current() const {
        return std::to_string(form.grid.row()) + "," + std::to_string(form.grid.col());
    }

    bool inView(int row, int col) const { return view.viewport()->rect().contains(middle(row, col)); }

    /// The middle of a column's caption and of a row's number, each in its heading.
    void clickColumn(int col, Qt::KeyboardModifiers modifiers = {}) {
        QHeaderView& heading = *view.horizontalHeader();
        const QPoint place(heading.sectionViewportPosition(col - 1) + heading.sectionSize(col - 1) / 2, 8);
        QTest::mouseClick(heading.viewport(), Qt::LeftButton, modifiers, place);
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
        QHeaderView& heading = *view.verticalHeader();
        const QPoint place(8, heading.sectionViewportPosition(row - 1) + heading.sectionSize(row - 1) / 2);
        QTest::mouseClick(heading.viewport(), Qt::LeftButton, modifiers, place);
    }

    SampleForm form;
    OpenWindow<SampleForm> open{form};
    GridView& view = open.widget<GridView>(form.grid);
};

TEST_F(GridViewTest, TypingChangesTheCurrentCellByItsRules) {
    click(2, 3);
    type("12,5x");
    EXPECT_EQ(form.grid.cell(2, 3), "125x");
    key(Qt::Key_Backspace);
    EXPECT_EQ(form.grid.cell(2, 3), "125");
    key(Qt::Key_Escape);
    EXPECT_EQ(form.grid.cell(2, 3), "");
}

TEST_F(GridViewTest, EnterMovesDown) {
    click(2, 3);
    type("7");
    key(Qt::Key_Return);
    EXPECT_EQ(current(), "3,3");
    EXPECT_EQ(form.grid.cell(2, 3), "7");
}

TEST_F(GridViewTest, ArrowsStopAtTheFixedCells) {
    click(1, 1);
    key(Qt::Key_Up);
    key(Qt::Key_Left);
    EXPECT_EQ(current(), "1,1");
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    EXPECT_EQ(current(), "2,2");
}

TEST_F(GridViewTest, HomeAndEndMoveInTheRowAndWithControlToTheCorners) {
    click(3, 2);
    key(Qt::Key_End);
    EXPECT_EQ(current(), "3,4");
    key(Qt::Key_Home);
    EXPECT_EQ(current(), "3,1");
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(current(), "40,4");
    key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(current(), "1,1");
}

TEST_F(GridViewTest, PageKeysMoveByTheRowsInView) {
    click(1, 1);
    key(Qt::Key_PageDown);
    const int page = form.grid.row() - 1;
    EXPECT_GT(page, 3);
    EXPECT_LT(page, 20);
    EXPECT_TRUE(inView(form.grid.row(), 1));
    key(Qt::Key_PageUp);
    EXPECT_EQ(current(), "1,1");
}

TEST_F(GridViewTest, TheCurrentCellIsKeptInViewAndTheHeadingsStay) {
    click(1, 1);
    for (int i = 0; i < 30; ++i) key(Qt::Key_Down);
    for (int i = 0; i < 3; ++i) key(Qt::Key_Right);
    EXPECT_TRUE(inView(31, 4));
    EXPECT_FALSE(inView(1, 1));
    EXPECT_EQ(view.horizontalHeader()->height(), 27);
    EXPECT_EQ(view.verticalHeader()->width(), 64);
}

TEST_F(GridViewTest, ShiftExtendsTheHighlightFromTheCurrentCell) {
    click(3, 2);
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "3,2 - 5,3");
    EXPECT_EQ(current(), "3,2");
    key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "3,2 - 4,3");
    click(1, 1, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "1,1 - 3,2");
    EXPECT_EQ(current(), "3,2");
}

TEST_F(GridViewTest, AClickIsToldOnceAndADragIsNone) {
    click(2, 2);
    EXPECT_EQ(form.log, "click 2,2 ");
    drag(2, 1, 4, 2);
    EXPECT_EQ(form.log, "click 2,2 ");
    EXPECT_EQ(selection(), "2,1 - 4,2");
}

TEST_F(GridViewTest, AHeadingHighlightsItsColumnAndARowNumberItsRow) {
    clickColumn(2);
    EXPECT_EQ(selection(), "1,2 - 40,2");
    EXPECT_EQ(current(), "1,2");
    EXPECT_TRUE(inView(1, 2));
    clickRow(5);
    EXPECT_EQ(selection(), "5,1 - 5,4");
    EXPECT_EQ(current(), "5,1");
    EXPECT_EQ(form.log, "");
}

TEST_F(GridViewTest, ShiftExtendsTheHighlightFromTheColumnOrRowWhereItBegan) {
    clickColumn(3);
    clickColumn(4, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "1,3 - 40,4");
    EXPECT_EQ(current(), "1,3");
    clickColumn(1, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "1,1 - 40,3");
    EXPECT_EQ(current(), "1,3");
    clickRow(2);
    clickRow(1, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "1,1 - 2,4");
    EXPECT_EQ(current(), "2,1");
    clickRow(4, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "2,1 - 4,4");
    EXPECT_EQ(current(), "2,1");
}

TEST_F(GridViewTest, TheCornerAndControlAHighlightAll) {
    view.findChild<QAbstractButton*>()->click();
    EXPECT_EQ(selection(), "1,1 - 40,4");
    click(2, 2);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(selection(), "1,1 - 40,4");
    EXPECT_EQ(current(), "1,1");
    EXPECT_TRUE(inView(1, 1));
}

TEST_F(GridViewTest, TheFormsHighlightIsExtendedFromItsCurrentCell) {
    click(9, 4);
    form.grid.select({.startRow = 3, .endRow = 5, .startCol = 2, .endCol = 2});
    open.window.refresh();
    EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), 3);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(selection(), "3,2 - 6,2");
    EXPECT_EQ(current(), "3,2");
    key(Qt::Key_Down);
    EXPECT_EQ(current(), "7,2") << "from where the highlight ended";
}

TEST_F(GridViewTest, ADraggedEdgeOfAHeadingWidensItsColumn) {
    const int before = view.cellRect(1, 1).width();
    QWidget& heading = *view.horizontalHeader()->viewport();
    const QPoint edge(before - 1, 5);
    QTest::mouseMove(&heading, edge);
    QTest::mousePress(&heading, Qt::LeftButton, {}, edge);
    QMouseEvent move(QEvent::MouseMove, edge + QPoint(30, 0), heading.mapToGlobal(edge + QPoint(30, 0)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&heading, &move);
    QTest::mouseRelease(&heading, Qt::LeftButton, {}, edge + QPoint(30, 0));
    EXPECT_NEAR(view.cellRect(1, 1).width(), before + 30, 1);
    EXPECT_NEAR(form.grid.colWidth(1), (before + 30) * 15, 15);
    EXPECT_EQ(selection(), "1,1 - 1,1");
}

TEST_F(GridViewTest, AWideColumnLeavesRoomForTheOthers) {
    form.grid.setColWidth(0, 100000);
    form.grid.setColWidth(1, 100000);
    open.window.refresh();
    EXPECT_LE(view.verticalHeader()->width(), view.width() / 2 + 1);
    EXPECT_LE(view.cellRect(1, 1).width(), view.width() / 2);
    EXPECT_GE(view.cellRect(1, 1).width(), view.width() / 2 - 30);
}

TEST_F(GridViewTest, NumbersStandAtTheRight) {
    form.grid.setCell(1, 1, "A");
    form.grid.setCell(1, 2, "2");
    const auto inkAt = [&](int col, bool right) {
        const QRect cell = view.cellRect(1, col).adjusted(3, 3, -3, -3);
        const QRect half(right ? cell.center().x() : cell.left(), cell.top(), cell.width() / 2,
                         cell.height());
        const QImage image = view.viewport()->grab(half).toImage();
        int dark = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
        return dark > 0;
    };
    click(5, 1);
    EXPECT_TRUE(inkAt(1, false));
    EXPECT_FALSE(inkAt(1, true));
    EXPECT_FALSE(inkAt(2, false));
    EXPECT_TRUE(inkAt(2, true));
}

TEST_F(GridViewTest, ATextTooLongForItsCellComesAsATip) {
    form.grid.setCell(2, 1, "A name that is much longer than its column");
    form.grid.setCell(3, 0, "A row's name that is longer, too");
    open.window.refresh();
    const auto tipAt = [&](QWidget* place, QPoint point) {
        QToolTip::hideText();
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        QHelpEvent help(QEvent::ToolTip, point, place->mapToGlobal(point));
        QApplication::sendEvent(place, &help);
        return QToolTip::text();
    };
    EXPECT_EQ(tipAt(view.viewport(), middle(2, 1)), "<qt>A name that is much longer than its column</qt>");
    EXPECT_EQ(tipAt(view.viewport(), middle(1, 1)), "");
    const auto justWithin = [&](int width) {
        std::string text;
        while (QFontMetricsF(view.font()).horizontalAdvance(qtText(text + 'i')) <= width) text += 'i';
        return text;
    };
    const std::string whole = justWithin(view.cellRect(2, 1).width());
    form.grid.setCell(2, 1, whole);
    open.window.refresh();
    EXPECT_EQ(tipAt(view.viewport(), middle(2, 1)), "<qt>" + qtText(whole) + "</qt>")
        << "the cell's margins take some of its room";
    QWidget* numbers = view.verticalHeader()->viewport();
    EXPECT_EQ(tipAt(numbers, {8, middle(3, 1).y()}), "<qt>A row's name that is longer, too</qt>");
    EXPECT_EQ(tipAt(numbers, {8, middle(2, 1).y()}), "");
}

TEST_F(GridViewTest, RowsComeAndGoWithTheGrid) {
    form.grid.setRows(101);
    open.window.refresh();
    EXPECT_EQ(view.model()->rowCount(), 100);
    EXPECT_EQ(view.verticalHeader()->sectionSize(99), view.verticalHeader()->sectionSize(0));
    form.grid.setRows(3);
    form.grid.setCols(9);
    open.window.refresh();
    EXPECT_EQ(view.model()->rowCount(), 2);
    EXPECT_EQ(view.model()->columnCount(), 8);
    EXPECT_EQ(view.horizontalHeader()->count(), 8) << "headings too";
}

TEST_F(GridViewTest, ADoubleClickIsTheGridsWhereItHasAMeaning) {
    doubleClick(2, 2);
    EXPECT_EQ(form.log, "click 2,2 click 2,2 ");
    form.log.clear();
    form.grid.onDoubleClick = [this] { form.log += "double "; };
    doubleClick(2, 2);
    EXPECT_EQ(form.log, "click 2,2 double ");
}

TEST_F(GridViewTest, InsertIsTheFormsKey) {
    key(Qt::Key_Insert);
    EXPECT_EQ(form.log, "insert ");
}

TEST_F(GridViewTest, BlocksAreCopiedAndPastedAsTabbedText) {
    form.grid.setCell(1, 1, "Ashby");
    form.grid.setCell(1, 2, "2.5");
    form.grid.setCell(2, 1, "Borrow");
    form.grid.setCell(2, 2, "8");
    drag(1, 1, 2, 2);
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "Ashby\t2.5\nBorrow\t8\n");
    click(6, 3);
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.grid.cell(6, 3), "Ashby");
    EXPECT_EQ(form.grid.cell(7, 4), "8");
}

TEST_F(GridViewTest, DeleteClearsTheBlockAsOneStepOfUndo) {
    for (int row = 1; row < 4; ++row) form.grid.setCell(row, 1, "x");
    form.grid.setCell(4, 1, "stays");
    drag(1, 1, 3, 1);
    key(Qt::Key_Delete);
    EXPECT_EQ(form.grid.cell(1, 1) + form.grid.cell(2, 1) + form.grid.cell(3, 1), "");
    EXPECT_EQ(form.grid.cell(4, 1), "stays");
    EXPECT_EQ(selection(), "1,1 - 3,1");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.grid.cell(1, 1) + form.grid.cell(2, 1) + form.grid.cell(3, 1), "xxx");
}

TEST_F(GridViewTest, UndoAndRedoFollowTheCells) {
    click(1, 1);
    type("12");
    click(2, 1);
    type("34");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.grid.cell(2, 1), "");
    EXPECT_EQ(form.grid.cell(1, 1), "12");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.grid.cell(1, 1), "");
    key(Qt::Key_Y, Qt::ControlModifier);
    key(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(form.grid.cell(1, 1) + form.grid.cell(2, 1), "1234");
}

TEST_F(GridViewTest, TabLeavesTheGridAndLettersWithControlTypeNothing) {
    click(1, 1);
    key(Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(form.grid.cell(1, 1), "");
    key(Qt::Key_Tab);
    EXPECT_FALSE(view.hasFocus());
}

TEST_F(GridViewTest, TheWheelScrollsTheRows) {
    QWheelEvent wheel(middle(3, 2), view.viewport()->mapToGlobal(middle(3, 2)), {}, {0, -240}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.viewport(), &wheel);
    EXPECT_EQ(view.verticalScrollBar()->value(), 6) << "rows";
}

TEST_F(GridViewTest, WithoutRowsNoKeyAndNoClickDoesHarm) {
    form.grid.setRows(1);
    open.window.refresh();
    for (const Qt::Key each : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Return, Qt::Key_Delete})
        key(each);
    type("5");
    clickColumn(2);
    EXPECT_EQ(form.grid.rows(), 1);
    EXPECT_EQ(form.log, "");
}

/// Count of pixels of the view that have exactly this colour.
int pixelsOf(const QImage& image, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour ? 1 : 0;
    return count;
}

TEST_F(GridViewTest, TheHighlightIsSeen) {
    constexpr QRgb highlight = 0xFFCDE2FA;
    click(1, 1);
    EXPECT_EQ(pixelsOf(view.viewport()->grab().toImage(), highlight), 0);
    drag(1, 1, 4, 3);
    EXPECT_GT(pixelsOf(view.viewport()->grab().toImage(), highlight), 4000);
}

} // namespace
} // namespace vantore::tests
